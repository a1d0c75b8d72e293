#include "GroundScale.h"

#include "CoordinateSystem.h"

#include "host/SysGeometry/QuietOgr.h"

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

// At the pole itself a degree of longitude has no length, and a map there would have no scale.
constexpr double highestLatitude = 89.0;

// Beyond its edge a projection may answer that it knows no place, or any place at all; a step there has no length or a
// senseless one.
constexpr double mostStretched = 1000.0;

constexpr double northStep = 1e-5;  // degrees, to either side of a place
constexpr double nearestToPole = 1e-3;

constexpr double degrees = 180.0 / 3.14159265358979323846;

double length(geod_geodesic const& ellipsoid, double const* longitudes, double const* latitudes) {
  double metres = 0;
  geod_inverse(&ellipsoid, latitudes[0], longitudes[0], latitudes[1], longitudes[1], &metres, nullptr, nullptr);
  return metres;
}

}  // namespace

struct GroundScale::Private {
  std::unique_ptr<OGRSpatialReference> system, geographic;
  std::unique_ptr<OGRCoordinateTransformation> toGeographic, fromGeographic;  // null in a geographic system
  geod_geodesic ellipsoid;
  double degreesPerUnit = 1;  // of the geographic system

  double measured(double x, double y, double step) const;
  double nominal() const;
};

GroundScale::GroundScale(QString const& definition) : d(std::make_unique<Private>()) {
  d->system = makeCoordinateSystem(definition);
  if (!d->system) return;
  SysGeometry::QuietOgr const quiet;
  double const flattening = d->system->GetInvFlattening();
  geod_init(&d->ellipsoid, d->system->GetSemiMajor(), flattening > 0 ? 1 / flattening : 0);
  d->geographic.reset(d->system->CloneGeogCS());
  if (!d->geographic) return;
  d->geographic->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  d->degreesPerUnit = d->geographic->GetAngularUnits() * degrees;
  if (!d->system->IsProjected()) return;
  d->toGeographic.reset(OGRCreateCoordinateTransformation(d->system.get(), d->geographic.get()));
  d->fromGeographic.reset(OGRCreateCoordinateTransformation(d->geographic.get(), d->system.get()));
}

GroundScale::~GroundScale() = default;

double GroundScale::Private::nominal() const {
  double const metres = system->IsProjected() ? system->GetLinearUnits() : 0;
  return metres > 0 ? metres : 1;
}

// A projected system is measured half a step to either side, so that the result belongs to the place itself.
double GroundScale::Private::measured(double x, double y, double step) const {
  double xs[] = {x - step / 2, x + step / 2}, ys[] = {y, y};
  if (toGeographic) {
    SysGeometry::QuietOgr const quiet;
    if (!toGeographic->Transform(2, xs, ys)) return 0;
  } else if (!system->IsGeographic()) {
    return 0;
  }
  for (double& longitude : xs) longitude *= degreesPerUnit;
  double const limit = toGeographic ? 90.0 : highestLatitude;
  for (double& latitude : ys) latitude = std::clamp(latitude * degreesPerUnit, -limit, limit);
  return length(ellipsoid, xs, ys) / step;
}

double GroundScale::metresPerUnit(double x, double y, double step) const {
  if (!d->system) return 1;
  double const metres = d->measured(x, y, step), nominal = d->nominal();
  bool const isGround =
      d->toGeographic ? metres > nominal / mostStretched && metres < nominal * mostStretched : metres > 0;
  return isGround ? metres : nominal;
}

double GroundScale::northAngle(double x, double y) const {
  if (!d->toGeographic || !d->fromGeographic) return 0;
  SysGeometry::QuietOgr const quiet;
  if (!d->toGeographic->Transform(1, &x, &y) || std::abs(y) * d->degreesPerUnit > 90 - nearestToPole) return 0;
  double const step = northStep / d->degreesPerUnit;
  double xs[] = {x, x}, ys[] = {y - step, y + step};
  if (!d->fromGeographic->Transform(2, xs, ys)) return 0;
  double const angle = std::atan2(xs[0] - xs[1], ys[1] - ys[0]) * degrees;
  return std::isfinite(angle) ? angle : 0;
}

}  // namespace SysCarto
