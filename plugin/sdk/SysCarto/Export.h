#pragma once

#include <QtGlobal>

/// Marks what the SysCarto library shows to plug-ins; everything else stays hidden.
#ifdef SYSCARTO_BUILD
#define SYSCARTO_EXPORT Q_DECL_EXPORT
#else
#define SYSCARTO_EXPORT Q_DECL_IMPORT
#endif
