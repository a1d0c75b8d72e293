#include "ProjectionChoice.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GroundScale.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <QCoreApplication>
#include <QLocale>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ProjectionChoice)
};

constexpr double townKm = 400;
constexpr double maxOwnDistortion = 1.02;  // the largest scale along a parallel by the smallest

QString degrees(double value, char positive, char negative) {
  QLatin1Char const letter(value < 0 ? negative : positive);
  return QLocale().toString(std::abs(value), 'g', 6) + QStringLiteral("° ") + letter;
}
QString latitude(double value) { return degrees(value, 'N', 'S'); }
QString longitude(double value) { return degrees(value, 'E', 'W'); }

QString projText(QString const& projection) {
  return QStringLiteral("+proj=%1 +datum=WGS84 +units=m +no_defs").arg(projection);
}

// A number that a person would take: whole degrees of something large.
double rounded(double value, GlobeArea const& area) {
  double const step = std::max(area.width(), area.height()) > 20 ? 1 : 0.5;
  return std::round(value / step) * step + 0.0;
}

ProjectionChoice world(GlobeArea const& area) {
  constexpr double wholeTurn = 350;
  double const middle = area.width() > wholeTurn ? 0 : std::round(area.centreLongitude() / 10) * 10;
  struct Code {
    double middle;
    char const* code;
  };
  constexpr Code codes[] = {{0, "EPSG:8857"}, {-90, "EPSG:8858"}, {150, "EPSG:8859"}};
  QString definition = projText(QStringLiteral("eqearth +lon_0=%1").arg(middle));
  for (Code const& one : codes)
    if (one.middle == middle) definition = QLatin1String(one.code);
  return {definition, Texts::tr("Equal Earth projection"),
          Texts::tr("The data reach round the world, and the Equal Earth projection keeps its areas."), true};
}

// Round a pole; null text where the area does not lie there.
ProjectionChoice polar(GlobeArea const& area) {
  bool const isNorth = area.centreLatitude() > 0;
  double const middle = area.width() > 300 ? 0 : rounded(area.centreLongitude(), area);
  QString const definition =
      middle == 0 ? QLatin1String(isNorth ? "EPSG:6931" : "EPSG:6932")
                  : projText(QStringLiteral("laea +lat_0=%1 +lon_0=%2").arg(isNorth ? 90 : -90).arg(middle));
  return {definition, Texts::tr("Lambert azimuthal equal-area projection about the pole"),
          Texts::tr("The data lie about a pole, where an azimuthal projection shows all directions alike."), false};
}

ProjectionChoice belt(GlobeArea const& area) {
  // Scale is true where half of the area lies nearer to the equator.
  double const parallel = rounded(std::max(std::abs(area.south), std::abs(area.north)) / 2, area);
  return {projText(QStringLiteral("cea +lat_ts=%1 +lon_0=%2").arg(parallel).arg(rounded(area.centreLongitude(), area))),
          Texts::tr("cylindrical equal-area projection, true at %1").arg(latitude(parallel)),
          Texts::tr("The data lie in a belt along the equator, which a cylindrical projection shows best."), false};
}

// The parallels lie a sixth of the height within the edges, which spreads the distortion evenly (Snyder 1987, p. 99).
ProjectionChoice conic(GlobeArea const& area) {
  double const sixth = area.height() / 6;
  double const first = rounded(area.south + sixth, area), second = rounded(area.north - sixth, area);
  return {
      projText(QStringLiteral("aea +lat_1=%1 +lat_2=%2 +lat_0=%3 +lon_0=%4")
                   .arg(first)
                   .arg(second)
                   .arg(rounded(area.centreLatitude(), area))
                   .arg(rounded(area.centreLongitude(), area))),
      Texts::tr("Albers equal-area conic projection, %1 and %2").arg(latitude(first), latitude(second)),
      Texts::tr("The data are broader than high and lie to one side of the equator: a conic projection, its standard "
                "parallels a sixth of the height within the edges."),
      false};
}

ProjectionChoice azimuthal(GlobeArea const& area) {
  double const lat = rounded(area.centreLatitude(), area), lon = rounded(area.centreLongitude(), area);
  return {projText(QStringLiteral("laea +lat_0=%1 +lon_0=%2").arg(lat).arg(lon)),
          Texts::tr("Lambert azimuthal equal-area projection, %1, %2").arg(latitude(lat), longitude(lon)),
          Texts::tr("An azimuthal projection about the middle of the data shows them best on all sides."), false};
}

ProjectionChoice utm(GlobeArea const& area) {
  constexpr int zones = 60, north = 32600, south = 32700;
  int const zone = std::clamp(static_cast<int>((area.centreLongitude() + 180) / 6) + 1, 1, zones);
  bool const isNorth = area.centreLatitude() >= 0;
  return {QStringLiteral("EPSG:%1").arg((isNorth ? north : south) + zone),
          QStringLiteral("UTM %1%2").arg(zone).arg(QLatin1Char(isNorth ? 'N' : 'S')),
          Texts::tr("The data cover less than %1 km, and this is their zone of UTM.").arg(townKm), false};
}

// Whether north is more or less up and east to the right, as not in systems that count southwards or westwards.
bool isUpright(SysCarto::PointTransform const& toMap, GlobeArea const& area) {
  constexpr double step = 0.01;  // degrees
  double x[3] = {area.centreLongitude(), area.centreLongitude() + step, area.centreLongitude()};
  double y[3] = {area.centreLatitude(), area.centreLatitude(), area.centreLatitude() - step};
  for (int i = 0; i < 3; ++i)
    if (!toMap.apply(x[i], y[i])) return false;
  return x[1] > x[0] && y[0] > y[2];
}

// By its size, which no other body that is mapped comes near to but Venus, whose radius is 6051.8 km.
bool isOfEarth(OGRSpatialReference const& system) {
  constexpr double leastM = 6.3e6, mostM = 6.45e6;
  double const radius = system.GetSemiMajor();
  return radius > leastM && radius < mostM;
}

// How much larger the scale is at one place of the area than at another; large where the system does not reach, or the
// map would not be upright.
double distortion(QString const& definition, GlobeArea const& area) {
  auto const system = SysCarto::makeCoordinateSystem(definition);
  if (!system || system->IsGeographic()) return HUGE_VAL;
  auto const globe = SysCarto::globeOf(*system);
  QString error;
  auto const toMap = globe ? SysCarto::PointTransform::create(*globe, *system, error) : nullptr;
  if (!toMap || !isUpright(*toMap, area)) return HUGE_VAL;
  SysCarto::GroundScale const ground(definition);
  double const unit = system->GetLinearUnits();
  double smallest = HUGE_VAL, largest = 0;
  for (double const across : {0.0, 0.25, 0.5, 0.75, 1.0})
    for (double const up : {0.0, 0.25, 0.5, 0.75, 1.0}) {
      double x = std::remainder(area.west + across * area.width(), 360.0), y = area.south + up * area.height();
      if (!toMap->apply(x, y)) return HUGE_VAL;
      double const scale = unit / ground.metresPerUnit(x, y, 1000);
      smallest = std::min(smallest, scale);
      largest = std::max(largest, scale);
    }
  // A scale that is wrong everywhere alike, as that of a web map, is no good either.
  return std::max({largest / smallest, largest, 1 / smallest});
}

}  // namespace

ProjectionChoice ProjectionChoice::forArea(GlobeArea const& area, QStringList const& ownSystems) {
  if (ownSystems.size() == 1 && distortion(ownSystems.first(), area) < maxOwnDistortion) {
    auto const system = SysCarto::makeCoordinateSystem(ownSystems.first());
    QString const name = QString::fromUtf8(system->GetName());
    return {ownSystems.first(), name,
            Texts::tr("The data's own coordinate system, %1, shows them almost without distortion.").arg(name), false};
  }
  bool const isBroad = area.width() > 180;
  if ((area.south >= 45 || area.north <= -45) && (isBroad || std::max(std::abs(area.south), std::abs(area.north)) > 84))
    return polar(area);
  if (isBroad && std::abs(area.centreLatitude()) < 15 && area.height() < 60 && area.width() < 350) return belt(area);
  if (isBroad || area.height() > 140) return world(area);
  if (std::max(area.widthKm(), area.heightKm()) < townKm) return utm(area);
  bool const isBesideEquator = area.south > -5 || area.north < 5;
  double const middle = std::abs(area.centreLatitude());
  bool const isWide = area.widthKm() > 1.15 * area.heightKm();
  if (isWide && area.width() > 60 && middle < 12) return belt(area);
  if (isWide && isBesideEquator && middle > 15 && middle < 72 && area.width() < 150) return conic(area);
  return azimuthal(area);
}

ProjectionChoice ProjectionChoice::forData(DataPlace const& place) {
  for (QString const& definition : place.systems)
    if (auto const other = SysCarto::makeCoordinateSystem(definition); other && !isOfEarth(*other))
      return {definition, QString::fromUtf8(other->GetName()),
              Texts::tr("It is the data's own, since they do not lie on the Earth."), false};
  auto const own = place.systems.size() == 1 ? SysCarto::makeCoordinateSystem(place.systems.first()) : nullptr;
  if (!place.isKnown && place.hasFeatures && own)
    return {place.systems.first(), QString::fromUtf8(own->GetName()),
            Texts::tr("It is the data's own; where on the globe they are is not known."), false};
  if (!place.isKnown && place.hasFeatures)
    return {QString(), Texts::tr("plain coordinates"), Texts::tr("Where on the globe the data are is not known."),
            false};
  ProjectionChoice choice = forArea(place.area, place.systems);
  if (!place.hasFeatures)
    choice.reason = Texts::tr("There are no features that say where the map is, so it shows the world.");
  return choice;
}
