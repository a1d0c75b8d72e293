#include "desktop/Executable.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <gdal_priv.h>

#include <memory>

namespace {

QByteArray pointWith(QByteArray const& system) {
  return R"({"type":"FeatureCollection",)" + system +
         R"("features":[{"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[0,52]}}]})";
}

// Has every document, data file and picture that names an address name this one; counts who comes.
class Listener {
public:
  Listener() {
    if (!server_.listen(QHostAddress::LocalHost)) qFatal("no port on loopback");
  }
  QString address(QString const& path) const {
    return QStringLiteral("http://127.0.0.1:%1/%2").arg(server_.serverPort()).arg(path);
  }
  // Answers at once, so that whoever asks does not wait.
  int connectionsWhile(QProcess& process) {
    int count = 0;
    while (process.state() != QProcess::NotRunning || server_.hasPendingConnections()) {
      if (server_.hasPendingConnections() || server_.waitForNewConnection(20)) {
        ++count;
        std::unique_ptr<QTcpSocket> const socket(server_.nextPendingConnection());
        socket->write("HTTP/1.0 404 Not Found\r\nContent-Length: 0\r\n\r\n");
        socket->waitForBytesWritten(1000);
      }
      process.waitForFinished(1);
    }
    return count;
  }

private:
  QTcpServer server_;
};

}  // namespace

// Through no door does an export reach the network, whatever a document or its data name.
class OfflineTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { GDALAllRegister(); }

  void theListenerNoticesAConnection() {
    QString const device = listener_.address("").replace("http://127.0.0.1:", "/dev/tcp/127.0.0.1/").chopped(1);
    QProcess process;
    process.start("/bin/bash", {"-c", "exec 3<>" + device});
    QCOMPARE(listener_.connectionsWhile(process), 1);
  }

  void noConnectionIsMade_data() {
    QTest::addColumn<QString>("document");
    put(folder_.path("plain.geojson"), pointWith(""));
    addSources();
    addCoordinateSystems();
    addFilesThatNameAnAddress();
    addDrawings();
    for (QString const prefix : {"", "/vsicurl/"})
      rowWithElement("a picture at " + prefix + "an address", pictureOf(prefix + listener_.address("a.png")));
  }

  // The environment, too, invites to the network: none of it may count.
  void noConnectionIsMade() {
    QFETCH(QString, document);
    QProcess process;
    prepare(process, {"export", document, "a.png", "--dpi", "30", "--allow-missing"}, folder_.path(),
            {{"PROJ_NETWORK", "ON"},
             {"PROJ_NETWORK_ENDPOINT", listener_.address("").chopped(1)},
             {"PROJ_USER_WRITABLE_DIRECTORY", folder_.path()},
             {"no_proxy", "*"}});
    process.start();
    QCOMPARE(listener_.connectionsWhile(process), 0);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() <= 1, process.readAllStandardError().constData());
  }

private:
  // A row with a document of its own, which differs from the folder's in these values.
  void row(QString const& claim, QJsonObject const& values) {
    QString const name = QString("%1.kdx").arg(++documents_);
    folder_.writeVariant(name, values);
    QTest::newRow(qPrintable(claim)) << name;
  }

  void rowWithLayer(QString const& claim, QString const& file, QString const& mapSystem = "EPSG:3857",
                    QString const& sourceSystem = QString()) {
    QJsonObject layer =
        json("{'type':'feature','name':'A','renderer':{'type':'simple','symbol':{'type':'simpleMarker'}}}");
    layer["source"] = QJsonObject{{"file", file}, {"coordinateSystem", sourceSystem}};
    QJsonObject map = json("{'name':'M','bounds':[-10,-10,10,10]}");
    map["coordinateSystem"] = mapSystem;
    map["layers"] = QJsonArray{layer};
    row(claim, {{"maps", QJsonArray{map}}});
  }

  void rowWithElement(QString const& claim, QJsonObject const& element) {
    row(claim, {{"elements", QJsonArray{element}}, {"maps", QJsonArray()}});
  }

  static QJsonObject pictureOf(QString const& path) {
    return {{"type", "picture"}, {"path", path}, {"rectangle", QJsonArray{1, 1, 5, 5}}};
  }

  void addSources() {
    QString const port = listener_.address("").section(':', 2).chopped(1);
    for (QString const source :
         {"ADDRESS/a.geojson", "/vsicurl?url=ADDRESS/a.geojson", "/vsizip//vsicurl/ADDRESS/a.zip", "WFS:ADDRESS/wfs",
          "/VSICURL/ADDRESS/a.geojson", "./vsicurl/ADDRESS/a.geojson", "PG:host=127.0.0.1 port=PORT"})
      rowWithLayer("source " + source,
                   QString(source).replace("ADDRESS", listener_.address("").chopped(1)).replace("PORT", port));
  }

  void addCoordinateSystems() {
    QString const system = listener_.address("system");
    rowWithLayer("a map's coordinate system", "plain.geojson", system);
    rowWithLayer("the grid of a map's coordinate system", "plain.geojson",
                 "+proj=longlat +datum=WGS84 +nadgrids=" + system + " +type=crs");
    rowWithLayer("a source's coordinate system", "plain.geojson", "EPSG:3857", system);
    rowWithLayer("a transformation that has a grid on the network", "plain.geojson", "EPSG:27700");
  }

  void addFilesThatNameAnAddress() {
    QByteArray const address = listener_.address("crs").toUtf8();
    auto const geoJson = [&](QString const& claim, QString const& file, QByteArray const& type, QByteArray const& key,
                             QByteArray const& value) {
      put(folder_.path(file),
          pointWith("\"crs\":{\"type\":\"" + type + "\",\"properties\":{\"" + key + "\":\"" + value + "\"}},"));
      rowWithLayer(claim, file);
    };
    geoJson("a GeoJSON that links to its coordinate system", "link.geojson", "link", "href", address);
    geoJson("a GeoJSON that gives the address of its coordinate system", "url.geojson", "url", "url", address);
    geoJson("a GeoJSON that names its coordinate system by an address", "name.geojson", "name", "name", address);
    geoJson("a GeoJSON that names a virtual file", "vsi.geojson", "name", "name", "/vsicurl/" + address);
    put(folder_.path("bare.geojson"), address);
    rowWithLayer("a GeoJSON that is an address", "bare.geojson");

    auto const geoPackage = copyOfPlain("GPKG", "srs.gpkg");
    for (QString const statement :
         {"INSERT INTO gpkg_spatial_ref_sys VALUES ('x', 777, 'NONE', 777, 'ADDRESS', '')",
          "UPDATE gpkg_contents SET srs_id = 777", "UPDATE gpkg_geometry_columns SET srs_id = 777"})
      geoPackage->ReleaseResultSet(geoPackage->ExecuteSQL(
          QString(statement).replace("ADDRESS", address).toUtf8().constData(), nullptr, nullptr));
    rowWithLayer("a GeoPackage whose coordinate system is an address", "srs.gpkg");

    copyOfPlain("ESRI Shapefile", "address.shp");
    put(folder_.path("address.prj"), address);
    rowWithLayer("a shapefile whose coordinate system is an address", "address.shp");
    copyOfPlain("ESRI Shapefile", "grid.shp");
    put(folder_.path("grid.prj"),
        "GEOGCS[\"x\",DATUM[\"d\",SPHEROID[\"s\",6378137,298.25]],PRIMEM[\"g\",0],UNIT[\"degree\",0.0174532925199433],"
        "EXTENSION[\"PROJ4\",\"+proj=longlat +ellps=WGS84 +nadgrids=" +
            address + "\"]]");
    rowWithLayer("a shapefile whose coordinate system names a grid", "grid.shp");
  }

  std::unique_ptr<GDALDataset> copyOfPlain(char const* driver, QString const& file) const {
    std::unique_ptr<GDALDataset> const plain(GDALDataset::Open(folder_.path("plain.geojson").toUtf8().constData()));
    std::unique_ptr<GDALDataset> copy(GetGDALDriverManager()->GetDriverByName(driver)->Create(
        folder_.path(file).toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    if (!copy || !copy->CopyLayer(plain->GetLayer(0), "points")) qFatal("can't write %s", qPrintable(file));
    copy->FlushCache();
    return copy;
  }

  void addDrawings() {
    QByteArray const address = listener_.address("a.png").toUtf8();
    QByteArray const image = "<image href='" + address + "' width='9' height='9'/>";
    QByteArray const nested = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'>" + image + "</svg>";
    addDrawing("href", image);
    addDrawing("data",
               "<image xlink:href='data:image/svg+xml;base64," + nested.toBase64() + "' width='9' height='9'/>");
    addDrawing("font", "<style>@font-face{font-family:a;src:url(" + address + ")}</style><rect width='9' height='9'/>");
  }

  void addDrawing(QString const& name, QByteArray const& body) {
    QByteArray const svg =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 9 9'>" + body +
        "</svg>";
    put(folder_.path(name + ".svg"), svg);
    rowWithElement("a picture: " + name, pictureOf(name + ".svg"));
    QJsonObject const symbol{{"type", "svgMarker"}, {"svg", QString(svg)}, {"size", 40}};
    rowWithElement("a marker: " + name, {{"type", "marker"}, {"position", QJsonArray{3, 3}}, {"symbol", symbol}});
  }

  DocumentFolder folder_;
  int documents_ = 0;
  Listener listener_;
};

QTEST_GUILESS_MAIN(OfflineTest)
#include "tst_offline.moc"
