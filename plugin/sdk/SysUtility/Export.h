#pragma once

#include <QtGlobal>

/// Marks what the SysUtility library shows to plug-ins; everything else stays hidden.
#ifdef SYSUTILITY_BUILD
#define SYSUTILITY_EXPORT Q_DECL_EXPORT
#else
#define SYSUTILITY_EXPORT Q_DECL_IMPORT
#endif
