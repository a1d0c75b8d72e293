#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QSet>
#include <QTranslator>

#include <optional>

namespace SysFramework {

namespace {

constexpr char resourceFolder[] = ":/translations";

struct Installed {
  QLocale locale;
  QSet<QString> names;
};

std::optional<Installed>& installed() {
  static std::optional<Installed> installed;
  return installed;
}

QStringList files() { return QDir(QLatin1String(resourceFolder)).entryList({QStringLiteral("*.qm")}); }

void install(QLocale const& locale, QString const& name, QString const& folder) {
  auto* const translator = new QTranslator(QCoreApplication::instance());
  if (translator->load(locale, name, QStringLiteral("_"), folder))
    QCoreApplication::installTranslator(translator);
  else
    delete translator;
}

}  // namespace

QStringList languagesOfTexts() {
  QStringList languages{QStringLiteral("en")};
  for (QString const& file : files()) languages << file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
  languages.removeDuplicates();
  languages.sort();
  return languages;
}

void installTranslations(QLocale const& locale) {
  // There is no file for English, so that Qt would go on to the second language of a person whose first one it is.
  QString const first = locale.uiLanguages().value(0);
  if (QLocale(first).language() == QLocale::English) return;

  installed() = Installed{locale, {}};
  install(locale, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
  installLaterTranslations();
}

void installLaterTranslations() {
  if (!installed()) return;
  for (QString const& file : files()) {
    QString const name = file.section(QLatin1Char('_'), 0, 0);
    if (installed()->names.contains(name)) continue;
    installed()->names.insert(name);
    install(installed()->locale, name, QLatin1String(resourceFolder));
  }
}

}  // namespace SysFramework
