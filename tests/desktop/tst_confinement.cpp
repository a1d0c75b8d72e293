#include "desktop/Executable.h"

// What a document may open where it is confined to its folder.
class ConfinementTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QDir const root(folder_.path());
    QVERIFY(root.mkpath("inside/below") && root.mkpath("inside2") && root.mkpath("outside"));
    for (QString const place : {"inside/a", "inside/below/a", "inside2/a", "outside/a"}) {
      put(folder_.path(place + ".geojson"), R"({"type":"Point","coordinates":[0,0]})");
      put(folder_.path(place + ".csv"), "x,y,id\n1,2,3\n");
      QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(folder_.path(place + ".png")));
    }
    for (QString const name : {"file.geojson", "there.png"})
      QVERIFY(QFile::link("../outside/a." + name.section('.', 1), folder_.path("inside/" + name)));
    QVERIFY(QFile::link("../outside", folder_.path("inside/folder")));
    QVERIFY(QFile::link("below/a.geojson", folder_.path("inside/within.geojson")));
    QVERIFY(QFile::link("../outside/nothing", folder_.path("inside/nowhere.geojson")));
    put(folder_.path("inside/typed.csv"), "x,y,id\n1,2,3\n");
    put(folder_.path("outside/types"), "Real,Real,Integer");
    QVERIFY(QFile::link("../outside/types", folder_.path("inside/typed.csvt")));
  }

  void onlyTheFolderAndWhatIsAllowedIsRead_data() {
    QTest::addColumn<QString>("document");
    QTest::addColumn<QStringList>("allowed");
    QTest::addColumn<QString>("refused");
    QStringList const none;
    layer("a file beside the document", "a.geojson", none, "");
    layer("a file below", "below/a.geojson", none, "");
    layer("a file in a folder whose name only begins alike", "../inside2/a.geojson", none, "inside2/a.geojson");
    layer("a file outside", "../outside/a.geojson", none, "outside/a.geojson");
    layer("a whole path", folder_.path("outside/a.geojson"), none, "outside/a.geojson");
    layer("dots that come back", "below/../a.geojson", none, "");
    layer("a link that leads out", "file.geojson", none, "outside/a.geojson");
    layer("a folder that is a link", "folder/a.geojson", none, "outside/a.geojson");
    layer("a link that stays within", "within.geojson", none, "");
    layer("whether there is something is not told", "nowhere.geojson", none, "outside/nothing");
    layer("a companion that leads out", "typed.csv", none, "outside/types");
    layer("an allowed folder", "../outside/a.geojson", {"inside2", "outside"}, "");
    layer("a link into an allowed folder", "file.geojson", {"outside"}, "");
    row("a picture beside", {{"elements", QJsonArray{pictureOf("a.png")}}}, none, "");
    row("a picture outside", {{"elements", QJsonArray{pictureOf("../outside/a.png")}}}, none, "outside/a.png");
    row("a picture that is a link", {{"elements", QJsonArray{pictureOf("there.png")}}}, none, "outside/a.png");
    QJsonObject joined = sourceOf("a.csv");
    joined["joins"] = QJsonArray{QJsonObject{{"file", "../outside/a.csv"}, {"key", "id"}, {"tableKey", "id"}}};
    row("a table that is joined", {{"maps", QJsonArray{mapOf(joined)}}}, none, "outside/a.csv");
    row("the table of a series", {{"series", QJsonObject{{"source", sourceOf("../outside/a.csv")}}}}, none,
        "outside/a.csv");
  }

  void onlyTheFolderAndWhatIsAllowedIsRead() {
    QFETCH(QString, document);
    QFETCH(QStringList, allowed);
    QFETCH(QString, refused);
    QStringList options{"--confine"};
    for (QString const& folder : qAsConst(allowed)) options << "--allow" << folder_.path(folder);
    QString const image = contentOf(document).contains("\"series\"") ? "image-{page}.png" : "image.png";
    auto const outcome =
        run(QStringList{"export", document, folder_.path(image), "--dpi", "20"} + options, folder_.path());
    QVERIFY2(outcome.status == (refused.isEmpty() ? 0 : 1), qPrintable(outcome.err));
    if (!refused.isEmpty())
      QVERIFY2(outcome.err.contains(folder_.path(refused)) && outcome.err.contains("--allow"), qPrintable(outcome.err));
    auto const told = run({"info", "--json", document}, folder_.path());
    auto const files = QJsonDocument::fromJson(told.out.toUtf8())["files"].toArray();
    bool isOutside = false;
    for (QJsonValue const file : files) isOutside = isOutside || file["outside"].toBool();
    QVERIFY(!files.isEmpty());
    QCOMPARE(isOutside, !refused.isEmpty() || !allowed.isEmpty());
  }

  void whateverAPersonNamesIsConfinedToo_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("data of a new map") << QStringList{"new", "inside/b.kdx", "--data", "outside/a.geojson"};
    QTest::newRow("a template") << QStringList{"new",        "inside/b.kdx", "--data", "inside/a.geojson",
                                               "--template", "outside/t.kdx"};
    QTest::newRow("a layer of a step") << QStringList{"run", "inside/page.kdx", "add=layer:outside/a.geojson"};
    QTest::newRow("a picture of a step") << QStringList{"run", "inside/page.kdx", "add=picture:outside/a.png@1,1"};
    QTest::newRow("one that is embedded") << QStringList{"run", "inside/page.kdx", "add=embedded:outside/a.png@1,1"};
  }
  void whateverAPersonNamesIsConfinedToo() {
    QFETCH(QStringList, arguments);
    QVERIFY(QFile::exists(folder_.path("inside/page.kdx")) ||
            QFile::copy(folder_.path("page.kdx"), folder_.path("inside/page.kdx")));
    QFile::copy(folder_.path("page.kdx"), folder_.path("outside/t.kdx"));
    auto const outcome = run(arguments + QStringList{"--confine"}, folder_.path());
    QVERIFY2(outcome.status == 1 && outcome.err.contains("--allow"), qPrintable(outcome.err));
  }

private:
  void row(QString const& claim, QJsonObject const& values, QStringList const& allowed, QString const& refused) {
    QString const name = QString("inside/%1.kdx").arg(++documents_);
    folder_.writeVariant(name, values);
    QTest::newRow(qPrintable(claim)) << folder_.path(name) << allowed << refused;
  }
  void layer(QString const& claim, QString const& file, QStringList const& allowed, QString const& refused) {
    row(claim, {{"maps", QJsonArray{mapOf(sourceOf(file))}}}, allowed, refused);
  }
  static QJsonObject sourceOf(QString const& file) { return {{"file", file}}; }
  static QJsonObject mapOf(QJsonObject const& source) {
    QJsonObject layer =
        json("{'type':'feature','name':'A','renderer':{'type':'simple','symbol':{'type':'simpleMarker'}}}");
    layer["source"] = source;
    QJsonObject map = json("{'name':'M','bounds':[-10,-10,10,10]}");
    map["layers"] = QJsonArray{layer};
    return map;
  }
  static QJsonObject pictureOf(QString const& path) {
    return {{"type", "picture"}, {"path", path}, {"rectangle", QJsonArray{1, 1, 5, 5}}};
  }

  DocumentFolder folder_;
  int documents_ = 0;
};

QTEST_GUILESS_MAIN(ConfinementTest)
#include "tst_confinement.moc"
