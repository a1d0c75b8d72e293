#pragma once

#include <SysFramework/Export.h>

#include <QLocale>

namespace SysFramework {

/// Translates the texts of Qt, of the host and of every plug-in that is loaded by now: whatever lies in the resources
/// as
/// :/translations/NAME_LOCALE.qm, where NAME has no underscore. Call it once, before widgets are made. Texts without a
/// translation stay English, as all do where English is the first language of the locale.
SYSFRAMEWORK_EXPORT void installTranslations(QLocale const& locale);

}  // namespace SysFramework
