#include "OgrBridge.h"

#include "PlaneGeometry.h"
#include "QuietOgr.h"

#include <SysGeometry/Envelope.h>
#include <SysGeometry/MultiPolyline.h>
#include <SysGeometry/Point.h>
#include <SysGeometry/Polygon.h>
#include <SysGeometry/Polyline.h>

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

namespace {

using OgrPtr = std::unique_ptr<OGRGeometry>;

bool isFinite(QPointF const& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); }
bool isFinite(Ring const& points) {
  return std::all_of(points.begin(), points.end(), [](QPointF const& point) { return isFinite(point); });
}
bool isFinite(Rings const& runs) {
  return std::all_of(runs.begin(), runs.end(), [](Ring const& points) { return isFinite(points); });
}

void fill(OGRSimpleCurve& curve, Ring const& points) {
  curve.setNumPoints(points.size(), FALSE);
  for (int i = 0; i < points.size(); ++i) curve.setPoint(i, points[i].x(), points[i].y());
}

// What the vertices cover, valid: a line, or a point where all of them coincide.
OgrPtr lineOf(Ring const& points) {
  bool const flat = std::all_of(points.begin(), points.end(), [&](QPointF const& p) { return p == points.first(); });
  if (flat && !points.isEmpty()) return std::make_unique<OGRPoint>(points.first().x(), points.first().y());
  auto line = std::make_unique<OGRLineString>();
  fill(*line, points);
  return line;
}

OgrPtr linesOf(Rings const& paths) {
  auto lines = std::make_unique<OGRMultiLineString>();
  for (Ring const& path : paths) {
    OgrPtr line = lineOf(path);
    if (!line->IsEmpty() && wkbFlatten(line->getGeometryType()) == wkbLineString)
      lines->addGeometryDirectly(line.release());
  }
  return lines;
}

// The rings first stand as one shell with holes. Where that is not valid (islands, crossing rings), making it valid
// from its line work is the even-odd rule.
OgrPtr polygonOf(Rings const& rings) {
  auto polygon = std::make_unique<OGRPolygon>();
  for (Ring const& points : rings) {
    auto ring = std::make_unique<OGRLinearRing>();
    fill(*ring, points);
    ring->closeRings();
    if (ring->getNumPoints() >= 4) polygon->addRingDirectly(ring.release());
  }
  if (polygon->IsEmpty() || polygon->IsValid()) return polygon;
  OgrPtr const valid(polygon->MakeValid());
  if (!valid) return nullptr;
  return OgrPtr(OGRGeometryFactory::removeLowerDimensionSubGeoms(valid.get()));  // spikes
}

OgrPtr rectangleOf(Envelope const& envelope) {
  if (envelope.IsEmpty()) return std::make_unique<OGRPolygon>();
  double xmin, ymin, xmax, ymax;
  envelope.QueryCoords(xmin, ymin, xmax, ymax);
  Ring const corners{{xmin, ymin}, {xmax, ymin}, {xmax, ymax}, {xmin, ymax}};
  if (!isFinite(corners)) return nullptr;
  return xmin == xmax || ymin == ymax ? lineOf({corners[0], corners[2]}) : polygonOf({corners});
}

Ring pointsOf(OGRSimpleCurve const& curve) {
  Ring points;
  points.reserve(curve.getNumPoints());
  for (int i = 0; i < curve.getNumPoints(); ++i) points << QPointF(curve.getX(i), curve.getY(i));
  return points;
}

void addRings(Rings& rings, OGRPolygon const& polygon) {
  for (OGRLinearRing const* ring : polygon) rings << pointsOf(*ring);
}

}  // namespace

std::unique_ptr<OGRGeometry> toOgr(Geometry const& geometry) {
  QuietOgr const quiet;
  if (auto const* envelope = dynamic_cast<Envelope const*>(&geometry)) return rectangleOf(*envelope);
  if (auto const* point = dynamic_cast<Point const*>(&geometry)) {
    QPointF const position(point->GetX(), point->GetY());
    return isFinite(position) ? std::make_unique<OGRPoint>(position.x(), position.y()) : nullptr;
  }
  if (auto const* line = dynamic_cast<Polyline const*>(&geometry))
    return isFinite(line->GetPoints()) ? lineOf(line->GetPoints()) : nullptr;
  if (auto const* lines = dynamic_cast<MultiPolyline const*>(&geometry))
    return isFinite(lines->GetPaths()) ? linesOf(lines->GetPaths()) : nullptr;
  if (auto const* polygon = dynamic_cast<Polygon const*>(&geometry))
    return isFinite(polygon->GetRings()) ? polygonOf(polygon->GetRings()) : nullptr;
  return nullptr;
}

_ptr_t<Geometry> fromOgr(OGRGeometry const& geometry) {
  QuietOgr const quiet;
  if (geometry.IsEmpty()) return nullptr;
  if (geometry.hasCurveGeometry()) {
    OgrPtr const straight(geometry.getLinearGeometry());
    return straight && !straight->hasCurveGeometry() ? fromOgr(*straight) : nullptr;
  }
  switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint: {
      OGRPoint const* point = geometry.toPoint();
      return make<Point>(point->getX(), point->getY(), point->getZ());
    }
    case wkbLineString: return make<Polyline>(pointsOf(*geometry.toLineString()));
    case wkbMultiLineString: {
      Rings paths;
      for (OGRLineString const* line : geometry.toMultiLineString()) paths << pointsOf(*line);
      return make<MultiPolyline>(paths);
    }
    case wkbPolygon:
    case wkbMultiPolygon: {
      Rings rings;
      if (wkbFlatten(geometry.getGeometryType()) == wkbPolygon)
        addRings(rings, *geometry.toPolygon());
      else
        for (OGRPolygon const* polygon : geometry.toMultiPolygon()) addRings(rings, *polygon);
      return make<Polygon>(rings);
    }
    default: return nullptr;
  }
}

}  // namespace SysGeometry
