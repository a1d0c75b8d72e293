#pragma once

#include "Elements.h"

#include "host/desktop/Session.h"
#include "host/desktop/Workbench.h"

#include <memory>

/// A person at a workbench, one without a window or that of a window: a page with elements, and a mouse and keys on its
/// view.
class WorkbenchPage {
  std::unique_ptr<Workbench> own_;

public:
  explicit WorkbenchPage(Workbench& windows) : bench(windows) {}
  WorkbenchPage() : own_(std::make_unique<Workbench>()), bench(*own_) {
    bench.session().create();
    bench.views().resize(800, 600);
    bench.views().QWidget::show();
  }

  _ptr_t<SysCarto::PageLayout> layout() { return bench.session().document().GetPageLayout(); }
  IElementContainer& container() { return *layout()->GetGraphicsContainer(); }

  template <class Element>
  _ptr_t<Element> add(double xmin, double ymin, double xmax, double ymax) {
    auto const element = madeIn<Element>(xmin, ymin, xmax, ymax);
    container().AddElement(element);
    return element;
  }

  /// The element that now has the handle of this one.
  _ptr_t<SysCarto::Element> now(SysCarto::Element const& element) {
    for (auto const& one : container().GetElements())
      if (one->GetHandle() == element.GetHandle()) return one;
    return nullptr;
  }

  QRectF place(SysCarto::Element const& element) { return placeOf(*now(element)); }

  QPoint pixel(double xCm, double yCm) { return layout()->GetDisplayTransformation()->FromMapPoint(xCm, yCm); }

  void mouse(QEvent::Type type, QPoint const& at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(type, at, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, modifiers);
    QApplication::sendEvent(&shown(), &event);
  }

  void click(QPoint const& at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { drag(at, at, modifiers); }

  void drag(QPoint const& from, QPoint const& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    mouse(QEvent::MouseButtonPress, from, modifiers);
    if (from != to) mouse(QEvent::MouseMove, (from + to) / 2, modifiers);
    if (from != to) mouse(QEvent::MouseMove, to, modifiers);
    mouse(QEvent::MouseButtonRelease, to, modifiers);
  }

  void wheel(QPoint const& angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QPointF const centre = shown().rect().center();
    QWheelEvent event(centre, centre, QPoint(), angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&shown(), &event);
  }

  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { QTest::keyClick(&shown(), key, modifiers); }

  bool run(QString const& identifier) {
    auto const* const command = bench.commands().find(identifier);
    return command && bench.commands().click(*command);
  }

  /// The one of the two views that mouse and keys go to.
  QWidget& shown() { return *bench.views().currentWidget(); }
  LayoutView& view() { return bench.views().layoutView(); }

  Workbench& bench;
};
