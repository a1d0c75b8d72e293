#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/DisplayTransformation.h>
#include <SysUI/TrackerCancel.h>

#include <QString>

class QPainter;

namespace SysCarto {

class MapFrameElement;

/// A grid over a data frame, drawn on top of its border.
class SYSCARTO_EXPORT IMapGrid : public SysUtility::CRef {
public:
  ~IMapGrid() override;

  virtual QString GetName() const = 0;
  virtual void SetName(QString const& name) = 0;

  /// Draws the grid of `frame` under a page transformation.
  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                    SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<MapFrameElement> const& frame) = 0;

  /// What the grid of `frame` covers when drawn, labels included: an envelope in page units, an empty one where nothing
  /// is drawn.
  virtual SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      MapFrameElement const& frame) const = 0;
  virtual SysUtility::_ptr_t<IMapGrid> Clone() const = 0;
};

}  // namespace SysCarto
