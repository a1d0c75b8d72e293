#pragma once

#include "host/SysCarto/projection/PointTransform.h"
#include "host/SysGeometry/Box.h"

#include <QRect>
#include <QSize>
#include <QTransform>

#include <memory>
#include <vector>

class OGRSpatialReference;

namespace SysCarto {

/// Towards lower numbers for negative ones, too.
inline int floorDivided(int number, int by) { return number >= 0 ? number / by : -((-number + by - 1) / by); }

class RasterSource;

/// The pixels of a picture of a map, wherever it is cut into tiles: they are counted from a place that all tiles share.
struct PixelGrid {
  QTransform toMap;       ///< from columns and rows of the grid, counted downwards, to map units
  double pixelUnits = 1;  ///< map units on the side of a pixel

  /// The grid of what a transformation draws, and the device pixel at its origin. Numbers are rounded by less than
  /// a thousandth of a pixel, so that all tiles have the very same.
  static PixelGrid of(QTransform const& toDevice, QPointF const& anchor, QPoint& origin);
};

/// Where the middle of each pixel of a rectangle lies on a raster, in columns and rows of its own pixels; not a number
/// where the map shows no place of the globe, or the raster does not reach.
struct PixelPlaces {
  QRect area;
  std::vector<double> columns, rows;
  double perPixelX = 0, perPixelY = 0;  ///< how many of the raster's pixels are on one, along both sides; 0 for none
  bool isEmpty = true;
};

/// The way from a map to a raster.
class RasterPlaces {
public:
  /// As of features: without a system of the map or the raster, coordinates are taken as they are. An empty pointer
  /// where there is no way between the systems; `error` then says why, as a clause.
  static std::unique_ptr<RasterPlaces> create(RasterSource const& source, QString const& mapSystem, QString& error);

  PixelPlaces find(PixelGrid const& grid, QRect const& area) const;

  /// About what the raster covers, in map units.
  SysGeometry::Box box() const;

private:
  explicit RasterPlaces(QSize const& size) : size_(size) {}
  void toRaster(std::vector<double>& xy, double tolerance) const;
  void toMap(std::vector<double>& xy) const;

  QSize const size_;
  QTransform toPixels_, toWorld_;
  std::unique_ptr<PointTransform> toGlobe_, fromGlobe_;  // between the map and its globe; null where it is that
  std::unique_ptr<PointTransform> toSource_, fromSource_;
  double turnOfGlobe_ = 0;        // 360 degrees in the units of a geographic source
  double degreesPerMapUnit_ = 0;  // of a geographic map
};

}  // namespace SysCarto
