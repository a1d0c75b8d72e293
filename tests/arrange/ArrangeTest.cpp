#include "LayoutHook.h"
#include "arrange/AlignToMarginsElement.h"
#include "arrange/Alignment.h"
#include "arrange/DataFrameLock.h"
#include "arrange/Distribution.h"
#include "arrange/FitToMargins.h"
#include "arrange/SameSize.h"
#include "arrange/StackingOrder.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <cmath>

using namespace Plugin;
using namespace SysCarto;
using SysFramework::BaseCommand;
using SysGeometry::Envelope;

namespace {

using Rectangle = QVector<double>;  // xmin, ymin, xmax, ymax
using Rectangles = QVector<Rectangle>;

_ptr_t<Element> rectangle(Rectangle const& r) {
  auto const element = make<RectangleElement>();
  auto const fill = make<SysDisplay::SimpleFillSymbol>();
  fill->SetOutlineSymbol(nullptr);
  element->setSymbol(fill);
  element->SetGeometry(make<Envelope>(r[0], r[1], r[2], r[3]));
  return element;
}

// A frame whose drawn bounds reach `gapCm` beyond its own rectangle on every side.
_ptr_t<Element> bordered(Rectangle const& r, double gapCm) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetWidth(1e-6);
  auto const border = make<SymbolBorder>();
  border->SetLineSymbol(line);
  border->SetGap(gapCm / 2.54 * 72.0);
  auto const frame = madeIn<MapFrameElement>(r[0], r[1], r[2], r[3]);
  frame->SetBorder(border);
  frame->SetShadow(nullptr);
  return frame;
}

Rectangle rounded(Rectangle r) {
  for (double& side : r) side = std::round(side * 1e6) / 1e6;
  return r;
}

Rectangle ownRectangle(Element const& element) { return sidesOf(*element.GetEnvelope()); }

}  // namespace

// On a page of 20 × 28 cm, which is its own margin rectangle.
class ArrangeTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    hook_ = nullptr;  // it lets go of the history that the next one takes
    hook_ = make<LayoutHook>(emptyLayout(20.0, 28.0));
    container_ = hook_->layout->GetGraphicsContainer();
  }

  void elementsGoWhereTheCommandPutsThem_data() {
    // before: selected in this order
    Rows<MakeCommand, bool, Rectangles, Rectangles> row;
    Rectangles const three = {{5, 1, 7, 2}, {2, 4, 4, 8}, {9, 10, 12, 13}};

    row("left edges follow the first selected", made<LeftAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {5, 4, 7, 8}, {5, 10, 8, 13}});
    row("right edges follow the first selected", made<RightAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {5, 4, 7, 8}, {4, 10, 7, 13}});
    row("top edges are the larger y", made<TopAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {2, -2, 4, 2}, {9, -1, 12, 2}});
    row("bottom edges are the smaller y", made<BottomAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {2, 1, 4, 5}, {9, 1, 12, 4}});
    row("centres share an x", made<CenterAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {5, 4, 7, 8}, {4.5, 10, 7.5, 13}});
    row("middles share a y", made<VerticalCenterAlignmentElement>, false, three,
        {{5, 1, 7, 2}, {2, -0.5, 4, 3.5}, {9, 0, 12, 3}});
    row("with margins the first moves too", made<LeftAlignmentElement>, true, three,
        {{0, 1, 2, 2}, {0, 4, 2, 8}, {0, 10, 3, 13}});
    row("with margins one is enough", made<TopAlignmentElement>, true, {{5, 1, 7, 2}}, {{5, 27, 7, 28}});

    row("gaps become equal", made<DistributeHorizontallyElements>, false,
        {{8, 0, 10, 1}, {30, 0, 34, 1}, {12, 0, 15, 1}}, {{8, 0, 10, 1}, {30, 0, 34, 1}, {18.5, 0, 21.5, 1}});
    row("four in a column, in the order of their lower edges", made<DistributeVerticallyElements>, false,
        {{0, 0, 1, 1}, {0, 4, 1, 5}, {0, 2, 1, 4}, {0, 10, 1, 12}},
        {{0, 0, 1, 1}, {0, 7, 1, 8}, {0, 3, 1, 5}, {0, 10, 1, 12}});
    row("too little room makes them overlap alike", made<DistributeHorizontallyElements>, false,
        {{0, 0, 2, 1}, {1, 0, 5, 1}, {4, 0, 6, 1}}, {{0, 0, 2, 1}, {1, 0, 5, 1}, {4, 0, 6, 1}});
    row("all on one centre chain after the first", made<DistributeHorizontallyElements>, false,
        {{4, 0, 6, 1}, {3, 0, 7, 1}, {4.5, 0, 5.5, 1}},
        {{4, 0, 6, 1}, {7.0 / 3, 0, 19.0 / 3, 1}, {11.0 / 3, 0, 14.0 / 3, 1}});

    row("heights follow the last selected", made<MakeSameHeightElements>, false,
        {{0, 0, 1, 2}, {3, 3, 4, 7}, {5, 0, 6, 8}}, {{0, 0, 1, 8}, {3, 3, 4, 11}, {5, 0, 6, 8}});
    row("widths follow the last selected", made<MakeSameWidthElements>, false, {{0, 0, 4, 2}, {3, 3, 5, 7}},
        {{0, 0, 2, 2}, {3, 3, 5, 7}});
    row("an element without width keeps none", made<MakeSameSizeElements>, false, {{1, 1, 1, 2}, {3, 3, 5, 7}},
        {{1, 1, 1, 5}, {3, 3, 5, 7}});

    row("fits both extents", made<FittoMarginsElements>, false, {{2, 3, 6, 5}}, {{0, 0, 20, 28}});
    row("fits the width alone", made<FitWidthtoMarginsElements>, true, {{2, 3, 6, 5}}, {{0, 3, 20, 5}});
    row("fits the height alone", made<FitHeighttoMarginsElements>, false, {{2, 3, 6, 5}}, {{2, 0, 6, 28}});
    row("without height it goes to the lower edge", made<FitHeighttoMarginsElements>, false, {{2, 3, 6, 3}},
        {{2, 0, 6, 0}});
  }

  // And one undo brings everything back, one redo puts it there again.
  void elementsGoWhereTheCommandPutsThem() {
    auto const [command, toMargins, before, after] = fetched<MakeCommand, bool, Rectangles, Rectangles>();
    hook_->layout->SetAlignToMargins(toMargins);
    for (Rectangle const& r : before) addSelected(rectangle(r));
    auto const original = container_->GetElements();
    QVERIFY(click(command()));
    expectSelected(after);
    QCOMPARE(hook_->history.count(), 1);
    hook_->history.undo();
    QVERIFY(container_->GetElements() == original);
    hook_->history.redo();
    expectSelected(after);
  }

  void drawnBoundsAreMeasuredAndOwnRectanglesPlaced_data() {
    // before: selected in this order, drawn so far beyond their own rectangles
    Rows<MakeCommand, Rectangles, QVector<double>, Rectangles> row;
    row("alignment goes by the drawn bounds", made<LeftAlignmentElement>, {{5, 1, 7, 2}, {2, 4, 4, 8}}, {0.5, 0.25},
        {{5, 1, 7, 2}, {4.75, 4, 6.75, 8}});
    row("distribution finds the outermost by them, and measures own rectangles", made<DistributeHorizontallyElements>,
        {{0, 0, 2, 1}, {3, 0, 5, 1}, {10, 0, 12, 1}}, {0.5, 0.1, 1.0}, {{0, 0, 2, 1}, {5, 0, 7, 1}, {10, 0, 12, 1}});
    // Drawn 6 wide, so 20 / 6 times as wide, and its own left edge on the margin.
    row("fitting measures them", made<FitWidthtoMarginsElements>, {{4, 4, 8, 8}}, {1.0}, {{0, 4, 4 * 20 / 6.0, 8}});
  }

  void drawnBoundsAreMeasuredAndOwnRectanglesPlaced() {
    auto const [command, before, beyond, after] = fetched<MakeCommand, Rectangles, QVector<double>, Rectangles>();
    for (int i = 0; i < before.size(); ++i) addSelected(bordered(before[i], beyond[i]));
    QVERIFY(click(command()));
    expectSelected(after);
  }

  void aTextGetsTheWidthThatIsAskedOfWhatIsDrawn_data() {
    Rows<MakeCommand, double> row;
    row("of another element", made<MakeSameWidthElements>, 7.0);
    row("of the page", made<FitWidthtoMarginsElements>, 20.0);
  }

  void aTextGetsTheWidthThatIsAskedOfWhatIsDrawn() {
    auto const [command, width] = fetched<MakeCommand, double>();
    auto const text = make<TextElement>();
    SysDisplay::TextFormat format;
    format.letterSpacing = 3;
    format.haloSize = 2;
    text->setSymbol(make<SysDisplay::TextSymbol>(format));
    text->setText("Plan");
    addSelected(text);
    if (width < 20) addSelected(rectangle({5, 5, 5 + width, 6}));
    QVERIFY(click(command()));
    auto const drawn =
        container_->GetSelectedElements().first()->GetBoundary(hook_->layout->GetDisplayTransformation());
    QVERIFY(std::abs(drawn->GetEnvelope()->GetWidth() - width) < 1e-9);
  }

  void enabling_data() {
    Rows<MakeCommand, int, bool, bool> row;
    row("alignment wants two", made<LeftAlignmentElement>, 1, false, false);
    row("alignment has two", made<LeftAlignmentElement>, 2, false, true);
    row("alignment to margins has none", made<LeftAlignmentElement>, 0, true, false);
    row("distribution wants three", made<DistributeVerticallyElements>, 2, false, false);
    row("same size wants two", made<MakeSameSizeElements>, 1, false, false);
    row("fit has one", made<FittoMarginsElements>, 1, false, true);
    row("the toggle wants one", made<AlignToMarginsElement>, 0, true, false);
    row("locking wants none", made<LockDataFrame>, 0, false, true);
  }

  void enabling() {
    auto const [command, selected, toMargins, enabled] = fetched<MakeCommand, int, bool, bool>();
    hook_->layout->SetAlignToMargins(toMargins);
    for (int i = 0; i < selected; ++i) addSelected(rectangle({0, 0, 1, 1}));
    auto const bound = command();
    bound->OnCreate(hook_->pointer());
    QCOMPARE(bound->IsEnable(), enabled);
    hook_->view = nullptr;
    if (!ptr_cast<LockDataFrame>(bound)) QVERIFY(!bound->IsEnable());
  }

  void whatCannotBeStretchedDisablesFitting() {
    addSelected(rectangle({0, 0, 1, 1}));
    addSelected(make<MapSurroundFrame>());
    QVERIFY(!click(make<FittoMarginsElements>()));
    container_->UnselectAllElements();
    addSelected(make<MarkerElement>());
    QVERIFY(!click(make<FittoMarginsElements>()));
  }

  void aMarkerEndsSameSizeWhereItIsMet() {
    addSelected(rectangle({0, 0, 1, 1}));
    addSelected(make<MarkerElement>());
    addSelected(rectangle({5, 5, 6, 6}));
    addSelected(rectangle({7, 7, 9, 10}));
    QVERIFY(click(make<MakeSameWidthElements>()));
    auto const selection = container_->GetSelectedElements();
    QCOMPARE(ownRectangle(*selection[0]), (Rectangle{0, 0, 1, 1}));
    QCOMPARE(ownRectangle(*selection[2]), (Rectangle{5, 5, 7, 6}));
    QCOMPARE(hook_->history.count(), 1);
    // The operation is closed: what follows is not recorded.
    container_->AddElement(rectangle({0, 0, 1, 1}));
    QCOMPARE(hook_->history.count(), 1);
  }

  void aTextTakesTheFirstFactorAsItsFontSize() {
    auto const label = make<TextElement>();
    label->setText("Sea");
    label->setPosition(2.0, 2.0);
    addSelected(label);
    auto const transform = hook_->layout->GetDisplayTransformation();
    double const height = label->GetBoundary(transform)->GetEnvelope()->GetHeight();
    addSelected(rectangle({10, 10, 11, 10 + 3 * height}));
    QVERIFY(click(make<MakeSameHeightElements>()));
    auto const scaled = ptr_cast<TextElement>(container_->GetSelectedElements().first());
    QVERIFY(std::abs(scaled->symbol()->format().size / label->symbol()->format().size - 3.0) < 1e-6);
  }

  void sizedElementsComeOneStepForward() {
    for (int i = 0; i < 4; ++i) container_->AddElement(rectangle({0.0 + i, 0, 1.0 + i, 1}));
    auto const all = container_->GetElements();
    container_->SelectElement(all[0]);
    container_->SelectElement(all[1]);
    QVERIFY(click(make<MakeSameSizeElements>()));
    expectOrder({all[2], all[0], all[1], all[3]});
  }

  void stackingOrders_data() {
    // order: of elements 0 to 4, with 1 and 2 selected
    Rows<MakeCommand, QVector<int>> row;
    row("forward", made<BringForwardElements>, {0, 3, 1, 2, 4});
    row("to the front", made<BringToFrontElements>, {0, 3, 4, 1, 2});
    row("backward", made<SendBackwardElements>, {1, 2, 0, 3, 4});
    row("to the back", made<SendToBackElements>, {1, 2, 0, 3, 4});
  }

  void stackingOrders() {
    auto const [command, order] = fetched<MakeCommand, QVector<int>>();
    for (int i = 0; i < 5; ++i) container_->AddElement(rectangle({0, 0, 1, 1}));
    auto const all = container_->GetElements();
    container_->SelectElement(all[2]);
    container_->SelectElement(all[1]);
    QVERIFY(click(command()));
    QList<_ptr_t<Element>> expected;
    for (int i : order) expected << all[i];
    expectOrder(expected);
    hook_->history.undo();
    expectOrder(all);
  }

  void lockingTakesDataFramesOutOfTheSelectionAndNothingElse() {
    auto const frame = madeIn<MapFrameElement>(0, 0, 5, 5);
    addSelected(frame);
    addSelected(rectangle({0, 0, 1, 1}));
    QVERIFY(click(make<LockDataFrame>()));
    QVERIFY(frame->IsLocked());
    QCOMPARE(container_->GetSelectedElementCount(), 1);
    QVERIFY(click(make<UnlockDataFrame>()));
    QVERIFY(!frame->IsLocked());
    QCOMPARE(container_->GetSelectedElementCount(), 1);
    QCOMPARE(hook_->history.count(), 0);
  }

  void theToggleIsCheckedByTheLayoutItself() {
    auto const toggle = hook_->bound<AlignToMarginsElement>();
    toggle->OnClick();
    QVERIFY(toggle->IsChecked());
    hook_->view = make<Map>();
    QVERIFY(!toggle->IsChecked() && !toggle->IsEnable());
    toggle->OnClick();
    QVERIFY(hook_->layout->GetAlignToMargins());
  }

  void inAMapViewItsOwnGraphicsAreAligned() {
    auto const map = make<Map>();
    hook_->view = map;
    hook_->layout->SetAlignToMargins(true);
    container_ = map->GetGraphicsContainer();
    addSelected(rectangle({5, 1, 7, 2}));
    addSelected(rectangle({2, 4, 4, 8}));
    QVERIFY(click(make<LeftAlignmentElement>()));
    expectSelected({{5, 1, 7, 2}, {5, 4, 7, 8}});
  }

  void withoutAPageNothingHappens() {
    addSelected(rectangle({5, 1, 7, 2}));
    hook_->layout->SetAlignToMargins(true);
    hook_->layout->SetPage(nullptr);
    QVERIFY(click(make<LeftAlignmentElement>()));
    QVERIFY(click(make<FittoMarginsElements>()));
    expectSelected({{5, 1, 7, 2}});
    QCOMPARE(hook_->history.count(), 0);
  }

private:
  void addSelected(_ptr_t<Element> const& element) {
    container_->AddElement(element);
    container_->SelectElement(element);
  }

  // As a host clicks: only what is enabled.
  bool click(_ptr_t<BaseCommand> const& command) {
    command->OnCreate(hook_->pointer());
    if (!command->IsEnable()) return false;
    command->OnClick();
    return true;
  }

  void expectSelected(Rectangles const& expected) {
    auto const selection = container_->GetSelectedElements();
    QCOMPARE(selection.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) QCOMPARE(ownRectangle(*selection[i]), rounded(expected[i]));
  }

  void expectOrder(QList<_ptr_t<Element>> const& expected) {
    auto const elements = container_->GetElements();
    QCOMPARE(elements.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) QCOMPARE(elements[i]->GetHandle(), expected[i]->GetHandle());
  }

  _ptr_t<LayoutHook> hook_;
  IElementContainer* container_ = nullptr;
};

QTEST_MAIN(ArrangeTest)
#include "ArrangeTest.moc"
