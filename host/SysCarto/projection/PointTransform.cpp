#include "PointTransform.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/RememberedWays.h"
#include "host/SysGeometry/QuietOgr.h"

#include <QCoreApplication>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

namespace {

constexpr int pointsOnASide = 21;
constexpr double farthest[] = {1e9, 1e5};  // from 0, in units of a plane or in degrees; nothing on a globe lies there
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

}  // namespace

std::unique_ptr<PointTransform> PointTransform::create(OGRSpatialReference const& from, OGRSpatialReference const& to,
                                                       QString& error) {
  static auto& ways = *new RememberedWays<PointTransform>;
  return ways.between(from, to, [&] { return made(from, to, error); });
}

std::unique_ptr<PointTransform> PointTransform::made(OGRSpatialReference const& from, OGRSpatialReference const& to,
                                                     QString& error) {
  GdalErrors const errors;
  OGRSpatialReference source(from), target(to);
  source.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  target.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  OGRCoordinateTransformation* const made = OGRCreateCoordinateTransformation(&source, &target);
  if (made) {
    made->SetEmitErrors(false);
    return std::unique_ptr<PointTransform>(new PointTransform(made, farthest[source.IsGeographic()]));
  }
  error = errors.reason();
  if (error.isEmpty()) error = QCoreApplication::translate("PointTransform", "there is no transformation between them");
  return nullptr;
}

PointTransform::PointTransform(OGRCoordinateTransformation* transformation, double farthest)
    : transformation_(transformation), farthest_(farthest) {}
PointTransform::~PointTransform() = default;

std::unique_ptr<PointTransform> PointTransform::clone() const {
  OGRCoordinateTransformation* const copy = transformation_->Clone();
  return copy ? std::unique_ptr<PointTransform>(new PointTransform(copy, farthest_)) : nullptr;
}

// A place without an image is no fault, but PROJ itself reports some of them as one.
void PointTransform::apply(std::vector<double>& xy) const {
  SysGeometry::QuietOgr const quiet;
  size_t const count = xy.size() / 2;
  x_.resize(count);
  y_.resize(count);
  ok_.assign(count, 0);
  for (size_t i = 0; i < count; ++i) {
    bool const isFar = !isNear(xy[2 * i], xy[2 * i + 1]);
    x_[i] = isFar ? HUGE_VAL : xy[2 * i];
    y_[i] = isFar ? HUGE_VAL : xy[2 * i + 1];
  }
  if (count > 0)
    transformation_->Transform(static_cast<int>(count), x_.data(), y_.data(), nullptr, nullptr, ok_.data());
  for (size_t i = 0; i < count; ++i) {
    bool const good = ok_[i] && std::isfinite(x_[i]) && std::isfinite(y_[i]);
    xy[2 * i] = good ? x_[i] : nan;
    xy[2 * i + 1] = good ? y_[i] : nan;
  }
}

bool PointTransform::apply(double& x, double& y) const {
  if (!isNear(x, y)) return false;
  SysGeometry::QuietOgr const quiet;
  int ok = 0;
  transformation_->Transform(1, &x, &y, nullptr, nullptr, &ok);
  return ok && std::isfinite(x) && std::isfinite(y);
}

bool transformBounds(double (&sides)[4], QString const& from, QString const& to) {
  GdalErrors const errors;
  auto const source = makeCoordinateSystem(from), target = makeCoordinateSystem(to);
  if (!source || !target) return false;
  std::unique_ptr<OGRCoordinateTransformation> const transformation(
      OGRCreateCoordinateTransformation(source.get(), target.get()));
  double moved[4];
  bool const isDone = transformation &&
                      transformation->TransformBounds(sides[0], sides[1], sides[2], sides[3], &moved[0], &moved[1],
                                                      &moved[2], &moved[3], pointsOnASide) &&
                      std::all_of(moved, moved + 4, [](double side) { return std::isfinite(side); }) &&
                      moved[0] < moved[2] && moved[1] < moved[3];
  if (isDone) std::copy(moved, moved + 4, sides);
  return isDone;
}

}  // namespace SysCarto
