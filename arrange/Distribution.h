#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Moves the selected elements between the two outermost ones so that all neighbours are the same gap apart, edge to
/// edge. The outermost ones stay: they are those with the lowest and the highest centre of their drawn bounds, while
/// gaps are measured between own rectangles. One undo step.
class DistributionCommand : public SysFramework::BaseCommand {
public:
  struct Row;

  bool IsEnable() override;
  void OnClick() override;

protected:
  explicit DistributionCommand(Row const& row);

private:
  Row const* row_;
};

class DistributeHorizontallyElements final : public DistributionCommand {
public:
  DistributeHorizontallyElements();
};

class DistributeVerticallyElements final : public DistributionCommand {
public:
  DistributeVerticallyElements();
};

}  // namespace Plugin
