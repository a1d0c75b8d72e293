#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Puts plain graphics in the place of the selected surrounds, which then follow their map no longer. One undo step.
class ConvertToGraphics final : public SysFramework::BaseCommand {
public:
  bool IsEnable() override;
  void OnClick() override;
};

}  // namespace Plugin
