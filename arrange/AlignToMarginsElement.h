#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Switches the layout's align-to-margins setting, which the alignment commands read. Not an undo step.
class AlignToMarginsElement final : public SysFramework::BaseCommand {
public:
  bool IsEnable() override;
  bool IsChecked() override;
  void OnClick() override;
};

}  // namespace Plugin
