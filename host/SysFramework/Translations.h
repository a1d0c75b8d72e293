#pragma once

#include <SysFramework/Export.h>

#include <QLocale>
#include <QStringList>

namespace SysFramework {

/// The languages that texts can be in, as --language and the files' names have them: "en", and those with a file
/// :/translations/NAME_LANGUAGE.qm in the resources.
SYSFRAMEWORK_EXPORT QStringList languagesOfTexts();

/// Translates the texts of Qt, of the host and of every plug-in that is loaded by now: whatever lies in the resources
/// as
/// :/translations/NAME_LANGUAGE.qm, where NAME has no underscore. Before widgets are made. Texts without a translation
/// stay English, as all do where English is the first language of the locale. What numbers look like is not changed.
SYSFRAMEWORK_EXPORT void installTranslations(QLocale const& locale);

/// Does so for what was loaded since then, in the same language; nothing where no translations were installed.
SYSFRAMEWORK_EXPORT void installLaterTranslations();

}  // namespace SysFramework
