#pragma once

#include <QtGlobal>

/// Marks what the SysAdapterUI library shows to plug-ins; everything else stays hidden.
#ifdef SYSADAPTERUI_BUILD
#define SYSADAPTERUI_EXPORT Q_DECL_EXPORT
#else
#define SYSADAPTERUI_EXPORT Q_DECL_IMPORT
#endif
