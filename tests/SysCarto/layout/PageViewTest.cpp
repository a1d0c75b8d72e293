#include "RecordingSurface.h"
#include "LayoutHook.h"

#include <SysCarto/PageLayout.h>
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

}  // namespace

class PageViewTest : public QObject {
  Q_OBJECT

private slots:
  void knowsThePaperForms_data() {
    Rows<QString, double, double> row;
    row("A0", "A0", 84.1, 118.9);
    row("A4", "A4", 21.0, 29.7);
    row("B5 is the ISO one", "ISOB5", 17.6, 25.0);
    row("Letter", "Letter", 21.59, 27.94);
    row("Ledger lies", "Ledger", 43.18, 27.94);
    row("Executive is the standard one", "Executive", 18.415, 26.67);
    row("DL envelope", "EnvDL", 11.0, 22.0);
    row("Arch E", "ARCHE", 91.44, 121.92);
    row("ANSI E", "AnsiE", 86.36, 111.76);
  }
  void knowsThePaperForms() {
    auto const [key, widthCm, heightCm] = fetched<QString, double, double>();
    FormInfo info;
    QSet<QString> keys;
    for (int id = 0; id < Paper::GetFormCount(); ++id) {
      QVERIFY(Paper::GetFormInfo(id, info));
      QVERIFY(!info.displayName.isEmpty() && !keys.contains(info.key));
      keys << info.key;
      if (info.key != key) continue;
      QVERIFY2(std::abs(info.width - widthCm) < 1e-9, qPrintable(QString::number(info.width)));
      QVERIFY2(std::abs(info.height - heightCm) < 1e-9, qPrintable(QString::number(info.height)));
    }
    QVERIFY(keys.contains(key));
    QVERIFY(!Paper::GetFormInfo(-1, info) && !Paper::GetFormInfo(Paper::GetFormCount(), info));
  }

  void pageCopiesTheCustomSizeWhenItTakesIt() {
    Page page, other;
    double width, height;
    Paper::SetCustomSize(10, 20);
    page.SetFormID(customPageForm);
    Paper::SetCustomSize(30, 40);
    page.SetOrientation(2);
    page.SetOrientation(7);
    page.QuerySize(width, height);
    QCOMPARE(QPointF(width, height), QPointF(20, 10));  // landscape swaps what is listed
    page.SetFormID(customPageForm);
    page.QuerySize(width, height);
    QCOMPARE(QPointF(width, height), QPointF(40, 30));
    page.SetFormID(-1);
    QCOMPARE(page.GetFormID(), customPageForm);
    other.QuerySize(width, height);
    QCOMPARE(QPointF(width, height), QPointF(21, 29.7));
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

  void ignoresOrMendsAStrangeExtent_data() {
    // shown: empty: as before
    Rows<QVector<double>, QVector<double>> row;
    double const nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    row("a point is ignored", {3, 3, 3, 3}, {});
    row("not a number is ignored", {0, nan, 4, 3}, {});
    row("infinity is ignored", {0, 0, inf, 3}, {});
    row("a width beyond all numbers is ignored", {-1.7e308, 0, 1.7e308, 3}, {});
    row("corners are ordered", {4, 3, 0, 0}, {0, 0, 4, 3});
    row("a level line is widened to the aspect", {0, 5, 4, 5}, {0, 3.5, 4, 6.5});
    row("so is an upright one", {5, 0, 5, 3}, {3, 0, 7, 3});
  }
  void ignoresOrMendsAStrangeExtent() {
    auto const [asked, shown] = fetched<QVector<double>, QVector<double>>();
    auto const layout = newLayout();
    auto const before = layout->GetExtent();
    auto const stack = layout->GetExtentStack();
    layout->SetExtent(make<Envelope>(asked[0], asked[1], asked[2], asked[3]));
    QCOMPARE(stack->CanUndo(), !shown.isEmpty());
    auto const expected = shown.isEmpty() ? before : make<Envelope>(shown[0], shown[1], shown[2], shown[3]);
    QVERIFY(layout->GetExtent()->Equals(expected));
    if (!shown.isEmpty()) return;
    // Nor does it come back when the window changes its size.
    auto const untouched = newLayout();
    for (auto const& one : {layout, untouched}) {
      one->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 2000, 1000));
      one->RedrawAll(false);
    }
    QVERIFY(layout->GetExtent()->Equals(untouched->GetExtent()));
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
    layout->setSurface(&surface);
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
    auto const bound = addLegend(*layout, former.value(0)), unbound = addLegend(*layout, nullptr);
    layout->SetFocusMap(former.value(frames - 1));
    layout->ReplaceMaps(given + QList<_ptr_t<Map>>{nullptr, given[0]});
    layout->GetMaps(present);
    QCOMPARE(present.size(), std::max(frames, maps));
    QVERIFY(present.mid(0, maps) == given);
    for (auto const& map : former) QVERIFY(!present.contains(map));
    QVERIFY(!unbound->GetMap());
    if (frames > 0) {
      QVERIFY(bound->GetMap() == given[0]);
      QVERIFY(layout->GetFocusMap() == present[frames - 1]);
    }
  }
};

QTEST_MAIN(PageViewTest)
#include "PageViewTest.moc"
