#pragma once

#include "ElementLimits.h"

#include <SysCarto/Export.h>
#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Polygon.h>
#include <SysGeometry/Polyline.h>

#include <QPointF>

#include <algorithm>

namespace SysCarto {

/// A scaling about an origin, followed by a move, as far as graphics may lie. Kept apart rather than as a matrix, so
/// that what lies on the origin stays there to the last bit.
struct SYSCARTO_EXPORT Placement {
  double originX = 0, originY = 0;
  double scaleX = 1, scaleY = 1;
  double dx = 0, dy = 0;

  /// What lies between those corners comes no farther than `farthest` from 0, in each direction; what is there already
  /// does not come farther.
  static Placement moving(SysGeometry::Envelope const& from, double dx, double dy, double farthest = farthestGraphic);
  static Placement scaling(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy);

  /// From one rectangle to another. A side without length is not scaled, but centred.
  static Placement fitting(SysGeometry::Envelope const& from, SysGeometry::Envelope const& to);

  QPointF map(double x, double y) const {
    return nearEnough({originX + (x - originX) * scaleX + dx, originY + (y - originY) * scaleY + dy});
  }

  /// The place of a graphic that is nearest to a point.
  static QPointF nearEnough(QPointF const& point) {
    return {std::clamp(point.x(), -farthestGraphic, farthestGraphic),
            std::clamp(point.y(), -farthestGraphic, farthestGraphic)};
  }
};

// The geometry at its new place, a new object. An envelope's corners come out ordered.
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Point> placed(SysGeometry::Point const& point,
                                                              Placement const& placement);
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Envelope> placed(SysGeometry::Envelope const& rectangle,
                                                                 Placement const& placement);
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Polyline> placed(SysGeometry::Polyline const& line,
                                                                 Placement const& placement);
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Polygon> placed(SysGeometry::Polygon const& polygon,
                                                                Placement const& placement);

/// Whether both have the same corners, to the last bit.
SYSCARTO_EXPORT bool haveSameCorners(SysGeometry::Envelope const& a, SysGeometry::Envelope const& b);

/// False for an empty pointer, and where a side is infinite or not a number.
SYSCARTO_EXPORT bool isFinite(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle);

/// False where it reaches farther than graphics may lie.
SYSCARTO_EXPORT bool isNearEnough(SysGeometry::Envelope const& area);

/// Grows `area` so that it holds `other`, too. Empty ones count for nothing.
SYSCARTO_EXPORT void include(SysGeometry::Envelope& area, SysUtility::_ptr_t<SysGeometry::Geometry> const& other);

// Letters and pictures stay upright on a map that is turned, and hang on a place of it.

/// Where in the world something lies that would be at `point` if the map were not turned.
SYSCARTO_EXPORT QPointF upright(SysDisplay::DisplayTransformation const& transformation, QPointF const& place,
                                QPointF const& point);

/// The same of a rectangle: the smallest one of the world that holds what it covers.
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Envelope> upright(
    SysDisplay::DisplayTransformation const& transformation, QPointF const& place,
    SysGeometry::Envelope const& rectangle);

/// World units on one point (1/72 inch) of a symbol.
SYSCARTO_EXPORT double worldPerPoint(SysDisplay::DisplayTransformation const& transformation);

SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Polygon> ellipseIn(SysGeometry::Envelope const& rectangle);

/// `roundingPercent` is of half the shorter side; without rounding the rectangle itself.
SYSCARTO_EXPORT SysUtility::_ptr_t<SysGeometry::Geometry> roundedRectangle(SysGeometry::Envelope const& rectangle,
                                                                           double roundingPercent);

}  // namespace SysCarto
