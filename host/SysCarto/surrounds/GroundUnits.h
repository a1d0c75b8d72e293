#pragma once

#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <vector>

namespace SysCarto {

/// A unit in which ground is measured.
struct GroundUnit {
  BarUnit unit;
  char const* name;  ///< in documents and place-holders
  char const* sign;
  double metres;
  char const* caption;  ///< as of a `Field`
};

std::vector<GroundUnit> const& groundUnits();
GroundUnit const& groundUnit(BarUnit unit);  ///< not for `Automatic`

/// A place-holder for lengths of ground on a length of paper, such as {km/cm}, in a pattern.
struct GroundPlace {
  int start, length;  ///< in the pattern, braces included
  QString text;       ///< with its braces
  double factor;      ///< by which the scale denominator is multiplied; 0 where a unit is not known
};
QVector<GroundPlace> groundPlaces(QString const& pattern);

}  // namespace SysCarto
