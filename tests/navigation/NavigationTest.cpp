#include "LayoutHook.h"
#include "RecordingSurface.h"
#include "navigation/PageExtentCommands.h"
#include "navigation/PagePanTool.h"
#include "navigation/PageZoomTools.h"

#include <QMouseEvent>

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

  void theCursorsAreThePluginsOwn() {
    for (char const* path : {":/res/ZoomIn.cur", ":/res/ZoomOut.cur"}) QCOMPARE(QPixmap(path).size(), QSize(32, 32));
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
    QStringList asked;
    RecordingSurface surface(asked);
    hook_->layout->setSurface(&surface);
    auto const tool = toolNamed(identifier);
    tool->OnCreate(hook_->pointer());
    auto const at = [](QEvent::Type type, QPoint const& place) {
      return QMouseEvent(type, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    };
    QMouseEvent press = at(QEvent::MouseButtonPress, {250, 250}), near = at(QEvent::MouseMove, {500, 350}),
                far = at(QEvent::MouseMove, {700, 550}), release = at(QEvent::MouseButtonRelease, {700, 550});
    tool->OnMouseDown(&press);
    tool->OnMouseMove(&near);
    tool->OnMouseMove(&far);
    tool->OnMouseUp(&release);
    hook_->layout->setSurface(nullptr);
    QCOMPARE(asked, calls);
  }

  void zooming_data() {
    // tool; press; release; shown as x, y of the lower left corner, width, height
    Rows<QString, QPoint, QPoint, QRectF> row;
    QPoint const centre(500, 375), mark(250, 250), corner(0, 750);
    row("in: a click centres on the point", "in", mark, mark, QRectF(5 - 9, 10 - 6.75, 18, 13.5));
    row("in: a drag shows the rectangle", "in", centre, QPoint(900, 675), QRectF(10, 1.5, 8, 6));
    row("in: from the other corner as well", "in", QPoint(900, 675), centre, QRectF(10, 1.5, 8, 6));
    row("in: a flat drag takes the view's aspect", "in", centre, QPoint(900, 375), QRectF(10, 7.5 - 3, 8, 6));
    row("out: a click centres on the press", "out", mark, mark, QRectF(5 - 11, 10 - 8.25, 22, 16.5));
    row("out: flat in one direction is a click", "out", mark, QPoint(350, 250), QRectF(5 - 11, 10 - 8.25, 22, 16.5));
    row("out: a ratio just under 4 folds to just under 2", "out", corner, QPoint(250, 750 - 188), QRectF());
    row("out: half of it doubles", "out", corner, centre, QRectF(5 - 20, 3.75 - 15, 40, 30));
    row("out: two fifths fold 2.5 to 1.5", "out", corner, QPoint(400, 450), QRectF(4 - 15, 3 - 11.25, 30, 22.5));
    row("out: the smaller ratio counts", "out", corner, QPoint(800, 700), QRectF(8 - 12.5, 0.5 - 9.375, 25, 18.75));
  }

  void zooming() {
    auto const [identifier, press, release, shown] = fetched<QString, QPoint, QPoint, QRectF>();
    drag(toolNamed(identifier), press, release);
    if (!shown.isNull()) return expectShown(shown);
    QVERIFY(hook_->layout->GetExtent()->GetWidth() > 1.9 * extentWidth);
  }

  void beyondItsLimitAToolZoomsNoMore() {
    hook_->layout->ZoomToRatio(150.0);
    auto const close = hook_->layout->GetExtent()->GetWidth();
    drag(make<Plugin::PageZoomInTool>(), {500, 375}, {500, 375});
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), close));
    hook_->layout->ZoomToRatio(0.03);
    auto const far = hook_->layout->GetExtent()->GetWidth();
    drag(make<Plugin::PageZoomOutTool>(), {500, 375}, {500, 375});
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), far));
  }

  void panningMovesTheExtentAgainstTheMouse() {
    auto const pan = make<Plugin::PagePanTool>();
    drag(pan, {100, 100}, {200, 150});
    expectShown(QRectF(-2, 1, extentWidth, extentHeight));
    drag(pan, {500, 500}, {500, 450});
    expectShown(QRectF(-2, 0, extentWidth, extentHeight));
    drag(pan, {10, 10}, {10, 10});
    expectShown(QRectF(-2, 0, extentWidth, extentHeight));
  }

  void theHistoryStepsBackAndForth() {
    auto const previous = hook_->bound<Plugin::ZoomToPreviousExtentCommand>();
    auto const next = hook_->bound<Plugin::ZoomToNextExtentCommand>();
    drag(make<Plugin::PageZoomInTool>(), {500, 375}, {900, 675});
    QVERIFY(previous->IsEnable() && !next->IsEnable());
    previous->OnClick();
    expectShown(QRectF(0, 0, extentWidth, extentHeight));
    QVERIFY(next->IsEnable());
    next->OnClick();
    expectShown(QRectF(10, 1.5, 8, 6));
  }

  void wholePageAndRatioOne() {
    auto const whole = hook_->bound<Plugin::PageFullExtent>();
    auto const origin = hook_->bound<Plugin::PageZoomToOrigin>();
    whole->OnClick();
    auto const extent = hook_->layout->GetExtent();
    QVERIFY(extent->GetXMin() <= 0.0 && extent->GetXMax() >= 20.0 && extent->GetYMin() <= 0.0 &&
            extent->GetYMax() >= 28.0);
    origin->OnClick();
    QVERIFY(near(hook_->layout->GetDisplayTransformation()->GetPageScale(), 1.0));
    QVERIFY(near(hook_->layout->GetExtent()->GetWidth(), 1000 * 2.54 / 96));
  }

  void withAMapShownAllAreDisabled() {
    hook_->view = make<Map>();
    for (_ptr_t<SysFramework::BaseCommand> const& command : QList<_ptr_t<SysFramework::BaseCommand>>{
             make<Plugin::PageZoomInTool>(), make<Plugin::PageZoomOutTool>(), make<Plugin::PagePanTool>(),
             make<Plugin::PageFullExtent>(), make<Plugin::PageZoomToOrigin>(),
             make<Plugin::ZoomToPreviousExtentCommand>(), make<Plugin::ZoomToNextExtentCommand>()}) {
      command->OnCreate(hook_->pointer());
      QVERIFY(!command->IsEnable());
    }
  }

private:
  static _ptr_t<BaseTool> toolNamed(QString const& identifier) {
    if (identifier == "in") return make<Plugin::PageZoomInTool>();
    if (identifier == "out") return make<Plugin::PageZoomOutTool>();
    return make<Plugin::PagePanTool>();
  }

  void drag(_ptr_t<BaseTool> const& tool, QPoint press, QPoint release) {
    tool->OnCreate(hook_->pointer());
    QVERIFY(tool->IsEnable());
    auto const event = [](QEvent::Type type, QPoint at) {
      return QMouseEvent(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    };
    auto down = event(QEvent::MouseButtonPress, press);
    tool->OnMouseDown(&down);
    if (press != release) {
      auto move = event(QEvent::MouseMove, release);
      tool->OnMouseMove(&move);
    }
    auto up = event(QEvent::MouseButtonRelease, release);
    tool->OnMouseUp(&up);
  }

  void expectShown(QRectF const& expected) {
    auto const shown = hook_->layout->GetExtent();
    QVERIFY2(near(shown->GetXMin(), expected.x()) && near(shown->GetYMin(), expected.y()) &&
                 near(shown->GetWidth(), expected.width()) && near(shown->GetHeight(), expected.height()),
             qPrintable(QStringLiteral("shows %1, %2, %3 wide and %4 high")
                            .arg(shown->GetXMin())
                            .arg(shown->GetYMin())
                            .arg(shown->GetWidth())
                            .arg(shown->GetHeight())));
  }

  _ptr_t<LayoutHook> hook_;
};

QTEST_MAIN(NavigationTest)
#include "NavigationTest.moc"
