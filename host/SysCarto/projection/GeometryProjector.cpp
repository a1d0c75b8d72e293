#include "GeometryProjector.h"

#include "host/SysCarto/projection/AntimeridianSteps.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/CurveDivider.h"
#include "host/SysCarto/projection/ProjText.h"
#include "host/SysCarto/projection/ProjectionProbe.h"
#include "host/SysCarto/projection/RememberedWays.h"
#include "host/SysCarto/projection/UnitedAreas.h"

#include <QCoreApplication>

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double degree = M_PI / 180;
constexpr double toleranceM = 10;
constexpr double toleranceShare = 1e-6;  // of the map
constexpr double toleranceDegrees = 1e-4;
constexpr double maxEdgeDegrees = 5;     // longer edges are divided, whatever a look at their middle says
constexpr double minEdgeDegrees = 0.05;  // a curve this short strays from its chord by about a metre
constexpr double maxEdgeM = 200000;
constexpr double seamDegrees = 1e-4;  // how near to the antimeridian data are cut
constexpr double poleDegrees = 0.01;  // and how near to a pole their lower edge may end
constexpr double inwards = 1e-9;      // at ±180 itself a projection may take either side
constexpr int maxCollectionDepth = 32;
constexpr double farthestLatitude = 90.1;  // a little beyond a pole is a slip
constexpr double farthestLongitude = 540;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(GeometryProjector)
};

double metresPerUnit(OGRSpatialReference const& system) {
  double const unit = system.IsProjected() ? system.GetLinearUnits() : 1;
  return unit > 0 ? unit : 1;
}

double meridianOf(OGRSpatialReference const& system) { return system.GetPrimeMeridian(); }

bool isOnGlobe(OGRSpatialReference const& system) { return system.IsGeographic() || system.IsProjected(); }

bool isSame(OGRSpatialReference const& a, OGRSpatialReference const& b) {
  char const* const options[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", "CRITERION=EQUIVALENT", nullptr};
  return a.IsSame(&b, options);
}

std::vector<double> coordinatesOf(OGRSimpleCurve const& curve) {
  std::vector<double> xy;
  xy.reserve(2 * static_cast<size_t>(curve.getNumPoints()));
  for (int i = 0; i < curve.getNumPoints(); ++i) {
    double const x = curve.getX(i), y = curve.getY(i);
    if (std::isfinite(x) && std::isfinite(y)) xy.insert(xy.end(), {x, y});
  }
  return xy;
}

void openRing(std::vector<double>& xy) {
  while (xy.size() > 2 && xy[0] == xy[xy.size() - 2] && xy[1] == xy[xy.size() - 1]) xy.resize(xy.size() - 2);
}

// There are projections that PROJ knows by their names alone.
bool leadsBack(OGRSpatialReference const& projected, PointTransform const& toGlobe) {
  if (!ProjText(projected).isEmpty()) return true;
  double x = projected.GetProjParm(SRS_PP_FALSE_EASTING), y = projected.GetProjParm(SRS_PP_FALSE_NORTHING);
  return toGlobe.apply(x, y);
}

bool anyEdge(std::vector<unsigned char> const& edges, unsigned char flag) {
  return std::any_of(edges.begin(), edges.end(), [=](unsigned char edge) { return edge & flag; });
}

}  // namespace

PartSink::~PartSink() = default;

std::unique_ptr<GeometryProjector> GeometryProjector::create(OGRSpatialReference const* source,
                                                             OGRSpatialReference const* target, QString& error) {
  static auto& ways = *new RememberedWays<GeometryProjector>;
  error.clear();
  auto const make = [&] { return made(source, target, error); };
  return source && target ? ways.between(*source, *target, make) : make();
}

std::unique_ptr<GeometryProjector> GeometryProjector::made(OGRSpatialReference const* source,
                                                           OGRSpatialReference const* target, QString& error) {
  auto projector = std::make_unique<GeometryProjector>();
  bool const hasGlobe = source && target && isOnGlobe(*target);
  if (!hasGlobe || (!target->IsGeographic() && isSame(*source, *target))) return projector;

  if (source->IsGeocentric()) {
    error = Texts::tr("they are geocentric, as X, Y and Z; convert the data to longitude and latitude");
    return nullptr;
  }
  if (!source->IsGeographic() && !source->IsProjected() && (source->IsVertical() || source->IsLocal())) {
    error = Texts::tr(
                "their own, “%1”, is neither geographic nor projected; give the source the one that they have in truth")
                .arg(QString::fromUtf8(source->GetName()));
    return nullptr;
  }
  auto const globe = globeOf(*target);
  if (!globe) return projector;
  projector->sourceIsGeographic_ = source->IsGeographic() && !source->IsDerivedGeographic();
  if (projector->sourceIsGeographic_) {
    projector->sourceDegree_ = source->GetAngularUnits() / degree;
    projector->antimeridian_ = std::remainder(180 + meridianOf(*source) - meridianOf(*globe), 360.0);
  }
  if (!isSame(*source, *globe)) projector->toGlobe_ = PointTransform::create(*source, *globe, error);
  if (error.isEmpty() && projector->toGlobe_ && source->IsProjected() && !leadsBack(*source, *projector->toGlobe_))
    error = Texts::tr("PROJ knows no way back from their own, “%1”").arg(QString::fromUtf8(source->GetName()));
  if (!error.isEmpty()) return nullptr;
  projector->toMap_ = PointTransform::create(*globe, *target, error);
  if (!projector->toMap_) return nullptr;

  double const unit = metresPerUnit(*target);
  Domain const& domain = projector->domain_ = makeDomain(*target, ProjectionProbe(*projector->toMap_, *target, *globe));
  if (!domain.border) {
    error = Texts::tr("PROJ knows no way to project into it");
    return nullptr;
  }
  projector->mapTolerance_ = target->IsGeographic() ? toleranceDegrees : toleranceM / unit;
  // Some projections count in globes, and not in metres.
  if (domain.size > 0) projector->mapTolerance_ = std::min(projector->mapTolerance_, domain.size * toleranceShare);
  projector->maxSourceEdge_ =
      source->IsGeographic() ? maxEdgeDegrees * degree / source->GetAngularUnits() : maxEdgeM / metresPerUnit(*source);
  return projector;
}

std::unique_ptr<GeometryProjector> GeometryProjector::clone() const {
  auto copy = std::make_unique<GeometryProjector>();
  if (toGlobe_) copy->toGlobe_ = toGlobe_->clone();
  if (toMap_) copy->toMap_ = toMap_->clone();
  if ((toGlobe_ && !copy->toGlobe_) || (toMap_ && !copy->toMap_)) return nullptr;
  copy->sourceIsGeographic_ = sourceIsGeographic_;
  copy->sourceDegree_ = sourceDegree_;
  copy->antimeridian_ = antimeridian_;
  copy->domain_ = domain_;
  copy->mapTolerance_ = mapTolerance_;
  copy->maxSourceEdge_ = maxSourceEdge_;
  return copy;
}

void GeometryProjector::add(OGRGeometry const& geometry, PartSink& sink) const {
  if (!geometry.hasCurveGeometry()) return addLinear(geometry, sink, 0);
  std::unique_ptr<OGRGeometry> const linear(geometry.getLinearGeometry());
  if (linear) addLinear(*linear, sink, 0);
}

void GeometryProjector::addLinear(OGRGeometry const& geometry, PartSink& sink, int depth) const {
  if (geometry.IsEmpty() || depth > maxCollectionDepth) return;
  switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint: return addPoint(geometry.toPoint()->getX(), geometry.toPoint()->getY(), sink);
    case wkbLineString: return addLine(*geometry.toLineString(), sink);
    case wkbPolygon:
    case wkbTriangle: return addPolygon(*geometry.toPolygon(), sink);
    case wkbPolyhedralSurface:
    case wkbTIN:
    case wkbGeometryCollection:
      if (auto const united = withUnitedAreas(geometry, sourceIsGeographic_ ? sourceDegree_ : 0))
        return addMembers(*united, sink, depth);
      if (auto const* const surface = dynamic_cast<OGRPolyhedralSurface const*>(&geometry)) {
        for (auto const* face : *surface) addLinear(*face, sink, depth + 1);
        return;
      }
      [[fallthrough]];
    case wkbMultiPoint:
    case wkbMultiLineString:
    case wkbMultiPolygon: return addMembers(*geometry.toGeometryCollection(), sink, depth);
    default: return;
  }
}

bool GeometryProjector::isBeyondGlobe(OGRGeometry const& geometry) const {
  if (!isFromDegrees() || geometry.IsEmpty()) return false;
  OGREnvelope box;
  geometry.getEnvelope(&box);
  auto const isWithin = [&](double low, double high, double most) {
    return low * sourceDegree_ >= -most && high * sourceDegree_ <= most;
  };
  return !(isWithin(box.MinX, box.MaxX, farthestLongitude) && isWithin(box.MinY, box.MaxY, farthestLatitude));
}

void GeometryProjector::addMembers(OGRGeometryCollection const& collection, PartSink& sink, int depth) const {
  for (auto const* member : collection) addLinear(*member, sink, depth + 1);
}

void GeometryProjector::addPoint(double x, double y, PartSink& sink) const {
  if (!std::isfinite(x) || !std::isfinite(y)) return;
  if (toMap_) {
    if (toGlobe_ && !toGlobe_->apply(x, y)) return;
    Vertex point{x - domain_.centralLongitude, y, 0};
    if (!domain_.border->admit(point)) return;
    x = point.x + domain_.centralLongitude;
    y = point.y;
    if (!toMap_->apply(x, y)) return;
  }
  double const xy[] = {x, y};
  sink.addPart(PartKind::Point, xy, 1);
}

void GeometryProjector::addLine(OGRLineString const& line, PartSink& sink) const {
  std::vector<double> xy = coordinatesOf(line);
  if (xy.size() < 4) return;
  if (!toMap_) return sink.addPart(PartKind::Line, xy.data(), static_cast<int>(xy.size() / 2));
  std::vector<Run> pieces;
  domain_.border->clipLine(toGlobe(std::move(xy), false), pieces);
  for (Run const& piece : pieces) storeLine(piece, sink);
}

void GeometryProjector::addPolygon(OGRPolygon const& polygon, PartSink& sink) const {
  std::vector<Run> rings;
  sink.startPolygon();
  for (auto const* ring : polygon) {
    std::vector<double> xy = coordinatesOf(*ring);
    openRing(xy);
    if (xy.size() < 6) continue;
    if (toMap_)
      rings.push_back(toGlobe(std::move(xy), true));
    else
      sink.addPart(PartKind::Ring, xy.data(), static_cast<int>(xy.size() / 2));
  }
  rings.erase(std::remove_if(rings.begin(), rings.end(), [](Run const& ring) { return ring.size() < 3; }), rings.end());
  if (rings.empty()) return;
  std::vector<std::vector<Run>> polygons;
  domain_.border->clipPolygon(rings, polygons);
  for (std::vector<Run> const& piece : polygons) storePolygon(piece, sink);
}

// Longitude from the middle of the map, and latitude. The edges of a geographic source are straight in these, those of
// a projected one become so by added vertices.
Run GeometryProjector::toGlobe(std::vector<double> xy, bool closed) const {
  Run run;
  run.reserve(xy.size() / 2);
  auto const add = [&](double x, double y) {
    run.push_back({x - domain_.centralLongitude, std::clamp(y, -90.0, 90.0), 0});
  };
  std::vector<double> const source = toGlobe_ ? xy : std::vector<double>();
  if (toGlobe_) toGlobe_->apply(xy);
  size_t const count = xy.size() / 2;
  if (toGlobe_ && sourceIsGeographic_)  // another datum must not move a place to the other side of the antimeridian
    for (size_t i = 0; i < count; ++i) {
      double const written = source[2 * i] * sourceDegree_ + antimeridian_ - 180;
      xy[2 * i] = written + std::remainder(xy[2 * i] - written, 360.0);
    }
  double start = 0;  // of the edge: its other places are as near to it in longitude as they can be
  auto const project = [&](double& x, double& y) {
    if (!toGlobe_->apply(x, y)) return false;
    x = start + std::remainder(x - start, 360.0);
    return true;
  };
  CurveDivider<decltype(project)> const divider(project, toleranceDegrees, maxSourceEdge_, maxSourceEdge_ / 100);
  for (size_t i = 0; i < count; ++i) {
    if (!std::isfinite(xy[2 * i])) continue;
    add(xy[2 * i], xy[2 * i + 1]);
    size_t const n = (i + 1) % count;
    if (!toGlobe_ || sourceIsGeographic_ || (n == 0 && !closed) || !std::isfinite(xy[2 * n])) continue;
    start = xy[2 * i];
    double const end = start + std::remainder(xy[2 * n] - start, 360.0);
    divider.divide({source[2 * i], source[2 * i + 1], start, xy[2 * i + 1]},
                   {source[2 * n], source[2 * n + 1], end, xy[2 * n + 1]}, add);
  }
  if (sourceIsGeographic_) {
    double const zero = 180 + domain_.centralLongitude - antimeridian_;  // as the source counts
    closed ? joinRing(run, zero) : joinLine(run, zero);
  } else {
    unwrap(run);
    if (closed) closeOverPole(run);
  }
  if (closed) markSeams(run);
  return run;
}

// Edges on the antimeridian of geographic data, and along their pole, come from a cut that was made before.
void GeometryProjector::markSeams(Run& ring) const {
  for (size_t i = 0; i < ring.size(); ++i) {
    Vertex& a = ring[i];
    Vertex const& b = ring[(i + 1) % ring.size()];
    double const beside = a.x + domain_.centralLongitude - antimeridian_;
    bool const onCut = std::abs(std::remainder(beside, 360.0)) < seamDegrees && std::abs(a.x - b.x) < 2 * seamDegrees;
    bool const onPole = std::min(std::abs(a.y), std::abs(b.y)) > 90 - poleDegrees && a.y * b.y > 0;
    if ((sourceIsGeographic_ && onCut) || onPole) a.edge |= seamEdge;
  }
}

// The projected vertices, and for each what is known of the edge that leads on from it. A closed run's last edge leads
// to the first vertex. What can't be projected is left out.
std::vector<double> GeometryProjector::toMap(Run const& run, bool closed, std::vector<unsigned char>& edges) const {
  double const widest = domain_.isStrip ? 180 - inwards : INFINITY;
  auto const longitude = [&](double x) { return std::clamp(x, -widest, widest) + domain_.centralLongitude; };
  auto const project = [&](double& x, double& y) {
    x = longitude(x);
    return toMap_->apply(x, y);
  };
  CurveDivider<decltype(project)> const divider(project, mapTolerance_, maxEdgeDegrees, minEdgeDegrees);
  size_t const count = run.size();
  auto const leadsToCurve = [&](size_t i) {
    size_t const n = (i + 1) % count;
    return (n != 0 || closed) && !(run[i].edge & arcEdge) && divider.mayBend(run[i], run[n]);
  };
  // One after the other they would take PROJ much longer: the vertices, then the middles of edges in their order.
  std::vector<double> projected, result;
  projected.reserve(3 * count);
  auto const put = [&](double x, double y) { projected.insert(projected.end(), {longitude(x), y}); };
  for (Vertex const& v : run) put(v.x, v.y);
  for (size_t i = 0; i < count; ++i) {
    Vertex const &a = run[i], &b = run[(i + 1) % count];
    if (leadsToCurve(i)) put((a.x + b.x) / 2, (a.y + b.y) / 2);
  }
  toMap_->apply(projected);

  auto const end = [&](Vertex const& v, size_t i) {
    return CurveEnd{v.x, v.y, projected[2 * i], projected[2 * i + 1]};
  };
  size_t nextMiddle = count;
  for (size_t i = 0; i < count; ++i) {
    size_t const n = (i + 1) % count;
    size_t const middle = leadsToCurve(i) ? nextMiddle++ : 0;
    if (!std::isfinite(projected[2 * i])) continue;
    auto const add = [&](double x, double y) {
      result.insert(result.end(), {x, y});
      edges.push_back(run[i].edge);
    };
    add(projected[2 * i], projected[2 * i + 1]);
    if (middle == 0 || !std::isfinite(projected[2 * n])) continue;
    CurveEnd const a = end(run[i], i), b = end(run[n], n);
    if (std::isfinite(projected[2 * middle]))
      divider.divideAt(end(between(run[i], run[n], 0.5), middle), a, b, add);
    else
      divider.divide(a, b, add);
  }
  return result;
}

void GeometryProjector::storePolygon(std::vector<Run> const& rings, PartSink& sink) const {
  sink.startPolygon();
  for (Run const& ring : rings) storeRing(ring, sink);
}

void GeometryProjector::storeRing(Run const& ring, PartSink& sink) const {
  std::vector<unsigned char> edges;
  std::vector<double> const xy = toMap(ring, true, edges);
  int const count = static_cast<int>(edges.size());
  if (count < 3) return;
  bool const cut = anyEdge(edges, seamEdge);
  sink.addPart(cut ? PartKind::FilledRing : PartKind::Ring, xy.data(), count);
  if (!cut) return;

  // From one seam to the next there is a run of edges to be stroked.
  int const start = static_cast<int>(
      std::find_if(edges.begin(), edges.end(), [](unsigned char edge) { return edge & seamEdge; }) - edges.begin());
  std::vector<double> outline;
  auto const end = [&] {
    if (outline.size() > 2) sink.addPart(PartKind::Outline, outline.data(), static_cast<int>(outline.size() / 2));
    outline.clear();
  };
  for (int n = 1; n <= count; ++n) {
    int const i = (start + n) % count;
    outline.insert(outline.end(), {xy[2 * i], xy[2 * i + 1]});
    if (edges[i] & seamEdge) end();
  }
}

void GeometryProjector::storeLine(Run const& line, PartSink& sink) const {
  std::vector<unsigned char> edges;
  std::vector<double> const xy = toMap(line, false, edges);
  if (edges.size() > 1) sink.addPart(PartKind::Line, xy.data(), static_cast<int>(edges.size()));
}

}  // namespace SysCarto
