#include "LayerFixture.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <ogr_spatialref.h>

#include <cmath>

using namespace SysCarto;

namespace {

constexpr double step = 5;           // degrees between places
constexpr int pixels = 40;           // of a side of the map
constexpr double nearEnough = 0.01;  // degrees
constexpr double degree = M_PI / 180;

// Whether an area of the map covers a place, by the even-odd rule within each polygon.
class Cover {
public:
  explicit Cover(FeatureStore const& store) {
    for (Part const& part : store.parts) {
      if (part.kind != PartKind::Ring && part.kind != PartKind::FilledRing) continue;
      if (part.startsPolygon || polygons_.empty()) polygons_.emplace_back();
      SysGeometry::Ring ring(part.count);
      for (int i = 0; i < part.count; ++i) ring[i] = QPointF(part.xy[2 * i], part.xy[2 * i + 1]);
      polygons_.back().emplace_back(part.box, ring);
    }
  }
  bool holds(double x, double y) const {
    return std::any_of(polygons_.begin(), polygons_.end(), [&](auto const& rings) {
      return std::count_if(rings.begin(), rings.end(),
                           [&](auto const& ring) {
                             return ring.first.contains(x, y) && SysGeometry::contains(ring.second, x, y);
                           }) %
             2;
    });
  }

private:
  std::vector<std::vector<std::pair<Box, SysGeometry::Ring>>> polygons_;
};

// There and back, by PROJ alone.
class Ways {
public:
  explicit Ways(QString const& system) : system_(makeCoordinateSystem(system)) {
    auto const globe = makeCoordinateSystem(QStringLiteral("EPSG:4326"));
    there_.reset(OGRCreateCoordinateTransformation(globe.get(), system_.get()));
    back_.reset(OGRCreateCoordinateTransformation(system_.get(), globe.get()));
    for (auto const& way : {there_.get(), back_.get()}) way->SetEmitErrors(false);
  }
  // False where a place doesn't come back.
  bool project(QPointF const& place, QPointF& onMap) const {
    double x = place.x(), y = place.y();
    int ok = 0;
    CPLPushErrorHandler(CPLQuietErrorHandler);
    bool isShown = there_->Transform(1, &x, &y, nullptr, nullptr, &ok) && ok && std::abs(x) < farthest() &&
                   std::abs(y) < farthest();
    onMap = {x, y};
    if (isShown && knowsWayBack) {
      isShown = back_->Transform(1, &x, &y, nullptr, nullptr, &ok) && ok && std::abs(y - place.y()) < nearEnough &&
                std::abs(std::remainder(x - place.x(), 360.0)) * std::cos(y * degree) < nearEnough;
    }
    CPLPopErrorHandler();
    return isShown;
  }
  bool unproject(QPointF const& onMap, QPointF& place) const {
    double x = onMap.x(), y = onMap.y();
    int ok = 0;
    CPLPushErrorHandler(CPLQuietErrorHandler);
    bool const isKnown = back_->Transform(1, &x, &y, nullptr, nullptr, &ok) && ok && std::abs(y) <= 90;
    CPLPopErrorHandler();
    place = {std::remainder(x, 360.0), y};
    return isKnown;
  }

  bool knowsWayBack = true;

private:
  double farthest() const { return system_->IsGeographic() ? 1000 : 3.5e7; }

  std::unique_ptr<OGRSpatialReference> system_;
  std::unique_ptr<OGRCoordinateTransformation> there_, back_;
};

}  // namespace

class CoordinateSystemsTest : public QObject {
  Q_OBJECT

private slots:
  void landIsLandAndSeaIsSea_data();
  void landIsLandAndSeaIsSea();
  void whatHasNoPlaceIsTold_data();
  void whatHasNoPlaceIsTold();
  void noRingGoesRoundTheGlobe();
  void farBeyondTheGlobeThereIsNothing();
};

void CoordinateSystemsTest::landIsLandAndSeaIsSea_data() {
  Rows<QString, bool, double> row;
  row("a strip", "EPSG:8857", true, 0.01);
  row("a disk", "+proj=laea +lat_0=52 +lon_0=-100 +datum=WGS84", true, 0.01);
  row("Gauss–Schreiber, in its own place", "EPSG:2990", true, 0.01);
  row("transverse Mercator", "EPSG:32633", true, 0.01);
  row("transverse Mercator from the south pole", "+proj=tmerc +lat_0=-90 +lon_0=30 +datum=WGS84", true, 0.01);
  row("a prime meridian on the other side", "+proj=moll +pm=180 +datum=WGS84", true, 0.01);
  row("longitudes from Jakarta", "+proj=longlat +pm=jakarta +datum=WGS84", true, 0.01);
  row("longitudes from 0 to 360", "+proj=longlat +lon_wrap=180 +datum=WGS84", true, 0.01);
  row("grads from Paris", "EPSG:27561", true, 0.01);
  row("a polynomial, good in New Zealand", "EPSG:27200", true, 0.01);
  row("a polynomial with a middle that nobody names", "+proj=alsk +datum=WGS84", true, 0.01);
  row("an oblique Mercator", "EPSG:3376", true, 0.01);
  row("an oblique equal area", "+proj=ocea +lat_1=30 +lon_1=-20 +lat_2=40 +lon_2=60 +datum=WGS84", true, 0.01);
  row("Cassini–Soldner far from its middle", "EPSG:3379", true, 0.05);
  row("a turned globe", "+proj=ob_tran +o_proj=eqearth +o_lat_p=30 +o_lon_p=-60 +lon_0=10 +R=6371000", true, 0.01);
  row("a turned globe in degrees", "+proj=ob_tran +o_proj=longlat +o_lat_p=39.25 +o_lon_p=0 +lon_0=18 +R=6371000", true,
      0.01);
  row("lobes", "+proj=igh +lon_0=-160 +datum=WGS84", true, 0.01);
  row("lobes of the oceans", "ESRI:54053", true, 0.01);
  row("squares", "+proj=healpix +datum=WGS84", true, 0.01);
  row("squares with caps", "+proj=rhealpix +lon_0=40 +datum=WGS84", true, 0.01);
  row("the side of a cube, counted in globes", "+proj=s2 +datum=WGS84", true, 0.01);
  row("the track of a satellite", "+proj=lsat +lsat=5 +path=7 +datum=WGS84", true, 0.01);
  row("a short series about Guam", "EPSG:3993", true, 0.01);
  row("a tilted look from space", "+proj=tpers +h=5500000 +lat_0=40 +tilt=30 +azi=20 +R=6371000", true, 0.01);
  row("a projection without a way back", "+proj=bertin1953 +datum=WGS84", false, 0.01);
  row("an icosahedron", "+proj=isea +datum=WGS84", false, 0.01);
}

// Places on the globe, and places on the map. Within half a pixel of a coast they may differ, which are few.
void CoordinateSystemsTest::landIsLandAndSeaIsSea() {
  auto const [system, knowsWayBack, leftOut] = fetched<QString, bool, double>();
  SourceSettings const land{sample("world.gpkg"), QStringLiteral("land"), {}, {}};
  auto const layer = opened(land, system);
  QCOMPARE(layer.error, QString());
  static Cover const onGlobe(opened(land, QStringLiteral("EPSG:4326")).features());
  Cover const onMap(layer.features());
  Ways ways(system);
  ways.knowsWayBack = knowsWayBack;
  int all = 0, wrong = 0;
  Box box;
  for (double latitude = -88.3; latitude < 90; latitude += step)
    for (double longitude = -179.3; longitude < 180; longitude += step / std::cos(latitude * degree)) {
      QPointF place;
      if (!ways.project({longitude, latitude}, place)) continue;
      box.add(place.x(), place.y());
      ++all;
      if (onGlobe.holds(longitude, latitude) != onMap.holds(place.x(), place.y())) ++wrong;
    }
  QVERIFY2(all > 80, qPrintable(QString::number(all)));
  QVERIFY2(wrong <= leftOut * all, qPrintable(QString("%1 of %2 places").arg(wrong).arg(all)));
  for (int i = 0; knowsWayBack && i < pixels * pixels; ++i) {
    QPointF const pixel(box.xmin + (i % pixels + 0.5) / pixels * (box.xmax - box.xmin),
                        box.ymin + (i / pixels + 0.5) / pixels * (box.ymax - box.ymin));
    QPointF place, again;
    bool const isShown = ways.unproject(pixel, place) && ways.project(place, again) &&
                         std::hypot(again.x() - pixel.x(), again.y() - pixel.y()) < (box.xmax - box.xmin) / pixels;
    ++all;
    wrong += onMap.holds(pixel.x(), pixel.y()) && !(isShown && onGlobe.holds(place.x(), place.y()));
  }
  QVERIFY2(wrong <= leftOut * all, qPrintable(QString("%1 of %2 places and pixels").arg(wrong).arg(all)));
}

void CoordinateSystemsTest::whatHasNoPlaceIsTold_data() {
  Rows<QString, QString, QString, QString> row;
  row("data beyond the horizon", "[0,0]", "+proj=ortho +lat_0=0 +lon_0=180 +R=6371000", "", "Nothing of the file");
  row("a projection that PROJ lacks", "[0,0]", "EPSG:2304", "", "PROJ knows no way to project into it");
  row("another celestial body", "[0,0]", "+proj=moll +R=1737400", "", "can't be projected");
  row("geocentric data", "[6378137,0]", "EPSG:8857", "urn:ogc:def:crs:EPSG::4978", "geocentric");
  row("a way that PROJ lacks", "[0,0]", "EPSG:8857", "urn:ogc:def:crs:EPSG::3053", "no way back from their own");
  row("heights alone", "[0,0]", "EPSG:8857", "urn:ogc:def:crs:EPSG::5703", "neither geographic nor projected");
}
void CoordinateSystemsTest::whatHasNoPlaceIsTold() {
  auto const [place, system, source, told] = fetched<QString, QString, QString, QString>();
  QByteArray data = geoJson((R"({"type":"Point","coordinates":)" + place + "}").toUtf8());
  if (!source.isEmpty())
    data.replace(R"("features")",
                 R"("crs":{"type":"name","properties":{"name":")" + source.toUtf8() + R"("}},"features")");
  auto const layer = openedJson(data, system);
  QString const said = layer.error + layer.warnings.join(' ');
  QVERIFY2(said.contains(told), qPrintable(said));
  QVERIFY(layer.features().parts.empty());
}

// An area about the antipode that ends behind the horizon has no part on the map, and not two that cancel out.
void CoordinateSystemsTest::noRingGoesRoundTheGlobe() {
  auto const layer =
      openedJson(geoJson(R"({"type":"Polygon","coordinates":[[[-40,-40],[40,-40],[40,40],[-40,40],[-40,-40]]]})"),
                 "+proj=ortho +lat_0=0 +lon_0=180 +R=6371000");
  QVERIFY(layer.features().parts.empty());
}

// A coordinate that is none takes no time, and the polygon beside it is drawn.
void CoordinateSystemsTest::farBeyondTheGlobeThereIsNothing() {
  auto const layer = openedJson(
      collection({feature(R"({"type":"Polygon","coordinates":[[[-1e300,0],[1e300,1],[7,1e300],[-1e300,0]]]})", "A"),
                  feature(R"({"type":"Polygon","coordinates":[[[10,0],[20,0],[20,9],[10,9],[10,0]]]})", "B")}),
      "EPSG:32633");
  Cover const cover(layer.features());
  QVERIFY(cover.holds(500000, 500000));
}

QTEST_MAIN(CoordinateSystemsTest)
#include "CoordinateSystemsTest.moc"
