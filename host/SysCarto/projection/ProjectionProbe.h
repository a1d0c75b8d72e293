#pragma once

#include "host/SysCarto/projection/ProjectionDomain.h"

#include <memory>
#include <vector>

class OGRSpatialReference;

namespace SysCarto {

class PointTransform;

/// Asks a coordinate system where it shows places of its globe, in degrees.
class ProjectionProbe {
public:
  /// `toMap` leads from `globe` to `system`, and must outlive it.
  ProjectionProbe(PointTransform const& toMap, OGRSpatialReference const& system, OGRSpatialReference const& globe);
  ~ProjectionProbe();
  ProjectionProbe(ProjectionProbe const&) = delete;
  ProjectionProbe& operator=(ProjectionProbe const&) = delete;

  /// What is projected farther from the false origin than this, in radii of the globe, is as good as infinite.
  static constexpr double maxRadii = 6;

  /// x, y pairs in place; NaN for a place that comes out nowhere, or farther away than `radii`.
  void project(std::vector<double>& xy, double radii = maxRadii) const;

  /// The same, but NaN also for a place that doesn't come back from the map to where it was: there the projection shows
  /// something else. Where it knows no way back, what comes out is believed.
  void projectAndReturn(std::vector<double>& xy, double radii = maxRadii) const;

  bool knowsWayBack() const { return toGlobe_ != nullptr; }

  /// The place of the globe at a place on the map; false where there is none.
  bool comeBack(double& x, double& y) const;

  /// Where the projection's own 0, 0 lies on the map: the false easting and northing, in map units.
  Vertex falseOrigin() const { return origin_; }

private:
  PointTransform const& toMap_;
  std::unique_ptr<PointTransform> toGlobe_;  // null where there is no way back
  double radius_;                            // of the globe, in map units
  Vertex origin_;
};

}  // namespace SysCarto
