#include "ProjectionDomain.h"

#include <QRegularExpression>
#include <QString>

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

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
  {"stere",   140}, {"sterea",  140}, {"ups",   90}, {"laea", 179.5}, {"aeqd", 179.5}, {"airy", 90},
  {"tmerc",    85}, {"etmerc",   85}, {"utm",   85}, {"cass",   85}, {"tcea", 85},
  {"omerc",    80}, {"somerc",   80}, {"krovak", 80},
};
// clang-format on

constexpr int directions = 360;
constexpr double margin = 1e-5;  // degrees: between two directions that were asked the border may bend inwards

QString projText(OGRSpatialReference const& system) {
  char* text = nullptr;
  QString result;
  if (system.exportToProj4(&text) == OGRERR_NONE) result = QString::fromUtf8(text);
  CPLFree(text);
  return result;
}

QString valueOf(QString const& text, char const* key) {
  QRegularExpression const pattern(QStringLiteral("\\+%1=([^ ]+)").arg(QLatin1String(key)));
  return pattern.match(text).captured(1);
}

double numberOf(QString const& text, char const* key, double otherwise) {
  bool ok = false;
  double const value = valueOf(text, key).toDouble(&ok);
  return ok && std::isfinite(value) ? value : otherwise;
}

// The last place between a good and a bad one that is good.
double lastGood(double good, double bad, std::function<bool(double)> const& isGood) {
  for (int i = 0; i < 48; ++i) {
    double const middle = (good + bad) / 2;
    (isGood(middle) ? good : bad) = middle;
  }
  return good;
}

// How far the projection reaches from 0, where it is good, towards `farthest`.
double reach(double farthest, std::function<bool(double)> const& isGood) {
  constexpr int steps = 18;
  double good = 0;
  for (int i = 1; i <= steps; ++i) {
    double const place = farthest * i / steps;
    if (!isGood(place)) return lastGood(good, place, isGood);
    good = place;
  }
  return farthest;
}

std::unique_ptr<ProjectionDomain> makeStrip(QString const& name, double centralLongitude,
                                            CanProject const& canProject) {
  // The poles of a cylindrical conformal map lie at infinity. 85.06 makes the world a square, as web maps have it.
  double const farthest = name == QLatin1String("webmerc") ? 85.0511287798 : name == QLatin1String("merc") ? 89 : 90;
  auto const isGood = [&](double latitude) { return canProject(centralLongitude, latitude); };
  return makeStripDomain(reach(-farthest, isGood), reach(farthest, isGood));
}

std::unique_ptr<ProjectionDomain> makeDisk(double longitude, double latitude, double farthest,
                                           CanProject const& canProject) {
  std::vector<double> limits(directions);
  for (int i = 0; i < directions; ++i) {
    auto const isGood = [&](double distance) {
      Vertex const place = placeFrom(latitude, i * 360.0 / directions, distance);
      return canProject(longitude + place.x, place.y);
    };
    limits[i] = reach(farthest, isGood) - margin;
  }
  return makeDiskDomain(latitude, std::move(limits));
}

bool isWebMercator(OGRSpatialReference const& system) {
  char const* const method = system.GetAttrValue("PROJECTION");
  QString const code = QString::fromUtf8(system.GetAuthorityCode(nullptr));
  return code == QLatin1String("3857") ||
         (method && QString::fromUtf8(method).contains(QLatin1String("Auxiliary_Sphere")));
}

}  // namespace

ProjectionDomain::~ProjectionDomain() = default;

Domain makeDomain(OGRSpatialReference const& system, CanProject const& canProject) {
  if (system.IsGeographic()) return {0, true, makeStripDomain(-90, 90)};
  QString const text = projText(system);
  QString name = valueOf(text, "proj");
  double longitude = numberOf(text, "lon_0", numberOf(text, "lonc", 0)), latitude = numberOf(text, "lat_0", 0);
  if (name == QLatin1String("utm")) longitude = 6 * numberOf(text, "zone", 31) - 183;
  for (CentredProjection const& centred : centredProjections)
    if (name == QLatin1String(centred.name))
      return {longitude, false, makeDisk(longitude, latitude, centred.farthest, canProject)};
  if (isWebMercator(system) || text.contains(QLatin1String("+nadgrids=@null"))) name = QStringLiteral("webmerc");
  return {longitude, true, makeStrip(name, longitude, canProject)};
}

}  // namespace SysCarto
