#pragma once

#include <SysUI/CMDPluginModule.h>

namespace Plugin {

/// The plug-in as its host sees it: a factory of commands, without any state.
class PlotvanePlugin final : public SysUI::CMDPluginModule {
public:
  PlotvanePlugin();
  ~PlotvanePlugin() override;

  /// A new command for an identifier, without regard to case; empty where there is none of that name. The second text
  /// is not read.
  SysUtility::_ptr_t<SysUI::ICommand> CreateCommand(QString const& id, QString const& reserved) override;
};

}  // namespace Plugin

/// The one function that the plug-in exports: a new module object, which belongs to the host.
extern "C" Q_DECL_EXPORT SysUI::CMDPluginModule* GetPluginModule();
