#include "LayerFixture.h"
#include "Symbols.h"

#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

using namespace SysCarto;
using namespace SysDisplay;
using SysUI::TrackerCancel;

namespace {

_ptr_t<Symbol> marker() {
  auto const symbol = make<SimpleMarkerSymbol>();
  symbol->SetSize(7);
  symbol->setColor(QColor(200, 0, 0, 160));
  return symbol;
}

// With markers by the population, the largest of which decides on the others.
OpenedLayer openedBySize(SourceSettings const& source, QString const& system) {
  RendererSettings settings;
  settings.kind = RendererSettings::Kind::Proportional;
  settings.field = "population";
  settings.classes.emplace_back();
  settings.classes.back().symbol = marker();
  OpenedLayer result{make<VectorLayer>(makeRenderer(settings)), {}, {}};
  result.error = result.layer->open(source, system, result.warnings);
  return result;
}

Scene sceneOf(OpenedLayer const& opened) {
  return [layer = opened.layer](QPainter& painter, Transformation const& transformation) {
    layer->Draw(painter, transformation, 1, nullptr);
  };
}

}  // namespace

class LayerDrawTest : public QObject {
  Q_OBJECT

private slots:
  void tilesMakeTheWholePicture_data() {
    Rows<QString, QString, double, _ptr_t<Symbol>> row;
    auto const outline =
        pen(0.6, SimpleLineStyle::Solid, LineCapStyle::Round, LineJoinStyle::Round, QColor(90, 50, 20));
    auto const land = fill(QColor(60, 120, 60, 180), SimpleFillStyle::DiagonalCross, outline);
    row("a detail of the countries", "countries", "EPSG:8857", 0.03, land);
    row("cut in the Atlantic", "countries", "+proj=eqearth +lon_0=150 +datum=WGS84", 1, land);
    row("seen from above", "countries", "+proj=ortho +lat_0=40 +lon_0=10 +datum=WGS84", 1, land);
    row("a grid and a gradient", "countries", "EPSG:8857", 0.2,
        storedSymbol(
            "{'type':'layeredFill','layers':[{'type':'gradientFill','stops':[{'position':0,'color':'#f8f0d0'},"
            "{'position':100,'color':'#5070a0'}]},{'type':'pointPatternFill','dx':5,'dy':5,'marker':{'type':'"
            "simpleMarker',"
            "'size':2},'outline':{'type':'markerLine','interval':6,'marker':{'type':'simpleMarker','style':'triangle',"
            "'size':4}}}]}"));
    row("cities", "cities", "EPSG:8857", 0.3, marker());
  }
  void tilesMakeTheWholePicture() {
    auto const [layer, system, scale, symbol] = fetched<QString, QString, double, _ptr_t<Symbol>>();
    auto const data = opened({sample("world.gpkg"), layer, {}, {}}, system, symbol);
    QCOMPARE(data.error, QString());
    Box const& all = data.features().box();
    double const x = all.xmin + 0.52 * (all.xmax - all.xmin), y = all.ymin + 0.7 * (all.ymax - all.ymin);
    double const width = (all.xmax - all.xmin) * scale * 0.9;
    double const height = width * 430 / 620;
    Sheet const sheet = shown({x - width / 2, y - height / 2, x + width / 2, y + height / 2}, QSize(620, 430), 2.1);
    QImage const whole = sheet.drawn(sceneOf(data));
    QVERIFY(ink(whole).pixels > 1000);
    for (int const side : {128, 173}) {
      // Another layer object: the lines must not depend on which tile came first.
      auto const again = opened({sample("world.gpkg"), layer, {}, {}}, system, symbol);
      QCOMPARE(difference(whole, sheet.drawnInTiles(sceneOf(again), side)).pixels, 0);
    }
  }

  // Wherever in a pixel it lies.
  void anAreaThatIsSmallerThanAPixelHasItsOutline() {
    for (double const x : {10.05, 10.13, 10.49, 10.51, 10.9}) {
      QString const ring = QStringLiteral("[%1,20],[%2,20],[%2,20.08],[%1,20.08],[%1,20]").arg(x).arg(x + 0.08);
      auto const data = openedJson(geoJson(R"({"type":"Polygon","coordinates":[[)" + ring.toUtf8() + "]]}"), "",
                                   fill(Qt::white, SimpleFillStyle::Solid, pen(1)));
      QVERIFY(ink(shown({0, 0, 40, 40}, QSize(40, 40)).drawn(sceneOf(data))).pixels > 0);
    }
    auto const strip =
        openedJson(geoJson(R"({"type":"Polygon","coordinates":[[[5.05,5],[5,5],[35,35],[35.05,35],[5.05,5]]]})"), "",
                   fill(Qt::red, SimpleFillStyle::Solid, pen(1)));
    auto const inked = ink(shown({0, 0, 40, 40}, QSize(40, 40)).drawn(sceneOf(strip))).pixels;
    QVERIFY2(inked >= 25 && inked <= 120, qPrintable(QString::number(inked)));
    auto const former = setWindowThreshold({0, 0});
    auto const smallest = opened({sample("world.gpkg"), "countries", "name = 'Vatican'", {}}, "",
                                 fill(Qt::white, SimpleFillStyle::Solid, pen(1)));
    setWindowThreshold(former);
    QVERIFY(smallest.layer->hasWindows());
    QVERIFY(ink(shown({-180, -90, 180, 90}, QSize(72, 36)).drawn(sceneOf(smallest))).pixels > 0);
  }

  void aWindowShowsWhatTheWholeLayerDoes_data() {
    Rows<QString, QString, QPointF, double, double> row;
    row("turned", "countries", "+proj=laea +lat_0=47 +lon_0=8", {1e6, 3e5}, 1.2e6, 33);
    row("not projected", "countries", "", {8, 47}, 20, 12);
    row("in degrees on both sides of the antimeridian", "countries", "+proj=longlat +lon_0=180", {179, 66}, 30, 0);
    row("across the antimeridian", "countries", "+proj=laea +lat_0=-17 +lon_0=179", {0, 0}, 2e6, 0);
    row("around the North Pole", "countries", "+proj=stere +lat_0=90", {0, 0}, 3e6, 10);
    row("at the South Pole", "countries", "+proj=stere +lat_0=-90", {1e5, 2e5}, 1e5, 0);
    row("at the limb of a globe", "countries", "+proj=ortho +lat_0=40 +lon_0=10", {6.2e6, 1e6}, 2e6, 0);
    row("markers that reach into it", "cities", "+proj=laea +lat_0=47 +lon_0=8", {0, 0}, 1.5e6, 20);
    row("markers by the largest number of all", "cities", "+proj=laea +lat_0=10 +lon_0=20", {0, 0}, 5e6, 0);
  }
  void aWindowShowsWhatTheWholeLayerDoes() {
    auto const [name, system, centre, width, degrees] = fetched<QString, QString, QPointF, double, double>();
    _ptr_t<Symbol> symbol = marker();
    if (name != "cities") symbol = fill(QColor(60, 120, 60, 180), SimpleFillStyle::Solid, pen(0.6));
    Sheet const sheet =
        shown({centre.x() - width / 2, centre.y() - width / 2, centre.x() + width / 2, centre.y() + width / 2},
              QSize(300, 300), 2);
    auto const drawn = [&, about = centre, angle = degrees](OpenedLayer const& opened) {
      return sheet.drawnInTiles(
          [&](QPainter& painter, Transformation const& transformation) {
            DisplayTransformationHost::setTurn(*transformation, angle, about);
            opened.layer->Draw(painter, transformation, 1, nullptr);
          },
          150);
    };
    bool const isBySize = QByteArray(QTest::currentDataTag()).contains("largest");
    auto const layer = [&, about = name, to = system] {
      SourceSettings const source{sample("world.gpkg"), about, {}, {}};
      return isBySize ? openedBySize(source, to) : opened(source, to, symbol);
    };
    QImage const whole = drawn(layer());
    auto const former = setWindowThreshold({0, 0});
    auto const large = layer();
    setWindowThreshold(former);
    QVERIFY(large.layer->hasWindows());
    QVERIFY(ink(whole).pixels > 100);
    QCOMPARE(large.layer->legendClasses().size(), isBySize ? 3 : 1);
    Difference const found = difference(whole, drawn(large));
    QVERIFY(large.layer->hasWindows());
    QVERIFY2(found.levels <= 90 && found.pixels <= 900, qUtf8Printable(found.text()));
  }

  // What a view draws at once lacks what is still read, and it is told when there is more.
  void whoDoesNotWaitIsToldOfTheRest_data() {
    Rows<qint64, ReadDepth> row;
    row("a window", 0, ReadDepth::Features);
    row("a layer that is read later", 1000000000, ReadDepth::Later);
    row("a window of a layer that is read later", 0, ReadDepth::Later);
  }
  void whoDoesNotWaitIsToldOfTheRest() {
    auto const [threshold, depth] = fetched<qint64, ReadDepth>();
    SourceSettings const source{sample("world.gpkg"), "cities", {}, {}};
    auto const former = setWindowThreshold({threshold, threshold});
    Sheet const sheet = shown(opened(source, "EPSG:8857").layer->extent(), QSize(300, 200), 2);
    auto const large = opened(source, "EPSG:8857", marker(), {}, depth);
    QCOMPARE(large.layer->isBeingRead(), depth == ReadDepth::Later);
    auto const drawnAtOnce = [&](bool& isIncomplete) {
      WithoutWaiting const meanwhile;
      QImage const image = sheet.drawn(sceneOf(large));
      isIncomplete = meanwhile.isIncomplete;
      return image;
    };
    int told = 0;
    ReadingListener const listener([&](bool hasMore) { told += hasMore; });
    bool isIncomplete = false;
    QImage const before = drawnAtOnce(isIncomplete);
    QVERIFY(isIncomplete);
    QCOMPARE(ink(before).pixels, 0);
    QVERIFY(large.layer->readShare());
    QImage after;
    auto const isWhole = [&] {
      after = drawnAtOnce(isIncomplete);
      return told > 0 && !isIncomplete;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWhole(), 60000);
    setWindowThreshold(former);
    QVERIFY(!large.layer->readShare());
    QCOMPARE(large.layer->hasWindows(), threshold == 0);
    QVERIFY(ink(after).pixels > 0);
    QCOMPARE(after, sheet.drawn(sceneOf(large)));
  }

  void featuresAreDrawnInPhaseOneUntilCancelled() {
    auto const cities = opened({sample("world.gpkg"), "cities", {}, {}}, "EPSG:8857", marker());
    auto const going = make<TrackerCancel>(), cancelled = make<TrackerCancel>();
    cancelled->Cancel();
    auto const draws = [&](int phase, _ptr_t<TrackerCancel> const& cancel) {
      Scene const scene = [&](QPainter& painter, Transformation const& transformation) {
        cities.layer->Draw(painter, transformation, phase, cancel);
      };
      return ink(shown(cities.features().box(), QSize(200, 100)).drawn(scene)).pixels > 0;
    };
    QVERIFY(draws(1, going));
    QVERIFY(!draws(8, going));
    QVERIFY(!draws(1, cancelled));
  }

  // Roads that cross are joined: no casing lies over the inside of another road, of whatever class.
  void casingsLieBelowAllInnerLines() {
    auto const road = storedSymbol(
        "{'type':'layeredLine','layers':[{'type':'simpleLine','width':12,'color':'#000000'},"
        "{'type':'simpleLine','width':6,'color':'#ffdd55'}]}");
    QByteArray const level = R"({"type":"LineString","coordinates":[[0,5],[10,5]]})";
    QByteArray const upright = R"({"type":"LineString","coordinates":[[5,0],[5,10]]})";
    auto const layer = openedJson(collection({feature(level, "A"), feature(upright, "B")}), "", road);
    QImage const image = shown({0, 0, 10, 10}, QSize(100, 100)).drawn(sceneOf(layer));
    for (int i = 20; i < 80; ++i) {
      QCOMPARE(image.pixelColor(i, 50), QColor("#ffdd55"));
      QCOMPARE(image.pixelColor(50, i), QColor("#ffdd55"));
    }
    QCOMPARE(image.pixelColor(30, 44), QColor(Qt::black));
  }

  // Neighbours share their border, so no background shows between them when both are filled.
  void neighboursLeaveNoGapWhenThinned() {
    QByteArray border, back;
    for (int i = 0; i <= 4000; ++i) {
      QByteArray const place = "[" + QByteArray::number(5 + 0.002 * ((i * 7919) % 97) / 97) + "," +
                               QByteArray::number(i * 10.0 / 4000, 'f', 6) + "]";
      border += "," + place;
      back.prepend("," + place);
    }
    QByteArray const left = "[[0,0]" + border.mid(0) + ",[0,10],[0,0]]", right = "[[10,0],[10,10]" + back + ",[10,0]]";
    QByteArray const halves = R"({"type":"MultiPolygon","coordinates":[[)" + left + "],[" + right + "]]}";
    auto const layer = openedJson(geoJson(halves), "", fill(Qt::black, SimpleFillStyle::Solid, nullptr));
    QImage const image = shown({0, 0, 10, 10}, QSize(100, 100)).drawn(sceneOf(layer));
    for (int y = 1; y < 99; ++y)
      for (int x = 1; x < 99; ++x) QCOMPARE(qGray(image.pixel(x, y)), 0);
  }
};

QTEST_MAIN(LayerDrawTest)
#include "LayerDrawTest.moc"
