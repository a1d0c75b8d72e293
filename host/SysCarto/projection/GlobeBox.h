#pragma once

#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <QPointF>
#include <QString>

#include <optional>

namespace SysCarto {

/// A part of the globe between two meridians and two parallels, in degrees. Where it lies across the 180th meridian,
/// west is more than east.
struct SYSCARTO_EXPORT GlobeBox {
  double west = 0, south = 0, east = -1, north = -1;  ///< of nothing, as it is

  bool isEmpty() const { return south > north; }

  /// From west to east; 0 to 360.
  double width() const;

  bool contains(GlobeBox const& other) const;
};

/// What a rectangle in a coordinate system covers of the globe, on a grid of places; of nothing where none of them has
/// a place there. Definitions as in `makeCoordinateSystem`; plain coordinates have no place on the globe.
SYSCARTO_EXPORT GlobeBox globeBoxOf(SysGeometry::Box const& rectangle, QString const& system);

/// Longitude and latitude of a place in a coordinate system; empty where it has none.
SYSCARTO_EXPORT std::optional<QPointF> degreesAt(QPointF const& place, QString const& system);

}  // namespace SysCarto
