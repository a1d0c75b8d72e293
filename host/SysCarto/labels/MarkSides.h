#pragma once

#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <vector>

namespace SysCarto {

using SysGeometry::Box;
struct LabelSettings;

/// Where a text stands by a mark: beside it, between low (−1) and high (1), or above or below it (1, −1), between its
/// left (−1) and its right.
struct MarkSide {
  enum class Kind { Beside, Over } kind;
  double across, up;
  double cost;  ///< what costs less is wanted more
};

/// The places that are wanted, in their order; where none are named the usual ones, and some between these.
SYSCARTO_EXPORT std::vector<MarkSide> sidesOf(LabelSettings const& settings);

/// The box of a text at a mark, all in points, y upwards.
SYSCARTO_EXPORT Box boxAt(Box const& mark, MarkSide const& side, double width, double height, double offset);

}  // namespace SysCarto
