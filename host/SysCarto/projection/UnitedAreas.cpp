#include "UnitedAreas.h"

#include "host/SysCarto/projection/AntimeridianSteps.h"
#include "host/SysGeometry/QuietOgr.h"

#include <QtGlobal>

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace SysCarto {

namespace {

constexpr int maxDepth = 32;
constexpr int mostCrossings = 60;   // of an area's edges: to mend it takes more than the square of their number
constexpr int mostPairs = 4000000;  // of edges that are looked at for them

using PolygonPointer = std::unique_ptr<OGRPolygon>;

struct Members {
  std::vector<PolygonPointer> areas;  // flat
  std::unique_ptr<OGRGeometryCollection> others = std::make_unique<OGRGeometryCollection>();
};

// A triangle, too, becomes a polygon.
PolygonPointer flatArea(OGRPolygon const& given) {
  auto area = std::make_unique<OGRPolygon>();
  for (auto const* ring : given) area->addRing(const_cast<OGRLinearRing*>(ring));  // which it copies
  area->flattenTo2D();
  return area;
}

void gather(OGRGeometry const& geometry, int depth, Members& members) {
  auto const type = wkbFlatten(geometry.getGeometryType());
  auto const* const surface = dynamic_cast<OGRPolyhedralSurface const*>(&geometry);
  if (type == wkbPolygon || type == wkbTriangle) {
    members.areas.push_back(flatArea(*geometry.toPolygon()));
  } else if (surface) {
    for (auto const* face : *surface) gather(*face, depth + 1, members);
  } else if (OGR_GT_IsSubClassOf(type, wkbGeometryCollection) && depth < maxDepth) {
    for (auto const* member : *geometry.toGeometryCollection()) gather(*member, depth + 1, members);
  } else {
    members.others->addGeometry(&geometry);
  }
}

void joinRing(OGRLinearRing& ring, double degreesPerUnit) {
  Run run;
  for (int i = 0; i + 1 < ring.getNumPoints(); ++i)  // the last one is the first
    run.push_back({ring.getX(i) * degreesPerUnit, ring.getY(i) * degreesPerUnit});
  joinRing(run, 0);
  ring.setNumPoints(static_cast<int>(run.size()));
  for (size_t i = 0; i < run.size(); ++i)
    ring.setPoint(static_cast<int>(i), run[i].x / degreesPerUnit, run[i].y / degreesPerUnit);
  ring.closeRings();
}

void move(OGRPolygon& area, double x) {
  for (auto* ring : area)
    for (int i = 0; i < ring->getNumPoints(); ++i) ring->setPoint(i, ring->getX(i) + x, ring->getY(i));
}

// What lies on both sides of the antimeridian comes to lie together.
void joinOverAntimeridian(std::vector<PolygonPointer> const& areas, double degreesPerUnit) {
  double const turn = 360 / degreesPerUnit;
  auto const envelopeOf = [](OGRPolygon const& area) {
    OGREnvelope box;
    area.getEnvelope(&box);
    return box;
  };
  for (PolygonPointer const& area : areas)
    for (auto* ring : *area) joinRing(*ring, degreesPerUnit);
  bool const reachesBeyond = std::any_of(areas.begin(), areas.end(), [&](PolygonPointer const& area) {
    auto const box = envelopeOf(*area);
    return box.MinX < -turn / 2 || box.MaxX > turn / 2;
  });
  if (!reachesBeyond) return;
  for (PolygonPointer const& area : areas) {
    auto const box = envelopeOf(*area);
    move(*area, -turn * std::floor((box.MinX + box.MaxX) / 2 / turn));
  }
}

struct Edge {
  double ax, ay, bx, by;  // from west to east
};

bool cross(Edge const& one, Edge const& other) {
  auto const side = [](Edge const& edge, double x, double y) {
    return (edge.bx - edge.ax) * (y - edge.ay) - (edge.by - edge.ay) * (x - edge.ax);
  };
  return side(one, other.ax, other.ay) * side(one, other.bx, other.by) < 0 &&
         side(other, one.ax, one.ay) * side(other, one.bx, one.by) < 0;
}

// Whether few enough of its edges cross each other, looked for from west to east.
bool canBeMended(OGRPolygon const& area) {
  std::vector<Edge> edges, open;
  for (auto const* ring : area)
    for (int i = 1; i < ring->getNumPoints(); ++i) {
      bool const isEast = ring->getX(i) >= ring->getX(i - 1);
      int const west = isEast ? i - 1 : i, east = isEast ? i : i - 1;
      edges.push_back({ring->getX(west), ring->getY(west), ring->getX(east), ring->getY(east)});
    }
  std::sort(edges.begin(), edges.end(), [](Edge const& a, Edge const& b) { return a.ax < b.ax; });
  qint64 pairs = 0, crossings = 0;
  for (Edge const& edge : edges) {
    open.erase(std::remove_if(open.begin(), open.end(), [&](Edge const& one) { return one.bx < edge.ax; }), open.end());
    pairs += static_cast<qint64>(open.size());
    crossings += std::count_if(open.begin(), open.end(), [&](Edge const& one) { return cross(one, edge); });
    if (pairs > mostPairs || crossings > mostCrossings) return false;
    open.push_back(edge);
  }
  return true;
}

// The area itself, or what is an area of one that crosses itself. False where that would take too long.
bool addValid(PolygonPointer area, OGRMultiPolygon& valid) {
  if (area->IsValid()) {
    valid.addGeometryDirectly(area.release());
    return true;
  }
  if (!canBeMended(*area)) return false;
  std::unique_ptr<OGRGeometry> const made(area->MakeValid());
  if (!made) return false;
  Members parts;
  gather(*made, 0, parts);
  for (PolygonPointer& part : parts.areas) valid.addGeometryDirectly(part.release());
  return true;
}

}  // namespace

std::unique_ptr<OGRGeometryCollection> withUnitedAreas(OGRGeometry const& geometry, double degreesPerUnit) {
  Members members;
  gather(geometry, 0, members);
  if (members.areas.size() < 2) return nullptr;
  SysGeometry::QuietOgr const quiet;
  if (degreesPerUnit > 0) joinOverAntimeridian(members.areas, degreesPerUnit);
  OGRMultiPolygon valid;
  for (PolygonPointer& area : members.areas)
    if (!addValid(std::move(area), valid)) return nullptr;
  std::unique_ptr<OGRGeometry> united(valid.UnionCascaded());
  if (!united || united->IsEmpty() || members.others->addGeometryDirectly(united.get()) != OGRERR_NONE) return nullptr;
  united.release();
  return std::move(members.others);
}

}  // namespace SysCarto
