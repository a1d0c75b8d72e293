#pragma once

#include "LayoutCommand.h"

namespace Plugin {

/// Adds a data frame with a map of its own, a little aside from the one added before, and gives it the focus.
class AddMapFrameElementTool final : public LayoutCommand {
public:
  void OnClick() override;
};

}  // namespace Plugin
