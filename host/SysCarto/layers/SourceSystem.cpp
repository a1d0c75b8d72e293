#include "SourceSystem.h"

#include <ogr_feature.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <cmath>

namespace SysCarto {

namespace {

constexpr int lookedAt = 20;       // features
constexpr double tolerance = 1.1;  // what lies a little beyond a pole is a slip

// A GeoJSON without a system is one in degrees, whatever its numbers are.
bool areNoDegrees(OGRLayer& layer, OGRSpatialReference const& system) {
  double const round = 2 * M_PI / system.GetAngularUnits();
  bool isSeen = false, areBeyond = true;
  layer.ResetReading();
  for (int i = 0; i < lookedAt && areBeyond; ++i) {
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    if (!feature) break;
    OGRGeometry const* const geometry = feature->GetGeometryRef();
    if (!geometry || geometry->IsEmpty()) continue;
    OGREnvelope box;
    geometry->getEnvelope(&box);
    auto const isBeyond = [](double low, double high, double most) { return low > most || high < -most; };
    isSeen = true;
    areBeyond = isBeyond(box.MinX, box.MaxX, tolerance * round) || isBeyond(box.MinY, box.MaxY, tolerance * round / 4);
  }
  layer.ResetReading();
  return isSeen && areBeyond;
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
