#include "Language.h"

#include "Console.h"
#include "GlobalOption.h"

#include "host/SysFramework/Translations.h"

#include <QLocale>

namespace {

// The locale whose texts a person means by "de", "de_AT", "zh-CN" or "zh".
std::optional<QLocale> localeOf(QString const& language) {
  QStringList const known = SysFramework::languagesOfTexts();
  QLocale const locale(QString(language).replace(QLatin1Char('-'), QLatin1Char('_')));
  bool const isKnown = known.contains(locale.name()) || known.contains(locale.name().section(QLatin1Char('_'), 0, 0));
  return isKnown ? std::make_optional(locale) : std::nullopt;
}

}  // namespace

std::optional<QString> takeLanguage(QStringList& arguments) { return takeOption(arguments, languageOption); }

bool isLanguage(QString const& language) {
  if (localeOf(language)) return true;
  // In English: nothing is translated yet.
  QString const known = SysFramework::languagesOfTexts().join(QStringLiteral(", "));
  Console::complain(language.isEmpty()
                        ? QStringLiteral("--language: its value is missing; it is one of: %1.").arg(known)
                        : QStringLiteral("--language: \"%1\" is none of the languages: %2.").arg(language, known));
  return false;
}

void installLanguage(std::optional<QString> const& language) {
  auto const chosen = language ? localeOf(*language) : std::nullopt;
  SysFramework::installTranslations(chosen.value_or(QLocale::system()));
}
