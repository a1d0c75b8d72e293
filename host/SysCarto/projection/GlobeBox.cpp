#include "GlobeBox.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace SysCarto {

namespace {

constexpr int placesOnASide = 33;
constexpr double slack = 1e-6;  // degrees
constexpr double wholeTurn = 360;
constexpr double besidePole = 0.01;  // degrees

// Eastwards from one meridian to another.
double eastwards(double from, double to) {
  double const way = std::fmod(to - from, wholeTurn);
  return way < 0 ? way + wholeTurn : way;
}

// Between the meridians on both sides of the widest gap.
void spanMeridians(std::vector<double> longitudes, GlobeBox& box) {
  std::sort(longitudes.begin(), longitudes.end());
  double widest = longitudes.front() + wholeTurn - longitudes.back();
  box.west = longitudes.front();
  box.east = longitudes.back();
  for (size_t i = 1; i < longitudes.size(); ++i) {
    double const gap = longitudes[i] - longitudes[i - 1];
    if (gap <= widest) continue;
    widest = gap;
    box.west = longitudes[i];
    box.east = longitudes[i - 1];
  }
}

std::vector<double> gridOf(SysGeometry::Box const& rectangle) {
  std::vector<double> grid;
  auto const at = [](double from, double to, int i) { return from + (to - from) * i / (placesOnASide - 1); };
  for (int row = 0; row < placesOnASide; ++row)
    for (int column = 0; column < placesOnASide; ++column) {
      grid.push_back(at(rectangle.xmin, rectangle.xmax, column));
      grid.push_back(at(rectangle.ymin, rectangle.ymax, row));
    }
  return grid;
}

// A pole in the middle of a map lies between the places of any grid, and has all meridians around it.
void addPoles(PointTransform const& toMap, SysGeometry::Box const& rectangle, GlobeBox& box) {
  auto const isShown = [&](double longitude, double latitude) {
    return toMap.apply(longitude, latitude) && rectangle.contains(longitude, latitude);
  };
  for (double const pole : {-90.0, 90.0}) {
    if (!isShown(0, pole)) continue;
    (pole < 0 ? box.south : box.north) = pole;
    bool isAmid = true;
    for (int longitude = -180; longitude < 180; longitude += 30)
      isAmid = isAmid && isShown(longitude, std::copysign(90 - besidePole, pole));
    if (!isAmid) continue;
    box.west = -wholeTurn / 2;
    box.east = wholeTurn / 2;
  }
}

}  // namespace

double GlobeBox::width() const { return east - west >= wholeTurn - slack ? wholeTurn : eastwards(west, east); }

bool GlobeBox::contains(GlobeBox const& other) const {
  if (isEmpty() || other.isEmpty() || other.south < south - slack || other.north > north + slack) return false;
  return width() == wholeTurn || eastwards(west - slack, other.west) + other.width() <= width() + 2 * slack;
}

std::optional<QPointF> degreesAt(QPointF const& place, QString const& system) {
  auto const own = makeCoordinateSystem(system);
  auto const globe = own ? globeOf(*own) : nullptr;
  QString error;
  auto const way = globe ? PointTransform::create(*own, *globe, error) : nullptr;
  double longitude = place.x(), latitude = place.y();
  if (!way || !way->apply(longitude, latitude)) return std::nullopt;
  return QPointF(longitude, latitude);
}

GlobeBox globeBoxOf(SysGeometry::Box const& rectangle, QString const& system) {
  GlobeBox box;
  auto const own = makeCoordinateSystem(system);
  auto const globe = own && !rectangle.isEmpty() ? globeOf(*own) : nullptr;
  QString error;
  auto const toGlobe = globe ? PointTransform::create(*own, *globe, error) : nullptr;
  auto const toMap = globe ? PointTransform::create(*globe, *own, error) : nullptr;
  if (!toGlobe || !toMap) return box;
  std::vector<double> const places = gridOf(rectangle);
  std::vector<double> degrees = places;
  toGlobe->apply(degrees);
  // Beyond a projection's edge some inverses answer places that lie elsewhere.
  std::vector<double> back = degrees;
  toMap->apply(back);
  double const near = std::max(rectangle.xmax - rectangle.xmin, rectangle.ymax - rectangle.ymin) / placesOnASide;
  std::vector<double> longitudes;
  SysGeometry::Box seen;
  for (size_t i = 0; i < places.size(); i += 2) {
    if (!(std::hypot(back[i] - places[i], back[i + 1] - places[i + 1]) <= near)) continue;
    longitudes.push_back(std::remainder(degrees[i], wholeTurn));
    seen.add(0, std::clamp(degrees[i + 1], -90.0, 90.0));
  }
  if (longitudes.empty()) return box;
  box.south = seen.ymin;
  box.north = seen.ymax;
  spanMeridians(longitudes, box);
  if (rectangle.xmax - rectangle.xmin >= wholeTurn - slack && own->IsGeographic()) {
    box.west = -wholeTurn / 2;
    box.east = wholeTurn / 2;
  }
  if (!own->IsGeographic()) addPoles(*toMap, rectangle, box);
  return box;
}

}  // namespace SysCarto
