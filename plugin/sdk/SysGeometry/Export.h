#pragma once

#include <QtGlobal>

/// Marks what the SysGeometry library shows to plug-ins; everything else stays hidden.
#ifdef SYSGEOMETRY_BUILD
#define SYSGEOMETRY_EXPORT Q_DECL_EXPORT
#else
#define SYSGEOMETRY_EXPORT Q_DECL_IMPORT
#endif
