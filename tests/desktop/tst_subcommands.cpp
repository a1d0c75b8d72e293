#include "desktop/Executable.h"

class SubcommandsTest : public QObject {
  Q_OBJECT

private slots:
  void answersHelp_data() {
    Rows<QStringList, QString> row;
    row("the program lists its subcommands", {"--help"}, "  export");
    row("the program knows its version", {"--version"}, "plotvane 0.");
    row("export shows its operands", {"export", "--help"}, "Usage: plotvane export [options] DOCUMENT IMAGE\n");
  }
  void answersHelp() {
    auto const [arguments, expected] = fetched<QStringList, QString>();
    Outcome const outcome = run(arguments, folder_.path());
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.out.contains(expected), qPrintable(outcome.out));
    QCOMPARE(outcome.err, QString());
  }

  void aDocumentThatIsNotThereIsNamed() {
    Outcome const outcome = run({"none.kdx"}, folder_.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("none.kdx: there is no such document"), qPrintable(outcome.err));
  }

  void refusesWrongArguments_data() {
    Rows<QString, QString> row;
    row("a misspelt subcommand is named", "exprot page.kdx a.png", "\"exprot\" is neither");
    row("an unknown option of the program", "--frobnicate", "--frobnicate");
    row("export without an image", "export page.kdx", "IMAGE is missing");
    row("export with a third operand", "export page.kdx a.png b.png", "\"b.png\" is one argument too many");
    row("export with an unknown option", "export page.kdx a.png --fast", "fast");
    row("a DPI of 0", "export page.kdx a.png --dpi 0", "whole number from 1 to 100000, not \"0\"");
    row("a DPI beyond the most", "export page.kdx a.png --dpi 100001", "not \"100001\"");
    row("a DPI beyond int", "export page.kdx a.png --dpi 4294967396", "not \"4294967396\"");
    row("a suffix that names no format", "export page.kdx a.gif", ".png, .jpg, .jpeg, .bmp, .tif, .tiff");
    row("two sizes", "export page.kdx a.png --dpi 30 --width 30", "either --dpi or --width");
    row("a JPEG without ground", "export page.kdx a.jpg --transparent", "can't be transparent");
    row("no way of packing", "export page.kdx a.tif --compress zip", "none, lzw, deflate, zstd");
    row("pixels of a PDF", "export page.kdx a.pdf --width 30", "--width is for images");
    row("too fine a PDF", "export page.kdx a.pdf --dpi 2401", "2400");
    row("a format that there is not", "export page.kdx a.png --format gif",
        "png, jpeg, bmp, tiff, webp, pdf, svg, not \"gif\"");
    row("texts of a kind that there is not", "export page.kdx a.svg --text curves", "not \"curves\"");
    row("commands with an operand", "commands page.kdx", "one argument too many");
    row("a format that there is not", "schema page.kdx", "document or style, not \"page.kdx\"");
    row("no such language", "info page.kdx --language fr", "\"fr\" is none of the languages: de, en, zh_CN.");
    row("a language that is left out", "info page.kdx --language",
        "its value is missing; it is one of: de, en, zh_CN.");
    row("a language for the window", "--language klingon page.kdx", "\"klingon\" is none of");
  }
  void refusesWrongArguments() {
    auto const [arguments, complaint] = fetched<QString, QString>();
    auto const before = contents(folder_.path());
    Outcome const outcome = run(arguments.split(' ', Qt::SkipEmptyParts), folder_.path());
    QCOMPARE(outcome.status, 2);
    QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString());
    QVERIFY(contents(folder_.path()) == before);
  }

  void withoutADisplayTheWindowSaysWhatWorks_data() {
    Rows<QStringList, Variables> row;
    Variables const none{{"DISPLAY", QString()}, {"WAYLAND_DISPLAY", QString()}, {"QT_QPA_PLATFORM", QString()}};
    row("no display at all", {}, none);
    row("a display that does not answer", {"page.kdx"}, {});
  }
  void withoutADisplayTheWindowSaysWhatWorks() {
    auto const [arguments, variables] = fetched<QStringList, Variables>();
    Outcome const outcome = run(arguments, folder_.path(), variables);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("plotvane export DOCUMENT IMAGE"), qPrintable(outcome.err));
  }

  void reportsAnUnwritableOutput() {
    QProcess process;
    prepare(process, {"commands"}, folder_.path());
    process.setStandardOutputFile("/dev/full");
    process.start();
    Outcome const outcome = finish(process);
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("standard output"));
  }

  void theReferenceIsAsPrinted() {
    Outcome const outcome = run({"commands", "--markdown"}, folder_.path());
    QCOMPARE(outcome.out, QString::fromUtf8(contentOf(PLOTVANE_SOURCE_DIR "/docs/commands.md")));
    QCOMPARE(outcome.err, QString());  // a cursor that the plug-in misses is told there
    QVERIFY(run({"commands", "--json"}, folder_.path()).out.contains("\"loaded\""));
  }

  void theTablesOfFieldsAreAsPrintedAndTheirLinksLeadToOne_data() {
    Rows<QString, int> row;
    row("documents", "document", 20);
    row("styles", "style", 3);
  }
  void theTablesOfFieldsAreAsPrintedAndTheirLinksLeadToOne() {
    auto const [format, fewest] = fetched<QString, int>();
    QString const mark = "<!-- plotvane reference ", folder = PLOTVANE_SOURCE_DIR "/docs/";
    QString const printed = run({"reference", format}, folder_.path()).out;
    QString const manual = QString::fromUtf8(contentOf(folder + format + "-format.md"));
    QStringList const parts = manual.split(mark).mid(1);
    QVERIFY(parts.size() >= fewest);
    for (QString const& part : parts) {
      QString const table = mark + part.section("<!-- end -->", 0, 0) + "<!-- end -->";
      QVERIFY2(printed.contains(table), qPrintable("scripts/reference brings this up to date: " + table));
    }
    auto links = QRegularExpression("\\]\\(([a-z-]+\\.md)?#([a-z-]+)\\)").globalMatch(manual);
    while (links.hasNext()) {
      auto const link = links.next();
      QString const target = link.captured(1).isEmpty() ? manual : contentOf(folder + link.captured(1));
      QString const heading = "\n#+ " + link.captured(2).replace('-', "[ -]") + "\n";
      QVERIFY2(target.contains(QRegularExpression(heading, QRegularExpression::CaseInsensitiveOption)),
               qPrintable(link.captured()));
    }
  }

  void aPluginThatDoesNotLoadIsNamed_data() {
    Rows<QString, QString, QString> row;
    put(folder_.path("text.so"), "not a library");
    row("a missing file", folder_.path("none.so"), "missing", "none.so");
    row("a file that is no library", folder_.path("text.so"), "failed", "text.so");
    row("a library without entry", QStringLiteral(PLOTVANE_BINARY_DIR "/lib/libSysUI.so"), "failed", "GetPluginModule");
  }
  void aPluginThatDoesNotLoadIsNamed() {
    auto const [path, state, complaint] = fetched<QString, QString, QString>();
    Outcome const outcome = run({"commands", "--json"}, folder_.path(), {{"PLOTVANE_PLUGIN", path}});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
    QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    QCOMPARE(report["plugin"].toObject()["state"].toString(), state);
    QCOMPARE(report["commands"].toArray().size(), 38);
  }

  void infoTellsWhatIsOnThePage() {
    Outcome const outcome = run({"info", "page.kdx", "--json"}, folder_.path());
    QCOMPARE(outcome.status, 0);
    QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    QCOMPARE(report["page"].toObject(), json("{'form':'Custom','orientation':'portrait','width':8,'height':6}"));
    QJsonObject const frame = json(
        "{'handle':1,'name':'World','type':11,'kind':'data frame','envelope':[1,1,7,5],'selected':false,"
        "'locked':false,'hidden':false}");
    QCOMPARE(report["elements"].toArray(), QJsonArray{frame});
    QCOMPARE(report["maps"].toArray().at(0)["name"].toString(), QString("Countries"));
    QCOMPARE(report["view"].toObject()["extent"].toArray().size(), 4);
    QVERIFY(run({"info", "page.kdx"}, folder_.path()).out.contains("8 × 6 cm"));
  }

  // As plain shapes, whatever placed them. A letter of a text that bends touches the next one.
  void infoTellsWhereLabelsStand_data() {
    Rows<int> row;
    row("world.kdx", 250);
    row("aegean.kdx", 150);
  }
  void infoTellsWhereLabelsStand() {
    auto const [fewest] = fetched<int>();
    QString const document = QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/") + QTest::currentDataTag();
    Outcome const outcome = run({"info", document, "--json", "--labels"}, folder_.path());
    QCOMPARE(outcome.status, 0);
    QJsonObject const report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    QRectF frames;
    for (QJsonValue const& element : report["elements"].toArray()) {
      QJsonArray const box = element["envelope"].toArray();
      if (element["type"].toInt() == 11)
        frames |= QRectF(QPointF(box[0].toDouble(), box[1].toDouble()), QPointF(box[2].toDouble(), box[3].toDouble()));
    }
    int placed = 0;
    for (QJsonValue const& map : report["maps"].toArray()) {
      QVector<std::pair<int, QPolygonF>> shapes;
      QJsonArray const shown = map["labels"]["shown"].toArray();
      for (int label = 0; label < shown.size(); ++label) {
        QJsonArray const corners = shown[label]["corners"].toArray();
        QVERIFY(!shown[label]["text"].toString().isEmpty() && !corners.isEmpty() && corners.size() % 4 == 0);
        for (int i = 0; i < corners.size(); i += 4) {
          QPolygonF shape;
          for (int j = i; j < i + 4; ++j) shape << QPointF(corners[j][0].toDouble(), corners[j][1].toDouble());
          QVERIFY(frames.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(shape.boundingRect()));
          for (auto const& [other, before] : shapes) {
            QRectF const common = other == label ? QRectF() : before.intersected(shape).boundingRect();
            QVERIFY2(std::min(common.width(), common.height()) < 1e-3, qPrintable(shown[label]["text"].toString()));
          }
          shapes.append({label, shape});
        }
      }
      QCOMPARE(shown.size(), map["labels"]["placed"].toInt());
      placed += shown.size();
    }
    QVERIFY2(placed >= fewest, qPrintable(QString::number(placed)));
  }

  void exportTellsOfFontsThatAreMissing() {
    auto const text = [](char const* words, char const* family) {
      return QJsonObject{{"type", "text"},
                         {"text", words},
                         {"position", QJsonArray{1, 3}},
                         {"symbol", QJsonObject{{"type", "text"}, {"family", family}}}};
    };
    auto const told = [&](QJsonArray const& texts) {
      folder_.writeVariant("fonts.kdx", {{"elements", texts}, {"maps", QJsonArray()}});
      Outcome const outcome = run({"export", "fonts.kdx", "fonts.png", "--dpi", "30", "--quiet"}, folder_.path());
      return outcome.status == 0 ? outcome.err : QStringLiteral("failed");
    };
    QCOMPARE(told({text("Zürich", "Lato"), text("Ελλάδα", "sans")}), QString());
    QString const both = told({text("Zürich", "Nowhere"), text("Zug", "Nowhere"), text("a 𓀀 b", "Lato")});
    QCOMPARE(both.count('\n'), 2);
    QVERIFY2(both.contains("The font Nowhere is not installed") && both.contains(": 𓀀"), qPrintable(both));
  }

  void infoFindsADocumentWithAnUmlautInAnyLocale() {
    QVERIFY(QFile::copy(folder_.path("page.kdx"), folder_.path("Übersicht.kdx")));
    Outcome const outcome = run({"info", "Übersicht.kdx"}, folder_.path(), {{"LC_ALL", "C"}});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err, QString());
  }

  void infoTellsWhyADocumentOfAnyNameCanNotBeOpened() {
    auto const complaint = [this](QString const& name, QByteArray const& content) {
      put(folder_.path(name), content);
      return run({"info", name}, folder_.path()).err;
    };
    QByteArray const whole = contentOf(folder_.path("page.kdx"));
    QVERIFY(complaint("page.bak", whole.left(whole.size() / 2)).contains("this is not JSON"));
    QVERIFY(complaint("notes.txt", "Buy bread.\n").contains("neither a map document"));
  }

  void textsAreInTheLanguageAskedFor_data() {
    Rows<QString, QString, QString> row;
    row("the option", "info page.kdx --language=zh_CN", "", "元素：1");
    row("the help of the program", "--help --language de", "", "öffnet das Fenster");
    row("the session's language", "info page.kdx", "de_DE.UTF-8", "Elemente: 1");
    row("the option against the session", "info page.kdx --language en", "de_DE.UTF-8", "Elements: 1");
    row("a session in a language that there is none of", "info page.kdx", "fr_FR.UTF-8", "Elements: 1");
    row("JSON is English", "info page.kdx --json", "de_DE.UTF-8", "\"kind\": \"data frame\"");
    row("the reference is English", "commands --markdown", "de_DE.UTF-8", "| Align Left |");
    row("a dialog is accepted", "run page.kdx accept Plotvane_PageSetting info --language zh_CN", "", "{");
    row("a box is answered", "run page.kdx Plotvane_Grid answer=button:Yes Plotvane_Grid info", "de_DE", "{");
  }
  void textsAreInTheLanguageAskedFor() {
    auto const [arguments, session, text] = fetched<QString, QString, QString>();
    Outcome const outcome =
        run(arguments.split(' '), folder_.path(), {{"LC_ALL", session.isEmpty() ? "C.UTF-8" : session}});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.out.contains(text), qPrintable(outcome.out));
  }

private:
  DocumentFolder folder_;
};

QTEST_GUILESS_MAIN(SubcommandsTest)
#include "tst_subcommands.moc"
