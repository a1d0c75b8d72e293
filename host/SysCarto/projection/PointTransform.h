#pragma once

#include <SysCarto/Export.h>

#include <QString>

#include <cmath>
#include <memory>
#include <vector>

class OGRCoordinateTransformation;
class OGRSpatialReference;

namespace SysCarto {

/// Coordinates from one system into another, x before y in both. What can't be transformed comes out as NaN.
class SYSCARTO_EXPORT PointTransform {
public:
  /// An empty pointer where there is no way between the systems; `error` then says why, as a clause. May be called by
  /// any thread.
  static std::unique_ptr<PointTransform> create(OGRSpatialReference const& from, OGRSpatialReference const& to,
                                                QString& error);
  ~PointTransform();

  /// The same for another thread; an empty pointer where PROJ can't copy.
  std::unique_ptr<PointTransform> clone() const;

  /// x, y pairs, in place.
  void apply(std::vector<double>& xy) const;
  bool apply(double& x, double& y) const;

private:
  static std::unique_ptr<PointTransform> made(OGRSpatialReference const& from, OGRSpatialReference const& to,
                                              QString& error);
  PointTransform(OGRCoordinateTransformation* transformation, double farthest);

  // GDAL turns longitudes back round by round, so that what is too far from 0 would take for ever.
  bool isNear(double x, double y) const { return std::abs(x) <= farthest_ && std::abs(y) <= farthest_; }

  std::unique_ptr<OGRCoordinateTransformation> transformation_;
  double const farthest_;
  mutable std::vector<double> x_, y_;
  mutable std::vector<int> ok_;
};

/// The rectangle about what lies in one, as xmin, ymin, xmax and ymax in one system and then in the other; definitions
/// as in `makeCoordinateSystem`. False, with the sides as they were, where it can't be told.
bool transformBounds(double (&sides)[4], QString const& from, QString const& to);

}  // namespace SysCarto
