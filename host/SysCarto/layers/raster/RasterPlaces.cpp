#include "RasterPlaces.h"

#include "RasterSource.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysGeometry/QuietOgr.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

namespace {

constexpr int step = 16;           // pixels between places that are found exactly
constexpr double maxError = 0.05;  // of a raster's pixel, or of the picture's where these are smaller
constexpr double snapShare = 1 / 4096.0;
constexpr double samePlace = 0.5;   // pixels by which a place may miss itself on its way to the globe and back
constexpr double farthestPx = 1e9;  // a place that tiles share and that can still be counted
constexpr int boxSteps = 32;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double degrees = 180 / M_PI;
constexpr double slackDegrees = 1e-9;

bool isSame(OGRSpatialReference const& a, OGRSpatialReference const& b) {
  SysGeometry::QuietOgr const quiet;
  char const* const options[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", "CRITERION=EQUIVALENT", nullptr};
  return a.IsSame(&b, options);
}

double rounded(double number, double unit) { return std::round(number / unit) * unit; }

// The lattice about a rectangle, whose nodes neighbours share, and the middles of its cells.
class Lattice {
public:
  explicit Lattice(QRect const& area)
      : left_(floorDivided(area.left(), step)),
        top_(floorDivided(area.top(), step)),
        columns_(floorDivided(area.right(), step) - left_ + 1),
        rows_(floorDivided(area.bottom(), step) - top_ + 1) {}

  std::vector<double> points(QTransform const& toMap) const {
    std::vector<double> xy;
    auto const add = [&](double column, double row) {
      QPointF const place = toMap.map(QPointF(column, row));
      xy.push_back(place.x());
      xy.push_back(place.y());
    };
    for (int row = 0; row <= rows_; ++row)
      for (int column = 0; column <= columns_; ++column) add((left_ + column) * step, (top_ + row) * step);
    for (int row = 0; row < rows_; ++row)
      for (int column = 0; column < columns_; ++column) add((left_ + column + 0.5) * step, (top_ + row + 0.5) * step);
    return xy;
  }

  int columns() const { return columns_; }
  int rows() const { return rows_; }
  size_t node(int column, int row) const { return size_t(row * (columns_ + 1) + column); }
  size_t middle(int column, int row) const {
    return size_t((columns_ + 1) * (rows_ + 1)) + size_t(row * columns_ + column);
  }
  QRect cell(int column, int row) const { return {(left_ + column) * step, (top_ + row) * step, step, step}; }

private:
  int left_, top_, columns_, rows_;
};

}  // namespace

PixelGrid PixelGrid::of(QTransform const& toDevice, QPointF const& anchor, QPoint& origin) {
  bool const isNear = std::abs(anchor.x()) < farthestPx && std::abs(anchor.y()) < farthestPx;
  origin = isNear ? anchor.toPoint() : QPoint();
  QTransform const back = toDevice.inverted();
  double const side = std::hypot(back.m11(), back.m12());
  double const unit = std::exp2(std::floor(std::log2(side))) * snapShare;
  double const exact = rounded(side, unit * 1e-6);
  auto const direction = [&](double share) { return rounded(share / side, 1e-9) * exact; };
  QPointF const place = back.map(QPointF(origin));
  PixelGrid grid;
  grid.pixelUnits = exact;
  grid.toMap = QTransform(direction(back.m11()), direction(back.m12()), direction(back.m21()), direction(back.m22()),
                          rounded(place.x(), unit), rounded(place.y(), unit));
  return grid;
}

std::unique_ptr<RasterPlaces> RasterPlaces::create(RasterSource const& source, QString const& mapSystem,
                                                   QString& error) {
  std::unique_ptr<RasterPlaces> places(new RasterPlaces(source.size()));
  places->toWorld_ = source.toWorld();
  places->toPixels_ = source.toWorld().inverted();
  auto const map = makeCoordinateSystem(mapSystem);
  OGRSpatialReference const* const own = source.system();
  if (own && own->IsGeographic()) places->turnOfGlobe_ = 360 / (own->GetAngularUnits() * degrees);
  if (!map || !own) {
    places->turnOfGlobe_ = 0;
    return places;
  }
  if (map->IsGeographic()) places->degreesPerMapUnit_ = map->GetAngularUnits() * degrees;
  if (isSame(*map, *own)) return places;
  auto const globe = globeOf(*map);
  if (!globe) return places;
  if (!isSame(*map, *globe)) {
    places->toGlobe_ = PointTransform::create(*map, *globe, error);
    places->fromGlobe_ = PointTransform::create(*globe, *map, error);
  }
  if (!isSame(*globe, *own)) {
    places->toSource_ = PointTransform::create(*globe, *own, error);
    places->fromSource_ = PointTransform::create(*own, *globe, error);
  }
  return error.isEmpty() ? std::move(places) : nullptr;
}

// A place that the projection shows comes back to where it was.
void RasterPlaces::toRaster(std::vector<double>& xy, double tolerance) const {
  if (degreesPerMapUnit_ > 0)
    for (size_t i = 0; i < xy.size(); i += 2)
      if (std::abs(xy[i]) * degreesPerMapUnit_ > 180 + slackDegrees) xy[i] = xy[i + 1] = nan;
  if (toGlobe_) {
    std::vector<double> const before = xy;
    toGlobe_->apply(xy);
    std::vector<double> again = xy;
    fromGlobe_->apply(again);
    for (size_t i = 0; i < xy.size(); i += 2)
      if (!(std::abs(again[i] - before[i]) <= tolerance && std::abs(again[i + 1] - before[i + 1]) <= tolerance))
        xy[i] = xy[i + 1] = nan;
  }
  if (toSource_) toSource_->apply(xy);
  double const west = std::min(toWorld_.dx(), toWorld_.map(QPointF(size_.width(), 0)).x());
  for (size_t i = 0; i < xy.size(); i += 2) {
    if (turnOfGlobe_ > 0) {
      double const turned = xy[i] - turnOfGlobe_ * std::floor((xy[i] - west) / turnOfGlobe_);
      if (std::abs(turned - xy[i]) > turnOfGlobe_ / 2) xy[i] = turned;
    }
    QPointF const pixel = toPixels_.map(QPointF(xy[i], xy[i + 1]));
    xy[i] = pixel.x();
    xy[i + 1] = pixel.y();
  }
}

PixelPlaces RasterPlaces::find(PixelGrid const& grid, QRect const& area) const {
  PixelPlaces places;
  places.area = area;
  size_t const count = size_t(area.width()) * size_t(area.height());
  places.columns.assign(count, nan);
  places.rows.assign(count, nan);
  Lattice const lattice(area);
  std::vector<double> xy = lattice.points(grid.toMap);
  double const tolerance = samePlace * grid.pixelUnits;
  toRaster(xy, tolerance);
  auto const at = [&](size_t i) { return QPointF(xy[2 * i], xy[2 * i + 1]); };
  auto const isPlace = [](QPointF const& place) { return std::isfinite(place.x()) && std::isfinite(place.y()); };
  auto const put = [&](int x, int y, QPointF const& place) {
    bool const isInside = place.x() >= 0 && place.y() >= 0 && place.x() < size_.width() && place.y() < size_.height();
    if (!isInside) return;
    size_t const i = size_t(y - area.top()) * size_t(area.width()) + size_t(x - area.left());
    places.columns[i] = place.x();
    places.rows[i] = place.y();
    places.isEmpty = false;
  };

  std::vector<double> exact;
  std::vector<QPoint> exactPixels;
  double lengths[2] = {0, 0};
  int measured = 0;
  for (int row = 0; row < lattice.rows(); ++row)
    for (int column = 0; column < lattice.columns(); ++column) {
      QPointF const a = at(lattice.node(column, row)), b = at(lattice.node(column + 1, row));
      QPointF const c = at(lattice.node(column, row + 1)), d = at(lattice.node(column + 1, row + 1));
      QPointF const middle = at(lattice.middle(column, row)), mean = (a + b + c + d) / 4;
      QRect const cell = lattice.cell(column, row), part = cell & area;
      QPointF const across = (b - a) / step, down = (c - a) / step;
      double const alongX = std::hypot(across.x(), across.y()), alongY = std::hypot(down.x(), down.y());
      double const allowed = maxError * std::max(1.0, std::min(alongX, alongY));
      bool const isSmooth =
          isPlace(mean) && std::abs(mean.x() - middle.x()) <= allowed && std::abs(mean.y() - middle.y()) <= allowed;
      if (isSmooth) {
        lengths[0] += alongX;
        lengths[1] += alongY;
        ++measured;
      }
      for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x) {
          if (isSmooth) {
            double const right = (x - cell.left() + 0.5) / step, low = (y - cell.top() + 0.5) / step;
            put(x, y, (a * (1 - right) + b * right) * (1 - low) + (c * (1 - right) + d * right) * low);
            continue;
          }
          QPointF const place = grid.toMap.map(QPointF(x + 0.5, y + 0.5));
          exact.insert(exact.end(), {place.x(), place.y()});
          exactPixels.emplace_back(x, y);
        }
    }
  toRaster(exact, tolerance);
  for (size_t i = 0; i < exactPixels.size(); ++i)
    put(exactPixels[i].x(), exactPixels[i].y(), {exact[2 * i], exact[2 * i + 1]});
  if (measured > 0) {
    places.perPixelX = lengths[0] / measured;
    places.perPixelY = lengths[1] / measured;
  }
  return places;
}

void RasterPlaces::toMap(std::vector<double>& xy) const {
  if (fromSource_) fromSource_->apply(xy);
  if (fromGlobe_) fromGlobe_->apply(xy);
}

SysGeometry::Box RasterPlaces::box() const {
  std::vector<double> xy;
  for (int row = 0; row <= boxSteps; ++row)
    for (int column = 0; column <= boxSteps; ++column) {
      QPointF const place =
          toWorld_.map(QPointF(double(size_.width()) * column / boxSteps, double(size_.height()) * row / boxSteps));
      xy.insert(xy.end(), {place.x(), place.y()});
    }
  toMap(xy);
  SysGeometry::Box box;
  for (size_t i = 0; i < xy.size(); i += 2)
    if (std::isfinite(xy[i]) && std::isfinite(xy[i + 1])) box.add(xy[i], xy[i + 1]);
  return box;
}

}  // namespace SysCarto
