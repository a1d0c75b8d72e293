#pragma once

#include "host/SysGeometry/Box.h"

#include <SysGeometry/Export.h>

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <algorithm>
#include <cmath>

/// The kernel: algorithms of plane geometry, each written once. Headers only where they run for each vertex of a map.
///
/// A ring is any range of points with an x and a y; it closes by itself. Several rings bound an area by the even-odd
/// rule.
namespace SysGeometry {

/// As the geometries of the interface hold them.
using Ring = QVector<QPointF>;
using Rings = QVector<Ring>;

template <class Point>
auto xOf(Point const& point) -> decltype(point.x()) {
  return point.x();
}
template <class Point>
auto yOf(Point const& point) -> decltype(point.y()) {
  return point.y();
}
template <class Point>
auto xOf(Point const& point) -> decltype(point.x + 0.0) {
  return point.x;
}
template <class Point>
auto yOf(Point const& point) -> decltype(point.y + 0.0) {
  return point.y;
}

/// Calls `visit` with the ends of each edge, the one that closes the ring first, until it answers true.
template <class Points, class Visit>
bool anyEdge(Points const& ring, Visit const& visit) {
  if (ring.empty()) return false;
  auto const* before = &ring.back();
  for (auto const& point : ring) {
    if (visit(*before, point)) return true;
    before = &point;
  }
  return false;
}
template <class Visit>
bool anyEdge(Rings const& rings, Visit const& visit) {
  return std::any_of(rings.begin(), rings.end(), [&](Ring const& ring) { return anyEdge(ring, visit); });
}

/// What the vertices cover; without a point in it for no vertices. A vertex that is not a number counts as none.
inline Box boxOf(Ring const& points) {
  Box box;
  for (QPointF const& point : points)
    if (!std::isnan(point.x()) && !std::isnan(point.y())) box.add(point.x(), point.y());
  return box;
}
inline Box boxOf(Rings const& runs) {
  Box box;
  for (Ring const& points : runs) box.add(boxOf(points));
  return box;
}
inline Box boxOf(QRectF const& rectangle) {
  return {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
}

/// Even-odd rule, by the crossings of a ray to the right. An edge has its lower end and not its upper one, so that a
/// vertex is crossed once.
template <class Points>
bool contains(Points const& boundary, double x, double y) {
  bool inside = false;
  anyEdge(boundary, [&](auto const& a, auto const& b) {
    if ((yOf(a) > y) != (yOf(b) > y) && x < xOf(a) + (xOf(b) - xOf(a)) * (y - yOf(a)) / (yOf(b) - yOf(a)))
      inside = !inside;
    return false;
  });
  return inside;
}

/// Shoelace formula, positive for a ring that runs counterclockwise where y points upwards. Counted from the first
/// vertex, so that a small ring far from the origin keeps its digits.
template <class Points>
double signedArea(Points const& ring) {
  double twice = 0;
  anyEdge(ring, [&](auto const& a, auto const& b) {
    twice += (xOf(a) - xOf(b)) * (yOf(a) - yOf(ring[0]) + (yOf(b) - yOf(ring[0])));
    return false;
  });
  return twice / 2;
}

/// From (x, y) to the nearest place between two points.
inline double squaredDistanceToSegment(double ax, double ay, double bx, double by, double x, double y) {
  double const dx = bx - ax, dy = by - ay, squared = dx * dx + dy * dy;
  double const t = squared > 0 ? std::clamp(((x - ax) * dx + (y - ay) * dy) / squared, 0.0, 1.0) : 0;
  double const restX = x - ax - dx * t, restY = y - ay - dy * t;
  return restX * restX + restY * restY;
}
inline double squaredDistanceToSegment(QPointF const& a, QPointF const& b, QPointF const& point) {
  return squaredDistanceToSegment(a.x(), a.y(), b.x(), b.y(), point.x(), point.y());
}

/// Twice the area of the triangle: positive where `point` lies to the left of the way from a to b, y upwards.
inline double orientation(QPointF const& a, QPointF const& b, QPointF const& point) {
  return (b.x() - a.x()) * (point.y() - a.y()) - (b.y() - a.y()) * (point.x() - a.x());
}

/// Whether two segments share a point, by the orientations of their ends.
inline bool segmentsMeet(QPointF const& a, QPointF const& b, QPointF const& c, QPointF const& d) {
  if (std::max(a.x(), b.x()) < std::min(c.x(), d.x()) || std::max(c.x(), d.x()) < std::min(a.x(), b.x()) ||
      std::max(a.y(), b.y()) < std::min(c.y(), d.y()) || std::max(c.y(), d.y()) < std::min(a.y(), b.y()))
    return false;
  return orientation(a, b, c) * orientation(a, b, d) <= 0 && orientation(c, d, a) * orientation(c, d, b) <= 0;
}

/// Cohen–Sutherland's code: a bit for each side of the box beyond which a point lies. Two points with a common bit are
/// joined by nothing that meets the box.
inline unsigned outcode(Box const& box, QPointF const& point) {
  return (point.x() < box.xmin ? 1u : 0u) | (point.x() > box.xmax ? 2u : 0u) | (point.y() < box.ymin ? 4u : 0u) |
         (point.y() > box.ymax ? 8u : 0u);
}

/// The stretch of a segment that lies within a box, as fractions of its length; empty where `from` > `to`.
struct SegmentRange {
  double from = 0, to = 1;

  bool isEmpty() const { return from > to; }
};

/// Liang–Barsky.
inline SegmentRange clippedSegment(QPointF const& a, QPointF const& b, Box const& box) {
  SegmentRange range;
  // A side is entered or left where the distance to it changes its sign; inside it is positive.
  auto const cut = [&range](double distanceA, double distanceB) {
    if (distanceA < 0 && distanceB < 0) range = {1, 0};
    if ((distanceA < 0) == (distanceB < 0)) return;
    double const place = distanceA / (distanceA - distanceB);
    if (distanceA < 0)
      range.from = std::max(range.from, place);
    else
      range.to = std::min(range.to, place);
  };
  cut(a.x() - box.xmin, b.x() - box.xmin);
  cut(box.xmax - a.x(), box.xmax - b.x());
  cut(a.y() - box.ymin, b.y() - box.ymin);
  cut(box.ymax - a.y(), box.ymax - b.y());
  return range;
}

/// A ring within a box (Sutherland–Hodgman); what lies beyond is moved onto its sides. `Points` is a vector of QPointF.
template <class Points>
Points clippedRing(Points ring, Box const& box) {
  Points kept;
  auto const cut = [&](auto const& distance) {  // positive inside
    kept.clear();
    Points const& given = ring;
    int const count = static_cast<int>(given.size());
    for (int i = 0; i < count; ++i) {
      QPointF const &from = given[i], &to = given[i + 1 == count ? 0 : i + 1];
      double const before = distance(from), after = distance(to);
      if (before >= 0) kept.push_back(from);
      if ((before >= 0) != (after >= 0)) kept.push_back(from + (to - from) * (before / (before - after)));
    }
    ring.swap(kept);
  };
  cut([&](QPointF const& p) { return p.x() - box.xmin; });
  cut([&](QPointF const& p) { return box.xmax - p.x(); });
  cut([&](QPointF const& p) { return p.y() - box.ymin; });
  cut([&](QPointF const& p) { return box.ymax - p.y(); });
  return ring;
}

/// The place inside an area that is farthest from its border.
struct Pole {
  QPointF place;
  double depth;  ///< its distance from the border; negative for an area that has no inside
};

/// Polylabel: squares that may still hold a better place are divided, the most promising first. Found to within
/// `precision`, or a fiftieth of the depth if that is more.
SYSGEOMETRY_EXPORT Pole poleOfInaccessibility(Rings const& area, double precision);

}  // namespace SysGeometry
