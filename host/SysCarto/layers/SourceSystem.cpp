#include "SourceSystem.h"

#include <ogr_feature.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <cmath>

namespace SysCarto {

namespace {

constexpr int lookedAt = 20, lookedThrough = 1000;  // features: with a geometry, and with or without
constexpr double turns = 1.1;                       // farther than that no longitude is written

// A GeoJSON without a system is one in degrees, whatever its numbers are. One place may be a slip, as (0, 0) among
// others; what lies a little beyond a pole may be, too.
bool areNoDegrees(OGRLayer& layer, OGRSpatialReference const& system) {
  double const most = turns * 2 * M_PI / system.GetAngularUnits();
  auto const isBeyond = [&](OGREnvelope const& box) {
    return box.MinX > most || box.MaxX < -most || box.MinY > most || box.MaxY < -most;
  };
  OGREnvelope all;  // which most formats know at once
  bool const isKnown = layer.TestCapability(OLCFastGetExtent) && layer.GetExtent(&all, FALSE) == OGRERR_NONE;
  if (isKnown && all.MinX >= -most && all.MaxX <= most && all.MinY >= -most && all.MaxY <= most) return false;
  int seen = 0, beyond = 0;
  layer.ResetReading();
  for (int i = 0; i < lookedThrough && seen < lookedAt; ++i) {
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    if (!feature) break;
    OGRGeometry const* const geometry = feature->GetGeometryRef();
    if (!geometry || geometry->IsEmpty()) continue;
    OGREnvelope box;
    geometry->getEnvelope(&box);
    ++seen;
    beyond += isBeyond(box);
  }
  layer.ResetReading();
  return 2 * beyond > seen;
}

}  // namespace

SourceSystem systemOf(OGRLayer& layer, bool isOfServer) {
  OGRSpatialReference const* const system = layer.GetSpatialRef();
  if (!system || isOfServer) return {system, false};
  char const* const name = system->GetName();
  if (name && (EQUAL(name, "Undefined geographic SRS") || EQUAL(name, "Undefined Cartesian SRS"))) return {};
  if (system->IsGeographic() && system->GetAngularUnits() > 0 && areNoDegrees(layer, *system)) return {nullptr, true};
  return {system, false};
}

}  // namespace SysCarto
