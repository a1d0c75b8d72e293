#pragma once

#include "LayoutCommand.h"

#include <SysCarto/MapSurround.h>
#include <SysCarto/PageLayout.h>

namespace Plugin {

/// Puts a surround that follows the layout's focus map on the page, at the layout's default place for its kind, and
/// selects it alone. One undo step.
class SurroundInsertionCommand : public LayoutCommand {
public:
  struct Row;

  void OnClick() override;

protected:
  explicit SurroundInsertionCommand(Row const& row);

private:
  Row const* row_;
};

class AddLegendCommand final : public SurroundInsertionCommand {
public:
  AddLegendCommand();
};

class AddScaleBarCommand final : public SurroundInsertionCommand {
public:
  AddScaleBarCommand();
};

class AddScaleTextCommand final : public SurroundInsertionCommand {
public:
  AddScaleTextCommand();
};

/// A frame with the surround, tied to the map (empty for none), in the rectangle.
SysUtility::_ptr_t<SysCarto::Element> surroundFrame(SysUtility::_ptr_t<SysCarto::MapSurround> const& surround,
                                                    SysUtility::_ptr_t<SysCarto::Map> const& map,
                                                    SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle);

/// Makes the element the only one selected, and draws the view anew.
void selectAlone(SysCarto::PageLayout& layout, SysUtility::_ptr_t<SysCarto::Element> const& element);

}  // namespace Plugin
