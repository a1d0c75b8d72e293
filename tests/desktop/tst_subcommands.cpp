#include "desktop/Executable.h"

#include <QJsonArray>
#include <QSet>

class SubcommandsTest : public QObject {
  Q_OBJECT

private slots:
  void answersHelp_data();
  void answersHelp();
  void aDocumentThatIsNotThereIsNamed();
  void refusesWrongArguments_data();
  void refusesWrongArguments();
  void withoutADisplayTheWindowSaysWhatWorks_data();
  void withoutADisplayTheWindowSaysWhatWorks();
  void reportsAnUnwritableOutput();
  void commandsAreListedOnceEach();
  void theReferenceIsAsPrinted();
  void aPluginThatDoesNotLoadIsNamed_data();
  void aPluginThatDoesNotLoadIsNamed();
  void infoTellsWhatIsOnThePage();
  void infoFindsADocumentWithAnUmlautInAnyLocale();
  void textsAreInTheLanguageAskedFor_data();
  void textsAreInTheLanguageAskedFor();

private:
  DocumentFolder folder_;
};

void SubcommandsTest::answersHelp_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<QString>("expected");
  QTest::newRow("the program lists its subcommands") << QStringList{"--help"} << "  export";
  QTest::newRow("the program knows its version") << QStringList{"--version"} << "plotvane 0.";
  QTest::newRow("export shows its operands")
      << QStringList{"export", "--help"} << "Usage: plotvane export [options] DOCUMENT IMAGE\n";
  QTest::newRow("info shows its option") << QStringList{"info", "--help"} << "--json";
  QTest::newRow("commands shows its option") << QStringList{"commands", "--help"} << "--json";
}

void SubcommandsTest::answersHelp() {
  QFETCH(QStringList, arguments);
  QFETCH(QString, expected);
  Outcome const outcome = run(arguments, folder_.path());
  QCOMPARE(outcome.status, 0);
  QVERIFY2(outcome.out.contains(expected), qPrintable(outcome.out));
  QCOMPARE(outcome.err, QString());
}

void SubcommandsTest::aDocumentThatIsNotThereIsNamed() {
  Outcome const outcome = run({"none.kdx"}, folder_.path());
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.err.contains("none.kdx: there is no such document"), qPrintable(outcome.err));
}

void SubcommandsTest::refusesWrongArguments_data() {
  QTest::addColumn<QString>("arguments");
  QTest::addColumn<QString>("complaint");
  auto const row = [](char const* claim, char const* arguments, char const* complaint) {
    QTest::newRow(claim) << QString(arguments) << QString(complaint);
  };
  row("two documents", "page.kdx page.kdx", "\"page.kdx\" is neither");
  row("a misspelt subcommand is named", "exprot page.kdx a.png", "\"exprot\" is neither");
  row("an unknown option of the program", "--frobnicate", "--frobnicate");
  row("export without an image", "export page.kdx", "IMAGE is missing");
  row("export without anything", "export", "DOCUMENT is missing");
  row("export with a third operand", "export page.kdx a.png b.png", "\"b.png\" is one argument too many");
  row("export with an unknown option", "export page.kdx a.png --fast", "fast");
  row("a DPI of 0", "export page.kdx a.png --dpi 0", "whole number from 1 to 100000, not \"0\"");
  row("a negative DPI", "export page.kdx a.png --dpi -1", "not \"-1\"");
  row("a DPI beyond the most", "export page.kdx a.png --dpi 100001", "not \"100001\"");
  row("a DPI beyond int", "export page.kdx a.png --dpi 4294967396", "not \"4294967396\"");
  row("a DPI that is no number", "export page.kdx a.png --dpi high", "not \"high\"");
  row("a DPI with a fraction", "export page.kdx a.png --dpi 96.5", "not \"96.5\"");
  row("an option without its value", "export page.kdx a.png --dpi", "dpi");
  row("info without a document", "info", "DOCUMENT is missing");
  row("commands with an operand", "commands page.kdx", "one argument too many");
  row("a language that there is none of", "info page.kdx --language fr",
      "\"fr\" is none of the languages: de, en, zh_CN.");
  row("a language for the window", "--language klingon page.kdx", "\"klingon\" is none of");
  row("no language after the option", "info page.kdx --language", "--language: \"\" is none of");
}

void SubcommandsTest::refusesWrongArguments() {
  QFETCH(QString, arguments);
  QFETCH(QString, complaint);
  auto const before = contents(folder_.path());
  Outcome const outcome = run(arguments.split(' ', Qt::SkipEmptyParts), folder_.path());
  QCOMPARE(outcome.status, 2);
  QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
  QCOMPARE(outcome.out, QString());
  QVERIFY(contents(folder_.path()) == before);
}

void SubcommandsTest::withoutADisplayTheWindowSaysWhatWorks_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<bool>("namesADisplay");
  QTest::newRow("no display at all") << QStringList{} << false;
  QTest::newRow("no display for a document") << QStringList{"page.kdx"} << false;
  QTest::newRow("a display that does not answer") << QStringList{"page.kdx"} << true;
}

void SubcommandsTest::withoutADisplayTheWindowSaysWhatWorks() {
  QFETCH(QStringList, arguments);
  QFETCH(bool, namesADisplay);
  QProcess process;
  prepare(process, arguments, folder_.path());
  auto environment = process.processEnvironment();
  for (char const* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (!namesADisplay) environment.remove(variable);
  process.setProcessEnvironment(environment);
  process.start();
  Outcome const outcome = finish(process);
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.err.contains("plotvane export DOCUMENT IMAGE"), qPrintable(outcome.err));
}

void SubcommandsTest::reportsAnUnwritableOutput() {
  QProcess process;
  prepare(process, {"commands"}, folder_.path());
  process.setStandardOutputFile("/dev/full");
  process.start();
  Outcome const outcome = finish(process);
  QCOMPARE(outcome.status, 1);
  QVERIFY(outcome.err.contains("standard output"));
}

void SubcommandsTest::commandsAreListedOnceEach() {
  Outcome const outcome = run({"commands", "--json"}, folder_.path());
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.err, QString());  // a cursor that the plug-in misses is told there
  QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
  QCOMPARE(report["plugin"].toObject()["state"].toString(), QString("loaded"));
  QSet<QString> identifiers;
  QSet<QString> shortcuts;
  QStringList tools;
  int withShortcut = 0;
  for (QJsonValue const& value : report["commands"].toArray()) {
    QJsonObject const command = value.toObject();
    identifiers.insert(command["identifier"].toString());
    if (command["built"].toBool() && command["tool"].toBool()) tools.append(command["identifier"].toString());
    for (char const* key : {"caption", "toolTip", "menu", "needs"})
      QVERIFY2(!command[key].toString().isEmpty(), qPrintable(command["identifier"].toString() + key));
    if (command["shortcut"].toString().isEmpty()) continue;
    ++withShortcut;
    shortcuts.insert(command["shortcut"].toString());
  }
  QCOMPARE(identifiers.size(), 38);
  QCOMPARE(report["commands"].toArray().size(), 38);
  QCOMPARE(shortcuts.size(), withShortcut);
  QCOMPARE(tools, QStringList({"Plotvane_ZoomIn", "Plotvane_ZoomOut", "Plotvane_Pan"}));
}

void SubcommandsTest::theReferenceIsAsPrinted() {
  QFile reference(QStringLiteral(PLOTVANE_SOURCE_DIR "/docs/commands.md"));
  QVERIFY(reference.open(QIODevice::ReadOnly));
  QCOMPARE(run({"commands", "--markdown"}, folder_.path()).out, QString::fromUtf8(reference.readAll()));
}

void SubcommandsTest::aPluginThatDoesNotLoadIsNamed_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QString>("state");
  QTest::addColumn<QString>("complaint");
  write(folder_.path("text.so"), "not a library");
  QTest::newRow("a missing file") << folder_.path("none.so") << "missing"
                                  << "none.so";
  QTest::newRow("a file that is no library") << folder_.path("text.so") << "failed"
                                             << "text.so";
  QTest::newRow("a library without the entry") << QStringLiteral(PLOTVANE_BINARY_DIR "/lib/libSysUI.so") << "failed"
                                               << "GetPluginModule";
}

void SubcommandsTest::aPluginThatDoesNotLoadIsNamed() {
  QFETCH(QString, path);
  QFETCH(QString, state);
  QFETCH(QString, complaint);
  Outcome const outcome = run({"commands", "--json"}, folder_.path(), {{"PLOTVANE_PLUGIN", path}});
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
  QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
  QCOMPARE(report["plugin"].toObject()["state"].toString(), state);
  QCOMPARE(report["commands"].toArray().size(), 38);
}

void SubcommandsTest::infoTellsWhatIsOnThePage() {
  Outcome const outcome = run({"info", "page.kdx", "--json"}, folder_.path());
  QCOMPARE(outcome.status, 0);
  QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
  QJsonObject const page = report["page"].toObject();
  QCOMPARE(page["orientation"].toString(), QString("portrait"));
  QVERIFY(!page["form"].toString().isEmpty());
  QCOMPARE(page["width"].toDouble(), 8.0);
  QCOMPARE(page["height"].toDouble(), 6.0);

  QCOMPARE(report["elements"].toArray().size(), 1);
  QJsonObject const element = report["elements"].toArray().at(0).toObject();
  QVERIFY(element["handle"].toInt() > 0);
  QCOMPARE(element["name"].toString(), QString("World"));
  QCOMPARE(element["type"].toInt(), 11);
  QCOMPARE(element["envelope"].toArray(), QJsonArray({1, 1, 7, 5}));
  QCOMPARE(element["selected"].toBool(true), false);

  QCOMPARE(report["maps"].toArray().size(), 1);
  QJsonObject const map = report["maps"].toArray().at(0).toObject();
  QCOMPARE(map["name"].toString(), QString("Countries"));
  QVERIFY(map["scale"].isDouble());
  QCOMPARE(map["extent"].toArray().size(), 4);
  QVERIFY(map["layers"].isArray());
  QCOMPARE(report["view"].toObject()["extent"].toArray().size(), 4);
  QVERIFY(run({"info", "page.kdx"}, folder_.path()).out.contains("8 × 6 cm"));
}

void SubcommandsTest::infoFindsADocumentWithAnUmlautInAnyLocale() {
  QVERIFY(QFile::copy(folder_.path("page.kdx"), folder_.path("Übersicht.kdx")));
  Outcome const outcome = run({"info", "Übersicht.kdx"}, folder_.path(), {{"LC_ALL", "C"}});
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.err, QString());
}

void SubcommandsTest::textsAreInTheLanguageAskedFor_data() {
  QTest::addColumn<QString>("arguments");
  QTest::addColumn<QString>("session");
  QTest::addColumn<QString>("text");
  auto const row = [](char const* claim, char const* arguments, char const* session, char const* text) {
    QTest::newRow(claim) << QString(arguments) << QString(session) << QString(text);
  };
  row("the option before a subcommand", "--language de info page.kdx", "", "Elemente: 1");
  row("the option after it", "info page.kdx --language=zh_CN", "", "元素：1");
  row("the help of the program", "--help --language de", "", "öffnet das Fenster");
  row("the session's language", "info page.kdx", "de_DE.UTF-8", "Elemente: 1");
  row("a session in another encoding", "info page.kdx", "de_DE.ISO-8859-1", "Elemente: 1");
  row("the option against the session", "info page.kdx --language en", "de_DE.UTF-8", "Elements: 1");
  row("a session in a language that there is none of", "info page.kdx", "fr_FR.UTF-8", "Elements: 1");
  row("JSON is English", "info page.kdx --json", "de_DE.UTF-8", "\"kind\": \"data frame\"");
  row("the reference is English", "commands --markdown", "de_DE.UTF-8", "| Align Left |");
  row("a dialog is accepted in any language", "run page.kdx accept Plotvane_PageSetting info --language zh_CN", "",
      "{");
  row("a message box is answered in English", "run page.kdx Plotvane_Grid answer=button:Yes Plotvane_Grid info",
      "de_DE", "{");
}

void SubcommandsTest::textsAreInTheLanguageAskedFor() {
  QFETCH(QString, arguments);
  QFETCH(QString, session);
  QFETCH(QString, text);
  Outcome const outcome =
      run(arguments.split(' '), folder_.path(), {{"LC_ALL", session.isEmpty() ? "C.UTF-8" : session}});
  QCOMPARE(outcome.err, QString());
  QCOMPARE(outcome.status, 0);
  QVERIFY2(outcome.out.contains(text), qPrintable(outcome.out));
}

QTEST_GUILESS_MAIN(SubcommandsTest)
#include "tst_subcommands.moc"
