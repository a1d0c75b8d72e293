#pragma once

#include "host/SysGeometry/Box.h"

#include <optional>
#include <vector>

class OGRLayer;

namespace SysCarto {

class GeometryProjector;
using SysGeometry::Box;

/// Where a source has its features, in its own coordinates, as it says itself: nothing where it does not say so without
/// being read, or says what makes no sense.
std::optional<Box> toldExtent(OGRLayer& layer, GeometryProjector const& projector);

/// What of the map a rectangle of a source covers; empty where the map shows nothing of it.
Box coveredMap(Box const& source, GeometryProjector const& projector);

/// Rectangles in the coordinates of a source of that extent. A feature of which anything shows in the area of the map
/// meets one of them.
std::vector<Box> sourceWindow(Box const& extent, Box const& area, GeometryProjector const& projector);

}  // namespace SysCarto
