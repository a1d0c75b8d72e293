#pragma once

#include <QtGlobal>

/// Marks what the SysFramework library shows to plug-ins; everything else stays hidden.
#ifdef SYSFRAMEWORK_BUILD
#define SYSFRAMEWORK_EXPORT Q_DECL_EXPORT
#else
#define SYSFRAMEWORK_EXPORT Q_DECL_IMPORT
#endif
