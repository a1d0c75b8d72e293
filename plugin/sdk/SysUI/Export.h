#pragma once

#include <QtGlobal>

/// Marks what the SysUI library shows to plug-ins; everything else stays hidden.
#ifdef SYSUI_BUILD
#define SYSUI_EXPORT Q_DECL_EXPORT
#else
#define SYSUI_EXPORT Q_DECL_IMPORT
#endif
