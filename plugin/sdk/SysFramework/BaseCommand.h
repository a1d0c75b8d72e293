#pragma once

#include <SysFramework/Export.h>
#include <SysFramework/IApplicationHook.h>
#include <SysUI/ICommand.h>

namespace SysFramework {

/// Base of every command: every operation with a default. A command overrides `IsEnable` and `OnClick`.
class SYSFRAMEWORK_EXPORT BaseCommand : public SysUI::ICommand {
public:
  BaseCommand(BaseCommand const&);
  BaseCommand& operator=(BaseCommand const&);
  ~BaseCommand() override;

  // Empty texts: captions and tool tips belong to the host's configuration.
  QString GetName() override;
  QString GetCaption() override;
  QString GetToolTip() override;
  QString GetTypeName() override;

  /// The enabled flag.
  bool IsEnable() override;
  bool IsChecked() override;  ///< false

  /// Keeps the hook.
  void OnCreate(void* hook) override;
  void OnClick() override;  ///< does nothing

protected:
  BaseCommand();

  /// The kept hook; null before `OnCreate`.
  IApplicationHook* hook() const { return static_cast<IApplicationHook*>(hook_); }

  void* hook_;    ///< what `OnCreate` was given
  bool enabled_;  ///< what the default `IsEnable` answers; false at first
};

}  // namespace SysFramework
