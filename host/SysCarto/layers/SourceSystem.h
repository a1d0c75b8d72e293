#pragma once

#include <QString>

class OGRLayer;
class OGRSpatialReference;

namespace SysCarto {

/// What a layer says of the coordinate system that it is in.
struct SourceSystem {
  OGRSpatialReference const* system = nullptr;  ///< the layer's own; null where it says none that means anything
  bool isNoDegrees = false;                     ///< it said degrees, and its coordinates can't be any
  bool mayBeDegrees = false;                    ///< it said another one, and they could be

  /// What is to be told of it; empty where all is well. `complaint` is what GDAL said against the source when it opened
  /// it, and coordinates without a system may be taken as the map's.
  QString warning(QString const& source, QString const& complaint, bool isTakenAsMaps) const;
};

/// A system that a GeoPackage calls undefined is none. Looks at the first features of a file's layer where
/// the coordinates may be others than it says, and has it begin anew; those of a server would have to be sent.
SourceSystem systemOf(OGRLayer& layer, bool isOfServer);

}  // namespace SysCarto
