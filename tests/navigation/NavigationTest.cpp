#include "LayoutHook.h"
#include "navigation/PageExtentCommands.h"
#include "navigation/PagePanTool.h"
#include "navigation/PageZoomTools.h"

#include <cmath>

using namespace SysCarto;
using SysFramework::BaseTool;
using SysGeometry::Envelope;

namespace {

// The view of a layout is 1000 × 750 pixels; at this extent a page centimetre is 50 of them.
constexpr double extentWidth = 20.0, extentHeight = 15.0;

bool near(double a, double b) { return std::abs(a - b) < 1e-6; }

}  // namespace

class NavigationTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    hook_ = make<LayoutHook>(emptyLayout(20.0, 28.0));
    hook_->layout->SetExtent(make<Envelope>(0.0, 0.0, extentWidth, extentHeight));
  }

  void toolsDrawOverThePictureInOnePassAMove_data() {
    Rows<QString, QStringList> row;
    row("zooming in", "in",
        {"begin", "line 5 10 10 at scale 1", "end", "begin", "line 5 14 10 at scale 1", "end", "clear", "refresh 255"});
    row("zooming out", "out",
        {"begin", "fill 5 10 10 at scale 1", "end", "begin", "fill 5 14 10 at scale 1", "end", "clear", "refresh 255"});
    row("panning, always from the press", "pan",
        {QString("cursor %1").arg(Qt::ClosedHandCursor), "begin", "offset 250 100", "end", "begin", "offset 450 300",
         "end", "clear", "refresh 255", QString("cursor %1").arg(Plugin::PagePanTool().GetCursor().shape())});
  }

  void toolsDrawOverThePictureInOnePassAMove() {
    auto const [identifier, calls] = fetched<QString, QStringList>();
    drag(toolNamed(identifier), {{250, 250}, {500, 350}, {700, 550}});
    QCOMPARE(hook_->calls, calls);
  }

  void zooming_data() {
    // tool; points of press and release; shown as x, y of the lower left corner, width, height
    Rows<QString, QVector<QPoint>, QRectF> row;
    QPoint const centre(500, 375), mark(250, 250), corner(0, 750);
    row("in: a click centres on the point", "in", {mark}, QRectF(5 - 9, 10 - 6.75, 18, 13.5));
    row("in: a drag shows the rectangle", "in", {centre, {900, 675}}, QRectF(10, 1.5, 8, 6));
    row("in: a flat drag takes the view's aspect", "in", {centre, {900, 375}}, QRectF(10, 7.5 - 3, 8, 6));
    row("out: a click centres on the press", "out", {mark}, QRectF(5 - 11, 10 - 8.25, 22, 16.5));
    row("out: a ratio just under 4 folds to just under 2", "out", {corner, {250, 750 - 188}}, QRectF());
    row("out: two fifths fold 2.5 to 1.5", "out", {corner, {400, 450}}, QRectF(4 - 15, 3 - 11.25, 30, 22.5));
    row("out: the smaller ratio counts", "out", {corner, {800, 700}}, QRectF(8 - 12.5, 0.5 - 9.375, 25, 18.75));
  }

  void zooming() {
    auto const [identifier, path, expected] = fetched<QString, QVector<QPoint>, QRectF>();
    drag(toolNamed(identifier), path);
    if (!expected.isNull()) QCOMPARE(shown(), expected);
    if (expected.isNull()) QVERIFY(hook_->layout->GetExtent()->GetWidth() > 1.9 * extentWidth);
  }

  void aWholePartOfTheViewIsOneWhereverItIsDragged_data() {
    // size of the rectangle, part of 1000 × 750 in one direction and more in the other; what the view grows by
    Rows<QSize, double> row;
    row("a half doubles", QSize(500, 370), 2);
    row("a third folds to 1", QSize(330, 250), 1);
    row("a quarter folds to 1", QSize(250, 180), 1);
  }

  void aWholePartOfTheViewIsOneWhereverItIsDragged() {
    auto const [size, factor] = fetched<QSize, double>();
    for (int place = 0; place < 200; ++place) {
      hook_->layout->SetExtent(make<Envelope>(0.1 * place, 0.3, 0.1 * place + extentWidth, 0.3 + extentHeight));
      QPoint const press(2 * place, place);
      drag(make<Plugin::PageZoomOutTool>(), {press, press + QPoint(size.width(), size.height())});
      QVERIFY2(near(hook_->layout->GetExtent()->GetWidth(), factor * extentWidth), qPrintable(QString::number(place)));
    }
  }

  void beyondItsLimitAToolZoomsNoMore() {
    hook_->layout->ZoomToRatio(150.0);
    auto const close = hook_->layout->GetExtent()->GetWidth();
    drag(make<Plugin::PageZoomInTool>(), {{500, 375}});
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), close));
    hook_->layout->ZoomToRatio(0.03);
    auto const far = hook_->layout->GetExtent()->GetWidth();
    drag(make<Plugin::PageZoomOutTool>(), {{500, 375}});
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), far));
  }

  void panningMovesTheExtentAgainstTheMouse() {
    auto const pan = make<Plugin::PagePanTool>();
    drag(pan, {{100, 100}, {200, 150}});
    QCOMPARE(shown(), QRectF(-2, 1, extentWidth, extentHeight));
    drag(pan, {{500, 500}, {500, 450}});
    QCOMPARE(shown(), QRectF(-2, 0, extentWidth, extentHeight));
    drag(pan, {{10, 10}});
    QCOMPARE(shown(), QRectF(-2, 0, extentWidth, extentHeight));
  }

  void theHistoryStepsBackAndForth() {
    auto const previous = hook_->bound<Plugin::ZoomToPreviousExtentCommand>();
    auto const next = hook_->bound<Plugin::ZoomToNextExtentCommand>();
    drag(make<Plugin::PageZoomInTool>(), {{500, 375}, {900, 675}});
    QVERIFY(previous->IsEnable() && !next->IsEnable());
    previous->OnClick();
    QCOMPARE(shown(), QRectF(0, 0, extentWidth, extentHeight));
    QVERIFY(next->IsEnable());
    next->OnClick();
    QCOMPARE(shown(), QRectF(10, 1.5, 8, 6));
  }

  void wholePageAndRatioOne() {
    auto const whole = hook_->bound<Plugin::PageFullExtent>();
    auto const origin = hook_->bound<Plugin::PageZoomToOrigin>();
    whole->OnClick();
    QVERIFY(hook_->layout->GetExtent()->Contains(hook_->layout->GetPage()->GetPageEnvelope()));
    origin->OnClick();
    QVERIFY(near(hook_->layout->GetDisplayTransformation()->GetPageScale(), 1.0));
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), 1000 * 2.54 / 96));
  }

private:
  static _ptr_t<BaseTool> toolNamed(QString const& identifier) {
    if (identifier == "in") return make<Plugin::PageZoomInTool>();
    if (identifier == "out") return make<Plugin::PageZoomOutTool>();
    return make<Plugin::PagePanTool>();
  }

  // Presses at the first point, moves over the others and releases at the last.
  void drag(_ptr_t<BaseTool> const& tool, QVector<QPoint> const& path) {
    tool->OnCreate(hook_->pointer());
    QVERIFY(tool->IsEnable());
    auto const event = [](QEvent::Type type, QPoint const& at) {
      return QMouseEvent(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    };
    auto press = event(QEvent::MouseButtonPress, path.first());
    tool->OnMouseDown(&press);
    for (QPoint const& at : path.mid(1)) {
      auto move = event(QEvent::MouseMove, at);
      tool->OnMouseMove(&move);
    }
    auto release = event(QEvent::MouseButtonRelease, path.last());
    tool->OnMouseUp(&release);
  }

  // Without the rounding errors of the way there.
  QRectF shown() const {
    auto const sides = sidesOf(*hook_->layout->GetExtent());
    return {QPointF(sides[0], sides[1]), QPointF(sides[2], sides[3])};
  }

  _ptr_t<LayoutHook> hook_;
};

QTEST_MAIN(NavigationTest)
#include "NavigationTest.moc"
