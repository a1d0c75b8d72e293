#include "Test.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/SystemCatalogue.h"
#include "host/SysCarto/projection/SystemDescription.h"

using namespace SysCarto;
using SysGeometry::Box;

namespace {

GlobeBox const germany{5.9, 47.3, 15.0, 55.1}, fiji{176.0, -20.0, -178.0, -15.0}, everywhere{-180, -90, 180, 90};

QStringList found(SystemQuery const& query, size_t most) {
  auto const& catalogue = SystemCatalogue::instance();
  QStringList codes;
  for (int const number : catalogue.search(query)) {
    if (static_cast<size_t>(codes.size()) == most) break;
    codes << catalogue.systems()[number].code;
  }
  return codes;
}

}  // namespace

// Coordinate systems looked for, and what is told of them.
class SystemsTest : public QObject {
  Q_OBJECT

private slots:
  void theOneThatIsMeantComesFirst_data() {
    Rows<QString, QString> row;
    row("a number alone is a code", "3035", "EPSG:3035");
    row("a whole code", "epsg:25832", "EPSG:25832");
    row("words of the name in any order", "33 utm", "EPSG:32633");
    row("words that are written together", "utm33", "EPSG:32633");
    row("the south is said", "utm 33s", "EPSG:32733");
    row("the datum is said", "ETRS89 utm 33", "EPSG:25833");
    row("beginnings of words", "etrs laea", "EPSG:3035");
    row("a name that has little more than the word", "wgs84", "EPSG:4326");
    row("what people call it", "web mercator", "EPSG:3857");
    row("a name with a hyphen", "lambert 93", "EPSG:2154");
    row("a name with underscores", "world robinson", "ESRI:54030");
    row("letters with accents", "rgf93 Lambert-93 v1", "EPSG:2154");
    row("a country, as its own maps are", "switzerland", "EPSG:2056");
    row("a small country", "liechtenstein lv95", "EPSG:2056");
    row("a country in the name", "british national grid", "EPSG:27700");
  }
  void theOneThatIsMeantComesFirst() {
    auto const [words, code] = fetched<QString, QString>();
    SystemQuery query;
    query.words = words;
    QCOMPARE(found(query, 1), QStringList(code));
  }

  void allWordsHaveToBeThereAndFiltersHold() {
    auto const& catalogue = SystemCatalogue::instance();
    SystemQuery query;
    query.words = "germany utm";
    for (int const number : catalogue.search(query)) {
      KnownSystem const& system = catalogue.systems()[number];
      QVERIFY2((system.name + system.area).contains("Germany") && system.name.contains("UTM"),
               qPrintable(system.name + ": " + system.area));
      QVERIFY(!system.isDeprecated);
    }
    QVERIFY(found(query, 100).contains("EPSG:25832"));
    query.words = "germany utm nonsense";
    QVERIFY(found(query, 1).isEmpty());

    query.words = "4326";
    query.kind = SystemQuery::Kind::Projected;
    QVERIFY(!found(query, 100).contains("EPSG:4326"));
    query.kind = SystemQuery::Kind::Geographic;
    QVERIFY(found(query, 100).contains("EPSG:4326"));

    query = {};
    query.words = "2400";  // RT90 2.5 gon W, which was replaced
    QVERIFY(!found(query, 100).contains("EPSG:2400"));
    query.hasDeprecated = true;
    QVERIFY(found(query, 100).contains("EPSG:2400"));
  }

  void aMapInAZoneBringsItsZoneForward() {
    SystemQuery query;
    query.words = "etrs89 utm zone";
    query.extent = {9, 48, 11, 50};
    QCOMPARE(found(query, 1), QStringList("EPSG:25832"));
    query.extent = {13, 48, 14, 50};
    QCOMPARE(found(query, 1), QStringList("EPSG:25833"));
  }

  void aBoxOfTheGlobeHoldsAnother_data() {
    Rows<GlobeBox, GlobeBox, bool> row;
    row("one within", {5, 40, 20, 60}, germany, true);
    row("one that reaches out", germany, {5, 40, 20, 60}, false);
    row("across the 180th meridian", {170, -30, -170, 0}, fiji, true);
    row("not on the other side of the world", {-170, -30, 170, 0}, fiji, false);
    row("the whole world holds what lies across", everywhere, fiji, true);
    row("not the whole world", fiji, everywhere, false);
    row("nothing holds nothing", {}, {}, false);
    row("what isn't known is in none", everywhere, {}, false);
  }
  void aBoxOfTheGlobeHoldsAnother() {
    auto const [outer, inner, holds] = fetched<GlobeBox, GlobeBox, bool>();
    QCOMPARE(outer.contains(inner), holds);
  }

  // Expected: by the formulas of the projections, on the sphere or the equator.
  void aRectangleOfAMapIsAPartOfTheGlobe_data() {
    Rows<QString, Box, GlobeBox> row;
    row("degrees", "EPSG:4326", {-20, 10, 30, 40}, {-20, 10, 30, 40});
    row("the whole world in degrees", "EPSG:4326", {-180, -90, 180, 90}, everywhere);
    double const degree = 6371000 * M_PI / 180;
    row("across the 180th meridian", "+proj=eqc +lon_0=170 +R=6371000", {-20 * degree, 0, 20 * degree, 10 * degree},
        {150, 0, -170, 10});
    row("a pole in the middle", "+proj=laea +lat_0=90 +R=6371000", {-1e6, -1e6, 1e6, 1e6}, {-180, 77.26, 180, 90});
    row("more than there is", "+proj=ortho +lat_0=0 +lon_0=10 +R=6371000", {-7e6, -7e6, 7e6, 7e6}, {-80, -90, 100, 90});
    row("plain coordinates", "", {0, 0, 100, 100}, {});
  }
  void aRectangleOfAMapIsAPartOfTheGlobe() {
    auto const [system, rectangle, expected] = fetched<QString, Box, GlobeBox>();
    GlobeBox const box = globeBoxOf(rectangle, system);
    QCOMPARE(box.isEmpty(), expected.isEmpty());
    double const near = 7;  // of the grid, at the edge of a globe
    double const sides[] = {box.west - expected.west, box.south - expected.south, box.east - expected.east,
                            box.north - expected.north};
    for (double const side : sides)
      QVERIFY2(expected.isEmpty() || std::abs(side) < (system.contains("ortho") ? near : 0.01),
               qPrintable(QString("%1 %2 %3 %4").arg(box.west).arg(box.south).arg(box.east).arg(box.north)));
  }

  void itsFactsAreTold() {
    auto const told = describeSystem("EPSG:3035");
    QVERIFY(told);
    QCOMPARE(told->code, QString("EPSG:3035"));
    QCOMPARE(told->method, QString("Lambert Azimuthal Equal Area"));
    QCOMPARE(told->unit, QString("metre"));
    QVERIFY(told->datum.contains("European Terrestrial Reference System 1989"));
    QVERIFY(told->use.contains(germany) && !told->use.contains(fiji));
    QVERIFY(told->wkt.startsWith("PROJCRS[") && told->wkt.contains('\n'));
    QVERIFY(!describeSystem("+proj=nonsense"));
    QVERIFY(describeSystem("+proj=laea +lat_0=52 +lon_0=10 +datum=WGS84")->use.isEmpty());
  }

  void whatIsFoundCanBeUsed() {
    auto const& systems = SystemCatalogue::instance().systems();
    QVERIFY(systems.size() > 5000);
    for (size_t i = 0; i < systems.size(); i += 97)
      QVERIFY2(checkCoordinateSystem(systems[i].code).isEmpty(), qPrintable(systems[i].code));
  }
};

QTEST_MAIN(SystemsTest)
#include "SystemsTest.moc"
