#include <SysUI/CMDPluginModule.h>

namespace SysUI {

CMDPluginModule::CMDPluginModule() = default;
CMDPluginModule::~CMDPluginModule() = default;

}  // namespace SysUI
