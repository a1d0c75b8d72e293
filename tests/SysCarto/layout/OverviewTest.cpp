#include "Elements.h"
#include "OnPaper.h"
#include "Symbols.h"

#include "host/SysCarto/layout/MapOverview.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/MapHost.h"

#include <SysCarto/PageLayout.h>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

struct Shown {
  QString system;
  Envelope bounds;
  double rotation = 0;
};

_ptr_t<Map> mapOf(Shown const& shown, double widthCm, double heightCm) {
  auto const map = make<Map>();
  map->SetCoordinateSystem(shown.system);
  map->SetExtent(make<Envelope>(shown.bounds));
  MapHost::countFrame(*map, true);
  MapHost::setFrameSize(*map, widthCm, heightCm);
  MapHost::setRotation(*map, shown.rotation);
  return map;
}

_ptr_t<MapOverview> overviewOf(_ptr_t<Map> const& map, _ptr_t<SysDisplay::FillSymbol> const& symbol) {
  auto const overview = make<MapOverview>();
  overview->setMap(map);
  overview->setSymbol(symbol);
  return overview;
}

_ptr_t<MapFrameElement> frameWith(_ptr_t<Map> const& map, _ptr_t<MapOverview> const& overview) {
  auto const frame = madeIn<MapFrameElement>(1, 1, 11, 9);
  frame->SetBorder(nullptr);
  frame->SetBackGround(nullptr);
  frame->SetMap(map);
  frame->AddMapGrid(overview);
  return frame;
}

_ptr_t<SysDisplay::FillSymbol> thinOutline() { return fill(Qt::red, SysDisplay::SimpleFillStyle::Null, pen(0.28)); }

Scene sceneOf(_ptr_t<MapFrameElement> const& frame) {
  return [frame](QPainter& painter, Transformation const& transformation) {
    painter.setRenderHint(QPainter::Antialiasing);
    frame->Draw(painter, transformation, nullptr);
  };
}

Sheet const coarse{Envelope(0, 0, 12, 10), QSize(480, 400), 40 * 2.54 / 96};
Shown const europe{"EPSG:3035", Envelope(2700000, 1600000, 6100000, 4320000), 0};
Shown const poland{"EPSG:32634", Envelope(250000, 5450000, 750000, 5950000), 0};

}  // namespace

class OverviewTest : public QObject {
  Q_OBJECT

private slots:
  void itsSidesLieWhereProjSays_data() {
    Rows<Shown, Shown> row;
    Shown turnedEurope = europe, turnedPoland = poland;
    turnedEurope.rotation = 33;
    turnedPoland.rotation = -20;
    row("straight", europe, poland);
    row("a turned map on a turned one", turnedEurope, turnedPoland);
    row("longitudes and latitudes on a cone", turnedEurope, {"EPSG:4326", Envelope(5, 44, 20, 52), 15});
    row("a large part, whose sides bend", {"EPSG:8857", Envelope(-17000000, -13600000, 17000000, 13600000), 10},
        {"EPSG:3857", Envelope(-6000000, -2000000, 9000000, 9000000), 0});
    row("a town on a poster", {"EPSG:3035", Envelope(4532000, 3254000, 4572000, 3286000), 5},
        {"EPSG:25833", Envelope(385000, 5815000, 395000, 5823000), 40});
    row("the same system", turnedEurope, {"EPSG:3035", Envelope(4000000, 2500000, 4600000, 3000000), 60});
  }
  void itsSidesLieWhereProjSays() {
    auto const [shown, other] = fetched<Shown, Shown>();
    double const widthCm = 7, heightCm = 5;
    auto const marked = mapOf(other, widthCm, heightCm);
    FinePicture const picture(sceneOf(frameWith(mapOf(shown, 10, 8), overviewOf(marked, thinOutline()))));
    OnPaper const place(other.system, shown.system, shown.bounds, shown.rotation);
    double const unitsPerCm = std::max(other.bounds.GetWidth() / widthCm, other.bounds.GetHeight() / heightCm);
    double const cosine = std::cos(other.rotation * M_PI / 180), sine = std::sin(other.rotation * M_PI / 180);
    auto const centre = other.bounds.GetAnchorPoint();
    auto const at = [&](double acrossCm, double upCm) {  // of the other frame's middle
      double const across = acrossCm * unitsPerCm, up = upCm * unitsPerCm;
      return place.of(centre->GetX() + across * cosine + up * sine, centre->GetY() - across * sine + up * cosine);
    };
    for (double along = -0.45; along < 0.5; along += 0.1)
      for (int side = -1; side <= 1; side += 2) {
        double const x = along * widthCm, y = along * heightCm;
        QVERIFY(picture.hasLineAt(at(x, side * heightCm / 2), at(x + 0.01, side * heightCm / 2)));
        QVERIFY(picture.hasLineAt(at(side * widthCm / 2, y), at(side * widthCm / 2, y + 0.01)));
      }
    for (int corner = 0; corner < 4; ++corner)
      QVERIFY(picture.isInked(at((corner % 2 ? 0.5 : -0.5) * widthCm, (corner / 2 ? 0.5 : -0.5) * heightCm)));
  }

  void itFollowsTheOtherMap() {
    auto const marked = mapOf(poland, 7, 5);
    auto const frame = frameWith(mapOf(europe, 10, 8), overviewOf(marked, nullptr));
    QImage last = coarse.drawn(sceneOf(frame));
    QVERIFY(ink(last).pixels > 50);
    auto const changes = [&](auto const& change) {
      change();
      QImage const before = std::exchange(last, coarse.drawn(sceneOf(frame)));
      return before != last;
    };
    QVERIFY(changes([&] { MapHost::setRotation(*marked, 20); }));
    QVERIFY(changes([&] { marked->SetExtent(make<Envelope>(250000.0, 5250000.0, 750000.0, 5750000.0)); }));
    QVERIFY(changes([&] { MapHost::setFrameSize(*marked, 3, 9); }));
    QVERIFY(changes([&] { marked->SetCoordinateSystem("EPSG:32633"); }));
    QVERIFY(changes([&] { MapHost::countFrame(*marked, false); }));
    QCOMPARE(ink(last).pixels, 0);
  }

  void tilesDoNotShow() {
    auto const symbol = fill(QColor(30, 120, 200, 90), SysDisplay::SimpleFillStyle::Cross, pen(3));
    Shown wide = poland;
    wide.bounds = Envelope(-900000, 4500000, 1400000, 6700000);
    wide.rotation = 25;
    Scene const scene = sceneOf(frameWith(mapOf(europe, 10, 8), overviewOf(mapOf(wide, 7, 5), symbol)));
    QImage const whole = coarse.drawn(scene);
    QVERIFY(ink(whole).pixels > 2000);
    QVERIFY(isBlank(whole, QRect(0, 0, 39, 400)));  // it ends at the frame
    for (int side : {128, 50}) QCOMPARE(difference(whole, coarse.drawnInTiles(scene, side)).pixels, 0);
  }

  void itGoesWithTheMapsOfAPage() {
    auto const layout = make<PageLayout>(), next = make<PageLayout>();
    QList<_ptr_t<Map>> maps{make<Map>(), make<Map>()};
    for (auto const& page : {layout, next})
      for (int i = 0; i < 2; ++i) page->GetGraphicsContainer()->AddElement(madeIn<MapFrameElement>(1, 1, 11, 9));
    auto const frames = next->GetGraphicsContainer()->GetElements();
    auto const first = ptr_cast<MapFrameElement>(frames[0]), second = ptr_cast<MapFrameElement>(frames[1]);
    auto const bound = overviewOf(second->GetMap(), nullptr), stray = overviewOf(make<Map>(), nullptr);
    first->AddMapGrid(bound);
    first->AddMapGrid(stray);
    next->ReplaceMaps(maps);
    QVERIFY(bound->map() == maps[1] && !stray->map());
    stray->setMap(make<Map>());
    PageLayoutHost::succeed(*next, *layout);
    QVERIFY(bound->map() == maps[1] && !stray->map());
  }
};

QTEST_MAIN(OverviewTest)
#include "OverviewTest.moc"
