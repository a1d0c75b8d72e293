#include "LayoutHook.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <cmath>
#include <limits>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

_ptr_t<PageLayout> newLayout() { return emptyLayout(21.0, 29.7); }

_ptr_t<Envelope> square(double x, double y, double size) { return make<Envelope>(x, y, x + size, y + size); }

bool near(double a, double b) { return std::abs(a - b) < 1e-9; }

double scaleOf(PageLayout const& layout) { return layout.GetDisplayTransformation()->GetPageScale(); }

_ptr_t<MapFrameElement> addFrame(PageLayout& layout) {
  auto const frame = make<MapFrameElement>();
  layout.GetGraphicsContainer()->AddElement(frame);
  return frame;
}

_ptr_t<MapSurround> addLegend(PageLayout& layout, _ptr_t<Map> const& map) {
  auto const frame = surroundOf<Legend>(map);
  layout.GetGraphicsContainer()->AddElement(frame);
  return frame->GetMapSurround();
}

void addLayer(Map& map) { map.AddLayer(make<VectorLayer>(makeSimpleRenderer(make<SysDisplay::SimpleLineSymbol>()))); }

}  // namespace

class PageViewTest : public QObject {
  Q_OBJECT

private slots:
  void everyPaperFormHasAKeyAndANameOfItsOwn() {
    FormInfo info;
    QMap<QString, QSizeF> sizesCm;
    QSet<QString> names;
    for (int id = 0; id < Paper::GetFormCount(); ++id) {
      QVERIFY(Paper::GetFormInfo(id, info));
      sizesCm[info.key] = QSizeF(info.width, info.height);
      names << info.displayName;
    }
    QVERIFY(sizesCm.size() == Paper::GetFormCount() && names.size() == Paper::GetFormCount());
    QCOMPARE(sizesCm["Ledger"], QSizeF(43.18, 27.94));      // it lies
    QCOMPARE(sizesCm["Executive"], QSizeF(18.415, 26.67));  // the standard one
    QVERIFY(!Paper::GetFormInfo(-1, info) && !Paper::GetFormInfo(Paper::GetFormCount(), info));
  }

  void pageCopiesTheCustomSizeWhenItTakesIt() {
    Page page;
    QCOMPARE(sizeOf(page), QSizeF(21, 29.7));
    Paper::SetCustomSize(10, 20);
    page.SetFormID(customPageForm);
    Paper::SetCustomSize(30, 40);
    page.SetOrientation(2);
    page.SetOrientation(7);
    QCOMPARE(sizeOf(page), QSizeF(20, 10));  // landscape swaps what is listed
    page.SetFormID(customPageForm);
    page.SetFormID(-1);
    QCOMPARE(sizeOf(page), QSizeF(40, 30));
  }

  void outputSizeIsTruncated() {
    auto const layout = newLayout();
    int width, height;
    layout->QueryOutputSize(96, width, height);
    QCOMPARE(QSize(width, height), QSize(793, 1122));
    layout->SetPage(nullptr);
    layout->QueryOutputSize(96, width, height);
    QCOMPARE(QSize(width, height), QSize(0, 0));
    QVERIFY(layout->GetDefaultLegendEnvelope()->IsEmpty());
  }

  void extentIsCentredAndSetsThePageScale() {
    auto const layout = newLayout();
    layout->SetExtent(square(0, 0, 10));
    auto const extent = layout->GetExtent();
    QVERIFY(near(extent->GetXMin(), -5.0 / 3) && near(extent->GetXMax(), 35.0 / 3));
    QVERIFY(near(extent->GetYMin(), 0) && near(extent->GetYMax(), 10));
    QVERIFY(near(scaleOf(*layout), 75 * 2.54 / 96));
    layout->ZoomToRatio(2);
    QVERIFY(near(scaleOf(*layout), 2));
    auto const centre = layout->GetExtent()->GetAnchorPoint();
    QVERIFY(near(centre->GetX(), 5) && near(centre->GetY(), 5));
    layout->ZoomToWholePage();
    QVERIFY(layout->GetExtent()->Contains(layout->GetPage()->GetPageEnvelope()));
  }

  void ignoresOrMendsAStrangeExtent() {
    auto const layout = newLayout(), untouched = newLayout(), mended = newLayout();
    layout->SetExtent(square(3, 3, 0));
    layout->SetExtent(make<Envelope>(-1.7e308, 0.0, 1.7e308, 3.0));
    QVERIFY(!layout->GetExtentStack()->CanUndo());
    // Nor does it come back when the window changes its size.
    for (auto const& one : {layout, untouched}) {
      one->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 2000, 1000));
      one->RedrawAll(false);
    }
    QVERIFY(layout->GetExtent()->Equals(untouched->GetExtent()));
    mended->SetExtent(make<Envelope>(4.0, 3.0, 0.0, 0.0));
    QCOMPARE(sidesOf(*mended->GetExtent()), QVector<double>({0, 0, 4, 3}));
    mended->SetExtent(make<Envelope>(0.0, 5.0, 4.0, 5.0));
    QCOMPARE(sidesOf(*mended->GetExtent()), QVector<double>({0, 3.5, 4, 6.5}));
  }

  void extentHistoryStepsBackAndForth() {
    auto const layout = newLayout();
    auto const stack = layout->GetExtentStack();
    layout->ZoomToWholePage();  // shown already
    QVERIFY(!stack->CanUndo() && !stack->CanRedo());
    layout->SetExtent(square(0, 0, 10));
    layout->ZoomToRatio(1);
    auto const third = layout->GetExtent();
    stack->Undo();
    stack->Undo();
    QVERIFY(!stack->CanUndo() && stack->CanRedo());
    QVERIFY(layout->GetExtent()->Contains(layout->GetPage()->GetPageEnvelope()));
    stack->Undo();  // at the end: nothing
    stack->Redo();
    stack->Redo();
    QVERIFY(layout->GetExtent()->Equals(third));
    QVERIFY(near(scaleOf(*layout), 1));
    stack->Undo();
    layout->SetExtent(square(3, 3, 1));
    QVERIFY(!stack->CanRedo());
    for (int i = 0; i < 100; ++i) layout->SetExtent(square(i, 0, 5));
    int steps = 0;
    for (; stack->CanUndo(); ++steps) stack->Undo();
    QCOMPARE(steps, 63);
  }

  void historyMayOutliveItsView() {
    auto layout = newLayout();
    auto const stack = layout->GetExtentStack();
    layout->SetExtent(square(0, 0, 10));
    layout = nullptr;
    QVERIFY(!stack->CanUndo());
    stack->Undo();
  }

  void refreshFollowsAFrameThatHasChanged() {
    auto const layout = newLayout();
    layout->SetExtent(make<Envelope>(0.0, 0.0, 20.0, 15.0));
    layout->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 2000, 1000));
    layout->Refresh(0, false);
    auto const extent = layout->GetExtent();
    QVERIFY(near(extent->GetWidth(), 30) && near(extent->GetXMin(), -5) && near(extent->GetYMax(), 15));
    QVERIFY(near(scaleOf(*layout), 1000 / 15.0 * 2.54 / 96));
    QVERIFY(!layout->GetExtentStack()->CanRedo());
  }

  void tellsItsSurface() {
    QStringList calls;
    RecordingSurface surface(calls);
    auto const layout = newLayout();
    layout->PartialRefresh(8, nullptr);  // without a surface: nothing
    ActiveViewHost::setSurface(*layout, &surface);
    _ptr_t<SysDisplay::Symbol> symbol = make<SysDisplay::SimpleLineSymbol>();
    _ptr_t<SysGeometry::Geometry> geometry = square(0, 0, 1);
    layout->ZoomToRatio(3);
    layout->BeginTrackerDraw();
    layout->DrawTrackerOffset(3, -4);
    layout->DrawTrackerShape(symbol, geometry);
    layout->EndTrackerDraw();
    layout->PartialRefresh(8, nullptr);
    layout->Refresh(0, false);
    layout->Refresh(0, true);
    layout->Deactivate();
    QCOMPARE(calls, (QStringList{"begin", "offset 3 -4", "line 0 1 1 at scale 1", "end", "refresh 8", "refresh 255",
                                 "clear", "refresh 255", "clear"}));
    QVERIFY(near(scaleOf(*layout), 3));
  }

  void focusGivesWayToTheFirstMap() {
    auto const layout = newLayout();
    QVERIFY(!layout->GetFocusMap() && !layout->GetFocusMapFrameElement());
    auto const first = addFrame(*layout), second = addFrame(*layout);
    layout->SetFocusMap(second->GetMap());
    QVERIFY(layout->GetFocusMapFrameElement() == second);
    layout->SetFocusMap(make<Map>());
    QVERIFY(layout->GetFocusMap() == first->GetMap());
    layout->SetFocusMap(second->GetMap());
    layout->GetGraphicsContainer()->DeleteElement(second);
    QVERIFY(layout->GetFocusMap() == first->GetMap());
  }

  void replacesMapsByOrder_data() {
    Rows<int, int> row;
    row("as many maps as data frames", 2, 2);
    row("a data frame left over keeps its place with an empty map", 3, 1);
    row("a map left over gets a data frame", 1, 3);
    row("no data frame at all", 0, 2);
  }
  void replacesMapsByOrder() {
    auto const [frames, maps] = fetched<int, int>();
    auto const layout = newLayout();
    QList<_ptr_t<Map>> former, given, present;
    for (int i = 0; i < frames; ++i) former << addFrame(*layout)->GetMap();
    for (int i = 0; i < maps; ++i) given << make<Map>();
    auto const bound = addLegend(*layout, former.value(0)), stray = addLegend(*layout, make<Map>());
    layout->SetFocusMap(former.value(frames - 1));
    layout->ReplaceMaps(given + QList<_ptr_t<Map>>{nullptr, given[0]});
    layout->GetMaps(present);
    QCOMPARE(present.size(), std::max(frames, maps));
    QVERIFY(present.mid(0, maps) == given);
    for (auto const& map : former) QVERIFY(!present.contains(map));
    QVERIFY(!stray->GetMap());
    if (frames > 0) QVERIFY(bound->GetMap() == given[0]);
    if (frames > 0) QVERIFY(layout->GetFocusMap() == given.value(frames - 1, given[0]));
  }

  void aLayoutThatTakesAnothersPlaceExplainsItsFocusMap() {
    auto const former = newLayout(), next = newLayout();
    addFrame(*former);
    former->SetFocusMap(addFrame(*former)->GetMap());
    auto const stray = addLegend(*next, make<Map>()), unbound = addLegend(*next, nullptr);
    next->SetFocusMap(stray->GetMap());
    QList<_ptr_t<Map>> maps;
    former->GetMaps(maps);
    addLayer(*maps[0]);
    next->ReplaceMaps(maps);
    PageLayoutHost::succeed(*next, *former);
    QVERIFY(next->GetFocusMap() == maps[1]);
    QVERIFY(stray->GetMap() == maps[1] && unbound->GetMap() == maps[1]);
  }

  void theFocusLeavesANewEmptyMap() {
    auto const layout = newLayout();
    addFrame(*layout), addFrame(*layout);
    layout->SetFocusMap(addFrame(*layout)->GetMap());
    auto const full = make<Map>();
    addLayer(*full);
    layout->ReplaceMaps({make<Map>(), full});
    QVERIFY(layout->GetFocusMap() == full);
  }

  void withoutAPageSymbolsHaveTheirSizeOnPaper() {
    auto const layout = make<PageLayout>();
    for (QRect const& frame : {layout->GetDisplayTransformation()->GetDeviceFrame(), QRect(0, 0, 300, 700)}) {
      layout->GetDisplayTransformation()->SetDeviceFrame(frame);
      layout->Refresh(0, false);
      QVERIFY(near(worldPerPoint(*layout->GetDisplayTransformation()), 2.54 / 72));
    }
  }
};

QTEST_MAIN(PageViewTest)
#include "PageViewTest.moc"
