#include "Files.h"
#include "Test.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/desktop/newmap/NewMap.h"
#include "host/desktop/styling/LayerStyling.h"
#include "host/desktop/styling/MapColors.h"
#include "host/desktop/styling/ProjectionChoice.h"

#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <array>
#include <cmath>

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

Triple operator*(Matrix const& m, Triple const& v) {
  Triple result{};
  for (int i = 0; i < 3; ++i) result[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
  return result;
}

// Of linear red, green and blue: what normal eyes, protanopes and deuteranopes see (Machado, Oliveira, Fernandes 2009).
constexpr Matrix eyes[] = {
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}};

Triple labOf(QColor const& color, Matrix const& eye) {
  constexpr Matrix toXyz{
      {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};
  auto const linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  Triple seen = eye * Triple{linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
  for (double& part : seen) part = std::clamp(part, 0.0, 1.0);
  Triple const xyz = toXyz * seen, white = toXyz * Triple{1, 1, 1};
  auto const f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
  double const x = f(xyz[0] / white[0]), y = f(xyz[1] / white[1]), z = f(xyz[2] / white[2]);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

// CIEDE2000, as Sharma, Wu and Dalal (2005) write it.
double difference(Triple const& one, Triple const& other) {
  auto const radians = [](double degrees) { return degrees * M_PI / 180; };
  auto const seventh = [](double c) { return std::sqrt(std::pow(c, 7) / (std::pow(c, 7) + std::pow(25.0, 7))); };
  double const g = 0.5 * (1 - seventh((std::hypot(one[1], one[2]) + std::hypot(other[1], other[2])) / 2));
  double const a1 = (1 + g) * one[1], a2 = (1 + g) * other[1];
  double const c1 = std::hypot(a1, one[2]), c2 = std::hypot(a2, other[2]);
  auto const hue = [](double a, double b) { return std::fmod(std::atan2(b, a) * 180 / M_PI + 360, 360); };
  double const h1 = hue(a1, one[2]), h2 = hue(a2, other[2]);
  double const dh = c1 * c2 == 0 ? 0 : std::remainder(h2 - h1, 360);
  double const dH = 2 * std::sqrt(c1 * c2) * std::sin(radians(dh / 2));
  double const l = (one[0] + other[0]) / 2, c = (c1 + c2) / 2;
  double const h = c1 * c2 == 0               ? h1 + h2
                   : std::abs(h1 - h2) <= 180 ? (h1 + h2) / 2
                                              : std::fmod((h1 + h2) / 2 + 180, 360);
  double const t = 1 - 0.17 * std::cos(radians(h - 30)) + 0.24 * std::cos(radians(2 * h)) +
                   0.32 * std::cos(radians(3 * h + 6)) - 0.2 * std::cos(radians(4 * h - 63));
  double const sl = 1 + 0.015 * (l - 50) * (l - 50) / std::sqrt(20 + (l - 50) * (l - 50));
  double const sc = 1 + 0.045 * c, sh = 1 + 0.015 * c * t;
  double const turn = -std::sin(radians(60 * std::exp(-std::pow((h - 275) / 25, 2)))) * 2 * seventh(c);
  double const dl = (other[0] - one[0]) / sl, dc = (c2 - c1) / sc, dhs = dH / sh;
  return std::sqrt(dl * dl + dc * dc + dhs * dhs + turn * dc * dhs);
}

template <class Colors>
double leastDifference(Colors const& colors) {
  double least = 1000;
  for (Matrix const& eye : eyes)
    for (char const* one : colors)
      for (char const* other : colors)
        if (one != other) least = std::min(least, difference(labOf(QColor(one), eye), labOf(QColor(other), eye)));
  return least;
}

struct MadeFeature {
  char const* geometry;
  QString name;
  double value;
};

// A GeoPackage with one layer, `things`: fields `name` and `population`.
QString makeData(QString const& path, std::vector<MadeFeature> const& features, int system = 4326) {
  GDALAllRegister();
  auto* const dataset =
      GetGDALDriverManager()->GetDriverByName("GPKG")->Create(path.toUtf8(), 0, 0, 0, GDT_Unknown, nullptr);
  OGRSpatialReference reference;
  reference.importFromEPSG(system);
  reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  OGRLayer* const layer = dataset->CreateLayer("things", &reference, wkbUnknown);
  OGRFieldDefn name("name", OFTString), population("population", OFTReal);
  layer->CreateField(&name);
  layer->CreateField(&population);
  for (MadeFeature const& one : features) {
    OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
    feature->SetField("name", one.name.toUtf8().constData());
    feature->SetField("population", one.value);
    OGRGeometry* geometry = nullptr;
    OGRGeometryFactory::createFromWkt(one.geometry, nullptr, &geometry);
    feature->SetGeometryDirectly(geometry);
    if (layer->CreateFeature(feature.get()) != OGRERR_NONE) qFatal("no feature");
  }
  GDALClose(dataset);
  return path;
}

// Eight rows of eight squares at whole degrees.
QString makeSquares(QString const& path, double side) {
  std::vector<QByteArray> texts;
  for (int i = 0; i < 64; ++i) {
    int const x = i % 8, y = i / 8;
    texts.push_back(
        QStringLiteral("POLYGON((%1 %2,%3 %2,%3 %4,%1 %4,%1 %2))").arg(x).arg(y).arg(x + side).arg(y + side).toUtf8());
  }
  std::vector<MadeFeature> squares;
  for (int i = 0; i < 64; ++i) squares.push_back({texts[i].constData(), QStringLiteral("Square %1").arg(i), double(i)});
  return makeData(path, squares);
}

// A raster of 40 × 40 pixels of 100 m whose values rise from one corner.
QString makeRaster(QString const& path, GDALDataType type, int bands, double from) {
  GDALAllRegister();
  auto* const dataset =
      GetGDALDriverManager()->GetDriverByName("GTiff")->Create(path.toUtf8(), 40, 40, bands, type, {});
  double place[] = {560000, 100, 0, 5530000, 0, -100};
  dataset->SetGeoTransform(place);
  OGRSpatialReference system;
  system.importFromEPSG(25832);
  dataset->SetSpatialRef(&system);
  std::vector<float> values(1600);
  for (size_t i = 0; i < values.size(); ++i) values[i] = float(from + double(i) / 10);
  for (int band = 1; band <= bands; ++band)
    if (dataset->GetRasterBand(band)->RasterIO(GF_Write, 0, 0, 40, 40, values.data(), 40, 40, GDT_Float32, 0, 0))
      qFatal("can't write a raster");
  GDALClose(dataset);
  return path;
}

LayerSurvey surveyOf(QString const& file) {
  QString problem;
  auto const layer = SysCarto::describeFile(file).layers.at(0);
  auto const survey = surveyLayer({file, layer.name, QString(), QString()}, layer, {}, problem);
  return survey ? *survey : LayerSurvey();
}

}  // namespace

Q_DECLARE_METATYPE(NewMapRequest)

/// A map that is made of data alone: what is chosen, and that the page holds it all.
class NewMapTest : public QObject {
  Q_OBJECT

private slots:
  void everybodyTellsTheColoursApart() {
    // From the test data of Sharma, Wu and Dalal.
    QVERIFY(std::abs(difference({50, 2.6772, -79.7751}, {50, 0, -82.7485}) - 2.0425) < 1e-4);
    QVERIFY(std::abs(difference({22.7233, 20.0904, -46.6940}, {23.0331, 14.9730, -42.5619}) - 2.0373) < 1e-4);
    std::vector<char const*> areas(MapColors::areas.begin(), MapColors::areas.end());
    areas.push_back(MapColors::sea);
    QVERIFY2(leastDifference(areas) > 10, qPrintable(QString::number(leastDifference(areas))));
    QVERIFY2(leastDifference(MapColors::marks) > 11, qPrintable(QString::number(leastDifference(MapColors::marks))));
  }

  void theProjectionSuitsTheArea_data() {
    QTest::addColumn<QVector<double>>("area");  // west, south, east, north
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("expected");
    auto const row = [](char const* name, QVector<double> const& area, char const* own, char const* expected) {
      QTest::newRow(name) << area << QString(own) << QString(expected);
    };
    row("world", {-180, -90, 180, 84}, "EPSG:4326", "EPSG:8857");
    row("world of a web map", {-180, -85, 180, 84}, "EPSG:3857", "EPSG:8857");
    row("round the Pacific", {100, -60, 300, 70}, "EPSG:4326", "+proj=eqearth +lon_0=-160 ");
    row("Europe", {-10, 35, 40, 71}, "EPSG:4326", "+proj=laea +lat_0=53 +lon_0=15 ");
    row("United States", {-125, 24, -67, 49}, "EPSG:4326", "+proj=aea +lat_1=28 +lat_2=45 +lat_0=37 +lon_0=-96 ");
    row("Australia", {113, -44, 154, -10}, "EPSG:4326", "+proj=aea +lat_1=-38 +lat_2=-16 +lat_0=-27 +lon_0=134 ");
    row("Africa", {-18, -35, 52, 38}, "EPSG:4326", "+proj=laea +lat_0=2 +lon_0=17 ");
    row("Indonesia", {95, -11, 141, 6}, "EPSG:4326", "+proj=laea");
    row("Arctic", {-180, 60, 180, 90}, "EPSG:4326", "EPSG:6931");
    row("Antarctica", {-180, -90, 180, -63}, "EPSG:4326", "EPSG:6932");
    row("a town", {9.8, 49.7, 10.1, 49.9}, "EPSG:4326", "EPSG:32632");
    row("a town in the south", {151, -34, 151.4, -33.7}, "EPSG:4326", "EPSG:32756");
    row("a town on its grid", {9.8, 49.7, 10.1, 49.9}, "EPSG:31468", "EPSG:31468");
    row("a town of a web map", {9.8, 49.7, 10.1, 49.9}, "EPSG:3857", "EPSG:32632");
    row("Germany on its grid", {5.9, 47.3, 15, 55}, "EPSG:25832", "EPSG:25832");
    row("Fiji", {176.9, -20.7, 181.5, -12.5}, "EPSG:4326", "+proj=laea +lat_0=-16.5 +lon_0=179");
  }
  void theProjectionSuitsTheArea() {
    QFETCH(QVector<double>, area);
    QFETCH(QString, own);
    QFETCH(QString, expected);
    auto const choice = ProjectionChoice::forArea({area[0], area[1], area[2], area[3]}, {own});
    QVERIFY2(choice.definition.startsWith(expected), qPrintable(choice.definition));
  }

  // 8 by 8 squares and what goes across the antimeridian.
  void areasAndTheirNeighbours() {
    LayerSurvey const survey = surveyOf(makeSquares(path("squares.gpkg"), 1));
    QCOMPARE(survey.count, 64);
    auto const groups = groupsOfNeighbours(survey, "name", 5);
    QHash<QString, int> groupOf;
    for (size_t group = 0; group < groups.size(); ++group)
      for (QString const& name : groups[group]) groupOf[name] = static_cast<int>(group);
    QCOMPARE(groupOf.size(), 64);
    for (int i = 0; i < 64; ++i)
      for (int const next : {i + 1, i + 8})
        if (next < 64 && (next != i + 1 || next % 8 != 0))
          QVERIFY(groupOf[QStringLiteral("Square %1").arg(i)] != groupOf[QStringLiteral("Square %1").arg(next)]);

    GlobeArea const fiji =
        surveyOf(makeData(path("fiji.gpkg"), {{"LINESTRING(177 -18,179.9 -17)", "a", 1}, {"POINT(-179 -16)", "b", 2}}))
            .extent.area();
    QVERIFY(std::abs(fiji.west - 177) < 0.11 && std::abs(fiji.east - 181) < 0.11);
  }

  void thePageHoldsAllOfTheData_data() {
    QTest::addColumn<QStringList>("geometries");
    QTest::addColumn<int>("system");
    QTest::newRow("world") << QStringList{"POLYGON((-170 -60,170 -60,170 80,-170 80,-170 -60))", "POINT(0 0)"} << 4326;
    QTest::newRow("points in metres") << QStringList{"POINT(560000 5520000)", "POINT(580000 5530000)"} << 25832;
    QTest::newRow("one place") << QStringList{"POINT(8.5 47.4)"} << 4326;
    QTest::newRow("all kinds") << QStringList{"POINT(8 47)", "LINESTRING(8 47,9 48)", "POLYGON((8 47,9 47,9 48,8 47))"}
                               << 4326;
    QTest::newRow("nothing") << QStringList() << 4326;
  }
  void thePageHoldsAllOfTheData() {
    QFETCH(QStringList, geometries);
    QFETCH(int, system);
    QList<QByteArray> texts;
    std::vector<MadeFeature> features;
    for (QString const& one : geometries) texts << one.toUtf8();
    for (QByteArray const& one : texts)
      features.push_back({one.constData(), QString("Thing %1").arg(texts.indexOf(one)), 10});
    QString const file = makeData(path(QString(QTest::currentDataTag()) + ".gpkg"), features, system);
    SysCarto::MapDocument document;
    NewMapRequest request;
    request.data = {{file, QString()}};
    request.title = "A title that is long enough to need the whole width of the page and then some, as titles do";
    NewMapResult const made = makeNewMap(request, document);
    QCOMPARE(made.problem, QString());
    QCOMPARE(made.warnings.isEmpty(), !geometries.isEmpty());
    auto const layout = document.GetPageLayout();
    auto const page = layout->GetPage()->GetPageEnvelope();
    for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
      auto const boundary = element->GetBoundary(layout->GetDisplayTransformation())->GetEnvelope();
      QVERIFY2(page->GetXMin() <= boundary->GetXMin() && page->GetYMin() <= boundary->GetYMin() &&
                   boundary->GetXMax() <= page->GetXMax() && boundary->GetYMax() <= page->GetYMax(),
               qPrintable(element->GetName()));
    }
    auto const map = document.GetMap(0);
    QSet<QString> names;
    for (auto const& layer : map->GetLayers()) names << layer->GetName();
    QCOMPARE(names.size(), map->GetLayerCount());  // a legend knows layers by their names
    for (auto const& layer : map->GetLayers()) {
      auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer);
      auto const box = vector->features().box();
      auto const extent = map->GetExtent();
      QVERIFY(vector->features().size() == 0 || (extent->GetXMin() < box.xmin && box.xmax < extent->GetXMax() &&
                                                 extent->GetYMin() < box.ymin && box.ymax < extent->GetYMax()));
    }
    // What it is saved as is what is read again.
    QVERIFY(document.SaveAs(path("made.kdx"), true, false));
    SysCarto::MapDocument again;
    QVERIFY(again.Open(path("made.kdx")));
    QCOMPARE(SysCarto::MapDocumentHost::text(again), contentOf(path("made.kdx")));
  }

  void aRasterLooksAsItsBandsSay_data() {
    Rows<GDALDataType, int, double, QStringList, QStringList> row;
    row("heights", GDT_Float32, 1, 0.0, {"ramp normal", "hillshade multiply"}, {"200", "150", "100", "50", "0"});
    row("a sea, too", GDT_Int16, 1, -80.0, {"ramp normal", "hillshade multiply"}, {"80", "< 0", "-50", "-100"});
    row("a picture", GDT_Byte, 3, 0.0, {"color normal"}, {});
    row("greys", GDT_Byte, 1, 0.0, {"color normal"}, {});
  }
  void aRasterLooksAsItsBandsSay() {
    auto const [type, bands, from, looks, told] = fetched<GDALDataType, int, double, QStringList, QStringList>();
    QString const file = makeRaster(path("heights.tif"), type, bands, from);
    SysCarto::MapDocument document;
    NewMapRequest request;
    request.data = {{makeData(path("place.gpkg"), {{"POINT(562000 5528000)", "a", 1}}, 25832), {}}, {file, {}}};
    QCOMPARE(makeNewMap(request, document).problem, QString());
    QJsonArray const layers =
        QJsonDocument::fromJson(SysCarto::MapDocumentHost::text(document))["maps"][0]["layers"].toArray();
    QStringList found;
    for (QJsonValue const& layer : layers)
      if (layer["type"] == "raster")
        found << layer["renderer"]["type"].toString() + ' ' + layer["blend"].toString("normal");
    QCOMPARE(found, looks);
    QCOMPARE(layers.last()["type"].toString(), QString("feature"));
    QStringList labels;
    for (auto const& one : document.GetMap(0)->GetLayer(0)->legendClasses()) labels << one.label;
    for (QString const& label : told) QVERIFY2(labels.contains(label), qPrintable(labels.join(' ')));
    QVERIFY(document.GetMap(0)->GetExtent()->GetWidth() > 4000);
  }

  // Sixty places of a town, and one without coordinates; then eleven far ones, which are no mistake.
  void aMistakeDoesNotDecideTheExtent() {
    std::vector<QByteArray> texts;
    for (int i = 0; i < 60; ++i)
      texts.push_back(QStringLiteral("POINT(%1 %2)").arg(9.9 + i % 8 * 0.01).arg(49.8 + i / 8 * 0.01).toUtf8());
    auto const systemOf = [&](char const* name, int far) {
      std::vector<MadeFeature> features;
      for (QByteArray const& text : texts) features.push_back({text.constData(), "a", 1});
      for (int i = 0; i < far; ++i) features.push_back({"POINT(0 0)", "b", 1});
      SysCarto::MapDocument document;
      NewMapRequest request;
      request.data = {{makeData(path(name), features), QString()}};
      auto const made = makeNewMap(request, document);
      auto const map = document.GetMap(0);
      bool const isTown = map->GetExtent()->GetWidth() < 20000 && map->GetExtent()->GetHeight() < 20000;
      bool const isTold = made.explanation.join(" ").contains("lie far from all others");
      return isTown && isTold ? map->GetCoordinateSystem() : isTold || isTown ? "half" : QString();
    };
    QCOMPARE(systemOf("mistake.gpkg", 1), QString("EPSG:32632"));
    QCOMPARE(systemOf("places.gpkg", 11), QString());
  }

  // A page of an office: the largest text is its name, and one in a group names the template's map.
  void aTemplateKeepsWhatIsItsOwn() {
    QString const file = makeData(path("town.gpkg"), {{"POINT(8 47)", "a", 1}, {"POINT(8.1 47.1)", "b", 2}});
    put(path("office.kdx"), R"({"format": "plotvane-document", "version": 1, "page": {"form": "A4"},
        "maps": [{"name": "Old", "bounds": [0, 0, 1, 1], "layers": []}], "elements": [
        {"type": "dataFrame", "map": 0, "rectangle": [1, 3, 20, 28]},
        {"type": "text", "text": "Office", "position": [1, 1], "symbol": {"type": "text", "size": 40}},
        {"type": "text", "name": "Title", "text": "T", "position": [1, 28], "symbol": {"type": "text", "size": 9}},
        {"type": "group", "members": [{"type": "text", "text": "[crs:Old] [scale]", "position": [9, 1],
                                       "symbol": {"type": "text", "size": 8}}]}]})");
    SysCarto::MapDocument document;
    NewMapRequest request;
    request.data = {{file, QString()}};
    request.title = "Towns";
    request.templateFile = path("office.kdx");
    NewMapResult const made = makeNewMap(request, document);
    QCOMPARE(made.problem, QString());
    QByteArray const text = SysCarto::MapDocumentHost::text(document);
    for (char const* part : {"\"text\": \"Office\"", "\"text\": \"Towns\"", "[crs:Towns] [scale]"})
      QVERIFY2(text.contains(part), part);
    QVERIFY(!text.contains("\"T\""));
    QVERIFY(made.explanation.join('|').contains(": Office"));
  }

  // The areas of the same layer are far larger than its points.
  void outlinesLeaveSmallAreasTheirColour() {
    auto const widthFor = [&](double side) {
      LayerStyling styling(400, GlobeArea());
      QString const file = makeSquares(path(QStringLiteral("squares-%1.gpkg").arg(side)), side);
      QJsonObject const renderer = styling.style({surveyOf(file)}).at(0).json["renderer"].toObject();
      QJsonValue const first = renderer.contains("classes") ? renderer["classes"][0] : QJsonValue(renderer);
      return first["symbol"]["outline"]["width"].toDouble();
    };
    QVERIFY(widthFor(1) > 0.3);
    double const fine = widthFor(0.02);  // which are 0.5 mm wide on the page
    QVERIFY2(fine > 0.1 && fine < 0.2, qPrintable(QString::number(fine)));
    QCOMPARE(widthFor(0.01), 0.0);
    QCOMPARE(widthFor(0.001), 1.4);  // marks, since nothing else would be seen
  }

  void unusualDataBecomeMaps_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("told");
    auto const row = [](char const* name, char const* content, char const* system, char const* told) {
      QTest::newRow(name) << QString(name) << QString(content) << QString(system) << QString(told);
    };
    row("laenge.csv", "Länge;Breite;Ort\n8;47;a\n9;48;b\n", "EPSG:32632", "");
    row("head.csv", "lon,lat,name\n", "EPSG:8857", "There are no features in");
    row("mars.geojson",
        R"({"type":"FeatureCollection","crs":{"type":"name","properties":{"name":"urn:ogc:def:crs:IAU_2015::49900"}},
        "features":[{"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[226,18]}}]})",
        "IAU:49900", "");
  }
  void unusualDataBecomeMaps() {
    QFETCH(QString, name);
    QFETCH(QString, content);
    QFETCH(QString, system);
    QFETCH(QString, told);
    SysCarto::MapDocument document;
    NewMapRequest request;
    request.data = {{put(path(name), content.toUtf8()), QString()}};
    auto const made = makeNewMap(request, document);
    QCOMPARE(made.problem, QString());
    QCOMPARE(document.GetMap(0)->GetCoordinateSystem(), system);
    QString const said = made.warnings.join(' ');
    QVERIFY2(told.isEmpty() ? said.isEmpty() : said.contains(told), qPrintable(said));
  }

  void pointsAreSizedByTheirOwnNumbers() {
    std::vector<QByteArray> texts;
    for (int i = 0; i < 40; ++i)
      texts.push_back(QStringLiteral("POINT(%1 %2)").arg(8 + i % 8).arg(47 + i / 8).toUtf8());
    std::vector<MadeFeature> features;
    for (QByteArray const& text : texts) features.push_back({text.constData(), text, features.size() + 1.0});
    for (int i = 0; i < 40; ++i) features.push_back({"POLYGON((8 47,16 47,16 52,8 47))", "area", 1e6 + 1000 * i});
    SysCarto::MapDocument document;
    NewMapRequest request;
    request.data = {{makeData(path("mixed.gpkg"), features), QString()}};
    QCOMPARE(makeNewMap(request, document).problem, QString());
    for (auto const& layer : document.GetMap(0)->GetLayers()) {
      if (!layer->GetName().contains("points")) continue;
      auto const& classes = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer)->renderer().classes();
      QCOMPARE(classes.size(), size_t(4));
      QVERIFY(classes.back().minimum > 1 && classes.back().minimum <= 40);
      return;
    }
    QFAIL("no points");
  }

  void readingCanBeStopped() {
    std::vector<MadeFeature> const many(60000, {"POINT(8 47)", "a", 1});
    QString const file = makeData(path("many.gpkg"), many);
    int asked = 0;
    for (int stopAt = 1; stopAt < 4; ++stopAt) {
      SysCarto::MapDocument document;
      NewMapRequest request;
      request.data = {{file, QString()}};
      asked = 0;
      auto const made = makeNewMap(request, document, [&](qint64, qint64) { return ++asked < stopAt; });
      QCOMPARE(made.wasStopped, asked >= stopAt);
      QCOMPARE(made.problem, QString());
      QCOMPARE(!document.GetPageLayout(), made.wasStopped);
    }
    QVERIFY(asked > 0);
  }

  void whatCannotBeMadeIsTold_data() {
    QTest::addColumn<NewMapRequest>("request");
    QTest::addColumn<QString>("told");
    QString const file = makeData(path("some.gpkg"), {{"POINT(8 47)", "a", 1}});
    auto const row = [](char const* name, NewMapRequest const& request, char const* told) {
      QTest::newRow(name) << request << QString(told);
    };
    row("no data", {}, "No data are named");
    row("no file", {{{path("none.gpkg"), QString()}}, {}, {}, {}, {}, {}, {}}, "does not exist");
    row("no such layer", {{{file, "other"}}, {}, {}, {}, {}, {}, {}}, "things");
    row("no such paper", {{{file, QString()}}, {}, "B99", {}, {}, {}, {}}, "A4");
    row("no system", {{{file, QString()}}, {}, {}, {}, "EPSG:1", {}, {}}, "EPSG:1");
    row("a filter that suits nothing", {{{file, QString()}}, {}, {}, {}, {}, {}, "size > 3"}, "size > 3");
    row("no template", {{{file, QString()}}, {}, {}, {}, {}, path("none.kdx"), {}}, "none.kdx");
  }
  void whatCannotBeMadeIsTold() {
    QFETCH(NewMapRequest, request);
    QFETCH(QString, told);
    SysCarto::MapDocument document;
    QString const problem = makeNewMap(request, document).problem;
    QVERIFY2(problem.contains(told), qPrintable(problem));
    QVERIFY(!document.GetPageLayout());
  }

private:
  QTemporaryDir folder_;
  QString path(QString const& name) const { return folder_.filePath(name); }
};

QTEST_MAIN(NewMapTest)
#include "tst_new_map.moc"
