#include "SelectTool.h"

#include "TextEditing.h"

#include "host/SysCarto/elements/ElementHit.h"
#include "host/desktop/DocumentViews.h"

#include <SysCarto/Map.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

using SysCarto::Element;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

constexpr double reachPx = 3;
constexpr double nudgeCm = 0.1;
constexpr double farNudge = 10;

// The topmost one; empty where there is none.
_ptr_t<Element> elementAt(PageLayout const& layout, QPoint const& pixel, bool mayBeLocked = false) {
  QPointF const point = pagePoint(layout, pixel);
  double const reach = reachPx / layout.GetDisplayTransformation()->ToDevice().m11();
  auto const elements = layout.GetGraphicsContainer()->GetElements();
  SysGeometry::Envelope const place(point.x() - reach, point.y() - reach, point.x() + reach, point.y() + reach);
  auto const hit = std::find_if(elements.crbegin(), elements.crend(), [&](_ptr_t<Element> const& element) {
    return (mayBeLocked || !isLocked(*element)) && SysCarto::isHit(*element, place, layout.GetDisplayTransformation());
  });
  return hit == elements.crend() ? nullptr : *hit;
}

bool isSelected(PageLayout const& layout, Element const& element) {
  for (auto const& selected : layout.GetGraphicsContainer()->GetSelectedElements())
    if (selected->GetHandle() == element.GetHandle()) return true;
  return false;
}

void select(PageLayout const& layout, QList<_ptr_t<Element>> const& elements) {
  auto* const container = layout.GetGraphicsContainer();
  container->UnselectAllElements();
  for (auto const& element : elements) container->SelectElement(element);
}

// An empty pass of the overlay paints the selection as it is now.
void showSelection(PageLayout& layout) {
  layout.BeginTrackerDraw();
  layout.EndTrackerDraw();
}

Qt::CursorShape cursorFor(Handle const& handle) {
  if (handle.y == 0) return Qt::SizeHorCursor;
  if (handle.x == 0) return Qt::SizeVerCursor;
  return handle.x == handle.y ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
}

}  // namespace

SelectTool::SelectTool(DocumentViews& views) : views_(views) { enabled_ = true; }
SelectTool::~SelectTool() = default;

bool SelectTool::IsEnable() { return static_cast<bool>(SysFramework::activePageLayout(*hook())); }

bool SelectTool::Deactivate() {
  giveUp();
  return BaseTool::Deactivate();
}

void SelectTool::OnEnterEvent(QEvent*) { SetCurrentCursor(QCursor(Qt::ArrowCursor)); }

void SelectTool::JustMouseMove(QMouseEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  Handle const handle = SelectionHandles(*layout).at(event->pos());
  if (!handle.isNone()) return SetCurrentCursor(QCursor(cursorFor(handle)));
  auto const element = elementAt(*layout, event->pos());
  SetCurrentCursor(QCursor(element && isSelected(*layout, *element) ? Qt::SizeAllCursor : Qt::ArrowCursor));
}

void SelectTool::OnMouseDown(QMouseEvent* event) {
  giveUp();
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  layout_ = layout;
  selectionBefore_ = layout->GetGraphicsContainer()->GetSelectedElements();
  press(layout, *event);
  showSelection(*layout);
}

void SelectTool::press(_ptr_t<PageLayout> const& layout, QMouseEvent const& event) {
  QPointF const point = pagePoint(*layout, event.pos());
  bool const adds = event.modifiers() & Qt::ShiftModifier;
  Handle const handle = SelectionHandles(*layout).at(event.pos());
  if (!handle.isNone()) {
    gesture_ = std::make_unique<ResizeGesture>(*layout, point, handle);
    return;
  }
  auto const element = elementAt(*layout, event.pos());
  if (!element) {
    if (!adds) layout->GetGraphicsContainer()->UnselectAllElements();
    gesture_ = std::make_unique<RubberBandGesture>(*layout, point);
    return;
  }
  if (isSelected(*layout, *element)) {
    if (adds) return layout->GetGraphicsContainer()->UnselectElement(element);
    clicked_ = element;
  } else {
    if (!adds) layout->GetGraphicsContainer()->UnselectAllElements();
    layout->GetGraphicsContainer()->SelectElement(element);
  }
  gesture_ = std::make_unique<MoveGesture>(*layout, point);
}

void SelectTool::OnMouseMove(QMouseEvent* event) {
  if (gesture_) gesture_->moveTo(pagePoint(*layout_, event->pos()), gestureKeys(views_.layoutView(), *event));
}

void SelectTool::OnMouseUp(QMouseEvent* event) {
  if (!gesture_) return;
  auto const gesture = std::move(gesture_);
  gesture->moveTo(pagePoint(*layout_, event->pos()), gestureKeys(views_.layoutView(), *event));
  if (!gesture->hasMoved() && clicked_) select(*layout_, {clicked_});
  gesture->finish();
  clicked_ = nullptr;
  layout_ = nullptr;
}

// A lock keeps a frame where it is and what it shows; the focus changes neither.
void SelectTool::OnDblClick(QMouseEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout || event->button() != Qt::LeftButton) return;
  auto const element = elementAt(*layout, event->pos(), true);
  if (!element) return;
  giveUp();
  if (auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element)) {
    layout->SetFocusMap(frame->GetMap());
    return showSelection(*layout);
  }
  if (element->GetType() == SysCarto::ElementType::Text) return editText(views_, element->GetHandle());
  emit views_.layoutView().propertiesWanted();
}

// Everything is as it was before the button went down.
void SelectTool::giveUp() {
  if (!gesture_) return;
  gesture_->cancel();
  gesture_.reset();
  select(*layout_, selectionBefore_);
  showSelection(*layout_);
  clicked_ = nullptr;
  layout_ = nullptr;
}

void SelectTool::OnKeyDown(QKeyEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  if (event->key() == Qt::Key_Escape) {
    if (gesture_)
      giveUp();
    else
      select(*layout, {});
    showSelection(*layout);
    event->accept();
  } else if (!gesture_ && nudge(*layout, *event)) {
    event->accept();
  }
}

bool SelectTool::nudge(PageLayout& layout, QKeyEvent const& event) {
  QPointF direction;
  switch (event.key()) {
    case Qt::Key_Left: direction = {-1, 0}; break;
    case Qt::Key_Right: direction = {1, 0}; break;
    case Qt::Key_Up: direction = {0, 1}; break;
    case Qt::Key_Down: direction = {0, -1}; break;
    default: return false;
  }
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
  QPointF const by = direction * nudgeCm * (event.modifiers() & Qt::ShiftModifier ? farNudge : 1);
  changeSelection(layout, QCoreApplication::translate("SelectTool", "Nudge the selected elements"),
                  [by](Element& element) { element.Move(by.x(), by.y()); });
  return true;
}
