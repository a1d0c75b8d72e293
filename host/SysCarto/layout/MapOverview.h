#pragma once

#include <SysCarto/IMapGrid.h>
#include <SysDisplay/FillSymbol.h>

#include <memory>

namespace SysCarto {

class Map;

/// What another map shows, as an area on the map of a data frame: the rectangle of its own frame, turned where that map
/// is turned. It is one of the data frame's grids, follows the other map whenever it is drawn, and is cut off at the
/// frame. While no data frame shows the other map, or where that is the frame's own, nothing is drawn.
class SYSCARTO_EXPORT MapOverview final : public IMapGrid {
public:
  MapOverview();
  MapOverview(MapOverview const&);
  ~MapOverview() override;

  /// The other map; empty for none.
  SysUtility::_ptr_t<Map> const& map() const;
  void setMap(SysUtility::_ptr_t<Map> const& map);

  /// Empty for the usual one, a red outline.
  SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol() const;
  void setSymbol(SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);

  /// That of the other map; another one is not kept.
  QString GetName() const override;
  void SetName(QString const& name) override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
            SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<MapFrameElement> const& frame) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      MapFrameElement const& frame) const override;
  SysUtility::_ptr_t<IMapGrid> Clone() const override;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
