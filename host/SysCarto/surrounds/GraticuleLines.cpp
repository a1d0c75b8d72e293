#include "GraticuleLines.h"

#include "host/SysCarto/document/CoordinateSystem.h"
#include "host/SysCarto/layers/GeometryProjector.h"
#include "host/SysCarto/layers/PointTransform.h"

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysGeometry::Envelope;

namespace {

constexpr int samples = 24;         // along either side of an extent
constexpr double fullCircle = 300;  // a range as wide as this is taken for the whole globe
constexpr double beside = 1e-6;     // degrees: how near to a cut a line may lie on one side of it
constexpr double quarter = 90;      // meridians at its multiples go on to the pole

double inTurn(double longitude) { return std::remainder(longitude, 360.0); }

}  // namespace

GraticuleLines::GraticuleLines(QString const& definition) {
  auto const system = makeCoordinateSystem(definition);
  if (!system) return;
  std::unique_ptr<OGRSpatialReference> const globe(system->CloneGeogCS());
  if (!globe) return;
  globe->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  QString error;
  projector_ = GeometryProjector::create(globe.get(), system.get(), error);
  toGlobe_ = PointTransform::create(*system, *globe, error);
  toMap_ = PointTransform::create(*globe, *system, error);
  if (!toGlobe_ || !toMap_) projector_ = nullptr;
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
  bool const northPole = shows(middle, 90, extent), southPole = shows(middle, -90, extent);
  double const growX = (range.east - range.west) / samples, growY = (range.north - range.south) / samples;
  range.north = northPole ? 90 : std::min(90.0, range.north + growY);
  range.south = southPole ? -90 : std::max(-90.0, range.south - growY);
  range.west -= growX;
  range.east += growX;
  range.meetsInNorth = northPole && meridiansMeetAt(90, extent);
  range.meetsInSouth = southPole && meridiansMeetAt(-90, extent);
  if (range.meetsInNorth || range.meetsInSouth || range.east - range.west > fullCircle) {
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
bool GraticuleLines::meridiansMeetAt(double latitude, Envelope const& extent) const {
  constexpr double samePlace = 1e-6;  // of the extent
  double x = 0, y = latitude, turnedX = quarter, turnedY = latitude;
  return toMap_->apply(x, y) && toMap_->apply(turnedX, turnedY) &&
         std::hypot(turnedX - x, turnedY - y) < samePlace * std::hypot(extent.GetWidth(), extent.GetHeight());
}

// Whether the two sides of a meridian lie at different places of the map.
bool GraticuleLines::isCutAt(double longitude) const {
  double west = inTurn(longitude - beside), westY = 0, east = inTurn(longitude + beside), eastY = 0;
  if (!toMap_->apply(west, westY) || !toMap_->apply(east, eastY)) return false;
  double far = inTurn(longitude + 1), farY = 0;
  return toMap_->apply(far, farY) && std::hypot(east - west, eastY - westY) > std::hypot(far - east, farY - eastY);
}

QVector<GraticuleLine> GraticuleLines::lines(Envelope const& extent, double interval) const {
  QVector<GraticuleLine> lines;
  if (!projector_ || !(interval > 0)) return lines;
  Range const range = rangeOf(extent);
  bool const isWhole = range.east - range.west >= 360;
  auto const first = [&](double from) { return std::ceil(from / interval - 1e-9); };
  auto const last = [&](double to) { return std::floor(to / interval + 1e-9); };

  // Short of a pole, where meridians would run into each other, only four of them go on.
  double const shortNorth =
      range.meetsInNorth ? std::min(range.north, last(90 - interval / 2) * interval) : range.north;
  double const shortSouth =
      range.meetsInSouth ? std::max(range.south, first(interval / 2 - 90) * interval) : range.south;
  for (double i = first(range.west); i <= last(range.east); ++i) {
    double const longitude = i * interval;
    if (isWhole && longitude >= 180 - beside) continue;  // is −180, too
    bool const goesOn = std::abs(std::remainder(longitude, quarter)) < beside;
    double const south = goesOn ? range.south : shortSouth, north = goesOn ? range.north : shortNorth;
    if (!isCutAt(longitude)) {
      add(lines, true, longitude, {longitude, south}, {longitude, north});
      continue;
    }
    for (double side : {longitude - beside, longitude + beside}) {
      double const turned = inTurn(side);
      add(lines, true, longitude, {turned, south}, {turned, north});
    }
  }
  for (double i = first(range.south); i <= last(range.north); ++i) {
    double const latitude = i * interval;
    if (std::abs(latitude) < 90 - beside) add(lines, false, latitude, {range.west, latitude}, {range.east, latitude});
  }
  return lines;
}

void GraticuleLines::add(QVector<GraticuleLine>& lines, bool isMeridian, double degrees, QPointF const& from,
                         QPointF const& to) const {
  OGRLineString line;
  line.addPoint(from.x(), from.y());
  line.addPoint(to.x(), to.y());
  FeatureStore store;
  store.beginFeature();
  projector_->add(line, store);
  store.endFeature(0, QString(), 0);
  GraticuleLine result{isMeridian, degrees, {}};
  for (Part const& part : store.parts) {
    QVector<QPointF> points;
    for (int i = 0; i < part.count; ++i) points << QPointF(part.xy[2 * i], part.xy[2 * i + 1]);
    result.parts << points;
  }
  if (!result.parts.isEmpty()) lines << result;
}

QString degreesText(double degrees, bool isLongitude) {
  double const turned = isLongitude ? std::remainder(degrees, 360.0) : degrees;
  double const hundredths = std::round(std::abs(turned) * 360000);
  int const whole = static_cast<int>(hundredths / 360000), minutes = static_cast<int>(hundredths / 6000) % 60;
  double const seconds = std::fmod(hundredths, 6000) / 100;
  QString text = QStringLiteral("%1°").arg(whole);
  if (minutes > 0 || seconds > 0) text += QStringLiteral("%1′").arg(minutes, 2, 10, QLatin1Char('0'));
  if (seconds > 0) text += QLatin1String(seconds < 10 ? "0" : "") + QStringLiteral("%1″").arg(seconds, 0, 'g', 4);
  bool const hasSide = hundredths > 0 && !(isLongitude && hundredths == 180 * 360000.0);
  if (!hasSide) return text;
  return text + QLatin1Char(isLongitude ? (turned < 0 ? 'W' : 'E') : (turned < 0 ? 'S' : 'N'));
}

}  // namespace SysCarto
