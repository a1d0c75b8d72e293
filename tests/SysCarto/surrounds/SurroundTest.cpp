#include "SurroundFixture.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/layout/MapSurroundHost.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysCarto/PageLayout.h>
#include <SysDisplay/Units.h>

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <QScopeGuard>

#include <cmath>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

// The page from (0, 0) to (10, 8) centimetres, at 40 pixels a centimetre.
Sheet const page{Envelope(0, 0, frameWidthCm, frameHeightCm), QSize(400, 320), 40 * 2.54 / 96};

QImage drawn(_ptr_t<Element> const& element) { return page.drawn(sceneOf(element)); }

// Longitude and latitude of a place of a map.
QPointF onGlobe(Map const& map, QPointF const& place) {
  auto const system = makeCoordinateSystem(map.GetCoordinateSystem());
  std::unique_ptr<OGRSpatialReference> globe(system->CloneGeogCS());
  globe->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  std::unique_ptr<OGRCoordinateTransformation> const way(OGRCreateCoordinateTransformation(system.get(), globe.get()));
  double x = place.x(), y = place.y();
  if (!way->Transform(1, &x, &y)) qFatal("a place that is not on the globe");
  return {x, y};
}

// Metres on the ellipsoid between two places of the globe.
double geodesic(QPointF const& a, QPointF const& b) {
  geod_geodesic ellipsoid;
  geod_init(&ellipsoid, 6378137, 1 / 298.257223563);
  double metres = 0;
  geod_inverse(&ellipsoid, a.y(), a.x(), b.y(), b.x(), &metres, nullptr, nullptr);
  return metres;
}

char const* const aegean = "+proj=lcc +lat_1=36 +lat_2=41 +lat_0=38.4 +lon_0=24.6 +datum=WGS84 +units=m";

}  // namespace

class SurroundTest : public QObject {
  Q_OBJECT

private slots:
  void aScaleBarIsAsLongAsTheGroundSays_data() {
    Rows<QString, double, double, double, QByteArray, QString, double> row;
    row("a plan", "EPSG:32634", 500000, 4200000, 10, "{}", "80 m", 80);
    row("metres to the thousands", "EPSG:32634", 500000, 4200000, 250, "{}", "2,000 m", 2000);
    row("a region", aegean, 0, 0, 20000, "{}", "150 km", 0);
    row("far from the standard parallels", aegean, 300000, 900000, 2000, "{}", "", 0);
    row("web Mercator in the north", "EPSG:3857", 1000000, 8400000, 5000, "{}", "", 0);
    row("degrees", "EPSG:4326", 10, 60, 0.01, "{}", "", 0);
    row("miles", aegean, 0, 0, 20000, "{'unit':'mi'}", "100 mi", 160934.4);
    row("kilometres where metres would do", aegean, 0, 0, 100, "{'unit':'km'}", "0.8 km", 800);
    row("four divisions of a round length", aegean, 0, 0, 20000, "{'divisions':4}", "100 km", 100000);
    row("as many of a length as fit", aegean, 0, 0, 20000, "{'divisionLength':45,'unit':'km'}", "180 km", 180000);
    row("yards", "EPSG:32634", 500000, 4200000, 10, "{'unit':'yd'}", "100 yd", 91.44);
    row("centimetres of a plan", "EPSG:32634", 500000, 4200000, 0.1, "{'unit':'cm'}", "80 cm", 0.8);
    row("nautical miles in two rows", aegean, 0, 0, 20000, "{'unit':'nmi','style':'double'}", "80 nmi", 148160);
  }

  void aScaleBarIsAsLongAsTheGroundSays() {
    auto const [system, x, y, unitsPerCm, settings, last, metres] =
        fetched<QString, double, double, double, QByteArray, QString, double>();
    auto const map = mapWithLayer(system, x, y, unitsPerCm);
    auto const frame = framed<ScaleLine>(map, whole, settings);
    double left = INFINITY, right = -INFINITY;
    for (auto const& element : frame->GetMapSurround()->GetElements())
      if (auto const box = ptr_cast<RectangleElement>(element)) {
        left = std::min(left, box->GetEnvelope()->GetXMin());
        right = std::max(right, box->GetEnvelope()->GetXMax());
      }
    QVERIFY(left < right && left >= 0 && right <= frameWidthCm);
    QString const text = textsOf(*frame).last();
    if (metres > 0) QCOMPARE(text, last);
    QString const unit = text.section(' ', 1);
    double const inMetres =
        QMap<QString, double>{{"m", 1}, {"km", 1000}, {"mi", 1609.344}, {"nmi", 1852}, {"yd", 0.9144}, {"cm", 0.01}}
            .value(unit);
    double const stated = text.section(' ', 0, 0).remove(',').toDouble() * inMetres;
    if (metres > 0) QCOMPARE(stated, metres);

    // A hundredth of the bar about the centre: the scale belongs to that place.
    double const half = (right - left) * unitsPerCm / 200;
    double const ground = 100 * geodesic(onGlobe(*map, {x - half, y}), onGlobe(*map, {x + half, y}));
    QVERIFY2(std::abs(ground / stated - 1) < 0.001, qPrintable(QString("%1 for %2").arg(ground).arg(text)));
  }

  // 250 m are 2.5 cm on a map of 1:10,000.
  void aDividedFirstPartLiesBeforeTheZero() {
    auto const map = mapWithLayer("", 0, 0, 100);
    for (char const* style : {"alternating", "double", "ticks"}) {
      QByteArray const settings = "{'divisions':4,'divisionLength':250,'subdivisions':5,'style':'" + QByteArray(style) +
                                  "','numbers':'below','unitText':'metres'}";
      auto const frame = framed<ScaleLine>(map, Envelope(1, 1, 13, 2), settings);
      QCOMPARE(textsOf(*frame), QStringList({"250", "0", "250", "500", "750 metres"}));
      QVector<double> places, ends;
      for (auto const& element : frame->GetMapSurround()->GetElements()) {
        QRectF const box = placeOf(*element);
        auto const text = ptr_cast<TextElement>(element);
        QVERIFY(!text || isWithin(box.adjusted(0, 0.04, 0, 0), QRectF(1, 1, 12, 1), 0.01));
        // The numbers stand in the middle of their places, without the unit.
        double const half =
            text ? text->symbol()->bounds(text->text().section(' ', 0, 0)).width() / 2 * SysDisplay::cmPerPoint : 0;
        (text ? places : ends) << box.left() + half;
      }
      double const left = *std::min_element(ends.begin(), ends.end());
      for (int i = 0; i < 5; ++i) QVERIFY(std::abs(places[i] - left - 2.5 * i) < 0.01);
      for (double const place : {0.5, 1.0, 1.5, 2.0, 2.5, 5.0, 7.5})
        QVERIFY(std::any_of(ends.begin(), ends.end(), [&](double end) { return std::abs(end - left - place) < 1e-9; }));
    }
  }

  void aBarOfAFixedLengthIsThatOrNone_data() {
    Rows<double, QByteArray, QString> row;
    row("with smaller numbers", 10.7, "'divisions':4,'divisionLength':250", "");
    row("too long", 10.2, "'divisions':4,'divisionLength':250", "4 × 250 m needs 10.");
    row("in a unit", 9, "'divisions':2,'divisionLength':1,'unit':'km'", "2 × 1 km needs 20.");
    row("not even one division", 9, "'divisionLength':1500", "1 × 1.5 km needs 15.");
    row("too short to be seen", 9, "'divisions':4,'divisionLength':1", "4 × 1 m is too short to be seen");
  }

  void aBarOfAFixedLengthIsThatOrNone() {
    auto const [width, settings, problem] = fetched<double, QByteArray, QString>();
    auto const frame = framed<ScaleLine>(mapWithLayer("", 0, 0, 100), Envelope(0, 0, width, 1), '{' + settings + '}');
    QString const told = MapSurroundHost::problem(*frame->GetMapSurround());
    auto const elements = frame->GetMapSurround()->GetElements();
    QVERIFY2(told.left(problem.size()) == problem && told.isEmpty() == problem.isEmpty(), qPrintable(told));
    QCOMPARE(elements.isEmpty(), !problem.isEmpty());
    for (auto const& element : elements)
      QVERIFY(isWithin(placeOf(*element).adjusted(0, 0.04, 0, 0), QRectF(0, 0, width, 1), 0.01));
    // The sentence stays in the frame, too.
    QRect const covered = ink(drawn(frame)).where;
    QVERIFY(covered.top() >= page.size.height() - 42 && covered.right() <= width * 40 + 1);
  }

  void textAndBarFollowTheMap() {
    auto const map = mapWithLayer("EPSG:32634", 500000, 4200000, 250);
    auto const text = framed<ScaleText>(map, whole), bar = framed<ScaleLine>(map, whole);
    QCOMPARE(textsOf(*text), QStringList("1:25,010"));  // UTM draws the ground at its middle smaller, by 0.9996
    QString const before = textsOf(*bar).last();
    map->SetExtent(make<Envelope>(0.0, 4000000.0, 1000000.0, 4800000.0));
    QCOMPARE(textsOf(*text), QStringList("1:10,000,000"));
    QVERIFY(textsOf(*bar).last() != before);
  }

  void aScaleTextIsWrittenAsAsked_data() {
    Rows<double, QByteArray, QString> row;
    row("grouped", 250000.0, "{}", "1:25,000,000");
    row("four digits and no more", 42537.14, "{}", "1:4,254,000");
    row("a plan larger than nature", 0.005, "{}", "1:0.5");
    row("a pattern", 10.0, "{'pattern':'Massstab 1 : %1'}", "Massstab 1 : 1,000");
    row("ground on a centimetre", 2500.0, "{'pattern':'1 cm = {km/cm} km = {m/cm} m'}", "1 cm = 2.5 km = 2,500 m");
    row("an inch to the mile", 633.6, "{'pattern':'1:%1, 1 in = {mi/in} mi = {ft/in} ft'}",
        "1:63,360, 1 in = 1 mi = 5,280 ft");
  }

  void aScaleTextIsWrittenAsAsked() {
    auto const [unitsPerCm, settings, text] = fetched<double, QByteArray, QString>();
    QCOMPARE(textsOf(*framed<ScaleText>(mapWithLayer("", 0, 0, unitsPerCm), whole, settings)), QStringList(text));
  }

  void theNumbersFollowTheUsersLanguage() {
    QLocale::setDefault(QLocale(QLocale::German));
    auto const restored = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    QCOMPARE(textsOf(*framed<ScaleText>(mapWithLayer("", 0, 0, 25000), whole)), QStringList("1:2.500.000"));
  }

  void aScaleBarFitsAFlatFrame() {
    Envelope const rectangle(0, 5, 10, 5.2);
    for (auto const& element :
         framed<ScaleLine>(mapWithLayer("", 0, 0, 1000), rectangle)->GetMapSurround()->GetElements())
      QVERIFY(isWithin(placeOf(*element), rectOf(rectangle), 0.01));
  }

  void aNorthArrowPointsToTrueNorthWhereAsked() {
    auto const map = mapOf(aegean, 300000, 0, 1000);
    auto const angleOf = [](MapSurroundFrame const& frame) {
      return ptr_cast<MarkerElement>(frame.GetMapSurround()->GetElements().value(0))->symbol()->GetAngle();
    };
    QCOMPARE(angleOf(*framed<MarkerNorthArrow>(map, whole)), 0.0);
    // Where meridians meet in a cone's tip, north turns by the sine of its parallel for each degree of longitude.
    double const turned = (onGlobe(*map, {300000, 0}).x() - 24.6) * std::sin(38.53 / degreesPerRadian);
    double const angle = angleOf(*framed<MarkerNorthArrow>(map, whole, "{'trueNorth':true}"));
    QVERIFY2(std::abs(angle - turned) < 0.01 && angle > 2, qPrintable(QString("%1, not %2").arg(angle).arg(turned)));
    MapHost::setRotation(*map, 70);
    QCOMPARE(angleOf(*framed<MarkerNorthArrow>(map, whole)), 70.0);
    QCOMPARE(angleOf(*framed<MarkerNorthArrow>(map, whole, "{'trueNorth':true}")), angle + 70);
    QCOMPARE(angleOf(*framed<MarkerNorthArrow>(mapOf("", 0, 0, 1), whole, "{'trueNorth':true}")), 0.0);
    QCOMPARE(angleOf(*framed<MarkerNorthArrow>(mapOf("EPSG:3995", 0, 0, 1), whole, "{'trueNorth':true}")), 0.0);
  }

  void aNorthArrowFillsItsFrameAndStaysInIt() {
    auto const frame = framed<MarkerNorthArrow>(mapOf("", 0, 0, 1000), Envelope(2, 1, 4, 7));
    QRect const inked = ink(drawn(frame)).where;
    QVERIFY(isWithin(inked, QRectF(80, 40, 80, 240), 1));
    QVERIFY(inked.width() > 60);
  }

  void graphicsMadeOfASurroundLookTheSame_data() {
    Rows<_ptr_t<MapSurroundFrame>> row;
    auto const map = mapOf(aegean, 0, 0, 20000);
    addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
    addLayer(*map, "Rivers", make<SysDisplay::SimpleLineSymbol>());
    addLayer(*map, "Towns", make<SysDisplay::SimpleMarkerSymbol>());
    row("legend", framed<Legend>(map, Envelope(1, 1, 5, 7)));
    row("scale bar", framed<ScaleLine>(map, Envelope(1, 1, 9, 3)));
    row("legend of ellipses and waves",
        framed<Legend>(map, Envelope(1, 1, 5, 7), "{'patchShape':'ellipse','lineShape':'wave','columns':2,'wrap':20}"));
    row("ticks", framed<ScaleLine>(map, Envelope(1, 1, 9, 3), "{'style':'ticks','unit':'nmi'}"));
    row("divided bar", framed<ScaleLine>(map, Envelope(1, 1, 9, 3), "{'subdivisions':4,'numbers':'below'}"));
    row("scale text", framed<ScaleText>(map, Envelope(1, 1, 9, 3)));
    row("north arrow", framed<MarkerNorthArrow>(map, Envelope(1, 1, 9, 7), "{'trueNorth':true}"));
  }

  void graphicsMadeOfASurroundLookTheSame() {
    auto const [frame] = fetched<_ptr_t<MapSurroundFrame>>();
    auto const group = make<GroupElement>();
    for (auto const& element : frame->GetMapSurround()->GetElements()) group->AddElement(element);
    QImage const asGraphics = drawn(group);
    QVERIFY(ink(asGraphics).pixels > 0);
    QVERIFY(drawn(frame) == asGraphics);
    QVERIFY(drawn(ptr_cast<MapSurroundFrame>(frame->Clone())) == asGraphics);
  }

  void anUnboundSurroundAnswersNothingAndShowsAPlaceholder() {
    auto const frame = framed<Legend>(nullptr, Envelope(1, 1, 9, 7));
    QCOMPARE(frame->GetMapSurround()->GetElements().size(), 0);
    QImage const image = drawn(frame);
    QVERIFY(ink(image).pixels > 0);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) QVERIFY(image.pixelColor(x, y).lightness() > 130);
  }

  void aMapWithoutLayersHasNoScale() {
    auto const map = mapOf("", 0, 0, 1000);
    QCOMPARE(framed<ScaleText>(map, whole)->GetMapSurround()->GetElements().size(), 0);
    QCOMPARE(framed<ScaleLine>(map, whole)->GetMapSurround()->GetElements().size(), 0);
  }

  void aSurroundFollowsAMapAsLongAsADataFrameShowsIt() {
    PageLayout layout;
    auto const shown = frameNamed("Shown");
    addLayer(*shown->GetMap(), "Land", make<SysDisplay::SimpleFillSymbol>());
    auto const legend = framed<Legend>(shown->GetMap(), whole);
    layout.GetGraphicsContainer()->AddElement(shown);
    QCOMPARE(textsOf(*legend), QStringList({"Legend", "Land"}));
    layout.GetGraphicsContainer()->ReplaceElement(shown->GetHandle(), shown->Clone());
    QCOMPARE(textsOf(*legend).size(), 2);
    layout.GetGraphicsContainer()->DeleteElement(layout.GetFocusMapFrameElement());
    QCOMPARE(textsOf(*legend), QStringList());
    layout.GetGraphicsContainer()->AddElement(shown);
    QCOMPARE(textsOf(*legend).size(), 2);
    shown->SetMap(make<Map>());
    QCOMPARE(textsOf(*legend), QStringList());
  }

  void aPatternWithoutAPlaceForTheScaleIsRefused() {
    ScaleTextSettings settings;
    QString const problem = SysUtility::readJson(QJsonObject{{"pattern", "1:many, {kn/cm}"}}, settings);
    QVERIFY2(problem.startsWith("pattern: must hold %1"), qPrintable(problem));
  }
};

QTEST_MAIN(SurroundTest)
#include "SurroundTest.moc"
