#pragma once

#include <SysFramework/BaseCommand.h>
#include <SysFramework/IDesktop.h>

namespace SysFramework {

/// A command that works on the desktop as well as on the document.
class SYSFRAMEWORK_EXPORT DesktopCommand : public BaseCommand {
public:
  /// Keeps the hook, and the desktop behind it; in a host without one the desktop stays null.
  void OnCreate(void* hook) override;

protected:
  DesktopCommand();
  DesktopCommand(DesktopCommand const&);
  ~DesktopCommand() override;

  IDesktop* desktop_;  ///< borrowed
};

}  // namespace SysFramework
