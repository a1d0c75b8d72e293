#include "Placement.h"

#include "host/SysDisplay/DisplayTransformationHost.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysGeometry::Polygon;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;

namespace {

// Fine enough for a circle as large as a poster at print resolution.
constexpr int cornersOfQuarter = 64;

QVector<QPointF> placed(QVector<QPointF> points, Placement const& placement) {
  for (QPointF& point : points) point = placement.map(point.x(), point.y());
  return points;
}

// A quarter of an ellipse, counterclockwise, from `quarter` × 90 degrees on.
void addQuarter(QVector<QPointF>& ring, QPointF const& centre, double radiusX, double radiusY, int quarter) {
  for (int i = 0; i <= cornersOfQuarter; ++i) {
    double const angle = M_PI_2 * (quarter + static_cast<double>(i) / cornersOfQuarter);
    ring << centre + QPointF(radiusX * std::cos(angle), radiusY * std::sin(angle));
  }
}

}  // namespace

Placement Placement::moving(Envelope const& from, double dx, double dy, double farthest) {
  auto const bounded = [&](double wanted, double low, double high) {
    return std::clamp(wanted, std::min(-farthest - low, 0.0), std::max(farthest - high, 0.0));
  };
  Placement placement;
  placement.dx = bounded(dx, from.GetXMin(), from.GetXMax());
  placement.dy = bounded(dy, from.GetYMin(), from.GetYMax());
  return placement;
}

Placement Placement::scaling(_ptr_t<Point> const& origin, double sx, double sy) {
  Placement placement;
  if (origin) {
    placement.originX = origin->GetX();
    placement.originY = origin->GetY();
  }
  placement.scaleX = sx;
  placement.scaleY = sy;
  return placement;
}

Placement Placement::fitting(Envelope const& from, Envelope const& to) {
  _ptr_t<Point> const centre = from.GetAnchorPoint(), aim = to.GetAnchorPoint();
  if (!centre || !aim) return {};
  double const width = std::abs(from.GetWidth()), height = std::abs(from.GetHeight());
  Placement placement = scaling(centre, width > 0 ? std::abs(to.GetWidth()) / width : 1,
                                height > 0 ? std::abs(to.GetHeight()) / height : 1);
  placement.dx = aim->GetX() - centre->GetX();
  placement.dy = aim->GetY() - centre->GetY();
  return placement;
}

_ptr_t<Point> placed(Point const& point, Placement const& placement) {
  QPointF const at = placement.map(point.GetX(), point.GetY());
  return SysUtility::make<Point>(at.x(), at.y(), point.GetZ());
}

_ptr_t<Envelope> placed(Envelope const& rectangle, Placement const& placement) {
  QPointF const low = placement.map(rectangle.GetXMin(), rectangle.GetYMin());
  QPointF const high = placement.map(rectangle.GetXMax(), rectangle.GetYMax());
  return Envelope(low.x(), low.y(), high.x(), high.y()).GetEnvelope();
}

_ptr_t<Polyline> placed(Polyline const& line, Placement const& placement) {
  return SysUtility::make<Polyline>(placed(line.GetPoints(), placement));
}

_ptr_t<Polygon> placed(Polygon const& polygon, Placement const& placement) {
  QVector<QVector<QPointF>> rings = polygon.GetRings();
  for (QVector<QPointF>& ring : rings) ring = placed(ring, placement);
  return SysUtility::make<Polygon>(rings);
}

bool haveSameCorners(Envelope const& a, Envelope const& b) {
  return a.GetXMin() == b.GetXMin() && a.GetYMin() == b.GetYMin() && a.GetXMax() == b.GetXMax() &&
         a.GetYMax() == b.GetYMax();
}

bool isFinite(_ptr_t<Envelope> const& rectangle) {
  return rectangle && std::isfinite(rectangle->GetXMin()) && std::isfinite(rectangle->GetYMin()) &&
         std::isfinite(rectangle->GetXMax()) && std::isfinite(rectangle->GetYMax());
}

bool isNearEnough(Envelope const& area) {
  return std::max({-area.GetXMin(), -area.GetYMin(), area.GetXMax(), area.GetYMax()}) <= farthestGraphic;
}

void include(Envelope& area, _ptr_t<Geometry> const& other) {
  _ptr_t<Envelope> const added = other ? other->GetEnvelope() : nullptr;
  if (!added || added->IsEmpty()) return;
  if (area.IsEmpty())
    area = *added;
  else
    area.PutCoords(std::min(area.GetXMin(), added->GetXMin()), std::min(area.GetYMin(), added->GetYMin()),
                   std::max(area.GetXMax(), added->GetXMax()), std::max(area.GetYMax(), added->GetYMax()));
}

QPointF upright(DisplayTransformation const& transformation, QPointF const& place, QPointF const& point) {
  QTransform const& turn = DisplayTransformationHost::turn(transformation);
  if (turn.isIdentity()) return point;
  QPointF const away = point - place;
  return place + QPointF(turn.m11() * away.x() + turn.m12() * away.y(), turn.m21() * away.x() + turn.m22() * away.y());
}

_ptr_t<Envelope> upright(DisplayTransformation const& transformation, QPointF const& place, Envelope const& rectangle) {
  auto const area = SysUtility::make<Envelope>();
  for (double const x : {rectangle.GetXMin(), rectangle.GetXMax()})
    for (double const y : {rectangle.GetYMin(), rectangle.GetYMax()}) {
      QPointF const corner = upright(transformation, place, {x, y});
      include(*area, SysUtility::make<Point>(corner.x(), corner.y(), 0.0));
    }
  return area;
}

double worldPerPoint(DisplayTransformation const& transformation) {
  return transformation.PixelsPerPoint() / DisplayTransformationHost::pixelsPerUnit(transformation);
}

_ptr_t<Polygon> ellipseIn(Envelope const& rectangle) {
  QPointF const centre((rectangle.GetXMin() + rectangle.GetXMax()) / 2,
                       (rectangle.GetYMin() + rectangle.GetYMax()) / 2);
  QVector<QPointF> ring;
  for (int quarter = 0; quarter < 4; ++quarter)
    addQuarter(ring, centre, rectangle.GetWidth() / 2, rectangle.GetHeight() / 2, quarter);
  return SysUtility::make<Polygon>(QVector<QVector<QPointF>>{ring});
}

_ptr_t<Geometry> roundedRectangle(Envelope const& rectangle, double roundingPercent) {
  _ptr_t<Envelope> const r = rectangle.GetEnvelope();
  double const radius = std::min(r->GetWidth(), r->GetHeight()) / 2 * std::clamp(roundingPercent, 0.0, 100.0) / 100;
  if (!(radius > 0)) return r;
  double const left = r->GetXMin() + radius, right = r->GetXMax() - radius;
  double const bottom = r->GetYMin() + radius, top = r->GetYMax() - radius;
  QVector<QPointF> ring;
  addQuarter(ring, {right, top}, radius, radius, 0);
  addQuarter(ring, {left, top}, radius, radius, 1);
  addQuarter(ring, {left, bottom}, radius, radius, 2);
  addQuarter(ring, {right, bottom}, radius, radius, 3);
  return SysUtility::make<Polygon>(QVector<QVector<QPointF>>{ring});
}

}  // namespace SysCarto
