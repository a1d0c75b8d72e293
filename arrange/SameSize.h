#pragma once

#include "Sizing.h"

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Gives the selected elements the drawn width, height, or both of the last selected one; their lower left corners
/// stay. A marker, which has no size to change, ends the command where it is met. One undo step.
class SameSizeCommand : public SysFramework::BaseCommand {
public:
  struct Row;

  bool IsEnable() override;
  void OnClick() override;

protected:
  explicit SameSizeCommand(Row const& row);

private:
  bool resizeSelection(SysCarto::ActiveView const& view, IElementContainer& container) const;

  Row const* row_;
};

class MakeSameWidthElements final : public SameSizeCommand {
public:
  MakeSameWidthElements();
};

class MakeSameHeightElements final : public SameSizeCommand {
public:
  MakeSameHeightElements();
};

class MakeSameSizeElements final : public SameSizeCommand {
public:
  MakeSameSizeElements();
};

}  // namespace Plugin
