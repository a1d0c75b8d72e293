#pragma once

#include <SysCarto/FrameElementBase.h>
#include <SysCarto/IMapGrid.h>

namespace SysCarto {

class Map;

/// A data frame: a rectangle of the page that shows a map.
///
/// A clone shares the map and copies the grids. A rectangle that changes keeps the bounds stored in the map, fitted to
/// the new shape, so a frame that grows shows the same map larger. The lock belongs to the handle: clones share it.
class SYSCARTO_EXPORT MapFrameElement final : public FrameElementBase {
public:
  /// With a new, empty map of its own.
  MapFrameElement();
  MapFrameElement(MapFrameElement const&);
  ~MapFrameElement() override;

  SysUtility::_ptr_t<Map> GetMap() const;
  int GetMapGridCount() const;

  /// Empty where there is no grid of that index.
  SysUtility::_ptr_t<IMapGrid> GetMapGrid(int index) const;

  /// A locked frame can't be selected, moved or resized with the mouse; commands still see it. Not undoable.
  virtual void SetLocked(bool locked);
  virtual void AddMapGrid(SysUtility::_ptr_t<IMapGrid> const& grid);

  int GetType() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  SysUtility::_ptr_t<Element> Clone() const override;

  bool IsLocked() const;

  /// Shows another map. An empty pointer is ignored.
  void SetMap(SysUtility::_ptr_t<Map> const& map);

protected:
  void rectangleChanged() override;

private:
  void handleChanged() override;
  void containerChanged() override;

  friend struct MapFrameHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
