#pragma once

#include <SysFramework/DesktopCommand.h>

namespace Plugin {

/// Exchanges the page layout for that of another document, and keeps the maps. Not an undo step.
class ChangePageLayout final : public SysFramework::DesktopCommand {
public:
  bool IsEnable() override;
  void OnClick() override;
};

}  // namespace Plugin
