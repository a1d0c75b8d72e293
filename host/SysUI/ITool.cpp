#include <SysUI/ITool.h>

namespace SysUI {

ITool::~ITool() = default;

}  // namespace SysUI
