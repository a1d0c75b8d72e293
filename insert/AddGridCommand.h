#pragma once

#include "LayoutCommand.h"

#include <SysCarto/MapFrameElement.h>

namespace Plugin {

/// Adds a graticule to the page's first data frame, after a question where it has one already. One undo step.
class AddGridCommand final : public LayoutCommand {
public:
  void OnClick() override;

private:
  bool mayAdd() const;
  QString GetGraticuleName() const;

  SysUtility::_ptr_t<SysCarto::MapFrameElement> frame_;  // of the last click that found one
};

}  // namespace Plugin
