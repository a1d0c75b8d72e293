#pragma once

#include <SysCarto/IMapGrid.h>

#include <memory>

namespace SysCarto {

/// A grid of meridians and parallels, or of lines along which a coordinate of the map is constant, labelled outside the
/// frame. A new one is of the first kind and chooses its interval for the map's scale.
class SYSCARTO_EXPORT Graticule final : public IMapGrid {
public:
  Graticule();
  Graticule(Graticule const&);
  ~Graticule() override;

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
  friend struct GraticuleSettings;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
