#include "LayerFixture.h"

#include "host/SysCarto/layers/DataCatalogue.h"

#include <fcntl.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>
#include <unistd.h>

using namespace SysCarto;
using SysGeometry::Box;

namespace {

// Three places in degrees, of which the last has no name.
constexpr double places[][2] = {{10, 50}, {11.5, 51.25}, {12, 49}};

void writePlaces(QString const& path, char const* driverName, char const* layerName) {
  GDALAllRegister();
  GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName(driverName);
  GDALDataset* const dataset = driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr);
  OGRSpatialReference degrees;
  degrees.importFromEPSG(4326);
  degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  bool const isTable = EQUAL(driverName, "CSV");
  char const* const options[] = {isTable ? "GEOMETRY=AS_XY" : nullptr, nullptr};
  OGRLayer* const layer = dataset->CreateLayer(layerName, &degrees, wkbPoint, const_cast<char**>(options));
  OGRFieldDefn name("name", OFTString);
  if (layer->GetLayerDefn()->GetFieldIndex("name") < 0 && layer->TestCapability(OLCCreateField))
    (void)layer->CreateField(&name);
  for (auto const& place : places) {
    OGRFeature feature(layer->GetLayerDefn());
    if (&place != &places[2] && feature.GetFieldIndex("name") >= 0) feature.SetField("name", "Straße");
    OGRPoint const point(place[0], place[1]);
    feature.SetGeometry(&point);
    if (layer->CreateFeature(&feature) != OGRERR_NONE) qFatal("can't write a test feature");
  }
  GDALClose(dataset);
}

// An archive that is a thousandth of what it holds.
QByteArray packed(QVector<QPair<QByteArray, QByteArray>> const& entries) {
  QTemporaryDir const folder;
  QByteArray const path = "/vsizip/" + folder.filePath("a.zip").toUtf8();
  VSILFILE* const archive = VSIFOpenL(path.constData(), "wb");
  for (auto const& entry : entries) {
    VSILFILE* const file = VSIFOpenL((path + '/' + entry.first).constData(), "wb");
    VSIFWriteL(entry.second.constData(), 1, static_cast<size_t>(entry.second.size()), file);
    VSIFCloseL(file);
  }
  VSIFCloseL(archive);
  return contentOf(folder.filePath("a.zip"));
}

QByteArray zeros(int count) { return QByteArray(count, '\0'); }

// Of 80 MB, in records of a single field of 250 letters.
QByteArray table(QByteArray const& countOfRecords) {
  QByteArray const head = "\x03" + zeros(3) + QByteArray::fromHex(countOfRecords + "4100fb00") + zeros(20);
  QByteArray const field = "n" + zeros(10) + 'C' + zeros(4) + '\xfa' + zeros(15) + '\r';
  return head + field + QByteArray(320000 * 251, ' ');
}

// Of the first vertex of each feature.
QVector<QPointF> vertices(FeatureStore const& store) {
  QVector<QPointF> vertices;
  for (auto const& part : store.parts) vertices << QPointF(part.xy[0], part.xy[1]);
  return vertices;
}

QByteArray text(char const* utf8) { return QByteArray(utf8); }

}  // namespace

class CatalogueTest : public QObject {
  Q_OBJECT

private slots:
  void everyFormatIsDescribedAndRead_data() {
    Rows<QString, char const*, char const*, QString> row;
    QString const degrees = QStringLiteral("EPSG:4326");
    row("GeoPackage", "a.gpkg", "GPKG", "a", degrees);
    row("GeoJSON", "a.geojson", "GeoJSON", "a", degrees);
    row("GeoJSON with a feature a line", "a.geojsonl", "GeoJSONSeq", "a", degrees);
    row("Shapefile", "a.shp", "ESRI Shapefile", "a", degrees);
    row("Shapefile in an archive of its own", "a.shp.zip", "ESRI Shapefile", "a", degrees);
    row("FlatGeobuf", "a.fgb", "FlatGeobuf", "a", degrees);
    row("GPX, whose other layers are empty", "a.gpx", "GPX", "waypoints", degrees);
    row("KML", "a.kml", "LIBKML", "a", degrees);
    row("KML by the plainer driver", "a.kml", "KML", "a", degrees);
    row("MapInfo tables", "a.tab", "MapInfo File", "a", degrees);
    row("MapInfo interchange", "a.mif", "MapInfo File", "a", degrees);
    row("DXF, which knows no system", "a.dxf", "DXF", "entities", QString());
    row("columns of coordinates", "a.csv", "CSV", "a", degrees);
  }
  void everyFormatIsDescribedAndRead() {
    auto const [name, driver, layerName, system] = fetched<QString, char const*, char const*, QString>();
    GDALAllRegister();
    if (!GetGDALDriverManager()->GetDriverByName(driver)) QSKIP("this GDAL has no such driver");
    QTemporaryDir const folder;
    QString const path = folder.filePath(name);
    writePlaces(path, driver, layerName);
    DataFile const file = describeFile(path);
    QCOMPARE(file.error, QString());
    QCOMPARE(file.layers.size(), size_t(1));
    LayerDescription const& layer = file.layers.front();
    QCOMPARE(layer.name, QString(layerName));
    QCOMPARE(layer.kind, GeometryKind::Points);
    QCOMPARE(layer.count, qint64(3));
    QVERIFY2(layer.coordinateSystem == system, qPrintable(layer.coordinateSystem));
    Box const expected{10, 49, 12, 51.25};
    Box const grown = expected.grown(1e-6);
    QVERIFY2(grown.contains(layer.extent) && layer.extent.grown(1e-6).contains(expected),
             qPrintable(QStringLiteral("%1 %2").arg(layer.extent.xmin).arg(layer.extent.ymax)));
    auto const result = opened({path, layer.name, {}, {}}, "EPSG:4326");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.features().size(), 3);
    auto read = vertices(result.features());
    std::sort(read.begin(), read.end(), [](QPointF const& a, QPointF const& b) { return a.x() < b.x(); });
    for (int i = 0; i < 3; ++i) QVERIFY(QLineF(read[i], QPointF(places[i][0], places[i][1])).length() < 1e-6);
    QStringList const files = dataFilesIn(folder.path()).toList();
    QCOMPARE(files, QStringList{path});
  }

  void columnsAreFoundByNameAndValue_data() {
    Rows<QByteArray, GeometryKind, QString, QString, QPointF> row;
    auto const points = GeometryKind::Points;
    QString const degrees = QStringLiteral("EPSG:4326"), none;
    row("degrees", "name,lat,lon\nA,50,10\n", points, "lon lat ", degrees, {10, 50});
    row("large numbers are no degrees", "x,y\n3566123.5,5644000.25\n", points, "x y ", none, {3566123.5, 5644000.25});
    row("what a German spreadsheet writes", "Ort;Rechtswert;Hochwert\nK\xf6ln;3.566.123,5;5644000,25\n", points,
        "Rechtswert Hochwert ", none, {3566123.5, 5644000.25});
    row("thousands as in English", "x;y\n567,890.12;1,234,567\n", points, "x y ", none, {567890.12, 1234567});
    row("a byte order mark and tabs", "\xef\xbb\xbfX-Coord\tY-Coord\n2,5\t3,5\n", points, "X-Coord Y-Coord ", degrees,
        {2.5, 3.5});
    row("well-known text", "id,the_geom\n1,\"LINESTRING (1 2,3 4)\"\n", GeometryKind::Lines, "  the_geom", degrees,
        {1, 2});
    row("well-known text in a column of any name", "id;Lage\n1;POINT (1 2)\n2;POINT (3 4)\n", points, "  Lage", degrees,
        {1, 2});
    row("a column that is only called so", "id,shape,x,y\n1,round,7,8\n", points, "x y ", degrees, {7, 8});
    row("Chinese names", text("名称,经度,纬度\n北京,116.4,39.9\n"), points, text("经度 纬度 "), degrees, {116.4, 39.9});
    row("names without numbers", "x,y\na,b\n", GeometryKind::None, "  ", none, {});
    row("nothing but a table", "id,value\n1,2\n", GeometryKind::None, "  ", none, {});
  }
  void columnsAreFoundByNameAndValue() {
    auto const [content, kind, columns, system, first] = fetched<QByteArray, GeometryKind, QString, QString, QPointF>();
    QTemporaryDir const folder;
    QString const path = written(folder, "t.csv", content);
    DataFile const file = describeFile(path);
    QCOMPARE(file.error, QString());
    LayerDescription const& layer = file.layers.at(0);
    QCOMPARE(layer.kind, kind);
    QCOMPARE(layer.xField + ' ' + layer.yField + ' ' + layer.geometryField, columns);
    QCOMPARE(layer.coordinateSystem, system);
    auto const result = opened({path, {}, {}, {}}, system);
    QVERIFY2(result.error.isEmpty() == (kind != GeometryKind::None), qPrintable(result.error));
    if (kind == GeometryKind::None) {
      QVERIFY(result.error.contains("xField") && result.error.contains(path));
    } else {
      QCOMPARE(vertices(result.features()).at(0), first);
      QVERIFY(!attributesOf({path, {}, {}, {}}).join(' ').contains(QChar::ReplacementCharacter));
    }
  }

  void columnsThatAreNamedAreTaken() {
    QTemporaryDir const folder;
    QString const path = written(folder, "t.csv", "x,y,a,b\n1,2,30,40\n");
    auto const result = opened({path, {}, {}, {}, "a", "b"}, "EPSG:4326");
    QCOMPARE(vertices(result.features()).at(0), QPointF(30, 40));
    QVERIFY(opened({path, {}, {}, {}, "a", "c"}, "EPSG:4326").error.contains("“c”; it has: x, y, a, b"));
    QVERIFY(opened({path, {}, {}, {}, "a"}, "EPSG:4326").error.contains("yField"));
  }

  void whatRefersElsewhereIsNotFollowed_data() {
    Rows<QString, QByteArray, QString> row;
    row("a table that is made of others", "a.tab",
        "!table\nopen table \"/tmp/secret.tab\"\ncreate view a as\nSelect * from secret\n", "refers to other tables");
    row("a seamless table", "a.tab",
        "!table\nDefinition Table\n Type NATIVE\n Fields 1\n  Table Char (100) ;\nbegin_metadata\n\"\\IsSeamless\" = "
        "\"TRUE\"\nend_metadata\n",
        "refers to other tables");
    row("an archive without a Shapefile", "a.zip", QByteArray::fromHex("504b0506") + QByteArray(18, '\0'),
        "no Shapefile");
    row("an archive that is none", "a.zip", "Hello", "no Shapefile");
    row("places that are packed too well", "a.kmz", packed({{"doc.kml", zeros(20000000)}}), "far more than an archive");
    row("areas that are packed too well", "a.zip", packed({{"a.shp", zeros(80000000)}}), "far more than an archive");
    row("a table that is longer than it says", "a.zip", packed({{"a.shp", ""}, {"a.dbf", table("01000000")}}),
        "far more");
    row("a long table, beside what is never read, of a Shapefile without shapes", "a.zip",
        packed({{"a.shp", ""}, {"a.dbf", table("00e20400")}, {"a.tif", zeros(80000000)}}), "that is whole");
    row("text in UTF-16", "a.csv", QByteArray("\xff\xfex\0,\0y\0", 8), "UTF-16");
    row("nothing", "a.csv", "", "is empty");
    QByteArray const inserts = "0\nINSERT\n2\nB\n70\n1000\n71\n1000\n";
    QByteArray const blocks = "0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n";
    QByteArray const entities = "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + inserts + "0\nENDSEC\n0\nEOF\n";
    row("a block that is inserted a million times", "a.dxf", blocks + "0\nPOINT\n10\n1\n20\n1\n" + entities, "repeat");
    row("a block that holds itself", "a.dxf", blocks + "0\nINSERT\n2\nB\n" + entities, "repeat");
    row("a network link alone", "a.kml",
        "<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document><NetworkLink><Link><href>other.kml</href></Link>"
        "</NetworkLink></Document></kml>",
        "holds no features");
  }
  void whatRefersElsewhereIsNotFollowed() {
    auto const [name, content, says] = fetched<QString, QByteArray, QString>();
    QTemporaryDir const folder;
    writePlaces(folder.filePath("other.kml"), "KML", "other");
    DataFile const file = describeFile(written(folder, name, content));
    QVERIFY2(file.error.contains(says) && file.error.contains(name), qPrintable(file.error));
    QVERIFY(file.layers.empty());
  }

  // SQLite would work what lies beside a database into it, or wait for ever for a pipe to say something.
  void whatLiesBesideADatabaseIsLeftThere_data() {
    Rows<QString, QByteArray, QString> row;
    row("a journal of a change that was interrupted", "a.gpkg-journal", "x", "a.gpkg-journal; open it once");
    row("a journal of a change that is being made", "a.gpkg-journal", "y", "just writing it; try again");
    row("a journal that is done with", "a.gpkg-journal", QByteArray(512, '\0'), "");
    row("a log of which no program knows", "a.gpkg-wal", "x", "a.gpkg-wal; open it once");
    row("a journal that is a link", "a.gpkg-journal", "link", "no file of its own");
  }
  void whatLiesBesideADatabaseIsLeftThere() {
    auto const [name, content, says] = fetched<QString, QByteArray, QString>();
    QTemporaryDir const folder;
    QString const path = folder.filePath("a.gpkg");
    writePlaces(path, "GPKG", "a");
    if (content == "link")
      QVERIFY(QFile::link(written(folder, "other", "x"), folder.filePath(name)));
    else
      written(folder, name, content);
    QByteArray const before = contentOf(path);
    QFile writer(path);  // as SQLite has it, but kept when others of this process close the file
    flock lock = {F_WRLCK, SEEK_SET, 0x40000001, 1, 0};
    if (content == "y") QVERIFY(writer.open(QIODevice::ReadWrite) && fcntl(writer.handle(), F_OFD_SETLK, &lock) == 0);
    QString const error = describeFile(path).error;
    QVERIFY2(says.isEmpty() ? error.isEmpty() : error.contains(says), qPrintable(error));
    QCOMPARE(contentOf(path), before);
    if (content != "link") QCOMPARE(contentOf(folder.filePath(name)), content);
  }

  void tablesAreJoined() {
    QTemporaryDir const folder;
    QString const places = written(folder, "places.csv", "key,x,y,name\n01,1,1,A\n 2,2,2,B\nx,3,3,C\nz,4,4,D\n");
    QString const table = written(folder, "t.csv", "id;name;value\n1;one;10\n2 ;two;20,5\nx;three;30\n2;twice;99\n");
    SourceSettings source{places, {}, {}, {}};
    source.joins = {{table, {}, "key", "id", {}}};
    QCOMPARE(attributesOf(source), QStringList({"key", "x", "y", "name", "id", "t_name", "value"}));
    QCOMPARE(sampleValues(source, "value", 9), QStringList({"10", "20.5", "30"}));
    auto const joined = opened(source, "EPSG:4326");
    QCOMPARE(joined.features().size(), 4);
    QCOMPARE(joined.warnings.size(), 2);
    QVERIFY2(joined.warnings[0].contains("1 of 4") && joined.warnings[0].contains("“z”"),
             qPrintable(joined.warnings[0]));
    QVERIFY2(joined.warnings[1].contains("“2”"), qPrintable(joined.warnings[1]));
    source.filter = "value > 15";
    QCOMPARE(opened(source, "EPSG:4326").features().size(), 2);
    source.filter.clear();
    source.joins[0].key = "name";
    QVERIFY(opened(source, "EPSG:4326").warnings[0].contains("No feature found a row"));
    source.joins[0].tableKey = "nothing";
    auto const wrong = opened(source, "EPSG:4326");
    QVERIFY2(wrong.error.contains("no field “nothing”"), qPrintable(wrong.error));
    QCOMPARE(wrong.features().size(), 4);
  }
};

QTEST_MAIN(CatalogueTest)
#include "CatalogueTest.moc"
