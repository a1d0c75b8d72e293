#include "GroundScale.h"

#include "CoordinateSystem.h"
#include "PointTransform.h"

#include "host/SysGeometry/QuietOgr.h"

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

// At the pole itself a degree of longitude has no length, and a map there would have no scale.
constexpr double maxLatitude = 89.0;

// Beyond its edge a projection may answer that it knows no place, or any place at all; a step there has no length or a
// senseless one.
constexpr double maxStretch = 1000.0;

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
  std::unique_ptr<OGRSpatialReference> system;
  std::unique_ptr<PointTransform> toGlobe, fromGlobe;  // null in a geographic system
  geod_geodesic ellipsoid;
  double degreesPerUnit = 1;  // of the geographic system

  double measured(QPointF const& from, QPointF const& to) const;
  double nominal() const;
  double measuredGround(QPointF const& from, QPointF const& to, double units) const;
  double ground(QPointF const& from, QPointF const& to, double units) const;
};

GroundScale::GroundScale(QString const& definition) : d(std::make_unique<Private>()) {
  d->system = makeCoordinateSystem(definition);
  if (!d->system) return;
  SysGeometry::QuietOgr const quiet;
  double const flattening = d->system->GetInvFlattening();
  geod_init(&d->ellipsoid, d->system->GetSemiMajor(), flattening > 0 ? 1 / flattening : 0);
  auto const globe = globeOf(*d->system);
  if (!globe) return;
  d->degreesPerUnit = globe->GetAngularUnits() * degrees;
  if (!d->system->IsProjected()) return;
  QString reason;
  d->toGlobe = PointTransform::create(*d->system, *globe, reason);
  d->fromGlobe = PointTransform::create(*globe, *d->system, reason);
}

GroundScale::~GroundScale() = default;

double GroundScale::Private::nominal() const {
  double const metres = system->IsProjected() ? system->GetLinearUnits() : 0;
  return metres > 0 ? metres : 1;
}

// 0 where that can't be told.
double GroundScale::Private::measured(QPointF const& from, QPointF const& to) const {
  double xs[] = {from.x(), to.x()}, ys[] = {from.y(), to.y()};
  if (toGlobe) {
    if (!toGlobe->apply(xs[0], ys[0]) || !toGlobe->apply(xs[1], ys[1])) return 0;
  } else if (!system->IsGeographic()) {
    return 0;
  }
  for (double& longitude : xs) longitude *= degreesPerUnit;
  double const limit = toGlobe ? 90.0 : maxLatitude;
  for (double& latitude : ys) latitude = std::clamp(latitude * degreesPerUnit, -limit, limit);
  return length(ellipsoid, xs, ys);
}

// Half a step to either side, so that the result belongs to the place itself.
double GroundScale::metresPerUnit(double x, double y, double step) const {
  return d->ground({x - step / 2, y}, {x + step / 2, y}, step) / step;
}

double GroundScale::metresBetween(QPointF const& from, QPointF const& to) const {
  return d->ground(from, to, std::hypot(to.x() - from.x(), to.y() - from.y()));
}

double GroundScale::measuredBetween(QPointF const& from, QPointF const& to) const {
  return d->measuredGround(from, to, std::hypot(to.x() - from.x(), to.y() - from.y()));
}

double GroundScale::nominalUnit() const { return d->system ? d->nominal() : 1; }

// So many map units apart.
double GroundScale::Private::measuredGround(QPointF const& from, QPointF const& to, double units) const {
  if (!system) return 0;
  double const metres = measured(from, to), byName = nominal() * units;
  bool const isGround = toGlobe ? metres > byName / maxStretch && metres < byName * maxStretch : metres > 0;
  return isGround ? metres : 0;
}

double GroundScale::Private::ground(QPointF const& from, QPointF const& to, double units) const {
  double const metres = measuredGround(from, to, units);
  return metres > 0 ? metres : units * (system ? nominal() : 1);
}

double GroundScale::northAngle(double x, double y) const {
  if (!d->toGlobe || !d->fromGlobe) return 0;
  if (!d->toGlobe->apply(x, y) || std::abs(y) * d->degreesPerUnit > 90 - nearestToPole) return 0;
  double const step = northStep / d->degreesPerUnit;
  double xs[] = {x, x}, ys[] = {y - step, y + step};
  if (!d->fromGlobe->apply(xs[0], ys[0]) || !d->fromGlobe->apply(xs[1], ys[1])) return 0;
  double const angle = std::atan2(xs[0] - xs[1], ys[1] - ys[0]) * degrees;
  return std::isfinite(angle) ? angle : 0;
}

}  // namespace SysCarto
