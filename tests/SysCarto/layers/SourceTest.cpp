#include "LayerFixture.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/LocalDataset.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <gdal_priv.h>
#include <ogr_feature.h>
#include <ogrsf_frmts.h>

using namespace SysCarto;

class SourceTest : public QObject {
  Q_OBJECT

private slots:
  void whatIsNotAPlainDataFileIsRefused_data() {
    Rows<QString, QByteArray, QString, QString> row;
    QByteArray const none;
    row("the network by its file system", "/vsicurl/http://127.0.0.1:1/a.gpkg", none, "", "virtual");
    row("any virtual file system", "/vsizip/a.zip/a.geojson", none, "", "virtual");
    row("an address", "http://127.0.0.1:1/a.geojson", none, "", "addresses");
    row("a database", "PG:dbname=a", none, "", "prefix");
    row("a driver's prefix before a file", "GPKG:/tmp/a.gpkg", none, "", "prefix");
    row("data in place of a path", R"({"type":"Point","coordinates":[0,0]})", none, "", "not a path");
    row("nothing", "", none, "", "no file");
    row("a file that is not there", "missing.gpkg", none, "", "does not exist");
    row("a folder", ".", none, "", "not a file");
    QByteArray const vrt = "<OGRVRTDataSource><OGRVRTLayer name='cities'><SrcDataSource>" +
                           sample("world.gpkg").toUtf8() + "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>";
    row("a format that names further files", "a.vrt", vrt, "", "GeoPackage, GeoJSON");
    row("whatever the file's ending", "a.gpkg", vrt, "", "GeoPackage, GeoJSON");
    row("an empty file", "a.geojson", "\n", "", "GeoPackage, GeoJSON");
    row("a grid by a path, however it is written", "a.geojson",
        R"({"crs":{"type":"name","properties":{"name":"+proj=longlat +nadgr\u0069ds\u003d@null,\/tmp/a"}},)"
        R"("type":"Point","coordinates":[0,0]})",
        "", "by a path");
    row("a Shapefile without its index", "a.shp", "abc", "", "“a.shx”, is missing");
    row("a layer that the file does not have", "a.geojson", geoJson(R"({"type":"Point","coordinates":[0,0]})"),
        "rivers", "no layer “rivers”");
  }
  void whatIsNotAPlainDataFileIsRefused() {
    auto const [file, content, layer, says] = fetched<QString, QByteArray, QString, QString>();
    QTemporaryDir folder;
    if (!content.isEmpty()) written(folder, file, content);
    bool const isName = !content.isEmpty() || file == QLatin1String("missing.gpkg") || file == QLatin1String(".");
    GdalErrors const outside;
    auto const result = opened({isName ? folder.filePath(file) : file, layer, {}, {}}, "EPSG:4326");
    QVERIFY2(result.error.contains(says), qPrintable(result.error));
    QVERIFY(result.error.contains(file.left(20)) && result.error.endsWith('.'));
    QCOMPARE(result.features().size(), 0);
    QCOMPARE(outside.reason(), QString());
  }

  void openingLeavesNothingBehind() {
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("100% #1?%41");
    QString const inside = folder.filePath("100% #1?%41");
    QVERIFY(QFile::copy(sample("world.gpkg"), inside + "/world.gpkg"));
    QVERIFY(QFile::setPermissions(inside, QFile::ReadOwner | QFile::ExeOwner));
    auto const result = opened({inside + "/world.gpkg", "cities", {}, {}}, "EPSG:8857");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.features().size(), 521);
    QCOMPARE(QDir(inside).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"world.gpkg"});
    QVERIFY(QFile::setPermissions(inside, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }

  void aFilterSelectsOrSaysWhatIsWrong_data() {
    Rows<QString, bool, int, int> row;
    row("a number", "population > 10000000", true, 5, 60);
    row("two conditions", "capital = 1 AND country LIKE 'F%'", true, 1, 20);
    row("a field that is not there", "inhabitants > 5", false, 0, 0);
    row("no condition", "population >", false, 0, 0);
    row("a function of the database", "ogr_geocode(name) IS NOT NULL", false, 0, 0);
    row("a query in the condition", "name IN (SELECT name FROM cities)", false, 0, 0);
  }
  void aFilterSelectsOrSaysWhatIsWrong() {
    auto const [filter, isRight, fewest, most] = fetched<QString, bool, int, int>();
    auto const result = opened({sample("world.gpkg"), "cities", filter, {}}, "EPSG:8857");
    QVERIFY2(result.error.isEmpty() == isRight, qPrintable(result.error));
    QVERIFY(isRight || (result.error.contains(filter) && result.error.contains("cities")));
    QVERIFY2(result.features().size() >= fewest && result.features().size() <= most,
             qPrintable(QString::number(result.features().size())));

    SysCarto::VectorLayer later(SysCarto::makeSimpleRenderer(make<SysDisplay::SimpleFillSymbol>()));
    QStringList warnings;
    QCOMPARE(later.open(result.layer->source(), "EPSG:8857", warnings, {}, SysCarto::ReadDepth::Schema), result.error);
    QCOMPARE(later.features().size(), result.features().size());
  }

  void ofTheSchemaAloneNothingIsReadBeforeItIsAskedFor() {
    QTemporaryDir const folder;
    QString const file = written(folder, "a.geojson", geoJson(R"({"type":"Point","coordinates":[1,2]})"));
    SysCarto::VectorLayer layer(SysCarto::makeSimpleRenderer(make<SysDisplay::SimpleFillSymbol>()));
    QStringList warnings;
    QCOMPARE(layer.open({file, {}, {}, {}}, "EPSG:4326", warnings, {}, SysCarto::ReadDepth::Schema), QString());
    QVERIFY(QFile::remove(file));
    QCOMPARE(layer.problem(), QString());
    QCOMPARE(layer.features().size(), 0);
    QVERIFY2(layer.problem().contains("a.geojson"), qPrintable(layer.problem()));
  }

  void geometriesThatAreNoneArePassedOver_data() {
    Rows<QByteArray, int> row;
    row("no geometry", "null", 0);
    row("an empty point", R"({"type":"Point","coordinates":[]})", 0);
    row("a line of one place", R"({"type":"LineString","coordinates":[[1,1]]})", 0);
    row("a ring of two places", R"({"type":"Polygon","coordinates":[[[1,1],[2,2],[1,1]]]})", 0);
    row("an infinite place", R"({"type":"Point","coordinates":[1e999,0]})", 0);
    row("infinite vertices only leave a gap", R"({"type":"LineString","coordinates":[[1,1],[1e999,2],[3,3]]})", 1);
    row("a latitude that is none", R"({"type":"Point","coordinates":[10,95]})", 0);
    row("no longitude", R"({"type":"Polygon","coordinates":[[[1e300,1],[1e300,9],[-1e300,5],[1e300,1]]]})", -1);
    row("a ring that crosses itself", R"({"type":"Polygon","coordinates":[[[0,0],[9,9],[9,0],[0,9],[0,0]]]})", 1);
    row("a ring that is not closed", R"({"type":"Polygon","coordinates":[[[0,0],[9,9],[9,0]]]})", 1);
    row("a place with a height", R"({"type":"Point","coordinates":[1,2,3]})", 1);
    row("collections within collections",
        R"({"type":"GeometryCollection","geometries":[{"type":"GeometryCollection","geometries":[
            {"type":"MultiPoint","coordinates":[[1,1],[2,2]]},{"type":"LineString","coordinates":[[1,1],[2,2]]}]}]})",
        3);
    row("areas that lie over each other",
        R"({"type":"GeometryCollection","geometries":[
            {"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,9],[0,0]]]},
            {"type":"Polygon","coordinates":[[[5,5],[15,5],[15,15],[5,15],[5,5]]]}]})",
        1);
    row("areas over one that crosses itself",
        R"({"type":"GeometryCollection","geometries":[
            {"type":"Polygon","coordinates":[[[1,1],[15,15],[15,1],[1,15],[1,1]]]},
            {"type":"Polygon","coordinates":[[[2,2],[14,2],[14,14],[2,14],[2,2]]]}]})",
        1);
  }
  void geometriesThatAreNoneArePassedOver() {
    auto const [geometry, parts] = fetched<QByteArray, int>();
    for (char const* system : {"EPSG:8857", "EPSG:3857", "+proj=ortho +lat_0=10 +lon_0=5 +datum=WGS84", ""}) {
      auto const result = openedJson(geoJson(geometry), system);
      QCOMPARE(result.error, QString());
      if (parts >= 0 && *system) QCOMPARE(result.features().parts.size(), size_t(parts));
      for (SysCarto::Part const& part : result.features().parts)
        QVERIFY(std::all_of(part.xy, part.xy + 2 * part.count,
                            [](double coordinate) { return std::isfinite(coordinate); }));
      shown({-1e7, -1e7, 1e7, 1e7}, QSize(64, 64)).drawn([&](QPainter& painter, Transformation const& transformation) {
        result.layer->Draw(painter, transformation, 1, nullptr);
      });
    }
  }

  void whatIsNotSeenIsTold_data() {
    Rows<QByteArrayList, QString> row;
    auto const place = [](QByteArray const& xy) {
      return feature(R"({"type":"Point","coordinates":[)" + xy + "]}", "A");
    };
    row("nothing", {}, "There are no features");
    row("no geometries", {feature("null", "A"), feature("null", "B")}, "has a geometry");
    row("a place beyond a pole", {place("3,4"), place("10,95")}, "1 of 2 features lie");
    row("places for a fill", {place("3,4")}, "None of the symbols");
    row("a place beside areas for a fill",
        {place("3,4"), feature(R"({"type":"Polygon","coordinates":[[[0,0],[9,9],[9,0],[0,0]]]})", "B")},
        "1 of 2 features have parts");
    row("a line from a place to itself", {feature(R"({"type":"LineString","coordinates":[[3,4],[3,4]]})", "A")},
        "1 of 1 features are lines");
    row("places of which most are no degrees",
        {feature("null", "A"), place("0,0"), place("5e5,53e5"), place("4e5,53e5")}, "can't be degrees");
  }
  void whatIsNotSeenIsTold() {
    auto const [features, told] = fetched<QByteArrayList, QString>();
    auto const warnings = openedJson(collection(features), "EPSG:3857", make<SysDisplay::SimpleFillSymbol>()).warnings;
    QVERIFY2(warnings.value(0).contains(told), qPrintable(warnings.join('|')));
  }

  void rowsOfATableThatCanNotBePlacedAreTold() {
    QTemporaryDir const folder;
    auto const result = opened({written(folder, "a.csv", "lon,lat\n1,2\nn/a,4\n5,6\n,\n"), {}, {}, {}}, "EPSG:4326");
    QCOMPARE(result.features().size(), 2);
    QCOMPARE(result.warnings.size(), 1);
    QVERIFY2(result.warnings[0].contains("“n/a, 4”") && result.warnings[0].contains(": 1 in all"),
             qPrintable(result.warnings[0]));
  }

  void coordinatesThatCanNotBeDegreesAreTheMaps() {
    QByteArray const json = geoJson(R"({"type":"Point","coordinates":[500000,5300000]})");
    auto const result = openedJson(json, "EPSG:32633");
    QVERIFY2(result.warnings.value(0).contains("can't be degrees"), qPrintable(result.warnings.join('|')));
    QCOMPARE(result.features().box().xmin, 500000.0);
    QCOMPARE(result.features().box().ymax, 5300000.0);
    QCOMPARE(openedJson(json, "EPSG:32633", {}, {}, "EPSG:32632").warnings, QStringList());
    for (auto const& [system, told] :
         QVector<QPair<QByteArray, QString>>{{"EPSG:32633", "look like degrees"}, {"EPSG:1", "is not known"}}) {
      QByteArray named = geoJson(R"({"type":"Point","coordinates":[13,52]})");
      named.insert(1, R"("crs":{"type":"name","properties":{"name":")" + system + R"("}},)");
      QStringList const warnings = openedJson(named, "EPSG:3857").warnings;
      QVERIFY2(warnings.value(0).contains(told), qPrintable(warnings.join('|')));
    }
  }

  void aFilterPassesOverWhatHasNoDate() {
    auto const dated = [](QByteArray const& date) {
      return R"({"type":"Feature","properties":{"at":)" + date +
             R"(},"geometry":{"type":"Point","coordinates":[1,2]}})";
    };
    QTemporaryDir const folder;
    QString const file =
        written(folder, "a.geojson", collection({dated("\"2020-01-01\""), dated("null"), dated("\"2022-01-01\"")}));
    for (auto const& [filter, count] : QVector<QPair<QString, int>>{{"at > '2021-01-01'", 1},
                                                                    {"at IS NULL", 1},
                                                                    {"at IS NULL OR at > '2021/01/01'", 2},
                                                                    {"at IS NULL AND NOT (at > '2021/01/01')", 0},
                                                                    {"at <> '2020-01-01'", 1},
                                                                    {"at = NULL", 0},
                                                                    {"NOT (at > '2021/01/01')", 1}}) {
      auto const result = opened({file, {}, filter, {}}, "EPSG:4326");
      QCOMPARE(result.error, QString());
      QCOMPARE(result.features().size(), count);
    }
  }

  // A column of a GeoPackage may hold values of any kind, and OGR makes something of each.
  void aGeoPackageLeavesOutOnlyWhatAConditionDoesNotAdmit() {
    QTemporaryDir const folder;
    GDALAllRegister();
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    std::unique_ptr<GDALDataset> const data(
        driver->Create(folder.filePath("a.gpkg").toUtf8(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRLayer& layer = *data->CreateLayer("a", nullptr, wkbPoint);
    for (auto const& [name, type] : {std::pair{"id", OFTInteger}, {"size", OFTReal}, {"a \"b\" 'c'", OFTString}}) {
      OGRFieldDefn field(name, type);
      layer.CreateField(&field);
    }
    for (char const* row :
         {"1, 0.5, 'Ulm'", "'2', '1e3', 'ULM'", "'x', 'y', 'Ülm'", "NULL, NULL, NULL", "-3, -0.1, ''",
          "4.75, 2, 'O''Neill'", "1e3, 7, X'556c6d'", "9007199254740993, 1e300, 7", "'', 'nan', '7.0'"})
      data->ReleaseResultSet(data->ExecuteSQL(
          (QByteArray("INSERT INTO a VALUES (NULL, NULL, ") + row + ")").constData(), nullptr, nullptr));
    int read = 0;
    QByteArray many = "id IN (2";  // more than a database takes for alternatives
    for (int i = 3; i < 1000; ++i) many += ',' + QByteArray::number(i);
    QByteArray const text = "\"a \\\"b\\\" 'c'\"";
    for (QByteArray const& filter :
         {QByteArray("id = 2"), QByteArray("id <= 0"), QByteArray("id >= 4"), QByteArray("id IN (1, 9007199254740992)"),
          QByteArray("size > 1"), QByteArray("size = 1000"), QByteArray("size BETWEEN 0 AND 2"),
          QByteArray("2 >= size"), text + " = 'uLM'", text + " IN ('', 'o''neill', '7')", QByteArray("id IS NULL"),
          QByteArray("NOT (id IS NULL) AND size < 5"), many + ")", QByteArray("size IN (0.5, 1000)"),
          QByteArray("fid = 3 OR size = 1")}) {
      layer.SetAttributeFilter(nullptr);
      Condition condition;
      QString reason;
      QVERIFY2(condition.compile(layer, filter, reason), qPrintable(reason));
      auto const admitted = [&] {
        QVector<qint64> numbers;
        layer.ResetReading();
        for (; OGRFeatureUniquePtr feature{layer.GetNextFeature()}; ++read)
          if (condition.admits(*feature)) numbers << feature->GetFID();
        return numbers;
      };
      auto const wanted = admitted();
      read = 0;
      condition.narrow(layer, Condition::Narrowed::All);
      QCOMPARE(admitted(), wanted);
      QVERIFY2(read < 9 || filter.startsWith("fid"), filter.constData());
    }
  }

  void anEncodingIsGuessedWhereNothingSaysIt_data() {
    Rows<QByteArray, char, QByteArray, bool> row;
    row("Windows-1252", "Z\xfcrich", 0, "", true);
    row("Windows-1252 whose last letter has an accent", "Bogot\xe1", 0, "", true);
    row("as the table says", "Z\xfcrich", 3, "", false);
    row("as a file beside it says", "Z\xfcrich", 0, "ISO-8859-1", false);
    row("not as a file beside it says", "Z\xfcrich", 3, "UTF-8", true);
    row("as a file beside it says in words of its own", "Z\xfcrich", 0, "German", true);
    row("UTF-8", "Z\xc3\xbcrich", 0, "", false);
    row("UTF-8 whose last letter was cut", "Z\xc3\xbcrich a\xc3", 0, "UTF-8\n", false);
    row("no letter that would tell", "Zurich", 0, "", false);
  }
  void anEncodingIsGuessedWhereNothingSaysIt() {
    auto const [name, codePage, said, isGuessed] = fetched<QByteArray, char, QByteArray, bool>();
    QByteArray const value = name.leftJustified(10, ' ');
    QByteArray head(32, 0), field(32, 0);
    head[0] = 3;
    head[4] = 1;   // records
    head[8] = 65;  // of the head
    head[10] = 11;
    head[29] = codePage;
    field.replace(0, 4, "name");
    field[11] = 'C';
    field[16] = 10;
    QTemporaryDir const folder;
    QString const file = written(folder, "a.dbf", head + field + "\r " + value + "\x1a");
    if (!said.isEmpty()) written(folder, "a.cpg", said);
    QCOMPARE(hasGuessedEncoding(file), isGuessed);
    QString error;
    auto const data = DataSource::open(file, {}, error);
    QVERIFY2(data, qPrintable(error));
    OGRFeatureUniquePtr const read(data->layer().GetNextFeature());
    QString const text = QString::fromUtf8(read->GetFieldAsString("name"));
    QString const city = name.startsWith("Bogot") ? "Bogotá" : name == "Zurich" ? "Zurich" : "Zürich";
    QVERIFY2(text.startsWith(city), qPrintable(text));
  }

  void manyFeaturesStayInTheirOrder() {
    constexpr int count = 9000;
    QByteArrayList features;
    for (int i = 0; i < count; ++i) {
      QByteArray const place = QByteArray::number(i % 300 / 10.0) + "," + QByteArray::number(i / 300);
      features << feature(R"({"type":"Point","coordinates":[)" + place + "]}", QByteArray::number(i));
    }
    SysCarto::LabelSettings labels;
    labels.field = QStringLiteral("name");
    auto const result = openedJson(collection(features), "EPSG:3857", nullptr, labels);
    SysCarto::FeatureStore const& store = result.features();
    QCOMPARE(store.size(), count);
    for (int i = 0; i < count; ++i) {
      double const* const xy = store.parts.at(store.features[i].firstPart).xy;
      QCOMPARE(store.labels.at(i), QString::number(i));
      QVERIFY(std::abs(xy[0] - 111319.490793 * (i % 300 / 10.0)) < 0.1);
      QVERIFY(store.features[i].box.contains(xy[0], xy[1]));
    }
  }

  void aCoordinateSystemOfItsOwnStandsInForTheFiles() {
    QByteArray const point = geoJson(R"({"type":"Point","coordinates":[500000,0]})");
    auto const right = openedJson(point, "EPSG:4326", {}, {}, "EPSG:32633");
    QCOMPARE(right.error, QString());
    QCOMPARE(right.features().size(), 1);
    double const* const xy = right.features().parts.at(0).xy;
    QVERIFY(std::abs(xy[0] - 15) < 1e-6 && std::abs(xy[1]) < 1e-6);
    auto const wrong = openedJson(point, "EPSG:4326", {}, {}, "http://127.0.0.1:1/system");
    QVERIFY2(wrong.error.contains("coordinate system"), qPrintable(wrong.error));
  }
};

QTEST_MAIN(SourceTest)
#include "SourceTest.moc"
