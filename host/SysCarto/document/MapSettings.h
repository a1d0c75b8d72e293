#pragma once

#include "host/SysUtility/Fields.h"

#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Map.h>

#include <utility>
#include <vector>

namespace SysCarto {

/// What a document stores of a map, beside its layers and graphics.
struct MapSettings {
  QString name;
  QString coordinateSystem;
  double bounds[4] = {0, 0, 0, 0};  ///< xmin, ymin, xmax, ymax in map units
  double rotation = 0;              ///< degrees, counterclockwise
  double scale = 0;                 ///< its denominator; 0 where nothing but the bounds is said of it
  bool scaleLocked = false;         ///< the bounds then give the centre, and the scale the rest
  int labelEffort = 0;              ///< as of `MapHost`
  QString boundsSystem;             ///< the coordinate system in which the map had these bounds; not stored

  /// Where labels were put in that system, by layer; not stored here.
  std::vector<std::pair<SysUtility::_ptr_t<VectorLayer>, std::vector<PinnedLabel>>> pins;

  static MapSettings of(Map const& map);
  void list(SysUtility::Fields& fields);

  /// Of a scale that isn't locked and the bounds the one counts that differs from what the map has: whoever changes the
  /// scale changes the bounds about their centre. Who unlocks it goes on showing the same.
  ///
  /// A map that gets another coordinate system, and the bounds that it has, goes on showing what it showed, or all of
  /// its layers where that has no place there, and reads the data of its layers anew. Labels that were put somewhere
  /// stay there on the ground; those whose place it does not have are placed as others are. Sentences about those that
  /// can't be read are added to `warnings`.
  void applyTo(Map& map, QStringList& warnings) const;

private:
  void listScale(SysUtility::Fields& fields);
  void listLabels(SysUtility::Fields& fields);
};

}  // namespace SysCarto
