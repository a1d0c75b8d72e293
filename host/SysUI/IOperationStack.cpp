#include <SysUI/IOperationStack.h>

namespace SysUI {

IOperationStack::~IOperationStack() = default;

}  // namespace SysUI
