#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Shows the page settings, and then the whole page.
class PageSettingCommand : public SysFramework::BaseCommand {
public:
  PageSettingCommand();
  ~PageSettingCommand() override;

  bool IsEnable() override;
  void OnClick() override;
};

}  // namespace Plugin
