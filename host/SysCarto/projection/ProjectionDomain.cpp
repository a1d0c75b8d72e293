#include "ProjectionDomain.h"

#include "GlobeSurvey.h"
#include "ProjText.h"
#include "ProjectionProbe.h"

#include <QMutex>
#include <QString>

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

namespace SysCarto {

namespace {

// Projections that show the neighbourhood of a centre, and how far from it at most, in degrees. Nearer limits are found
// by asking the projection; these keep out what is legal but of no use, such as a stereographic map of the antipode.
struct CentredProjection {
  char const* name;
  double farthest;
};
// clang-format off
constexpr CentredProjection centredProjections[] = {
  {"ortho",    91}, {"nsper",    90}, {"tpers", 90}, {"geos",   90}, {"gnom", 70},
  {"stere",   140}, {"sterea",  140}, {"ups",   90}, {"laea", 179.5}, {"aeqd", 179.3}, {"airy", 90},
};
// clang-format on

constexpr int directions = 360;
constexpr double margin = 1e-5;  // degrees: between two directions that were asked the border may bend inwards

// Asks for places along ways from a centre, all ways at once: the distances to which they are good, towards `farthest`.
using IsShown = std::function<std::vector<char>(std::vector<double> const& distances)>;

std::vector<double> reach(size_t count, double farthest, IsShown const& isShown) {
  constexpr int steps = 18, halvings = 48;
  std::vector<double> good(count, 0), bad(count, 0), asked(count);
  std::vector<char> isEnded(count, 0);
  for (int i = 1; i <= steps; ++i) {
    for (double& distance : asked) distance = farthest * i / steps;
    std::vector<char> const shown = isShown(asked);
    for (size_t k = 0; k < count; ++k) {
      if (!isEnded[k]) (shown[k] ? good : bad)[k] = asked[k];
      if (!shown[k]) isEnded[k] = 1;
    }
  }
  if (std::none_of(isEnded.begin(), isEnded.end(), [](char ended) { return ended; })) return good;
  for (int i = 0; i < halvings; ++i) {
    for (size_t k = 0; k < count; ++k) asked[k] = isEnded[k] ? (good[k] + bad[k]) / 2 : good[k];
    std::vector<char> const shown = isShown(asked);
    for (size_t k = 0; k < count; ++k)
      if (isEnded[k]) (shown[k] ? good : bad)[k] = asked[k];
  }
  return good;
}

std::vector<char> areShown(std::vector<double> xy, ProjectionProbe const& probe) {
  probe.project(xy);
  std::vector<char> shown(xy.size() / 2);
  for (size_t i = 0; i < shown.size(); ++i) shown[i] = std::isfinite(xy[2 * i]);
  return shown;
}

Domain makeStrip(QString const& name, double centralLongitude, ProjectionProbe const& probe) {
  // The poles of a cylindrical conformal map lie at infinity. 85.06 makes the world a square, as web maps have it.
  double const farthest = name == QLatin1String("webmerc") ? 85.0511287798 : name == QLatin1String("merc") ? 89 : 90;
  auto const reachTo = [&](double pole) {
    return reach(1, pole, [&](std::vector<double> const& latitudes) {
      return areShown({centralLongitude, latitudes[0]}, probe);
    })[0];
  };
  return {centralLongitude, true, makeStripDomain(reachTo(-farthest), reachTo(farthest)), 0};
}

Domain makeDisk(double longitude, double latitude, double farthest, ProjectionProbe const& probe) {
  std::vector<double> limits = reach(directions, farthest, [&](std::vector<double> const& distances) {
    std::vector<double> xy;
    for (int i = 0; i < directions; ++i) {
      Vertex const place = placeFrom(latitude, i * 360.0 / directions, distances[i]);
      xy.insert(xy.end(), {longitude + place.x, place.y});
    }
    return areShown(std::move(xy), probe);
  });
  for (double& limit : limits) limit -= margin;
  return {longitude, false, makeDiskDomain(latitude, std::move(limits)), 0};
}

bool isWebMercator(OGRSpatialReference const& system) {
  char const* const method = system.GetAttrValue("PROJECTION");
  QString const code = QString::fromUtf8(system.GetAuthorityCode(nullptr));
  return code == QLatin1String("3857") ||
         (method && QString::fromUtf8(method).contains(QLatin1String("Auxiliary_Sphere")));
}

// What the projection suggests.
Domain suggested(OGRSpatialReference const& system, ProjText const& text, ProjectionProbe const& probe) {
  if (system.IsGeographic()) return {0, true, makeStripDomain(-90, 90), 0};
  QString name = text.value("proj");
  double longitude = text.number("lon_0", text.number("lonc", 0)), latitude = text.number("lat_0", 0);
  if (name == QLatin1String("utm")) longitude = 6 * text.number("zone", 31) - 183;
  for (CentredProjection const& centred : centredProjections)
    if (name == QLatin1String(centred.name)) return makeDisk(longitude, latitude, centred.farthest, probe);
  if (isWebMercator(system) || text.contains("+nadgrids=@null")) name = QStringLiteral("webmerc");
  return makeStrip(name, longitude, probe);
}

// The place at the false easting and northing.
Vertex middleOf(ProjText const& text, double centralLongitude, ProjectionProbe const& probe) {
  Vertex middle = probe.falseOrigin();
  if (!probe.comeBack(middle.x, middle.y)) return {0, text.number("lat_0", 0), 0};
  middle.x = std::remainder(middle.x - centralLongitude, 360.0);
  return middle;
}

Domain found(OGRSpatialReference const& system, ProjectionProbe const& probe) {
  ProjText const text(system);
  Domain domain = suggested(system, text, probe);
  GlobeSurvey const glance(probe, domain.centralLongitude, GlobeSurvey::Care::Glance);
  domain.size = glance.size();
  if (domain.size == 0 && !areShown({domain.centralLongitude, text.number("lat_0", 0)}, probe)[0])
    return {0, true, nullptr, 0};
  if (glance.suits(*domain.border)) return domain;
  GlobeSurvey survey(probe, domain.centralLongitude, GlobeSurvey::Care::Survey);
  domain.isStrip = true;
  domain.border = makeRegionDomain(survey.border(middleOf(text, domain.centralLongitude, probe)));
  return domain;
}

QString keyOf(OGRSpatialReference const& system) {
  char* text = nullptr;
  QString result;
  if (system.exportToWkt(&text) == OGRERR_NONE) result = QString::fromUtf8(text);
  CPLFree(text);
  return result;
}

}  // namespace

ProjectionDomain::~ProjectionDomain() = default;

Domain makeDomain(OGRSpatialReference const& system, ProjectionProbe const& probe) {
  constexpr size_t mostKept = 64;
  static QMutex mutex;
  static std::map<QString, Domain> known;
  QMutexLocker const locker(&mutex);
  QString const key = keyOf(system);
  auto const place = known.find(key);
  if (place != known.end()) return place->second;
  if (known.size() >= mostKept) known.clear();
  return known[key] = found(system, probe);
}

}  // namespace SysCarto
