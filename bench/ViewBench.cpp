#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/Session.h"
#include "host/desktop/Workbench.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTextStream>
#include <QThread>
#include <QUndoStack>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

// What a person waits for at the window: the time of each frame while something moves on the page, and of a command on
// many elements. Prints rows of a table.

namespace {

constexpr QSize viewSize(1600, 1000);
constexpr int frames = 240, turnsOneWay = 12;
constexpr int manyElements = 1000;
constexpr double idleTurnMs = 0.1;
constexpr double millisecond = 1e6;

using SysCarto::ReadDepth;

class Bench {
public:
  explicit Bench(QString const& document, ReadDepth depth = ReadDepth::Features)
      : own_(std::make_unique<Workbench>()), bench_(*own_) {
    if (!bench_.session().open(document, depth)) qFatal("%s", qPrintable(DocumentSession::takeProblem()));
    bench_.views().resize(viewSize);
    bench_.views().QWidget::show();
  }

  /// With the menus of a window about it, whose states are asked for after each event.
  explicit Bench(MainWindow& window) : bench_(window.bench()) {}

  /// What a person waits for who opens a document: milliseconds until the page is there, until all of it is, and the
  /// longest turn of the event loop meanwhile.
  static void printOpening(QString const& document) {
    QElapsedTimer clock;
    clock.start();
    Bench opened(document, ReadDepth::Later);
    qint64 firstMs = -1;
    double longest = static_cast<double>(clock.elapsed());
    do {
      double const turn = timed([] { QCoreApplication::processEvents(); });
      longest = std::max(longest, turn);
      if (firstMs < 0) firstMs = clock.elapsed();
      if (turn < idleTurnMs) QThread::msleep(1);
    } while (!opened.view().isComplete());
    QTextStream(stdout) << QStringLiteral("%1 %2 %3\n").arg(firstMs).arg(clock.elapsed()).arg(longest, 0, 'f', 1);
  }

  void addElements(int count) {
    for (int i = 0; i < count; ++i) {
      double const x = 2 + (i % 40) * 0.9, y = 3 + (i / 40) * 0.85;
      auto const box =
          SysUtility::make<SysGeometry::Envelope>(x, y, x + 0.4 + (i % 7) * 0.05, y + 0.3 + (i % 5) * 0.05);
      SysUtility::_ptr_t<SysCarto::Element> element;
      if (i % 4 == 3) {
        auto const text = SysUtility::make<SysCarto::TextElement>();
        text->setText(QStringLiteral("Text %1").arg(i));
        element = text;
      } else if (i % 4 == 2) {
        element = SysUtility::make<SysCarto::EllipseElement>();
      } else {
        element = SysUtility::make<SysCarto::RectangleElement>();
      }
      element->SetGeometry(box);
      container().AddElement(element);
    }
    settle();
  }

  IElementContainer& container() { return *bench_.views().GetPageLayout()->GetGraphicsContainer(); }

  /// Until all maps are drawn; answers how long each turn of the event loop took.
  QVector<double> settle() {
    QVector<double> turns;
    view().refresh(SysCarto::RefreshPhase::Everything);
    do {
      turns << timed([] { QCoreApplication::processEvents(); });
    } while (!view().isComplete());
    return turns;
  }

  void drawAnew(QString const& name) {
    QVector<double> turns;
    for (int i = 0; i < 6; ++i) {
      click(i % 2 ? "Plotvane_ZoomToOrigin" : "Plotvane_ZoomToWhole");
      turns << settle();
    }
    print(name, turns);
  }

  /// That many elements, one of which lies under the middle of the view.
  void select(int count) {
    QPoint const middle = view().rect().center();
    auto const at = bench_.views().GetPageLayout()->GetDisplayTransformation()->ToMapPoint(middle);
    auto const chosen = container().GetElements().mid(container().GetElements().size() - count);
    container().UnselectAllElements();
    for (auto const& element : chosen) container().SelectElement(element);
    auto const first = chosen.first()->GetEnvelope()->GetAnchorPoint();
    auto const extent = bench_.views().GetPageLayout()->GetExtent();
    extent->Offset(first->GetX() - at->GetX(), first->GetY() - at->GetY());
    bench_.views().GetPageLayout()->SetExtent(extent);
    settle();
  }

  void click(char const* identifier) { bench_.commands().click(*bench_.commands().find(QLatin1String(identifier))); }

  void drag(QString const& name) {
    QPoint const middle = view().rect().center();
    send(QEvent::MouseButtonPress, middle);
    row(name, [&](int i) { send(QEvent::MouseMove, middle + QPoint(i % 200, std::lround(60 * std::sin(i / 20.0)))); });
    send(QEvent::MouseButtonRelease, middle);
    settle();
  }

  void wheel(QString const& name, Qt::KeyboardModifiers modifiers) {
    row(name, [&](int i) { turnWheel(i, modifiers); });
    settle();
  }

  /// To and fro, whatever the number of turns.
  void turnWheel(int i, Qt::KeyboardModifiers modifiers) {
    int const step = (i / turnsOneWay) % 2 ? 30 : -30;
    QWheelEvent event(view().rect().center(), view().rect().center(), QPoint(), QPoint(0, step), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view(), &event);
  }

  /// One row: each frame is an event and the painting that it asks for.
  void row(QString const& name, std::function<void(int)> const& step, int count = frames, bool paints = true) {
    print(name, timesOf(step, count, paints));
  }

  static QVector<double> timesOf(std::function<void(int)> const& step, int count, bool paints = true) {
    QVector<double> times;
    for (int i = 0; i < count; ++i)
      times << timed([&] {
        step(i);
        if (paints) QCoreApplication::processEvents();
      });
    return times;
  }

  /// Answers the median.
  static double print(QString const& name, QVector<double> times) {
    std::sort(times.begin(), times.end());
    QTextStream(stdout) << QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                               .arg(name)
                               .arg(times[times.size() / 2], 0, 'f', 2)
                               .arg(times[times.size() * 95 / 100], 0, 'f', 2)
                               .arg(times.last(), 0, 'f', 2);
    return times[times.size() / 2];
  }

  LayoutView& view() { return bench_.views().layoutView(); }

private:
  static double timed(std::function<void()> const& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return clock.nsecsElapsed() / millisecond;
  }

  void send(QEvent::Type type, QPoint const& at) {
    QMouseEvent event(type, at, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view(), &event);
  }

  std::unique_ptr<Workbench> own_;
  Workbench& bench_;
};

// A modified document shows so in the title, and no more: it scrolls as fast as one that is not. By turns, so that what
// else the machine does falls on both.
void scrollInTheWindow(QString const& document) {
  MainWindow window;
  if (!window.bench().session().open(document)) qFatal("%s", qPrintable(DocumentSession::takeProblem()));
  window.resize(viewSize);
  window.show();
  Bench page(window);
  page.click("Host_SelectAll");
  page.click("Plotvane_SendToBackElements");  // all of them: a step that changes no picture
  page.click("Host_Unselect");
  QVector<double> times[2];
  for (int i = 0; i < frames / turnsOneWay; ++i) {
    page.click(i % 2 ? "Host_Redo" : "Host_Undo");
    page.settle();
    times[i % 2] += Bench::timesOf([&](int turn) { page.turnWheel(turn, Qt::NoModifier); }, 2 * turnsOneWay);
    if (window.isWindowModified() != bool(i % 2)) qFatal("scrolling has modified the document, or saved it");
  }
  double const unmodified = Bench::print(QStringLiteral("scroll in the window, unmodified"), times[0]);
  double const modified = Bench::print(QStringLiteral("scroll in the window, modified"), times[1]);
  QTextStream(stdout)
      << QStringLiteral("| the one against the other, times | %1 | | |\n").arg(unmodified / modified, 0, 'f', 2);
  SysCarto::MapDocumentHost::history(window.bench().session().document())
      ->setClean();  // closing the window asks nothing
}

}  // namespace

int main(int argc, char** argv) {
  prepareEnvironment();
  QApplication application(argc, argv);
  prepareApplication();
  if (application.arguments().value(1) == QLatin1String("--open")) {
    Bench::printOpening(application.arguments().value(2));
    return 0;
  }
  QString const document = application.arguments().value(1, QStringLiteral("samples/world.kdx"));

  scrollInTheWindow(document);
  Bench page(document);
  page.addElements(200 - page.container().GetElements().size());
  page.click("Plotvane_Pan");
  page.drag(QStringLiteral("pan, 200 elements"));
  page.wheel(QStringLiteral("scroll with the wheel, 200 elements"), Qt::NoModifier);
  page.wheel(QStringLiteral("zoom with the wheel, 200 elements"), Qt::ControlModifier);
  page.click("Host_Select");
  page.drag(QStringLiteral("drag the data frame, 200 elements"));
  page.click("Host_SelectAll");
  page.drag(QStringLiteral("drag 200 elements"));
  page.drawAnew(QStringLiteral("one turn of the event loop while the map is drawn anew"));

  Bench many(document);
  many.addElements(manyElements);
  many.select(200);
  many.drag(QStringLiteral("drag 200 of %1 elements, drawn to lines").arg(manyElements));
  many.click("Host_SelectAll");
  auto const align = [&](int i) { many.click(i % 2 ? "Plotvane_LeftAlignment" : "Plotvane_TopAlignment"); };
  many.row(QStringLiteral("align %1 elements").arg(manyElements), align, 20, false);
  many.row(QStringLiteral("align %1 elements, and paint").arg(manyElements), align, 20);
  return 0;
}
