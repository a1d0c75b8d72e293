#include "ProjectionProbe.h"

#include "PointTransform.h"
#include "ProjText.h"

#include <QString>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

namespace {

constexpr double degree = M_PI / 180;
constexpr double sameDegrees = 0.01;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double radiusOf(OGRSpatialReference const& system, double unit) {
  double const radius = system.GetSemiMajor();
  return unit > 0 && radius > 0 ? radius / unit : 6378137;
}

Vertex falseOriginOf(OGRSpatialReference const& system, double unit) {
  if (!(unit > 0)) return {0, 0, 0};
  ProjText const text(system);  // in metres whatever the unit
  return {text.number("x_0", 0) / unit, text.number("y_0", 0) / unit, 0};
}

double linearUnit(OGRSpatialReference const& system) { return system.IsProjected() ? system.GetLinearUnits() : 0; }

bool isSamePlace(double const* a, double const* b) {
  if (!std::isfinite(b[0]) || !std::isfinite(b[1]) || std::abs(a[1] - b[1]) > sameDegrees) return false;
  return std::abs(std::remainder(a[0] - b[0], 360.0)) * std::cos(a[1] * degree) < sameDegrees;
}

}  // namespace

ProjectionProbe::ProjectionProbe(PointTransform const& toMap, OGRSpatialReference const& system,
                                 OGRSpatialReference const& globe)
    : toMap_(toMap), radius_(radiusOf(system, linearUnit(system))), origin_(falseOriginOf(system, linearUnit(system))) {
  QString reason;
  toGlobe_ = PointTransform::create(system, globe, reason);
  if (!toGlobe_) return;
  std::vector<double> places;
  for (int latitude = -80; latitude <= 80; latitude += 20)
    for (int longitude = -170; longitude < 180; longitude += 20)
      places.insert(places.end(), {longitude + 0.3, latitude + 0.3});
  toMap_.apply(places);
  toGlobe_->apply(places);
  if (std::none_of(places.begin(), places.end(), [](double number) { return std::isfinite(number); }))
    toGlobe_ = nullptr;
}

ProjectionProbe::~ProjectionProbe() = default;

void ProjectionProbe::project(std::vector<double>& xy, double radii) const {
  double const farthest = radii * radius_;
  toMap_.apply(xy);
  for (size_t i = 0; i < xy.size(); i += 2)
    if (!(std::abs(xy[i] - origin_.x) < farthest && std::abs(xy[i + 1] - origin_.y) < farthest))
      xy[i] = xy[i + 1] = nan;
}

void ProjectionProbe::projectAndReturn(std::vector<double>& xy, double radii) const {
  std::vector<double> const places = xy;
  project(xy, radii);
  if (!toGlobe_) return;
  std::vector<double> back = xy;
  toGlobe_->apply(back);
  for (size_t i = 0; i < xy.size(); i += 2)
    if (!isSamePlace(&places[i], &back[i])) xy[i] = xy[i + 1] = nan;
}

bool ProjectionProbe::comeBack(double& x, double& y) const { return toGlobe_ && toGlobe_->apply(x, y); }

}  // namespace SysCarto
