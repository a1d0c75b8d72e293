#include "LayerFixture.h"

#include <cmath>

using namespace SysCarto;

namespace {

char const equalEarth[] = "EPSG:8857";
char const equalEarthPacific[] = "+proj=eqearth +lon_0=150 +datum=WGS84";
char const equirectangularPacific[] = "+proj=eqc +lon_0=150 +datum=WGS84";
char const globe[] = "+proj=ortho +lat_0=40 +lon_0=10 +R=6371000";
char const northPole[] = "EPSG:3413";

constexpr double earthArea = 5.10066e14;  // of the WGS 84 ellipsoid, square metres

double signedArea(Part const& part) {
  double const* const xy = part.xy;
  double twice = 0;
  for (int i = 0, j = part.count - 1; i < part.count; j = i++)
    twice += xy[2 * j] * xy[2 * i + 1] - xy[2 * i] * xy[2 * j + 1];
  return twice / 2;
}

bool isFilled(Part const& part) { return part.kind == PartKind::Ring || part.kind == PartKind::FilledRing; }

double areaOf(FeatureStore const& store) {
  double total = 0, polygon = 0;
  for (Part const& part : store.parts) {
    if (!isFilled(part)) continue;
    if (part.startsPolygon) {
      total += std::abs(polygon);
      polygon = 0;
    }
    polygon += signedArea(part);
  }
  return total + std::abs(polygon);
}

// Calls `visit` with the ends of each edge of the parts that are filled, or of those that are stroked.
template <class Visit>
void visitEdges(FeatureStore const& store, bool stroked, Visit const& visit) {
  for (Part const& part : store.parts) {
    if (stroked ? part.kind == PartKind::FilledRing : part.kind == PartKind::Outline) continue;
    double const* const xy = part.xy;
    for (int i = 1; i < part.count; ++i)
      visit(QPointF(xy[2 * i - 2], xy[2 * i - 1]), QPointF(xy[2 * i], xy[2 * i + 1]));
  }
}

double widest(FeatureStore const& store) {
  double width = 0;
  for (Part const& part : store.parts) width = std::max(width, part.box.xmax - part.box.xmin);
  return width;
}

}  // namespace

class ProjectionTest : public QObject {
  Q_OBJECT

private slots:
  void theWholeGlobeFillsItsOutline_data() {
    Rows<QString, double> row;
    row("Equal Earth", equalEarth, earthArea);
    row("Equal Earth, cut in the Atlantic", equalEarthPacific, earthArea);
    row("azimuthal about a place, up to near its antipode", "+proj=laea +lat_0=52 +lon_0=10 +datum=WGS84", earthArea);
    row("azimuthal about Greenwich, whose antipode lies on an edge of the globe", "+proj=laea +lat_0=51.5 +datum=WGS84",
        earthArea);
    row("azimuthal about the south pole", "+proj=laea +lat_0=-90 +datum=WGS84", earthArea);
    row("azimuthal on the antimeridian", "+proj=laea +lat_0=0 +lon_0=180 +datum=WGS84", earthArea);
    row("half the globe seen from above is a disk", globe, M_PI * 6371000.0 * 6371000.0);
    row("a square in web Mercator", "EPSG:3857", std::pow(2 * M_PI * 6378137.0, 2));
    row("degrees", "EPSG:4326", 360.0 * 180.0);
    row("lobes", "+proj=igh +datum=WGS84 +R_A", earthArea);
    row("a turned globe", "+proj=ob_tran +o_proj=eqearth +o_lat_p=30 +o_lon_p=-60 +lon_0=10 +R=6371000",
        4 * M_PI * 6371000.0 * 6371000.0);
    row("an oblique cylinder", "+proj=ocea +lat_1=30 +lon_1=-20 +lat_2=40 +lon_2=60 +R=6371000",
        4 * M_PI * 6371000.0 * 6371000.0);
    row("a belt with eight points", "+proj=healpix +R=6371000", 1.5 * M_PI * M_PI * 6371000.0 * 6371000.0);
  }
  void theWholeGlobeFillsItsOutline() {
    auto const [system, area] = fetched<QString, double>();
    auto const sphere = opened({sample("sphere.geojson"), {}, {}, {}}, system);
    QCOMPARE(sphere.error, QString());
    double const error = areaOf(sphere.features()) / area - 1;
    QVERIFY2(std::abs(error) < 1e-3, qPrintable(QString::number(error)));
    visitEdges(sphere.features(), true, [](QPointF, QPointF) { QFAIL("the border of the map is stroked"); });
  }

  void areasStayWhatTheyAre_data() {
    Rows<QString> row;
    row("cut in the Atlantic", equalEarthPacific);
    row("cut through Europe", "+proj=eqearth +lon_0=-170 +datum=WGS84");
    row("about the north pole", "+proj=laea +lat_0=90 +datum=WGS84");
    row("about the south pole", "+proj=laea +lat_0=-90 +datum=WGS84");
  }
  void areasStayWhatTheyAre() {
    auto const [system] = fetched<QString>();
    SourceSettings const countries{sample("world.gpkg"), QStringLiteral("countries"), {}, {}};
    double const expected = areaOf(opened(countries, equalEarth).features());
    double const error = areaOf(opened(countries, system).features()) / expected - 1;
    QVERIFY(expected > 1.4e14 && expected < 1.55e14);  // the land of the earth
    QVERIFY2(std::abs(error) < 2e-3, qPrintable(QString::number(error)));
  }

  void nothingRunsAcrossTheMap_data() {
    Rows<QString, QString> row;
    for (char const* layer : {"countries", "land"})
      for (char const* system : {equalEarth, equalEarthPacific, equirectangularPacific, globe, northPole, "EPSG:3857",
                                 "EPSG:3031", "EPSG:4326", "+proj=lcc +lat_1=33 +lat_2=45 +lon_0=-96 +datum=WGS84"})
        row(QString("%1 in %2").arg(layer, system), system, layer);
  }
  void nothingRunsAcrossTheMap() {
    auto const [system, layer] = fetched<QString, QString>();
    auto const countries = opened({sample("world.gpkg"), layer, {}, {}}, system);
    int edges = 0;
    double longest = 0;
    visitEdges(countries.features(), false, [&](QPointF a, QPointF b) {
      ++edges;
      longest = std::max(longest, std::hypot(b.x() - a.x(), b.y() - a.y()));
    });
    QVERIFY(edges > 2500);
    Box const& box = countries.features().box();
    QVERIFY2(longest < 0.06 * (box.xmax - box.xmin), qPrintable(QString::number(longest)));
  }

  void theCutIsNotStroked() {
    auto const countries = opened({sample("world.gpkg"), "countries", {}, {}}, equirectangularPacific);
    double const east = M_PI * 6378137.0, north = east / 2;
    int onCut = 0, others = 0;
    visitEdges(countries.features(), true, [&](QPointF a, QPointF b) {
      bool const sides = std::min(std::abs(a.x()), std::abs(b.x())) > east - 1;
      bool const poles = std::min(std::abs(a.y()), std::abs(b.y())) > north - 1;
      bool const dataCut = std::abs(a.x() - east / 6) < 1 && std::abs(b.x() - east / 6) < 1;
      ++(sides || poles || dataCut ? onCut : others);
    });
    QCOMPARE(onCut, 0);
    QVERIFY(others > 50000);
  }

  void whatStepsOverTheAntimeridian_data() {
    Rows<QByteArray, int> row;
    row("an island that was not cut lies on both sides",
        R"({"type":"Polygon","coordinates":[[[179,-10],[-179,-10.5],[-179.5,-5],[179.2,-4],[179,-10]]]})", 1);
    row("so does a track", R"({"type":"LineString","coordinates":[[170,0],[179,5],[-178,8],[-170,9]]})", 10);
    row("longitudes beyond 180 go on at the other side",
        R"({"type":"Polygon","coordinates":[[[170,0],[190,1],[190,10],[170,11],[170,0]]]})", 10);
    row("those that begin at Greenwich go on there",
        R"({"type":"Polygon","coordinates":[[[350,0],[5,1],[10,10],[355,11],[350,0]]]})", 20);
    row("a wide box", R"({"type":"Polygon","coordinates":[[[-170,0],[170,0],[170,9],[-170,9],[-170,0]]]})", 340);
    row("an area beside another one in a collection", R"({"type":"GeometryCollection","geometries":[
        {"type":"Polygon","coordinates":[[[177,-16],[-178,-16.5],[-178,-20],[177,-19],[177,-16]]]},
        {"type":"Polygon","coordinates":[[[0,-19],[10,-19],[10,-17],[0,-17],[0,-19]]]}]})",
        10);
    row("a parallel runs around the map", R"({"type":"LineString","coordinates":[[-180,5],[180,5]]})", 360);
    row("a band with a bent side does, too",
        R"({"type":"Polygon","coordinates":[[[-180,10],[0,14],[180,10],[180,-20],[-180,-20],[-180,10]]]})", 360);
  }
  void whatStepsOverTheAntimeridian() {
    auto const [geometry, widestDegrees] = fetched<QByteArray, int>();
    auto const layer = openedJson(geoJson(geometry), "EPSG:4326");
    QCOMPARE(layer.error, QString());
    QCOMPARE(layer.features().size(), 1);
    QVERIFY2(std::abs(widest(layer.features()) - widestDegrees) < 0.6,
             qPrintable(QString::number(widest(layer.features()))));
  }

  void aParallelIsACircleAboutThePole() {
    auto const layer = openedJson(geoJson(R"({"type":"LineString","coordinates":[[-180,40],[180,40]]})"),
                                  "+proj=stere +lat_0=90 +lon_0=20 +R=6371000");
    FeatureStore const& store = layer.features();
    double const radius = 2 * 6371000.0 * std::tan(25 * M_PI / 180);
    visitEdges(store, true, [&](QPointF a, QPointF b) {
      QPointF const middle = (a + b) / 2;
      QVERIFY(std::abs(std::hypot(middle.x(), middle.y()) - radius) < 11);
    });
    QCOMPARE(store.parts.size(), size_t(1));
    double const* const xy = store.parts[0].xy;
    int const last = 2 * store.parts[0].count - 2;
    QVERIFY(std::hypot(xy[0] - xy[last], xy[1] - xy[last + 1]) < 1);
  }

  // Of an oblique map, whose border goes along neither: one is opposite its middle, and one leads through a place that
  // lies at infinity. On a sphere of radius R, 90° from the middle, y is ±πR/2.
  void meridiansAtTheEdgeOfTheGlobeAreDrawn() {
    auto const lineOf = [](QByteArray const& longitude) {
      return openedJson(
          geoJson(R"({"type":"LineString","coordinates":[[)" + longitude + ",-89],[" + longitude + R"(,89]]})"),
          "+proj=tmerc +R=6371000");
    };
    double const quarter = 6371000 * M_PI / 2;
    for (char const* longitude : {"90", "-180"}) {
      bool const leadsFar = qstrcmp(longitude, "90") == 0;
      auto const layer = lineOf(longitude);
      double length = 0;
      visitEdges(layer.features(), true, [&](QPointF a, QPointF b) {
        if (std::abs(a.x()) < (leadsFar ? 1e7 : 11)) length += QLineF(a, b).length();
        if (leadsFar) QVERIFY(std::abs(std::abs(a.y()) - quarter) < 11);
      });
      QVERIFY2(length > quarter, qPrintable(QString::number(length)));
    }
  }

  void whatLiesBehindTheGlobeIsGone() {
    QByteArray const behind =
        geoJson(R"({"type":"Polygon","coordinates":[[[150,-30],[180,-30],[180,-10],[150,-10],[150,-30]]]})");
    for (char const* system : {"+proj=ortho +lat_0=30 +R=6371000", "+proj=nsper +h=5000000 +lat_0=10 +R=6371000"})
      QCOMPARE(openedJson(behind, system).features().size(), 0);
    auto const cities = opened({sample("world.gpkg"), "cities", {}, {}}, globe);
    int const all = opened({sample("world.gpkg"), "cities", {}, {}}, equalEarth).features().size();
    QCOMPARE(all, 521);
    QVERIFY(cities.features().size() > 300 && cities.features().size() < 500);
    auto const graticule = opened({sample("graticule.geojson"), {}, {}, {}}, globe);
    for (Part const& part : graticule.features().parts) {
      double const* const xy = part.xy;
      for (int i = 0; i < part.count; ++i) QVERIFY(std::hypot(xy[2 * i], xy[2 * i + 1]) < 6371001);
    }
  }

  // A polygon around the pole, in a system of metres about it, has no longitude at its corners that says so.
  void aProjectedSourceAroundThePoleKeepsItsPole() {
    QByteArray const square =
        geoJson(R"({"type":"Polygon","coordinates":[[[-1e6,-1e6],[1e6,-1e6],[1e6,1e6],[-1e6,1e6],[-1e6,-1e6]]]})");
    QString const source = QStringLiteral("+proj=laea +lat_0=90 +datum=WGS84");
    auto const layer = openedJson(square, equalEarthPacific, {}, {}, source);
    QCOMPARE(layer.error, QString());
    double const error = areaOf(layer.features()) / 4e12 - 1;
    QVERIFY2(std::abs(error) < 2e-3, qPrintable(QString::number(error)));
    QVERIFY(std::abs(areaOf(openedJson(square, source, {}, {}, source).features()) - 4e12) < 1);
  }
};

QTEST_MAIN(ProjectionTest)
#include "ProjectionTest.moc"
