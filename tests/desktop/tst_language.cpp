#include "Files.h"
#include "Widgets.h"

#include "host/SysFramework/Translations.h"
#include "host/desktop/CommandCatalogue.h"
#include "host/desktop/Language.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/Session.h"

#include <QTranslator>

class LanguageTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
  }

  void theOptionIsTakenOut_data() {
    Rows<QString, QString, QString> row;
    row("before the subcommand", "--language de info a.kdx", "de", "info a.kdx");
    row("after the operands", "info a.kdx --language=zh_CN", "zh_CN", "info a.kdx");
    row("the last of two counts", "--language de a.kdx --language en", "en", "a.kdx");
    row("without its value it is there all the same", "a.kdx --language", "", "a.kdx");
    row("behind two dashes are operands", "info -- --language de", QString(), "info -- --language de");
  }
  void theOptionIsTakenOut() {
    auto const [line, language, left] = fetched<QString, QString, QString>();
    QStringList arguments = line.split(' ');
    auto const taken = takeLanguage(arguments);
    QCOMPARE(taken.has_value(), !language.isNull());
    QCOMPARE(taken.value_or(QString()), language);
    QCOMPARE(arguments.join(' '), left);
  }

  void aLanguageHasEveryTextOfTheCommands() {
    for (QString const& language : SysFramework::languagesOfTexts()) {
      QTranslator texts;
      if (language == "en") continue;
      QVERIFY(texts.load(":/translations/plotvane-host_" + language + ".qm"));
      for (CommandEntry const& entry : commandCatalogue() + hostCatalogue()) {
        QStringList menus = entry.menu.split('/');
        menus.first().prepend('&');
        for (QString const& text : menus + QStringList{entry.caption, entry.toolTip, entry.needs, entry.toolbar})
          QVERIFY2(text.isEmpty() || !texts.translate("Commands", text.toUtf8().constData()).isEmpty(),
                   qPrintable(language + ": " + text));
      }
    }
  }

  // The plug-in's texts come with its library, which is loaded after the language was chosen.
  void theWindowSpeaksGerman() {
    installLanguage(QStringLiteral("de-AT"));
    MainWindow window;
    QStringList menus;
    for (QAction const* menu : window.menuBar()->actions()) menus << menu->text();
    QCOMPARE(menus, QStringList({"&Datei", "&Bearbeiten", "An&sicht", "&Einfügen", "&Anordnen", "E&bene", "&Hilfe"}));
    QVERIFY(window.open(sampleIn(folder_.path(), "world.kdx")));
    window.actions().find("Host_SelectAll")->trigger();
    window.actions().find("Plotvane_LeftAlignment")->trigger();
    QCOMPARE(window.actions().find("Host_Undo")->text(),
             QString("Rückgängig: Ausgewählte Elemente linksbündig ausrichten"));
  }

private:
  QTemporaryDir folder_;
};

QTEST_MAIN(LanguageTest)
#include "tst_language.moc"
