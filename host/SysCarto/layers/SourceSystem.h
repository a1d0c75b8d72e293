#pragma once

class OGRLayer;
class OGRSpatialReference;

namespace SysCarto {

/// What a layer says of the coordinate system that it is in.
struct SourceSystem {
  OGRSpatialReference const* system = nullptr;  ///< the layer's own; null where it says none that means anything
  bool isNoDegrees = false;                     ///< it said degrees, and its coordinates can't be any
  bool mayBeDegrees = false;                    ///< it said another one, and they could be
};

/// A system that a GeoPackage calls undefined is none. Looks at the first features of a file's layer where
/// the coordinates may be others than it says, and has it begin anew; those of a server would have to be sent.
SourceSystem systemOf(OGRLayer& layer, bool isOfServer);

}  // namespace SysCarto
