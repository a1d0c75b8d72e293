#include "SourceSystem.h"

#include <QCoreApplication>

#include <ogr_feature.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <optional>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SourceSystem)
};

constexpr int lookedAt = 20, lookedThrough = 1000;  // features: with a geometry, and with or without
constexpr double turns = 1.1;                       // farther than that no longitude is written

// Whether it holds for most of the first features.
template <class Test>
bool areMostly(OGRLayer& layer, Test const& test) {
  int seen = 0, so = 0;
  layer.ResetReading();
  for (int i = 0; i < lookedThrough && seen < lookedAt; ++i) {
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    if (!feature) break;
    OGRGeometry const* const geometry = feature->GetGeometryRef();
    if (!geometry || geometry->IsEmpty()) continue;
    OGREnvelope box;
    geometry->getEnvelope(&box);
    ++seen;
    so += test(box);
  }
  layer.ResetReading();
  return 2 * so > seen;
}

bool isWithin(OGREnvelope const& box, double x, double y) {
  return box.MinX >= -x && box.MaxX <= x && box.MinY >= -y && box.MaxY <= y;
}

// Which most formats know at once.
std::optional<OGREnvelope> knownExtent(OGRLayer& layer) {
  OGREnvelope all;
  bool const isKnown = layer.TestCapability(OLCFastGetExtent) && layer.GetExtent(&all, FALSE) == OGRERR_NONE;
  return isKnown ? std::optional(all) : std::nullopt;
}

// A GeoJSON without a system is one in degrees, whatever its numbers are. One place may be a slip, as (0, 0) among
// others; what lies a little beyond a pole may be, too.
bool areNoDegrees(OGRLayer& layer, OGRSpatialReference const& system) {
  double const most = turns * 2 * M_PI / system.GetAngularUnits();
  auto const extent = knownExtent(layer);
  if (extent && isWithin(*extent, most, most)) return false;
  return areMostly(layer, [=](OGREnvelope const& box) {
    return box.MinX > most || box.MaxX < -most || box.MinY > most || box.MaxY < -most;
  });
}

// Of a system whose places lie far from where it begins to count: where it is meant for, no number is so small.
bool mayBeDegrees(OGRLayer& layer, OGRSpatialReference const& system) {
  constexpr double far = 1e5;
  if (!system.IsProjected() || system.GetNormProjParm(SRS_PP_FALSE_EASTING, 0) < far) return false;
  auto const extent = knownExtent(layer);
  if (extent && !isWithin(*extent, far, far)) return false;
  return areMostly(layer, [](OGREnvelope const& box) { return isWithin(box, 180, 90); });
}

}  // namespace

QString SourceSystem::warning(QString const& source, QString const& complaint, bool isTakenAsMaps) const {
  bool const isUnknown = complaint.contains(QLatin1String("crs"));  // which GDAL takes for one that is not named
  if (isUnknown && isNoDegrees)
    return Texts::tr(
               "The coordinate system that %1 names is not known (%2); its coordinates, which can't be degrees, are "
               "taken as those of the map. Give the system in the source's field “coordinateSystem”.")
        .arg(source, complaint);
  if (isUnknown)
    return Texts::tr(
               "The coordinate system that %1 names is not known (%2); its coordinates are taken as longitudes "
               "and latitudes. Give the system in the source's field “coordinateSystem”.")
        .arg(source, complaint);
  if (isNoDegrees)
    return Texts::tr(
               "The coordinates of %1 can't be degrees, as those of its coordinate system are (GeoJSON that "
               "names none is in degrees); they are taken as those of the map. Give the system in the "
               "source's field “coordinateSystem”.")
        .arg(source);
  if (mayBeDegrees)
    return Texts::tr(
               "The coordinates of %1 look like degrees, and its coordinate system counts in metres. If they are, "
               "give the system in the source's field “coordinateSystem”, such as EPSG:4326.")
        .arg(source);
  if (!isTakenAsMaps) return QString();
  return Texts::tr(
             "No coordinate system is known for %1; its coordinates are taken as those of the map. "
             "Give one in the source's field “coordinateSystem”.")
      .arg(source);
}

SourceSystem systemOf(OGRLayer& layer, bool isOfServer) {
  OGRSpatialReference const* const system = layer.GetSpatialRef();
  if (!system || isOfServer) return {system, false};
  char const* const name = system->GetName();
  if (name && (EQUAL(name, "Undefined geographic SRS") || EQUAL(name, "Undefined Cartesian SRS"))) return {};
  if (system->IsGeographic() && system->GetAngularUnits() > 0 && areNoDegrees(layer, *system)) return {nullptr, true};
  return {system, false, mayBeDegrees(layer, *system)};
}

}  // namespace SysCarto
