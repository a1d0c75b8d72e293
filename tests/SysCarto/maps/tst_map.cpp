#include "Test.h"

#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/projection/CoordinateSystem.h"

#include <cmath>
#include <limits>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double semiMajor = 6378137.0, eccentricity2 = 0.0066943799901413165;

// Metres of ground on a radian of longitude, on WGS 84.
double metresPerRadian(double latitude) {
  double const sine = std::sin(latitude * pi / 180);
  return semiMajor * std::cos(latitude * pi / 180) / std::sqrt(1 - eccentricity2 * sine * sine);
}

double mercatorY(double latitude) { return semiMajor * std::log(std::tan(pi / 4 + latitude * pi / 360)); }

// Equal Earth at its centre: x is 2√3 / (3 A1) authalic radii a radian.
double equalEarthUnit() {
  double const authalicRadius = 6371007.1809;
  return semiMajor / (authalicRadius * 2 * std::sqrt(3.0) / (3 * 1.340264));
}

_ptr_t<Map> mapOf(QString const& coordinateSystem, double x, double y, double width) {
  auto const map = make<Map>();
  MapHost::setFrameSize(*map, 20, 10);
  map->SetCoordinateSystem(coordinateSystem);
  map->SetExtent(make<Envelope>(x - width / 2, y - width / 4, x + width / 2, y + width / 4));
  return map;
}

double relativeError(double value, double expected) { return std::abs(value / expected - 1); }

}  // namespace

class MapTest : public QObject {
  Q_OBJECT

private slots:
  void theScaleHasGroundMetresAtTheCentre_data() {
    Rows<QString, double, double, double, double, double> row;
    // clang-format off
    row("plain coordinates are metres", "", 3e5, 5e6, 2000.0, 1.0, 1e-12);
    row("Mercator on the equator", "EPSG:3857", 0.0, 0.0, 2000.0, 1.0, 1e-6);
    row("Mercator at 60° doubles the ground", "EPSG:3857", 1e6, mercatorY(60), 2000.0, metresPerRadian(60) / semiMajor, 1e-6);
    row("Equal Earth stretches at its centre", "EPSG:8857", 0.0, 0.0, 1e6, equalEarthUnit(), 1e-6);
    row("degrees on the equator", "EPSG:4326", 10.0, 0.0, 10.0, metresPerRadian(0) * pi / 180, 1e-6);
    row("degrees at 60° south", "EPSG:4326", 10.0, -60.0, 10.0, metresPerRadian(60) * pi / 180, 1e-6);
    row("degrees at the pole keep a scale", "EPSG:4326", 10.0, 90.0, 10.0, metresPerRadian(89) * pi / 180, 1e-6);
    row("feet", "EPSG:2264", 2e6, 6e5, 1e4, 1200.0 / 3937.0, 2e-4);
    row("beyond the edge a unit is nominal", "EPSG:8857", 9e7, 9e7, 1000.0, 1.0, 1e-12);
    row("a system that nobody knows", "EPSG:1", 0.0, 0.0, 1000.0, 1.0, 1e-12);
    // clang-format on
  }
  void theScaleHasGroundMetresAtTheCentre() {
    auto const [coordinateSystem, x, y, width, metresPerUnit, tolerance] =
        fetched<QString, double, double, double, double, double>();
    auto const map = mapOf(coordinateSystem, x, y, width);
    double const expected = width * metresPerUnit / 0.2;
    double const scale = map->GetDisplayTransformation()->GetMapScale();
    QVERIFY2(relativeError(scale, expected) <= tolerance,
             qPrintable(QString("1:%1, expected 1:%2").arg(scale).arg(expected)));
  }

  void theExtentHasTheAspectOfTheFrame_data() {
    Rows<double, double, double, double> row;
    row("a wide extent in a tall frame", 7.3, 21.17, 5000.0, 100.0);
    row("a tall extent in a wide frame", 28.1, 3.0, 1.0, 700.0);
    row("a poster", 500.0, 300.0, 1e7, 1e7);
  }
  void theExtentHasTheAspectOfTheFrame() {
    auto const [widthCm, heightCm, extentWidth, extentHeight] = fetched<double, double, double, double>();
    auto const map = make<Map>();
    map->SetExtent(make<Envelope>(50.0, 70.0, 50 + extentWidth, 70 + extentHeight));
    MapHost::setFrameSize(*map, widthCm, heightCm);

    auto const extent = map->GetExtent();
    QVERIFY(relativeError(extent->GetWidth() / extent->GetHeight(), widthCm / heightCm) < 1e-9);
    QVERIFY(std::abs(extent->GetAnchorPoint()->GetX() - (50 + extentWidth / 2)) < 1e-9 * extentWidth);
    auto const mapping = map->GetDisplayTransformation();
    QVERIFY(relativeError(mapping->PixelsPerPoint() / mapping->ToDevice().m11(),
                          extent->GetWidth() / widthCm * 2.54 / 72) < 1e-3);
    QVERIFY(std::abs(extent->GetAnchorPoint()->GetY() - (70 + extentHeight / 2)) < 1e-9 * extentHeight);
    QVERIFY(relativeError(std::max(extentWidth / extent->GetWidth(), extentHeight / extent->GetHeight()), 1) < 1e-9);
    QCOMPARE(MapHost::storedBounds(*map).GetWidth(), 50 + extentWidth - 50);

    auto const corner = map->GetDisplayTransformation()->FromMapPoint(extent->GetXMax(), extent->GetYMin());
    QCOMPARE(corner, QPoint(qRound(widthCm * 10000), qRound(heightCm * 10000)));
    QVERIFY(relativeError(map->GetDisplayTransformation()->GetMapScale(), extent->GetWidth() / widthCm * 100) < 1e-9);
  }

  void aLockedScaleIsKeptByFrameAndExtent_data() {
    Rows<QString, double, double> row;
    row("plain coordinates", "", 3e5, 5e6);
    row("Mercator in the north", "EPSG:3857", 1e6, mercatorY(60));
    row("degrees", "EPSG:4326", 10, 45);
  }
  void aLockedScaleIsKeptByFrameAndExtent() {
    auto const [system, x, y] = fetched<QString, double, double>();
    auto const map = mapOf(system, x, y, 2);
    auto const unlocked = map->GetExtent();
    MapHost::lockScale(*map, 25000);
    auto const groundCm = [&, system = system] {
      // What a map without a lock makes of the same extent.
      auto const free = mapOf(system, 0, 0, 2);
      auto const extent = map->GetExtent();
      MapHost::setFrameSize(*free, 20, 20 * extent->GetHeight() / extent->GetWidth());
      free->SetExtent(extent);
      return free->GetDisplayTransformation()->GetMapScale() * 20;
    };
    QVERIFY(relativeError(groundCm(), 25000.0 * 20) < 1e-6);
    MapHost::setFrameSize(*map, 7, 31);
    QCOMPARE(map->GetDisplayTransformation()->GetMapScale(), 25000.0);
    QVERIFY(relativeError(groundCm(), 25000.0 * 7) < 1e-6);
    QVERIFY(std::abs(map->GetExtent()->GetAnchorPoint()->GetX() - x) < 1e-9 * std::abs(x));
    map->SetExtent(make<Envelope>(x - 7, y - 9, x - 1, y - 3));
    QVERIFY(relativeError(groundCm(), 25000.0 * 7) < 1e-6);
    QVERIFY(std::abs(map->GetExtent()->GetAnchorPoint()->GetX() - (x - 4)) < 1e-9 * std::abs(x));
    MapHost::lockScale(*map, 0);
    map->SetExtent(unlocked);
    MapHost::setFrameSize(*map, 20, 10);
    QVERIFY(relativeError(map->GetExtent()->GetWidth(), unlocked->GetWidth()) < 1e-9);
  }

  void whatAMapCannotShowIsIgnored() {
    auto const map = mapOf("", 0, 0, 100);
    map->SetExtent(make<Envelope>(1e13, 0.0, 2e13, 1e13));   // farther than any map
    map->SetExtent(make<Envelope>(0.0, 0.0, 1e-10, 1e-10));  // smaller than any
    QCOMPARE(MapHost::storedBounds(*map).GetWidth(), 100.0);
    for (double side : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
      MapHost::setFrameSize(*map, side, side);
      QCOMPARE(map->GetDisplayTransformation()->GetMapScale(), 500.0);
    }
  }

  void aCoordinateSystemIsChecked_data() {
    Rows<QString, QString> row;
    // clang-format off
    row("plain coordinates", "", "");
    row("a code", "EPSG:8857", "");
    row("a code and one of heights", "EPSG:25832+7837", "");
    row("a URN", "urn:ogc:def:crs:EPSG::3035", "");
    row("a PROJ text", "+proj=utm +zone=33 +datum=WGS84", "");
    row("no grid at all", "+proj=merc +a=6378137 +b=6378137 +nadgrids=@null", "");
    row("WKT", R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])", "");
    row("an unknown code", "EPSG:99999", "PROJ knows");
    row("broken WKT", "PROJCS[\"a", "PROJ knows");
    row("geocentric", "EPSG:4978", "neither geographic nor projected");
    row("a file", PLOTVANE_SOURCE_DIR "/LICENSE", "no coordinate system");
    row("an address", "https://example.org/3857.prj", "no coordinate system");
    row("a dictionary", "DICT:/etc/passwd,1", "no coordinate system");
    row("a grid file", "+proj=longlat +nadgrids=/etc/passwd", "names a file");
    row("a spaced grid file", "+proj=longlat +geoidgrids = /etc/passwd", "names a file");
    row("an init file", "+proj=longlat +init=/tmp/x:1", "names a file");
    row("without end", QString("+proj=longlat ").repeated(10000), "longer");
    // clang-format on
  }
  void aCoordinateSystemIsChecked() {
    auto const [definition, complaint] = fetched<QString, QString>();
    QString const answer = checkCoordinateSystem(definition);
    if (complaint.isEmpty())
      QCOMPARE(answer, QString());
    else
      QVERIFY2(answer.contains(complaint), qPrintable(answer));
  }
};

QTEST_MAIN(MapTest)
#include "tst_map.moc"
