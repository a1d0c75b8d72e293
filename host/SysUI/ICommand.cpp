#include <SysUI/ICommand.h>

namespace SysUI {

ICommand::~ICommand() = default;

}  // namespace SysUI
