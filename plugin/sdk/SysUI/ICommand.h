#pragma once

#include <SysUI/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QString>

namespace SysUI {

/// The face of a command as its host sees it. Everything is called on the user-interface thread.
class SYSUI_EXPORT ICommand : public virtual SysUtility::CRef {
public:
  ~ICommand() override;

  virtual QString GetName() = 0;
  virtual QString GetCaption() = 0;
  virtual QString GetToolTip() = 0;
  virtual QString GetTypeName() = 0;

  /// Whether the command can be clicked now. Asked whenever the host refreshes its menus and toolbars; answered from
  /// the host's current state, never from a cache.
  virtual bool IsEnable() = 0;
  virtual bool IsChecked() = 0;

  /// Called once, before everything else. `hook` is an `IApplicationHook*`, borrowed for the life of the command.
  virtual void OnCreate(void* hook) = 0;

  /// Runs the command. The host clicks only what it has found enabled.
  virtual void OnClick() = 0;
};

}  // namespace SysUI
