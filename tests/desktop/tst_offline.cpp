#include "desktop/Executable.h"

#include <QJsonArray>
#include <QTcpServer>
#include <QTcpSocket>

#include <gdal_priv.h>

#include <memory>

namespace {

QJsonObject const markers{{"type", "simple"}, {"symbol", QJsonObject{{"type", "simpleMarker"}}}};

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
  void theListenerNoticesAConnection();
  void noConnectionIsMade_data();
  void noConnectionIsMade();

private:
  void writeLayer(QString const& name, QString const& file, QString const& mapSystem = "EPSG:3857",
                  QString const& sourceSystem = QString()) const {
    QJsonObject const source{{"file", file}, {"coordinateSystem", sourceSystem}};
    QJsonObject const layer{{"type", "feature"}, {"name", "A"}, {"source", source}, {"renderer", markers}};
    QJsonObject const map{{"name", "M"},
                          {"coordinateSystem", mapSystem},
                          {"bounds", QJsonArray{-10, -10, 10, 10}},
                          {"layers", QJsonArray{layer}}};
    folder_.writeVariant(name, {{"maps", QJsonArray{map}}});
  }
  void writeElement(QString const& name, QJsonObject const& element) const {
    folder_.writeVariant(name, {{"elements", QJsonArray{element}}, {"maps", QJsonArray()}});
  }
  void addSources();
  void addFilesThatNameAnAddress();
  void addPictures();
  void writeGeoPackage(QString const& name, QStringList const& statements) const;

  DocumentFolder folder_;
  Listener listener_;
};

void OfflineTest::theListenerNoticesAConnection() {
  QProcess process;
  process.start(
      "/bin/bash",
      {"-c", "exec 3<>" + listener_.address("").replace("http://127.0.0.1:", "/dev/tcp/127.0.0.1/").chopped(1)});
  QCOMPARE(listener_.connectionsWhile(process), 1);
}

void OfflineTest::addSources() {
  QStringList const sources{listener_.address("a.geojson"),
                            "/vsicurl/" + listener_.address("a.geojson"),
                            "/vsicurl?url=" + listener_.address("a.geojson"),
                            "/vsicurl_streaming/" + listener_.address("a.geojson"),
                            "/vsizip//vsicurl/" + listener_.address("a.zip"),
                            "/VSICURL/" + listener_.address("a.geojson"),
                            "./vsicurl/" + listener_.address("a.geojson"),
                            "WFS:" + listener_.address("wfs"),
                            "GeoJSON:" + listener_.address("a.geojson"),
                            "GPKG:/vsicurl/" + listener_.address("a.gpkg"),
                            "MVT:" + listener_.address("0/0/0"),
                            "ESRIJSON:" + listener_.address("a"),
                            "PG:host=127.0.0.1 port=" + listener_.address("").section(':', 2).chopped(1)};
  for (QString const& source : sources) {
    QString const name = QString::number(qHash(source)) + ".kdx";
    writeLayer(name, source);
    QTest::newRow(qPrintable("source " + source.section("127.0.0.1", 0, 0))) << name;
  }
  QString const system = listener_.address("system");
  put(folder_.path("plain.geojson"), pointWith(""));
  writeLayer("mapsystem.kdx", "plain.geojson", system);
  writeLayer("mapgrid.kdx", "plain.geojson", "+proj=longlat +datum=WGS84 +nadgrids=" + system + " +type=crs");
  writeLayer("sourcesystem.kdx", "plain.geojson", "EPSG:3857", system);
  writeLayer("nationalgrid.kdx", "plain.geojson", "EPSG:27700");
  QTest::newRow("a map's coordinate system") << "mapsystem.kdx";
  QTest::newRow("the grid of a map's coordinate system") << "mapgrid.kdx";
  QTest::newRow("a source's coordinate system") << "sourcesystem.kdx";
  QTest::newRow("a transformation that has a grid on the network") << "nationalgrid.kdx";
}

void OfflineTest::writeGeoPackage(QString const& name, QStringList const& statements) const {
  QByteArray const path = folder_.path(name).toUtf8();
  std::unique_ptr<GDALDataset> const plain(GDALDataset::Open(folder_.path("plain.geojson").toUtf8().constData()));
  QVERIFY(plain);
  GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName("GPKG");
  std::unique_ptr<GDALDataset> const made(driver->Create(path.constData(), 0, 0, 0, GDT_Unknown, nullptr));
  QVERIFY(made && made->CopyLayer(plain->GetLayer(0), "points"));
  made->FlushCache();
  for (QString const& statement : statements)
    made->ReleaseResultSet(made->ExecuteSQL(statement.toUtf8().constData(), nullptr, nullptr));
}

void OfflineTest::addFilesThatNameAnAddress() {
  QByteArray const address = listener_.address("crs").toUtf8();
  auto const row = [this](char const* claim, QString const& file) {
    writeLayer(file + ".kdx", file);
    QTest::newRow(claim) << file + ".kdx";
  };
  auto const geoJson = [&](char const* claim, QString const& file, QByteArray const& system) {
    put(folder_.path(file), pointWith("\"crs\":" + system + ','));
    row(claim, file);
  };
  geoJson("a GeoJSON that links to its coordinate system", "link.geojson",
          R"({"type":"link","properties":{"href":")" + address + "\"}}");
  geoJson("a GeoJSON that gives the address of its coordinate system", "url.geojson",
          R"({"type":"url","properties":{"url":")" + address + "\"}}");
  geoJson("a GeoJSON that names its coordinate system by an address", "name.geojson",
          R"({"type":"name","properties":{"name":")" + address + "\"}}");
  geoJson("a GeoJSON that names a virtual file", "vsi.geojson",
          R"({"type":"name","properties":{"name":"/vsicurl/)" + address + "\"}}");
  put(folder_.path("bare.geojson"), address);
  row("a GeoJSON that is an address", "bare.geojson");

  QStringList statements{
      QString("INSERT INTO gpkg_spatial_ref_sys VALUES ('x', 777, 'NONE', 777, '%1', '')").arg(address.constData())};
  for (char const* table : {"gpkg_contents", "gpkg_geometry_columns"})
    statements << QString("UPDATE %1 SET srs_id = 777").arg(table);
  writeGeoPackage("srs.gpkg", statements);
  row("a GeoPackage whose coordinate system is an address", "srs.gpkg");

  std::unique_ptr<GDALDataset> const plain(GDALDataset::Open(folder_.path("plain.geojson").toUtf8().constData()));
  GDALDriver* const shapefile = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
  for (QString const name : {"address", "grid"})
    GDALClose(shapefile->CreateCopy(folder_.path(name + ".shp").toUtf8().constData(), plain.get(), TRUE, nullptr,
                                    nullptr, nullptr));
  put(folder_.path("address.prj"), address);
  put(folder_.path("grid.prj"),
      R"(GEOGCS["x",DATUM["d",SPHEROID["s",6378137,298.25]],PRIMEM["g",0],UNIT["degree",0.0174532925199433],)"
      R"(EXTENSION["PROJ4","+proj=longlat +ellps=WGS84 +nadgrids=)" +
          address + "\"]]");
  row("a shapefile whose coordinate system is an address", "address.shp");
  row("a shapefile whose coordinate system names a grid", "grid.shp");
}

void OfflineTest::addPictures() {
  QByteArray const address = listener_.address("a.png").toUtf8();
  QString const nested =
      "data:image/svg+xml;base64," + ("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'><image href='" +
                                      address + "' width='9' height='9'/></svg>")
                                         .toBase64();
  struct {
    char const* name;
    QByteArray body;
  } const drawings[] = {
      {"href", "<image href='" + address + "' width='9' height='9'/>"},
      {"xlink", "<image xlink:href='" + address + "' width='9' height='9'/>"},
      {"use", "<use xlink:href='" + address + "#a'/>"},
      {"data", "<image xlink:href='" + nested.toUtf8() + "' width='9' height='9'/>"},
      {"url", "<rect width='9' height='9' style='fill:url(" + address + ")'/>"},
      {"font", "<style>@font-face{font-family:a;src:url(" + address + ")}</style><rect width='9' height='9'/>"},
      {"import", "<style>@import '" + address + "';</style><rect width='9' height='9'/>"}};
  for (auto const& drawing : drawings) {
    QByteArray const svg =
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        "viewBox='0 0 9 9'>" +
        drawing.body + "</svg>";
    QString const name = drawing.name;
    put(folder_.path(name + ".svg"), svg);
    writeElement(name + "-picture.kdx",
                 {{"type", "picture"}, {"path", name + ".svg"}, {"rectangle", QJsonArray{1, 1, 5, 5}}});
    QJsonObject const symbol{{"type", "svgMarker"}, {"svg", QString(svg)}, {"size", 40}};
    writeElement(name + "-marker.kdx", {{"type", "marker"}, {"position", QJsonArray{3, 3}}, {"symbol", symbol}});
    QTest::addRow("a picture: %s", drawing.name) << name + "-picture.kdx";
    QTest::addRow("a marker: %s", drawing.name) << name + "-marker.kdx";
  }
  for (QString const prefix : {"", "/vsicurl/"}) {
    QString const name = QString("picture%1.kdx").arg(prefix.size());
    writeElement(name, {{"type", "picture"}, {"path", prefix + address}, {"rectangle", QJsonArray{1, 1, 5, 5}}});
    QTest::addRow("a picture at %s", qPrintable(prefix + "an address")) << name;
  }
}

void OfflineTest::noConnectionIsMade_data() {
  QTest::addColumn<QString>("document");
  addSources();
  addFilesThatNameAnAddress();
  addPictures();
}

// The environment, too, invites to the network: none of it may count.
void OfflineTest::noConnectionIsMade() {
  QFETCH(QString, document);
  QProcess process;
  prepare(process, {"export", document, "a.png", "--dpi", "30", "--allow-missing"}, folder_.path());
  auto environment = process.processEnvironment();
  environment.insert("PROJ_NETWORK", "ON");
  environment.insert("PROJ_NETWORK_ENDPOINT", listener_.address("").chopped(1));
  environment.insert("PROJ_USER_WRITABLE_DIRECTORY", folder_.path());
  environment.insert("no_proxy", "*");
  process.setProcessEnvironment(environment);
  process.start();
  QCOMPARE(listener_.connectionsWhile(process), 0);
  QCOMPARE(process.exitStatus(), QProcess::NormalExit);
  QVERIFY2(process.exitCode() <= 1, process.readAllStandardError().constData());
}

QTEST_GUILESS_MAIN(OfflineTest)
#include "tst_offline.moc"
