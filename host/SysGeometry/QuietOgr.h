#pragma once

#include <cpl_error.h>

namespace SysGeometry {

/// While it lives, OGR and GEOS print nothing on this thread, and the error that GDAL noted before is kept for whoever
/// asks for it.
class QuietOgr {
public:
  QuietOgr() { CPLPushErrorHandler(CPLQuietErrorHandler); }
  ~QuietOgr() { CPLPopErrorHandler(); }
  QuietOgr(QuietOgr const&) = delete;
  QuietOgr& operator=(QuietOgr const&) = delete;

private:
  CPLErrorStateBackuper backup_;
};

}  // namespace SysGeometry
