#include "RememberedWays.h"

#include "host/SysGeometry/QuietOgr.h"

#include <ogr_spatialref.h>

namespace SysCarto {

std::string textOf(OGRSpatialReference const& system) {
  SysGeometry::QuietOgr const quiet;
  char const* const options[] = {"FORMAT=WKT2_2019", nullptr};
  char* text = nullptr;
  std::string result = system.exportToWkt(&text, options) == OGRERR_NONE ? text : "";
  CPLFree(text);
  if (!result.empty()) result += std::to_string(system.GetCoordinateEpoch());
  return result;
}

}  // namespace SysCarto
