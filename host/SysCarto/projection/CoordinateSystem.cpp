#include "CoordinateSystem.h"

#include "host/SysCarto/projection/Offline.h"
#include "host/SysGeometry/QuietOgr.h"

#include <QCoreApplication>
#include <QMutex>
#include <QRegularExpression>

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <map>

namespace SysCarto {

namespace {

constexpr int maxCharacters = 16384;
constexpr double degree = M_PI / 180, sameUnit = 1e-12;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(CoordinateSystem)
};

bool matches(QString const& text, char const* pattern) {
  return QRegularExpression(QString::fromLatin1(pattern), QRegularExpression::CaseInsensitiveOption)
      .match(text)
      .hasMatch();
}

// The notations, a code also with one of heights behind it, or as a URN. Others that GDAL knows (addresses, file names,
// dictionaries) stay out.
bool isKnownNotation(QString const& text) {
  return matches(text, R"(^(EPSG|ESRI|IGNF|OGC|IAU(_20[0-9]{2})?):[A-Z0-9._]+(\+[0-9]+)?$)") ||
         matches(text, R"(^urn:ogc:def:crs:[A-Z0-9_]+:[0-9.]*:[A-Z0-9]+$)") ||
         matches(text, R"(^[A-Z_]*(CS|CRS)\s*\[)") || matches(text, R"(^\+?proj\s*=)");
}

// Grids and parameter files are opened by their name wherever it points. A name of "@null" means that there is none.
bool namesFile(QString const& text) {
  return matches(text, R"(grids\s*=\s*+(?!@null(\s|\+|$)))") || matches(text, R"(\b(init|file)\s*=)") ||
         matches(text, "PARAMETERFILE");
}

std::unique_ptr<OGRSpatialReference> parse(QString const& text) {
  stayOffline();
  SysGeometry::QuietOgr const quiet;
  auto system = std::make_unique<OGRSpatialReference>();
  QLatin1String const iau("IAU:");  // as data say it; PROJ has the year of the report in the name
  QString const known =
      text.startsWith(iau, Qt::CaseInsensitive) ? QStringLiteral("IAU_2015:") + text.mid(iau.size()) : text;
  OGRErr const result =
      system->SetFromUserInput(known.toUtf8().constData(), OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get());
  if (result != OGRERR_NONE) return nullptr;
  system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  return system;
}

using SystemPtr = std::unique_ptr<OGRSpatialReference>;

// Reads a definition into `system`; answers why it can't be one, with an empty pointer then.
QString read(QString const& definition, SystemPtr& system) {
  QString const text = definition.trimmed();
  if (text.isEmpty()) return QString();
  if (text.size() > maxCharacters) return Texts::tr("is longer than a coordinate system can be");
  if (!isKnownNotation(text))
    return Texts::tr("“%1” is no coordinate system; give a code such as EPSG:8857, WKT or a PROJ text")
        .arg(text.left(64).simplified());
  if (namesFile(text))
    return Texts::tr("names a file, and a document's coordinate system may not; leave out the grid or the file");
  SystemPtr parsed = parse(text);
  if (!parsed)
    return Texts::tr("“%1” is not a coordinate system that PROJ knows; give a code such as EPSG:8857")
        .arg(text.left(64).simplified());
  parsed->StripVertical();
  if (!parsed->IsGeographic() && !parsed->IsProjected())
    return Texts::tr("is neither geographic nor projected; leave it empty for plain coordinates");
  system = std::move(parsed);
  return QString();
}

// Whether longitudes are counted on from another one than −180.
bool isWrapped(OGRSpatialReference const& system) {
  char* text = nullptr;
  QByteArray const said = system.IsGeographic() && system.exportToProj4(&text) == OGRERR_NONE ? text : "";
  CPLFree(text);
  return said.contains("+lon_wrap=") || said.contains("+lon_0=");
}

// The system on the same globe whose poles are the globe's own, with longitudes from −180 to 180.
OGRSpatialReference* underived(OGRSpatialReference const& system) {
  char const* const datum = system.GetAttrValue("DATUM");
  char const* meridian = nullptr;
  double const longitude = system.GetPrimeMeridian(&meridian);
  auto globe = std::make_unique<OGRSpatialReference>();
  OGRErr const result = globe->SetGeogCS(nullptr, datum, system.GetAttrValue("ELLIPSOID"), system.GetSemiMajor(),
                                         system.GetInvFlattening(), meridian, longitude);
  return result == OGRERR_NONE ? globe.release() : nullptr;
}

}  // namespace

QString checkCoordinateSystem(QString const& definition) {
  SystemPtr system;
  return read(definition, system);
}

bool namesPath(OGRSpatialReference const& system) {
  SysGeometry::QuietOgr const quiet;
  char *wkt = nullptr, *projText = nullptr;
  system.exportToWkt(&wkt);
  system.exportToProj4(&projText);
  QString const text = QString::fromUtf8(wkt) + QLatin1Char('\n') + QString::fromUtf8(projText);
  CPLFree(wkt);
  CPLFree(projText);
  return matches(text, R"((grids|\binit|\bfile)\s*=[^\s"+]*/)") || matches(text, R"(PARAMETERFILE\s*\[[^\]]*/)");
}

bool isGeocentric(QString const& definition) {
  SystemPtr const system = isKnownNotation(definition.trimmed()) ? parse(definition.trimmed()) : nullptr;
  return system && system->IsGeocentric();
}

// A document names few systems and asks for them again and again, and PROJ looks each up in its database. What is kept
// is only copied, and never goes: threads that made it may have gone, and PROJ itself at the end.
std::unique_ptr<OGRSpatialReference> makeCoordinateSystem(QString const& definition) {
  if (definition.isEmpty()) return nullptr;
  constexpr int mostKept = 64;
  static QMutex mutex;
  static auto& known = *new std::map<QString, SystemPtr>;
  QMutexLocker const locker(&mutex);
  auto const place = known.find(definition);
  if (place != known.end()) return SystemPtr(place->second->Clone());
  SystemPtr system;
  read(definition, system);
  if (!system) return system;
  if (known.size() >= mostKept) known.clear();
  known[definition] = SystemPtr(system->Clone());
  return system;
}

std::unique_ptr<OGRSpatialReference> globeOf(OGRSpatialReference const& system) {
  SysGeometry::QuietOgr const quiet;
  bool const isOwnGlobe = !system.IsDerivedGeographic() && !isWrapped(system);
  SystemPtr globe(isOwnGlobe ? system.CloneGeogCS() : underived(system));
  if (!globe) return globe;
  if (std::abs(globe->GetAngularUnits() - degree) > sameUnit) globe->SetAngularUnits(SRS_UA_DEGREE, degree);
  globe->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  return globe;
}

QString wktOf(OGRSpatialReference const& system, char const* notation) {
  SysGeometry::QuietOgr const quiet;
  QByteArray const format = QByteArray("FORMAT=") + notation;
  char const* const options[] = {format.constData(), nullptr};
  char* text = nullptr;
  bool const isWritten = system.exportToWkt(&text, options) == OGRERR_NONE;
  QString const wkt = isWritten ? QString::fromUtf8(text) : QString();
  CPLFree(text);
  return wkt;
}

}  // namespace SysCarto
