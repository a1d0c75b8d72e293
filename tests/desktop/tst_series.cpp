#include "desktop/Executable.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysCarto/layers/indexed/SourceIndexes.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/MapSteps.h"
#include "host/desktop/series/FileNames.h"
#include "host/desktop/series/NameOrder.h"
#include "host/desktop/series/PageRanges.h"
#include "host/desktop/series/SeriesDialog.h"
#include "host/desktop/series/SeriesExport.h"

#include <QUndoStack>

using SysCarto::MapDocumentHost;

namespace {

// Nine sheets of 200 × 100 km, from “a1” in the southwest to “c3” in the northeast, in the order of their numbers from
// the north. A tenth feature has no place.
QByteArray sheets() {
  QJsonArray features;
  auto const add = [&](QString const& name, int number, QJsonValue const& geometry) {
    features << QJsonObject{{"type", "Feature"},
                            {"properties", QJsonObject{{"name", name}, {"number", number}, {"turn", 30}}},
                            {"geometry", geometry}};
  };
  for (int row = 0; row < 3; ++row)
    for (int column = 0; column < 3; ++column) {
      double const x = column * 2e5, y = row * 1e5;
      QJsonArray ring;
      for (QPointF const& corner :
           {QPointF(x, y), QPointF(x + 2e5, y), QPointF(x + 2e5, y + 1e5), QPointF(x, y + 1e5), QPointF(x, y)})
        ring << QJsonArray{corner.x(), corner.y()};
      add(QString(QChar('a' + column)) + QString::number(row + 1), (2 - row) * 3 + column + 1,
          QJsonObject{{"type", "Polygon"}, {"coordinates", QJsonArray{QJsonValue(ring)}}});
    }
  add("nowhere", 10, QJsonValue());
  return QJsonDocument(QJsonObject{{"type", "FeatureCollection"}, {"features", features}}).toJson();
}

QString const noList = "no list";

}  // namespace

class SeriesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    put(path("sheets.geojson"), sheets());
    write("book.kdx", {});
  }

  // The frame is 6 × 4 cm, a sheet 2 : 1.
  void aPageIsShownAndNothingOfItIsStored() {
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(path("book.kdx")));
    auto& document = page.bench.session().document();
    auto& series = page.bench.series();
    QByteArray const before = MapDocumentHost::text(document);
    auto const map = document.GetMap(0);
    QRectF const stored = shown(*map);
    QCOMPARE(series.show(QString("b2")), QString());
    QCOMPARE(series.pages()->shown(), 5);
    QCOMPARE(shown(*map), QRectF(1.8e5, 0.7e5, 2.4e5, 1.6e5));  // with a tenth at its sides
    QCOMPARE(text(page), QString("5/10 b2 number 5 b3 2 c2 [neighbour:up] [field:none]"));
    QCOMPARE(visible(page), QStringList({"Text", "odd", "few", "number"}));
    QCOMPARE(series.show(QString("next")), QString());
    QCOMPARE(visible(page), QStringList({"Text", "few"}));
    QCOMPARE(series.show(QString("a3")), QString());
    QCOMPARE(text(page), QString("1/10 a3 number 1   b3 [neighbour:up] [field:none]"));

    QCOMPARE(MapDocumentHost::text(document), before);
    QVERIFY(!page.bench.session().isModified());
    QCOMPARE(MapDocumentHost::history(document)->count(), 0);
    QVERIFY(series.show(QString("nowhere")).contains("has no place"));
    QCOMPARE(shown(*map), stored);
    QVERIFY(series.show(QString("d4")).contains("from “a3” to “nowhere”"));
    QCOMPARE(series.show(QString("none")), QString());
    QCOMPARE(shown(*map), stored);
    QVERIFY(text(page).startsWith("1/1 [page:name]"));
    QCOMPARE(visible(page).size(), 5);
  }

  // The series follows its settings, and undo.
  void aChangeOfTheSeriesShowsThePageAnew() {
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(path("book.kdx")));
    auto& document = page.bench.session().document();
    auto& series = page.bench.series();
    QCOMPARE(series.show(QString("b2")), QString());
    auto const set = [&](QStringList const& field, QJsonValue const& value) {
      QStringList warnings;
      return SysCarto::Editable::set(
          document, {SysCarto::Editable::series(document)}, field, [&](QJsonValue const&) { return value; }, warnings);
    };
    auto const map = document.GetMap(0);
    QByteArray const before = MapDocumentHost::text(document);
    QCOMPARE(set({"margin"}, 50), QString());
    QCOMPARE(shown(*map).width(), 4e5);
    QCOMPARE(set({"scales"}, QJsonArray{1e6, 5e6, 8e6}), QString());
    QCOMPARE(map->GetDisplayTransformation()->GetMapScale(), 8e6);  // a frame of 6 cm for 400 km
    QCOMPARE(set({"scale"}, 1e6), QString());
    QCOMPARE(shown(*map).width(), 6e4);
    QCOMPARE(set({"rotation"}, "turn"), QString());
    QCOMPARE(map->GetRotation(), 30.0);
    // A map keeps the page when it is called otherwise, and leaves it when a person moves it.
    QRectF const turned = shown(*map);
    QStringList warnings;
    auto const rename = [](QJsonValue const&) { return QJsonValue("Other"); };
    QCOMPARE(SysCarto::Editable::set(document, {SysCarto::Editable::map(map)}, {"name"}, rename, warnings), QString());
    QCOMPARE(shown(*map), turned);
    QVERIFY(SysCarto::MapSteps::setExtent(*map, {0, 0, 600, 400}));
    QCOMPARE(shown(*map), QRectF(0, 0, 600, 400));
    QCOMPARE(map->GetRotation(), 0.0);
    QCOMPARE(series.pages()->shown(), 0);
    QCOMPARE(series.show(5), QString());
    QCOMPARE(set({"rotation"}, ""), QString());
    auto const turn = [](QJsonValue const&) { return QJsonValue(40); };
    QCOMPARE(SysCarto::Editable::set(document, {SysCarto::Editable::map(map)}, {"rotation"}, turn, warnings),
             QString());
    QCOMPARE(shown(*map).center(), turned.center());
    QCOMPARE(map->GetRotation(), 40.0);
    document.GetOperationStack()->Undo();
    QCOMPARE(shown(*map).center(), turned.center());
    QCOMPARE(map->GetRotation(), 0.0);
    QCOMPARE(series.pages()->shown(), 5);
    QCOMPARE(set({"filter"}, "number > 4"), QString());
    QCOMPARE(series.pages()->count(), 6);
    QCOMPARE(set({"filter"}, "number > "), QString());
    QVERIFY(!series.pages());
    QVERIFY(series.problem().contains("number > "));
    while (MapDocumentHost::history(document)->canUndo()) document.GetOperationStack()->Undo();
    QCOMPARE(MapDocumentHost::text(document), before);
    QCOMPARE(series.pages()->count(), 10);
  }

  void whatIsStoredDoesNotDependOnThePage() {
    auto const text = [&](QString const& page, QString const& field, QJsonValue const& value) {
      WorkbenchPage bench;
      bench.bench.session().open(path("book.kdx"));
      auto& document = bench.bench.session().document();
      bench.bench.series().show(page);
      QStringList warnings;
      SysCarto::Editable::set(
          document, {SysCarto::Editable::map(document.GetMap(0))}, {field}, [&](QJsonValue const&) { return value; },
          warnings);
      return MapDocumentHost::text(document);
    };
    for (auto const& [field, value] :
         {std::make_pair("name", QJsonValue("Other")), std::make_pair("rotation", QJsonValue(20)),
          std::make_pair("scale", QJsonValue(3e6))})
      QCOMPARE(text("b2", field, value), text("none", field, value));
  }

  void aLayerThatIsChosenNamesItsPages() {
    WorkbenchPage page;
    write("plain.kdx", QJsonObject{{"none", true}});
    QVERIFY(page.bench.session().open(path("plain.kdx")));
    SeriesDialog dialog(page.bench.session(), page.bench.series(), nullptr);
    auto& model = dialog.findChild<SysAdapterUI::PropertySheet*>()->model();
    QVERIFY(model.take(model.indexOf({"layer"}), "Sheets", "Sheets"));
    QCOMPARE(page.bench.series().pages()->name(1), QString("a1"));
    auto* const history = MapDocumentHost::history(page.bench.session().document());
    QCOMPARE(history->count(), 1);
    history->undo();
    QVERIFY(!page.bench.series().pages());
  }

  // Those that the edge of the world cuts in two are not shown from one to the other.
  void everyCountryOfTheSampleHasAPage() {
    QTemporaryDir folder;
    QString const atlas = sampleIn(folder.path(), "atlas.kdx");
    WorkbenchPage page;
    QVERIFY(page.bench.session().open(atlas));
    auto& document = page.bench.session().document();
    QCOMPARE(document.GetWarnings(), QStringList());
    QCOMPARE(MapDocumentHost::text(document), contentOf(atlas));
    auto const map = document.GetMap(0);
    auto& series = page.bench.series();
    QCOMPARE(series.pages()->count(), 240);
    constexpr double round = 2 * M_PI * 6378137;
    for (int number = 1; number <= series.pages()->count(); ++number) {
      QCOMPARE(series.show(number), QString());
      QRectF const area = shown(*map);
      QString const name = series.pages()->name(number);
      bool const isWide = QStringList{"Russia", "Canada", "United States of America", "Greenland"}.contains(name);
      QVERIFY2(area.width() < round * (isWide ? 0.9 : 0.4), qPrintable(name));
      QVERIFY2(std::abs(area.center().x()) < round / 2, qPrintable(name));
    }
  }

  void namesComeInOneOrderEverywhere() {
    QStringList const inOrder{"Åland", "Aland B", "ban", "Bäst 2", "bast 10", "Östad", "Zeta", "Ægir"};
    QStringList names = inOrder;
    std::reverse(names.begin(), names.end());
    std::sort(names.begin(), names.end(), [](QString const& a, QString const& b) { return compareNames(a, b) < 0; });
    QCOMPARE(names, inOrder);
    QVERIFY(compareNames("a", "å") < 0 && compareNames("01", "1") != 0);
  }

  void rangesAreReadAsTheyAreWritten_data() {
    Rows<QString, QString> row;
    row("numbers and ranges", "1-3, 7", "1 2 3 7");
    row("to the end", "8-", "8 9");
    row("words", "first,last", "1 9");
    row("even", "even", "2 4 6 8");
    row("turned round", "3-1", noList);
    row("a condition", "population > 3", noList);
    row("nothing", "", noList);
    row("nought", "0", noList);
  }
  void rangesAreReadAsTheyAreWritten() {
    auto const [text, expected] = fetched<QString, QString>();
    auto const ranges = PageRanges::of(text);
    QStringList pages;
    for (int page = 1; ranges && page <= 9; ++page)
      if (ranges->contains(page, 9)) pages << QString::number(page);
    QCOMPARE(ranges ? pages.join(' ') : noList, expected);
  }

  void eachPageIsInOnePart() {
    for (int parts : {1, 3, 4, 20}) {
      std::vector<int> all;
      for (int part = 1; part <= parts; ++part) {
        SeriesOptions options;
        options.pages = PageRanges::of("2-");
        options.part = part;
        options.parts = parts;
        for (int page : options.chosenOf(10)) all.push_back(page);
      }
      std::sort(all.begin(), all.end());
      QCOMPARE(all, (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
    }
  }

  void aNameIsOnePartOfAPath_data() {
    Rows<QString, QString> row;
    row("upwards", "../../etc/passwd", "__.._etc_passwd");
    row("only dots", "..", "_");
    row("hidden", ".name", "_name");
    row("other separators", "a\\b:c|d", "a_b_c_d");
    row("an option", "-rf", "_rf");
    row("control characters", QString("a\nb%1c").arg(QChar(0x202e)), "a_b_c");
    row("nothing", "  ", "_");
    row("dots and blanks at the end", "a. .", "a_");
    row("letters of all kinds", "Côte d’Ivoire 中", "Côte d’Ivoire 中");
  }
  void aNameIsOnePartOfAPath() {
    auto const [text, expected] = fetched<QString, QString>();
    QCOMPARE(FileNames::safe(text), expected);
  }

  void badRequestsWriteNothing_data() {
    Rows<QByteArray, QStringList, QString> row;
    row("two pages of one name", "{}", {"[field:turn].png"}, "Pages 1 and 2 would both be written to 30.png");
    row("names that differ in case", "{}", {"x[field:turn].PNG"}, "Pages 1 and 2");
    row("no such field", "{}", {"[field:nobody].png"}, "have no field “nobody”; they have: name, number, turn");
    row("nothing passes", "{'filter': 'number > 99'}", {"[page].png"}, "has no pages");
    row("no such layer", "{'layer': 'Roads'}", {"[page].png"}, "has no layer “Roads”");
    row("no such order", "{'sort': 'rank'}", {"[page].png"}, "have no field “rank”");
    row("one file for all", "{}", {"one.png", "--pages", "1-2"}, "would be the file of 2 pages");
    row("one file for parts", "{}", {"one.png", "--pages", "1-2", "--part", "1/2"}, "would be the file of 2 pages");
    row("the page without its feature", "{}", {"one.svg"}, "would be the file of 10 pages");
    row("what texts alone know", "{}", {"[page]-[date].png"}, "“[date]” stands for nothing in the name of a file");
    row("no such page", "{}", {"[page].png", "--pages", "44"}, "There is no such page");
    row("a folder that is not there", "{}", {"none/[page].png"}, "does not exist");
    row("a PDF in several processes", "{}", {"one.pdf", "--jobs", "2"}, "--jobs draws pages into files of their own");
    row("a part of nothing", "{}", {"[page].png", "--part", "4/3"}, "--part takes K/N");
    row("no series", "null", {"[page].png"}, "the document has no series");
    row("no series for its options", "null", {"one.png", "--resume"}, "the document has none");
  }
  void badRequestsWriteNothing() {
    auto const [series, arguments, expected] = fetched<QByteArray, QStringList, QString>();
    QTemporaryDir folder;
    write("bad.kdx", series == "null" ? QJsonObject{{"none", true}} : json(series));
    Outcome const outcome = run(QStringList{"export", path("bad.kdx")} + arguments, folder.path());
    QVERIFY2(outcome.err.contains(expected), qPrintable(outcome.err));
    QVERIFY(outcome.status != 0);
    QVERIFY(contents(folder.path()).isEmpty());
  }

  // A page that fails is told; what is whole is passed over, and what is not is written again, the same bytes.
  void pagesAreWrittenInPartsAndGoOnWhereTheyStopped() {
    QTemporaryDir whole, parts;
    Outcome const outcome =
        run({"export", "--jobs", "2", "--dpi", "20", "--", path("book.kdx"), "[page]-[field:name].png"}, whole.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("Page 10 “nowhere”: its feature has no place"), qPrintable(outcome.err));
    QCOMPARE(contents(whole.path()).size(), 9);
    QCOMPARE(exported(parts, {"--part", "2/2", "--pages", "1-9"}).err, QString());
    QCOMPARE(contents(parts.path()).size(), 4);
    QString const cut = parts.path() + "/04-a2.png";
    QByteArray const image = contentOf(cut);
    put(cut, image.left(image.size() / 2));
    Outcome const rest = exported(parts, {"--resume", "--pages", "1-9"});
    QCOMPARE(rest.status, 0);
    QVERIFY2(rest.err.contains("3 pages were whole already"), qPrintable(rest.err));
    for (QString const& name : QDir(whole.path()).entryList(QDir::Files))
      QCOMPARE(contentOf(parts.path() + '/' + name), contentOf(whole.path() + '/' + name));
    QCOMPARE(contents(parts.path()).size(), 9);
    put(path("book.kdx"), contentOf(path("book.kdx")));  // it counts as changed
    QVERIFY(!exported(parts, {"--resume", "--pages", "1"}).err.contains("whole already"));
  }

  void aLargeCoverageIsReadByPages_data() {
    Rows<QString> row;
    row("that a map has as a layer", "{}");
    row("that no map has", "{'layer': '', 'source': {'file': 'sheets.geojson', 'coordinateSystem': 'EPSG:3857'}}");
  }
  void aLargeCoverageIsReadByPages() {
    auto const [series] = fetched<QString>();
    write("large.kdx", json(series.toUtf8()));
    SysCarto::SourceIndexes::use(path("indexes"));
    auto const former = SysCarto::setWindowThreshold({0, 0});
    WorkbenchPage page;
    bool const isOpen = page.bench.session().open(path("large.kdx"));
    QString const problem = page.bench.series().show(QString("b2"));
    SysCarto::SourceIndexes::use({});
    SysCarto::setWindowThreshold(former);
    QVERIFY(isOpen);
    QCOMPARE(problem, QString());
    QCOMPARE(shown(*page.bench.session().document().GetMap(0)), QRectF(1.8e5, 0.7e5, 2.4e5, 1.6e5));
    QCOMPARE(text(page), QString("5/10 b2 number 5 b3 2 c2 [neighbour:up] [field:none]"));
  }

  void whereNoMapFollowsNoPlaceIsNeeded() {
    QTemporaryDir folder;
    write("cards.kdx", json("{'layer': '', 'source': {'file': 'sheets.geojson'}, 'map': -1}"));
    Outcome const outcome =
        run({"export", path("cards.kdx"), "[page].png", "--dpi", "10", "--pages", "9-10"}, folder.path());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(contents(folder.path()).size(), 2);
  }

  void aBookHasAPageAndABookmarkForEach() {
    QTemporaryDir folder;
    Outcome const outcome = run({"export", path("book.kdx"), "book.pdf", "--pages", "1-3,10"}, folder.path());
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.contains("1 of 4 pages were not written: 10."), qPrintable(outcome.err));
    QProcess poppler;
    poppler.start("pdftotext", {"-raw", folder.path() + "/book.pdf", "-"});
    QVERIFY(poppler.waitForFinished());
    QStringList const pages = QString::fromUtf8(poppler.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
    QCOMPARE(pages.size(), 3);
    QVERIFY2(pages[1].contains("2/10 b3"), qPrintable(pages[1]));
    Outcome const all = run({"run", path("book.kdx"), "export=all.pdf"}, folder.path());
    QVERIFY2(all.status == 1 && all.err.contains("Page 10 “nowhere”"), qPrintable(all.err));
    QCOMPARE(run({"run", path("book.kdx"), "page=2", "export=one.pdf"}, folder.path()).status, 0);
    Outcome const none = run({"export", path("book.kdx"), "none.pdf", "--pages", "10,10"}, folder.path());
    QVERIFY2(none.status == 1 && !QFile::exists(folder.path() + "/none.pdf"), qPrintable(none.err));
    for (auto const& [name, count] : {std::make_pair("all.pdf", 9), std::make_pair("one.pdf", 1)}) {
      poppler.start("pdfinfo", {folder.path() + '/' + name});
      QVERIFY(poppler.waitForFinished());
      QVERIFY(poppler.readAllStandardOutput().simplified().contains("Pages: " + QByteArray::number(count) + ' '));
    }
    poppler.start("pdftohtml", {"-xml", "-i", "-stdout", folder.path() + "/book.pdf"});
    QVERIFY(poppler.waitForFinished());
    QVERIFY(poppler.readAllStandardOutput().contains("<item page=\"2\">b3</item>"));
  }

private:
  static QRectF shown(SysCarto::Map const& map) {
    auto const extent = map.GetExtent();
    return {extent->GetXMin(), extent->GetYMin(), extent->GetWidth(), extent->GetHeight()};
  }

  static QString text(WorkbenchPage& page) {
    for (auto const& element : page.container().GetElements())
      if (auto const text = ptr_cast<SysCarto::TextElement>(element); text && element->GetName() == "Text")
        return text->shown();
    return QString();
  }

  static QStringList visible(WorkbenchPage& page) {
    QStringList names;
    for (auto const& element : page.container().GetElements())
      if (element->IsVisible() && !element->GetName().isEmpty()) names << element->GetName();
    return names;
  }

  Outcome exported(QTemporaryDir const& folder, QStringList const& more) const {
    return run(QStringList{"export", path("book.kdx"), "[page]-[field:name].png", "--dpi", "20"} + more, folder.path());
  }

  // A page with one map, and a series with other values at its top; without one for “none”.
  void write(QString const& name, QJsonObject const& values) const {
    QJsonObject document = json(
        "{'format': 'plotvane-document', 'version': 1, 'page': {'form': 'Custom', 'width': 8, 'height': 6},"
        " 'maps': [{'name': 'Sheets', 'bounds': [0, 0, 600000, 400000], 'layers': [{'type': 'feature', 'name': "
        "'Sheets',"
        "  'source': {'file': 'sheets.geojson', 'coordinateSystem': 'EPSG:3857'}, 'renderer': {'type': 'simple',"
        "  'symbol': {'type': 'simpleFill', 'color': '#ddeecc'}}}]}],"
        " 'elements': [{'type': 'dataFrame', 'map': 0, 'rectangle': [1, 1, 7, 5]},"
        "  {'type': 'text', 'name': 'Text', 'position': [4, 5.5], 'symbol': {'type': 'text', 'size': 4}, 'text': "
        "   '[page]/[pages] [page:name] number [field:number] [neighbour:north] [neighbourpage:north] [neighbour:east]"
        " [neighbour:up] [field:none]'},"
        "  {'type': 'rectangle', 'name': 'odd', 'rectangle': [0, 0, 1, 1], 'pages': 'odd'},"
        "  {'type': 'rectangle', 'name': 'few', 'rectangle': [0, 0, 1, 1], 'pages': '2-3,5-6'},"
        "  {'type': 'rectangle', 'name': 'last', 'rectangle': [0, 0, 1, 1], 'pages': 'last'},"
        "  {'type': 'rectangle', 'name': 'number', 'rectangle': [0, 0, 1, 1], 'pages': \"number = 5\"}]}");
    QJsonObject series{{"layer", "Sheets"}, {"sort", "number"}, {"name", "[field:name]"}};
    for (auto it = values.begin(); it != values.end(); ++it) series[it.key()] = it.value();
    if (!values.contains("none")) document["series"] = series;
    put(path(name), QJsonDocument(document).toJson());
  }

  QString path(QString const& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
};

QTEST_MAIN(SeriesTest)
#include "tst_series.moc"
