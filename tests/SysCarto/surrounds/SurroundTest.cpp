#include "SurroundFixture.h"
#include "Symbols.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysCarto/PageLayout.h>

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <cmath>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

constexpr double frameWidthCm = 10, frameHeightCm = 8;
constexpr double degreesPerRadian = 57.29577951308232;

_ptr_t<Map> mapOf(QString const& system, double x, double y, double unitsPerCm) {
  double const w = frameWidthCm * unitsPerCm / 2, h = frameHeightCm * unitsPerCm / 2;
  return mapShowing(system, Envelope(x - w, y - h, x + w, y + h), frameWidthCm, frameHeightCm);
}

void addLayer(Map& map, QString const& name, _ptr_t<SysDisplay::Symbol> const& symbol, QString const& label = {}) {
  auto const layer = make<VectorLayer>(makeSimpleRenderer(symbol, label));
  layer->SetName(name);
  map.AddLayer(layer);
}

_ptr_t<Map> mapWithLayer(QString const& system, double x, double y, double unitsPerCm) {
  auto const map = mapOf(system, x, y, unitsPerCm);
  addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
  return map;
}

template <class Surround>
_ptr_t<MapSurroundFrame> framed(_ptr_t<Map> const& map, Envelope const& rectangle, QByteArray const& settings = "{}") {
  auto const surround = described<Surround>(json(settings));
  surround->SetMap(map);
  auto const frame = make<MapSurroundFrame>();
  frame->SetMapSurround(surround);
  frame->SetGeometry(make<Envelope>(rectangle));
  return frame;
}

QStringList textsOf(MapSurroundFrame const& frame) {
  QStringList texts;
  for (auto const& element : frame.GetMapSurround()->GetElements())
    if (auto const text = ptr_cast<TextElement>(element)) texts << text->text();
  return texts;
}

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
Envelope const whole(0, 0, frameWidthCm, frameHeightCm);

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
    if (last.endsWith('m') && metres > 0) QCOMPARE(text, last);
    QString const unit = text.section(' ', 1);
    double const inMetres = unit == "km" ? 1000 : unit == "mi" ? 1609.344 : unit == "nmi" ? 1852 : 1;
    double const stated = text.section(' ', 0, 0).remove(',').toDouble() * inMetres;
    if (metres > 0) QCOMPARE(stated, metres);

    // A hundredth of the bar about the centre: the scale belongs to that place.
    double const half = (right - left) * unitsPerCm / 200;
    double const ground = 100 * geodesic(onGlobe(*map, {x - half, y}), onGlobe(*map, {x + half, y}));
    QVERIFY2(std::abs(ground / stated - 1) < 0.001, qPrintable(QString("%1 for %2").arg(ground).arg(text)));
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

  void aLegendListsWhatTheMapShows() {
    auto const map = mapOf("", 0, 0, 1000);
    addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
    addLayer(*map, "Rivers", make<SysDisplay::SimpleLineSymbol>(), "Rivers and streams");
    addLayer(*map, "Towns", make<SysDisplay::SimpleMarkerSymbol>());
    auto const frame = framed<Legend>(map, whole);
    QCOMPARE(textsOf(*frame), QStringList({"Legend", "Towns", "Rivers and streams", "Land"}));
    QMap<int, int> counts;
    for (auto const& element : frame->GetMapSurround()->GetElements()) ++counts[element->GetType()];
    QVERIFY2(counts[1] == 1 && counts[2] == 1 && counts[4] == 1, "a marker, a line and a filled box");
    map->GetLayer(2)->SetVisible(false);
    map->GetLayer(0)->SetScaleRange(0, 50000);
    QCOMPARE(textsOf(*frame), QStringList({"Legend", "Rivers and streams"}));
    QCOMPARE(textsOf(*framed<Legend>(map, whole, "{'title':'','omit':['Rivers']}")), QStringList());
  }

  void aLegendFitsItsFrame_data() {
    Rows<int, Envelope, int> row;
    row("one column", 5, Envelope(0, 0, 5, 8), 1);
    row("two where one is too high", 16, Envelope(0, 2, 10, 8), 2);
    row("many in a flat frame", 24, Envelope(0, 5, 10, 7), 5);
    row("smaller in a small one", 24, Envelope(4, 4, 6, 5), 3);
  }

  void aLegendFitsItsFrame() {
    auto const [layers, rectangle, columns] = fetched<int, Envelope, int>();
    auto const map = mapOf("", 0, 0, 1000);
    for (int i = 0; i < layers; ++i) addLayer(*map, QString("Layer %1").arg(i), make<SysDisplay::SimpleFillSymbol>());
    auto const frame = framed<Legend>(map, rectangle);
    QSet<int> lefts;
    for (auto const& element : frame->GetMapSurround()->GetElements()) {
      QRectF const box = placeOf(*element);
      QVERIFY(isWithin(box.adjusted(0, 0.04, 0, 0), rectOf(rectangle), 0.01));
      if (element->GetType() == 4) lefts << qRound(box.left() * 100);
    }
    QCOMPARE(lefts.size(), columns);
  }

  // However big the symbols of the map are, and however small the frame.
  void symbolsOfALegendKeepTheirPlace() {
    auto const map = mapOf("", 0, 0, 1000);
    auto const marker = make<SysDisplay::SimpleMarkerSymbol>();
    marker->SetSize(60);
    addLayer(*map, "Layer", pen(30));
    addLayer(*map, "Layer", marker);
    for (Envelope const& rectangle : {whole, Envelope(4, 4, 6, 5.5)}) {
      QVector<QRectF> boxes;
      for (auto const& element : framed<Legend>(map, rectangle)->GetMapSurround()->GetElements()) {
        QRectF const covered = rectOf(*element->GetBoundary(page.transformation())->GetEnvelope());
        QVERIFY(isWithin(covered, rectOf(rectangle), 0.05));
        for (QRectF const& other : qAsConst(boxes))
          QVERIFY(!other.intersects(covered.adjusted(0.06, 0.06, -0.06, -0.06)));
        boxes << covered;
      }
      QCOMPARE(boxes.size(), 5);
    }
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
    row("ticks", framed<ScaleLine>(map, Envelope(1, 1, 9, 3), "{'style':'ticks','unit':'nmi'}"));
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
    QString const problem = SysUtility::readJson(QJsonObject{{"pattern", "1:many"}}, settings);
    QVERIFY2(problem.startsWith("pattern: must hold %1"), qPrintable(problem));
  }
};

QTEST_MAIN(SurroundTest)
#include "SurroundTest.moc"
