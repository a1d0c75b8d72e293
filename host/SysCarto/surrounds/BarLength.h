#pragma once

#include "host/SysCarto/surrounds/GroundUnits.h"

#include <optional>

namespace SysCarto {

constexpr int maxChosenDivisions = 10;
constexpr double minBarCm = 0.3;

/// What a scale bar shows: `divisions` steps of `step` units.
struct Bar {
  GroundUnit const* unit;
  double step;
  int divisions;
  double lengthCm;  ///< of paper
};

/// The longest bar that follows the settings and is no longer than so much paper; where they give both the count and
/// the length of its divisions, that one, however long it is. Empty where even the shortest is longer, or could not be
/// seen.
std::optional<Bar> maxBar(double maxCm, double metresPerCm, ScaleLineSettings const& settings);

/// The bar with divisions of the length that is asked for: as many as are asked for, or one.
Bar shortestBar(double metresPerCm, ScaleLineSettings const& settings);

}  // namespace SysCarto
