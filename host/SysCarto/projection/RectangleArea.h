#pragma once

#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <ogr_geometry.h>

namespace SysCarto {

/// A rectangle as data have it: an area with one ring, from its lower left corner counterclockwise.
SYSCARTO_EXPORT OGRPolygon areaOf(SysGeometry::Box const& box);

}  // namespace SysCarto
