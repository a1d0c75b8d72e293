#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Moves the selected elements so that one edge, or the centre, of their drawn bounds lies on a line: that of the first
/// selected element, or of the page's margins when the layout is shown and aligns to them. One undo step.
class AlignmentCommand : public SysFramework::BaseCommand {
public:
  struct Row;

  /// Also notes whether the layout is shown; `OnClick` goes by that.
  bool IsEnable() override;
  void OnClick() override;

protected:
  explicit AlignmentCommand(Row const& row);

private:
  Row const* row_;
  bool pageLayoutIsActive_ = false;  // at the last IsEnable
};

class LeftAlignmentElement final : public AlignmentCommand {
public:
  LeftAlignmentElement();
};

class RightAlignmentElement final : public AlignmentCommand {
public:
  RightAlignmentElement();
};

class TopAlignmentElement final : public AlignmentCommand {
public:
  TopAlignmentElement();
};

class BottomAlignmentElement final : public AlignmentCommand {
public:
  BottomAlignmentElement();
};

class CenterAlignmentElement final : public AlignmentCommand {
public:
  CenterAlignmentElement();
};

class VerticalCenterAlignmentElement final : public AlignmentCommand {
public:
  VerticalCenterAlignmentElement();
};

}  // namespace Plugin
