#pragma once

#include "Sizing.h"

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Stretches the selected elements to the width, the height, or both of the page's margins, and moves their own
/// rectangles onto the margins' left or lower edge. Markers and map surrounds can't be stretched. One undo step.
class FitToMarginsCommand : public SysFramework::BaseCommand {
public:
  struct Row;

  bool IsEnable() override;
  void OnClick() override;

protected:
  explicit FitToMarginsCommand(Row const& row);

private:
  SysUtility::_ptr_t<SysCarto::Element> fitted(SysCarto::Element const& element,
                                               SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transform,
                                               SysGeometry::Envelope const& margins) const;

  Row const* row_;
};

class FitWidthtoMarginsElements final : public FitToMarginsCommand {
public:
  FitWidthtoMarginsElements();
};

class FitHeighttoMarginsElements final : public FitToMarginsCommand {
public:
  FitHeighttoMarginsElements();
};

class FittoMarginsElements final : public FitToMarginsCommand {
public:
  FittoMarginsElements();
};

}  // namespace Plugin
