#pragma once

#include "LayoutCommand.h"

namespace Plugin {

/// Lets a person choose a north arrow from the style libraries and puts it on the page. One undo step without a name.
/// Where the setting names no library that exists, it is set to the host's own.
class AddNorthArrowCommand final : public LayoutCommand {
public:
  void OnClick() override;
};

}  // namespace Plugin
