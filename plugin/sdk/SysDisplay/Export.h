#pragma once

#include <QtGlobal>

/// Marks what the SysDisplay library shows to plug-ins; everything else stays hidden.
#ifdef SYSDISPLAY_BUILD
#define SYSDISPLAY_EXPORT Q_DECL_EXPORT
#else
#define SYSDISPLAY_EXPORT Q_DECL_IMPORT
#endif
