#include "GraticuleLines.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GeometryProjector.h"
#include "host/SysCarto/projection/PointTransform.h"
#include "host/SysCarto/projection/ProjectionProbe.h"

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace SysCarto {

using SysGeometry::Envelope;

namespace {

constexpr int samples = 24;         // along either side of an extent
constexpr double fullCircle = 300;  // a range as wide as this is taken for the whole globe
constexpr double beside = 1e-6;     // degrees: how near to a cut a line may lie on one side of it
constexpr double quarter = 90;      // meridians at its multiples go on to the pole

double inTurn(double longitude) { return std::remainder(longitude, 360.0); }

// Meridians reach the line of a pole as slanted as the projection likes; what lies beyond is above or below it.
QLineF upright(QLineF const& edge) { return {{edge.x2(), edge.y1()}, edge.p2()}; }

// The parts of a projected line as points.
class LineParts final : public PartSink {
public:
  explicit LineParts(QVector<QVector<QPointF>>& lines) : lines_(lines) {}

  void startPolygon() override {}
  void addPart(PartKind, double const* xy, int count) override {
    if (count < 2) return;
    QVector<QPointF> points(count);
    for (int i = 0; i < count; ++i) points[i] = QPointF(xy[2 * i], xy[2 * i + 1]);
    lines_ << points;
  }

private:
  QVector<QVector<QPointF>>& lines_;
};

// Whether another part of the line, or its own start, begins where an end is.
bool goesOnFrom(QVector<QLineF> const& ends, int index) {
  constexpr double samePlace = 1e-6;  // of the last edge
  double const reach = std::max(samePlace * ends[index].length(), std::numeric_limits<double>::min());
  for (int i = 0; i < ends.size(); ++i)
    if (i != index && QLineF(ends[i].p2(), ends[index].p2()).length() <= reach) return true;
  return false;
}

}  // namespace

GraticuleLines::GraticuleLines(QString const& definition) {
  auto const system = makeCoordinateSystem(definition);
  if (!system) return;
  auto const globe = globeOf(*system);
  if (!globe) return;
  QString error;
  projector_ = GeometryProjector::create(globe.get(), system.get(), error);
  toGlobe_ = PointTransform::create(*system, *globe, error);
  toMap_ = PointTransform::create(*globe, *system, error);
  if (!toGlobe_ || !toMap_)
    projector_ = nullptr;
  else if (!ProjectionProbe(*toMap_, *system, *globe).knowsWayBack())
    toGlobe_ = nullptr;
}

GraticuleLines::~GraticuleLines() = default;

bool GraticuleLines::shows(double longitude, double latitude, Envelope const& extent) const {
  double x = longitude, y = latitude;
  return toMap_->apply(x, y) && x >= extent.GetXMin() && x <= extent.GetXMax() && y >= extent.GetYMin() &&
         y <= extent.GetYMax();
}

// From places spread over the extent; the lines reach beyond it, so that it need not be exact. The middle comes first:
// longitudes are counted from the first place that the globe has.
GraticuleLines::Range GraticuleLines::rangeOf(Envelope const& extent) const {
  if (!toGlobe_) return grown({-180, 180, -90, 90}, 0, extent);
  std::vector<double> places;
  auto const addPlace = [&](double column, double row) {
    places.push_back(extent.GetXMin() + extent.GetWidth() * column / samples);
    places.push_back(extent.GetYMin() + extent.GetHeight() * row / samples);
  };
  addPlace(samples / 2.0, samples / 2.0);
  for (int i = 0; i < (samples + 1) * (samples + 1); ++i) addPlace(i % (samples + 1), i / (samples + 1));
  toGlobe_->apply(places);
  Range range{INFINITY, -INFINITY, INFINITY, -INFINITY};
  double middle = NAN;
  for (size_t i = 0; i < places.size(); i += 2) {
    double const x = places[i], y = places[i + 1];
    if (!std::isfinite(x) || std::abs(y) > 90) continue;
    if (std::isnan(middle)) middle = x;
    double const longitude = middle + std::remainder(x - middle, 360.0);
    range = {std::min(range.west, longitude), std::max(range.east, longitude), std::min(range.south, y),
             std::max(range.north, y)};
  }
  return std::isnan(middle) ? Range{0, -1, 0, -1} : grown(range, middle, extent);
}

GraticuleLines::Range GraticuleLines::grown(Range range, double middle, Envelope const& extent) const {
  range.northPole = poleAt(90, middle, extent);
  range.southPole = poleAt(-90, middle, extent);
  double const growX = (range.east - range.west) / samples, growY = (range.north - range.south) / samples;
  range.north = range.northPole != Pole::Hidden ? 90 : std::min(90.0, range.north + growY);
  range.south = range.southPole != Pole::Hidden ? -90 : std::max(-90.0, range.south - growY);
  range.west -= growX;
  range.east += growX;
  bool const isRound = range.northPole == Pole::Point || range.southPole == Pole::Point;
  if (isRound || range.east - range.west > fullCircle) {
    range.west = -180;
    range.east = 180;
  }
  return range;
}

double GraticuleLines::count(Envelope const& extent, double interval) const {
  if (!projector_ || !(interval > 0)) return 0;
  Range const range = rangeOf(extent);
  return std::max(0.0, (range.east - range.west + range.north - range.south) / interval);
}

// A pole may also be a line, as long as the equator or shorter.
GraticuleLines::Pole GraticuleLines::poleAt(double latitude, double longitude, Envelope const& extent) const {
  constexpr double samePlace = 1e-4;  // of the extent
  if (!shows(longitude, latitude, extent)) return Pole::Hidden;
  double x = 0, y = latitude, turnedX = quarter, turnedY = latitude;
  bool const meets =
      toMap_->apply(x, y) && toMap_->apply(turnedX, turnedY) &&
      std::hypot(turnedX - x, turnedY - y) < samePlace * std::hypot(extent.GetWidth(), extent.GetHeight());
  return meets ? Pole::Point : Pole::Line;
}

// Longitude and latitude of some places spread over the extent. The middle alone would not do: it may be a pole, where
// a degree of longitude has no length.
std::vector<QPointF> GraticuleLines::placesIn(Envelope const& extent) const {
  std::vector<QPointF> places;
  for (QPointF const& place :
       {QPointF(0.5, 0.5), QPointF(0.25, 0.25), QPointF(0.75, 0.25), QPointF(0.25, 0.75), QPointF(0.75, 0.75)}) {
    double x = extent.GetXMin() + place.x() * extent.GetWidth(), y = extent.GetYMin() + place.y() * extent.GetHeight();
    if (toGlobe_ && toGlobe_->apply(x, y)) places.emplace_back(x, y);
  }
  if (toGlobe_) return places;
  for (int latitude = -75; latitude <= 75; latitude += 15)
    for (int longitude = -180; longitude < 180; longitude += 15)
      if (shows(longitude, latitude, extent)) places.emplace_back(longitude, latitude);
  return places;
}

// The mean of what it is at several places, but for those where the projection stretches the globe many times as much
// as elsewhere: lines would crowd there that are as far apart as they may be here.
GridStep GraticuleLines::unitSize(Envelope const& extent) const {
  constexpr double measured = 1e-3;  // degrees
  constexpr double stretched = 4;    // times the least
  std::vector<GridStep> sizes;
  auto const length = [](GridStep const& size) { return std::hypot(size.longitude, size.latitude); };
  for (QPointF const& place : projector_ ? placesIn(extent) : std::vector<QPointF>()) {
    double const x = place.x(), y = place.y(), toEquator = y > 0 ? -measured : measured;
    std::vector<double> ends{x, y, inTurn(x + measured), y, x, y + toEquator};
    toMap_->apply(ends);
    double const alongX = std::hypot(ends[2] - ends[0], ends[3] - ends[1]),
                 alongY = std::hypot(ends[4] - ends[0], ends[5] - ends[1]);
    if (std::isfinite(alongX + alongY)) sizes.push_back({alongX / measured, alongY / measured});
  }
  double least = INFINITY;
  for (GridStep const& size : sizes) least = std::min(least, length(size));
  GridStep mean{0, 0};
  int count = 0;
  for (GridStep const& size : sizes) {
    if (length(size) > stretched * least) continue;
    ++count;
    mean.longitude += (size.longitude - mean.longitude) / count;
    mean.latitude += (size.latitude - mean.latitude) / count;
  }
  return mean;
}

// Whether the two sides of a meridian lie at different places of the map.
bool GraticuleLines::isCutAt(double longitude) const {
  double west = inTurn(longitude - beside), westY = 0, east = inTurn(longitude + beside), eastY = 0;
  if (!toMap_->apply(west, westY) || !toMap_->apply(east, eastY)) return false;
  double far = inTurn(longitude + 1), farY = 0;
  return toMap_->apply(far, farY) && std::hypot(east - west, eastY - westY) > std::hypot(far - east, farY - eastY);
}

QVector<GridLine> GraticuleLines::lines(Envelope const& extent, GridStep const& interval) const {
  QVector<GridLine> lines;
  if (!projector_ || !(interval.longitude > 0 && interval.latitude > 0)) return lines;
  Range const range = rangeOf(extent);
  bool const isWhole = range.east - range.west >= 360;
  for (double i = firstMultiple(range.west, interval.longitude); i <= lastMultiple(range.east, interval.longitude);
       ++i) {
    double const longitude = i * interval.longitude;
    if (isWhole && longitude >= 180 - beside) continue;  // is −180, too
    addMeridian(lines, i, interval, range);
  }
  for (double i = firstMultiple(range.south, interval.latitude); i <= lastMultiple(range.north, interval.latitude);
       ++i) {
    double const latitude = i * interval.latitude;
    if (std::abs(latitude) > 90 - beside && (latitude > 0 ? range.northPole : range.southPole) != Pole::Line) continue;
    lines << made(false, interval.latitude, i, {range.west, latitude, range.east, latitude});
  }
  lines.erase(std::remove_if(lines.begin(), lines.end(), [](auto const& line) { return line.parts.isEmpty(); }),
              lines.end());
  return lines;
}

// Short of a pole, where meridians would run into each other, only four of them go on.
void GraticuleLines::addMeridian(QVector<GridLine>& lines, double number, GridStep const& interval,
                                 Range const& range) const {
  double const longitude = number * interval.longitude, step = interval.latitude;
  bool const goesOn = std::abs(std::remainder(longitude, quarter)) < beside;
  bool const meetsInNorth = range.northPole == Pole::Point, meetsInSouth = range.southPole == Pole::Point;
  double const north = meetsInNorth && !goesOn ? lastMultiple(90 - step / 2, step) * step : range.north;
  double const south = meetsInSouth && !goesOn ? firstMultiple(step / 2 - 90, step) * step : range.south;
  bool const isCut = isCutAt(longitude);
  for (double const side :
       isCut ? std::vector<double>{longitude - beside, longitude + beside} : std::vector<double>{longitude}) {
    double const turned = isCut ? inTurn(side) : longitude;
    GridLine line = made(true, interval.longitude, number, {turned, south, turned, north});
    if (!line.ends.isEmpty()) {
      if (meetsInNorth) line.ends.removeLast();
      if (range.northPole == Pole::Line) line.ends.last() = upright(line.ends.last());
    }
    if (!line.ends.isEmpty()) {
      if (meetsInSouth) line.ends.removeFirst();
      if (range.southPole == Pole::Line) line.ends.first() = upright(line.ends.first());
    }
    lines << line;
  }
}

GridLine GraticuleLines::made(bool isMeridian, double step, double number, QLineF const& onGlobe) const {
  OGRLineString line;
  line.addPoint(onGlobe.x1(), onGlobe.y1());
  line.addPoint(onGlobe.x2(), onGlobe.y2());
  GridLine result{isMeridian, number * step, static_cast<int>(number), {}, {}};
  LineParts parts(result.parts);
  projector_->add(line, parts);
  QVector<QLineF> ends;
  for (QVector<QPointF> const& points : result.parts)
    ends << QLineF(points[1], points[0]) << QLineF(points[points.size() - 2], points.last());
  for (int i = 0; i < ends.size(); ++i)
    if (!goesOnFrom(ends, i)) result.ends << ends[i];
  return result;
}

namespace {

// Takes the one place that a projection shows.
class OnePlace final : public PartSink {
public:
  void startPolygon() override {}
  void addPart(PartKind, double const* xy, int) override { place = QPointF(xy[0], xy[1]); }

  std::optional<QPointF> place;
};

}  // namespace

QVector<GridCrossing> GraticuleLines::crossings(Envelope const& extent, GridStep const& interval) const {
  QVector<GridCrossing> crossings;
  if (!projector_ || !(interval.longitude > 0 && interval.latitude > 0)) return crossings;
  constexpr double ahead = 1e-4;  // of the interval
  Range const range = rangeOf(extent);
  bool const isWhole = range.east - range.west >= 360;
  auto const add = [&](double longitude, double latitude) {
    OnePlace found;
    projector_->add(OGRPoint(inTurn(longitude), latitude), found);
    double eastX = inTurn(longitude + ahead * interval.longitude), eastY = latitude;
    double northX = inTurn(longitude), northY = latitude + ahead * interval.latitude;
    if (found.place && toMap_->apply(eastX, eastY) && toMap_->apply(northX, northY))
      crossings << GridCrossing{*found.place, {eastX, eastY}, {northX, northY}};
  };
  for (double i = firstMultiple(range.west, interval.longitude); i <= lastMultiple(range.east, interval.longitude);
       ++i) {
    if (isWhole && i * interval.longitude >= 180 - beside) continue;  // is −180, too
    for (double j = firstMultiple(range.south, interval.latitude); j <= lastMultiple(range.north, interval.latitude);
         ++j)
      if (std::abs(j * interval.latitude) < 90 - beside) add(i * interval.longitude, j * interval.latitude);
  }
  return crossings;
}

}  // namespace SysCarto
