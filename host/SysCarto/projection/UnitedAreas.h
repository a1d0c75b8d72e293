#pragma once

#include <memory>

class OGRGeometry;
class OGRGeometryCollection;

namespace SysCarto {

/// A collection or a surface, in whose place each place is in one area at most: members, or faces seen from above, may
/// lie over each other, which in a feature's area would be a hole. Faces that are seen from the side are none. Null
/// where there is nothing to unite. `degreesPerUnit` is 0 where the coordinates are not longitudes and latitudes; where
/// they are, what steps over the antimeridian goes on beyond it.
std::unique_ptr<OGRGeometryCollection> withUnitedAreas(OGRGeometry const& geometry, double degreesPerUnit);

}  // namespace SysCarto
