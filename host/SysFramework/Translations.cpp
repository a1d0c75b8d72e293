#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

namespace SysFramework {

namespace {

constexpr char resourceFolder[] = ":/translations";

void install(QLocale const& locale, QString const& name, QString const& folder) {
  auto* const translator = new QTranslator(QCoreApplication::instance());
  if (translator->load(locale, name, QStringLiteral("_"), folder))
    QCoreApplication::installTranslator(translator);
  else
    delete translator;
}

}  // namespace

void installTranslations(QLocale const& locale) {
  // There is no file for English, so that Qt would go on to the second language of a person whose first one it is.
  QString const first = locale.uiLanguages().value(0);
  if (QLocale(first).language() == QLocale::English) return;

  install(locale, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
  QStringList names;
  for (QString const& file : QDir(QLatin1String(resourceFolder)).entryList({QStringLiteral("*.qm")}))
    names << file.section(QLatin1Char('_'), 0, 0);
  names.removeDuplicates();
  for (QString const& name : qAsConst(names)) install(locale, name, QLatin1String(resourceFolder));
}

}  // namespace SysFramework
