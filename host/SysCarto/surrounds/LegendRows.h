#pragma once

#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <SysCarto/Layer.h>
#include <SysCarto/Map.h>
#include <SysDisplay/Symbol.h>

namespace SysCarto {

/// A line of a legend: the name of a layer above its classes, one of these, a layer that has none, or markers in
/// proportion to numbers, one within the other.
struct LegendRow {
  enum Kind { Heading, Class, Layer, Nested };
  QString text;
  QVector<SysUtility::_ptr_t<SysDisplay::Symbol>> symbols;  ///< one over the other; none for a heading
  Kind kind;
  QVector<LegendClass> nested = {};  ///< the largest first

  /// Symbols are the same where they are the same object.
  bool operator==(LegendRow const& other) const;
};

/// What a legend tells of the map as it is now, from above.
QVector<LegendRow> legendRows(Map const& map, LegendSettings const& settings);

}  // namespace SysCarto
