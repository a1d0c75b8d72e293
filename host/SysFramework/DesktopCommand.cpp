#include <SysFramework/DesktopCommand.h>

namespace SysFramework {

DesktopCommand::DesktopCommand() : desktop_(nullptr) {}
DesktopCommand::DesktopCommand(DesktopCommand const&) = default;
DesktopCommand::~DesktopCommand() = default;

void DesktopCommand::OnCreate(void* hook) {
  BaseCommand::OnCreate(hook);
  desktop_ = dynamic_cast<IDesktop*>(this->hook());
}

}  // namespace SysFramework
