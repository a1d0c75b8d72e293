#pragma once

#include <SysGeometry/Geometry.h>

#include <memory>

class OGRGeometry;

namespace SysGeometry {

/// The same points as an OGR geometry, valid and without a coordinate system. An envelope becomes a polygon, a flat one
/// a line or a point; a polygon's rings are resolved by the even-odd rule, so that crossing rings come out as several
/// polygons and spikes disappear. An empty geometry gives an empty one; null means that a coordinate is infinite or not
/// a number.
SYSGEOMETRY_EXPORT std::unique_ptr<OGRGeometry> toOgr(Geometry const& geometry);

/// A copy as a geometry of ours: curves become segments; polygons and multipolygons one polygon. An empty pointer where
/// there are no points, and for what has no counterpart here (several points, mixed dimensions).
SYSGEOMETRY_EXPORT SysUtility::_ptr_t<Geometry> fromOgr(OGRGeometry const& geometry);

}  // namespace SysGeometry
