#include "SystemDescription.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysGeometry/QuietOgr.h"

#include <cpl_conv.h>
#include <ogr_spatialref.h>
#include <proj.h>

#include <memory>

namespace SysCarto {

namespace {

using Context = std::unique_ptr<PJ_CONTEXT, decltype(&proj_context_destroy)>;
using Object = std::unique_ptr<PJ, decltype(&proj_destroy)>;

// It keeps PROJ's database open.
PJ_CONTEXT* sharedContext() {
  static Context const context(proj_context_create(), proj_context_destroy);
  proj_context_set_enable_network(context.get(), 0);
  return context.get();
}

QString wktOf(OGRSpatialReference const& system) {
  static char const* const options[] = {"FORMAT=WKT2_2019", "MULTILINE=YES", nullptr};
  char* text = nullptr;
  QString wkt;
  if (system.exportToWkt(&text, options) == OGRERR_NONE) wkt = QString::fromUtf8(text);
  CPLFree(text);
  return wkt;
}

QString methodOf(PJ_CONTEXT* context, PJ* system) {
  Object const conversion(proj_crs_get_coordoperation(context, system), proj_destroy);
  char const* name = nullptr;
  if (!conversion || !proj_coordoperation_get_method_info(context, conversion.get(), &name, nullptr, nullptr))
    return QString();
  return QString::fromUtf8(name);
}

QString datumOf(PJ_CONTEXT* context, PJ* system) {
  Object const globe(proj_crs_get_geodetic_crs(context, system), proj_destroy);
  if (!globe) return QString();
  Object datum(proj_crs_get_datum(context, globe.get()), proj_destroy);
  if (!datum) datum.reset(proj_crs_get_datum_ensemble(context, globe.get()));
  return datum ? QString::fromUtf8(proj_get_name(datum.get())) : QString();
}

QString unitOf(OGRSpatialReference const& system) {
  char const* name = nullptr;
  if (system.IsGeographic())
    system.GetAngularUnits(&name);
  else
    system.GetLinearUnits(&name);
  return QString::fromUtf8(name);
}

}  // namespace

std::optional<SystemDescription> describeSystem(QString const& definition) {
  auto const system = makeCoordinateSystem(definition);
  if (!system) return std::nullopt;
  SysGeometry::QuietOgr const quiet;
  SystemDescription told;
  told.isGeographic = system->IsGeographic();
  told.name = QString::fromUtf8(system->GetName());
  told.unit = unitOf(*system);
  told.wkt = wktOf(*system);
  if (char const* const code = system->GetAuthorityCode(nullptr))
    told.code = QString::fromUtf8(system->GetAuthorityName(nullptr)) + QLatin1Char(':') + QString::fromUtf8(code);
  PJ_CONTEXT* const context = sharedContext();
  Object const object(proj_create(context, told.wkt.toUtf8().constData()), proj_destroy);
  if (!object) return told;
  told.method = told.isGeographic ? QString() : methodOf(context, object.get());
  told.datum = datumOf(context, object.get());
  char const* area = nullptr;
  GlobeBox use;
  if (proj_get_area_of_use(context, object.get(), &use.west, &use.south, &use.east, &use.north, &area)) {
    char const* const body = proj_get_celestial_body_name(context, object.get());
    bool const isOfEarth = !body || qstrcmp(body, "Earth") == 0;
    if (use.south >= -90 && isOfEarth) told.use = use;  // -1000 stands for what isn't known
    told.area = QString::fromUtf8(area);
  }
  return told;
}

}  // namespace SysCarto
