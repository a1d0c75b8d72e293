#pragma once

#include "host/SysUtility/Fields.h"

#include <SysCarto/Map.h>

namespace SysCarto {

/// What a document stores of a map, beside its layers and graphics.
struct MapSettings {
  QString name;
  QString coordinateSystem;
  double bounds[4] = {0, 0, 0, 0};  ///< xmin, ymin, xmax, ymax in map units
  double rotation = 0;              ///< degrees, counterclockwise

  static MapSettings of(Map const& map);
  void list(SysUtility::Fields& fields);

  /// A map that gets another coordinate system, and the bounds that it has, goes on showing what it showed, and reads
  /// the data of its layers anew. Sentences about those that can't be read are added to `warnings`.
  void applyTo(Map& map, QStringList& warnings) const;
};

}  // namespace SysCarto
