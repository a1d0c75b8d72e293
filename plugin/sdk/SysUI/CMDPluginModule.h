#pragma once

#include <SysUI/ICommand.h>

namespace SysUI {

/// What a plug-in's exported function `GetPluginModule` answers: a factory of commands. The host owns the object. The
/// plug-in is never unloaded, so a command may outlive its module.
class SYSUI_EXPORT CMDPluginModule : public SysUtility::CRef {
public:
  ~CMDPluginModule() override;

  /// A new command for an identifier, without regard to case; empty where the plug-in knows none of that name. The
  /// second text is reserved: the host passes an empty one.
  virtual SysUtility::_ptr_t<ICommand> CreateCommand(QString const& id, QString const& reserved) = 0;

protected:
  CMDPluginModule();
};

}  // namespace SysUI
