#include "SelectTool.h"

#include "Guides.h"
#include "TextEditing.h"
#include "TurnGesture.h"

#include "host/SysCarto/elements/ElementHit.h"
#include "host/SysGeometry/Box.h"
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
  auto const elements = workplace(layout).GetElements();
  SysGeometry::Envelope const place(point.x() - reach, point.y() - reach, point.x() + reach, point.y() + reach);
  auto const hit = std::find_if(elements.crbegin(), elements.crend(), [&](_ptr_t<Element> const& element) {
    return (mayBeLocked || !isLocked(*element)) && SysCarto::isHit(*element, place, layout.GetDisplayTransformation());
  });
  return hit == elements.crend() ? nullptr : *hit;
}

bool isSelected(PageLayout const& layout, Element const& element) {
  for (auto const& selected : workplace(layout).GetSelectedElements())
    if (selected->GetHandle() == element.GetHandle()) return true;
  return false;
}

void select(PageLayout const& layout, QList<_ptr_t<Element>> const& elements) {
  auto* const container = &workplace(layout);
  container->UnselectAllElements();
  for (auto const& element : elements) container->SelectElement(element);
}

// An empty pass of the overlay paints the selection as it is now.
void showSelection(PageLayout& layout) {
  layout.BeginTrackerDraw();
  layout.EndTrackerDraw();
}

// A click beside a group that is open closes it.
void leaveGroupsWithout(PageLayout& layout, QPoint const& pixel) {
  QPointF const point = pagePoint(layout, pixel);
  while (SysCarto::PageLayoutHost::openGroups(layout) > 0 && !elementAt(layout, pixel, true) &&
         !areaOf(workplace(layout)).contains(point)) {
    SysCarto::PageLayoutHost::closeGroup(layout);
    workplace(layout).UnselectAllElements();
  }
}

Qt::CursorShape cursorFor(Handle const& handle) {
  if (handle.turns) return Qt::PointingHandCursor;
  if (handle.y == 0) return Qt::SizeHorCursor;
  if (handle.x == 0) return Qt::SizeVerCursor;
  return handle.x == handle.y ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
}

// How far an arrow key goes; nothing for other keys.
std::optional<QPointF> nudgeOf(QKeyEvent const& event) {
  QPointF direction;
  switch (event.key()) {
    case Qt::Key_Left: direction = {-1, 0}; break;
    case Qt::Key_Right: direction = {1, 0}; break;
    case Qt::Key_Up: direction = {0, 1}; break;
    case Qt::Key_Down: direction = {0, -1}; break;
    default: return std::nullopt;
  }
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return std::nullopt;
  return direction * nudgeCm * (event.modifiers() & Qt::ShiftModifier ? farNudge : 1);
}

std::optional<Guide> shownGuideAt(DocumentViews& views, PageLayout const& layout, QPoint const& pixel) {
  return views.layoutView().showsAids() ? guideAt(layout, pixel) : std::nullopt;
}

}  // namespace

SelectTool::SelectTool(DocumentViews& views) : views_(views) { enabled_ = true; }
SelectTool::~SelectTool() = default;

bool SelectTool::IsEnable() { return static_cast<bool>(SysFramework::activePageLayout(*hook())); }

bool SelectTool::Deactivate() {
  giveUp();
  leaveParts();
  return BaseTool::Deactivate();
}

void SelectTool::OnEnterEvent(QEvent*) { SetCurrentCursor(QCursor(Qt::ArrowCursor)); }

void SelectTool::JustMouseMove(QMouseEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  if (auto const shown = vertices())
    return SetCurrentCursor(QCursor(shown->at(event->pos()).isNone() ? Qt::ArrowCursor : Qt::CrossCursor));
  Handle const handle = SelectionHandles(*layout).at(event->pos());
  if (!handle.isNone()) return SetCurrentCursor(QCursor(cursorFor(handle)));
  if (auto const guide = shownGuideAt(views_, *layout, event->pos()))
    return SetCurrentCursor(QCursor(guide->orientation == Qt::Vertical ? Qt::SplitHCursor : Qt::SplitVCursor));
  auto const element = elementAt(*layout, event->pos());
  SetCurrentCursor(QCursor(element && isSelected(*layout, *element) ? Qt::SizeAllCursor : Qt::ArrowCursor));
}

void SelectTool::OnMouseDown(QMouseEvent* event) {
  giveUp();
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  layout_ = layout;
  selectionBefore_ = workplace(*layout).GetSelectedElements();
  if (!pressVertex(layout, *event) && !pressLabel(layout, *event)) press(layout, *event);
  if (gesture_) gesture_->setUsesAids(views_.layoutView().showsAids());
  showSelection(*layout);
}

void SelectTool::press(_ptr_t<PageLayout> const& layout, QMouseEvent const& event) {
  QPointF const point = pagePoint(*layout, event.pos());
  bool const adds = event.modifiers() & Qt::ShiftModifier;
  Handle const handle = SelectionHandles(*layout).at(event.pos());
  if (!handle.isNone()) {
    if (handle.turns)
      gesture_ = std::make_unique<TurnGesture>(*layout, point);
    else
      gesture_ = std::make_unique<ResizeGesture>(*layout, point, handle);
    return;
  }
  if (auto const guide = shownGuideAt(views_, *layout, event.pos())) {
    gesture_ = std::make_unique<GuideGesture>(views_, *layout, point, *guide);
    return;
  }
  leaveGroupsWithout(*layout, event.pos());
  auto const element = elementAt(*layout, event.pos());
  if (!element) {
    if (!adds) workplace(*layout).UnselectAllElements();
    gesture_ = std::make_unique<RubberBandGesture>(*layout, point);
    return;
  }
  if (isSelected(*layout, *element)) {
    if (adds) return workplace(*layout).UnselectElement(element);
    clicked_ = element;
  } else {
    if (!adds) workplace(*layout).UnselectAllElements();
    workplace(*layout).SelectElement(element);
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
  vertex_.isNew = false;  // it is one like others now, or nothing was added
  clicked_ = nullptr;
  layout_ = nullptr;
}

// A lock keeps a frame where it is and what it shows; the focus changes neither.
void SelectTool::OnDblClick(QMouseEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout || event->button() != Qt::LeftButton) return;
  // A locked frame takes the focus where nothing else is to be had.
  auto const free = elementAt(*layout, event->pos());
  auto const element = free ? free : elementAt(*layout, event->pos(), true);
  if (!element) return;
  giveUp();
  if (auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element)) {
    layout->SetFocusMap(frame->GetMap());
    return showSelection(*layout);
  }
  if (isLocked(*element)) return;
  if (element->GetType() == SysCarto::ElementType::Group) {
    SysCarto::PageLayoutHost::openGroup(*layout, element->GetHandle());
    if (auto const member = elementAt(*layout, event->pos())) workplace(*layout).SelectElement(member);
    return showSelection(*layout);
  }
  if (element->GetType() == SysCarto::ElementType::Text) return editText(views_, element->GetHandle());
  if (edited_ == element->GetHandle()) return;
  if (VertexHandles::hasVertices(*element)) {
    select(*layout, {element});
    editSelected();
    return showSelection(*layout);
  }
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
    else if (vertices() || labels())
      leaveParts();
    else if (SysCarto::PageLayoutHost::openGroups(*layout) > 0)
      SysCarto::PageLayoutHost::closeGroup(*layout);
    else
      select(*layout, {});
    showSelection(*layout);
    event->accept();
  } else if (!gesture_ && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    emit views_.layoutView().propertiesWanted();
    event->accept();
  } else if (!gesture_ && changeVertex(*layout, *event)) {
    event->accept();
  } else if (!gesture_ && hideLabel(*event)) {
    event->accept();
  } else if (!gesture_ && !vertices() && nudge(*layout, *event)) {
    event->accept();
  }
}

// Of the element whose vertices are shown, as long as it is there and selected alone.
_ptr_t<Element> SelectTool::editedAlone() const {
  auto const layout = edited_ ? SysFramework::activePageLayout(*hook()) : nullptr;
  auto const selected = layout ? workplace(*layout).GetSelectedElements() : QList<_ptr_t<Element>>();
  bool const isThere = selected.size() == 1 && selected.first()->GetHandle() == edited_ && isInReach(*selected.first());
  return isThere ? selected.first() : nullptr;
}

std::optional<VertexHandles> SelectTool::vertices() const {
  auto const element = editedAlone();
  if (!element || !VertexHandles::hasVertices(*element)) return std::nullopt;
  return VertexHandles(*SysFramework::activePageLayout(*hook()), element);
}

std::optional<LabelHandles> SelectTool::labels() const {
  auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(editedAlone());
  if (!frame) return std::nullopt;
  return LabelHandles(*SysFramework::activePageLayout(*hook()), frame);
}

bool SelectTool::editSelected() {
  auto const layout = SysFramework::activePageLayout(*hook());
  auto const selected = layout ? movableSelection(*layout) : QList<_ptr_t<Element>>();
  if (selected.size() != 1 || !hasParts(*selected.first())) return false;
  edited_ = selected.first()->GetHandle();
  vertex_ = {};
  label_ = {};
  return true;
}

bool SelectTool::paintOver(QPainter& painter) {
  auto const shown = vertices();
  if (shown) shown->paint(painter, vertex_);
  auto const shownLabels = labels();
  if (shownLabels) shownLabels->paint(painter, label_);
  return shown || shownLabels;
}

bool SelectTool::step(bool forward) {
  auto const shown = vertices();
  if (shown) vertex_ = shown->next(vertex_, forward);
  return shown.has_value();
}

bool SelectTool::wants(QKeyEvent const& key) const {
  bool const isOfVertices =
      key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Insert;
  return isOfVertices && key.modifiers() == Qt::NoModifier && (vertices() || labels());
}

// A press beside the frame leaves its labels.
bool SelectTool::pressLabel(_ptr_t<PageLayout> const& layout, QMouseEvent const& event) {
  auto const shown = labels();
  if (!shown) return false;
  label_ = shown->at(event.pos());
  QPointF const point = pagePoint(*layout, event.pos());
  auto const frame = editedAlone()->GetEnvelope();
  if (!label_.isNone())
    gesture_ = std::make_unique<LabelGesture>(views_, *layout, point, *shown, label_);
  else if (!SysGeometry::Box{frame->GetXMin(), frame->GetYMin(), frame->GetXMax(), frame->GetYMax()}.contains(
               point.x(), point.y()))
    leaveParts();
  return edited_ != 0;
}

bool SelectTool::hideLabel(QKeyEvent const& event) {
  auto const shown = labels();
  if (!shown || !wants(event) || event.key() == Qt::Key_Insert) return false;
  if (!label_.isNone()) shown->hide(views_, label_);
  label_ = {};
  return true;
}

// A press beside the vertices and their element leaves them.
bool SelectTool::pressVertex(_ptr_t<PageLayout> const& layout, QMouseEvent const& event) {
  auto const shown = vertices();
  if (!shown) return false;
  Vertex const vertex = shown->at(event.pos());
  auto const element = workplace(*layout).GetSelectedElements().first();
  if (vertex.isNone()) {
    auto const under = elementAt(*layout, event.pos());
    if (!under || under->GetHandle() != edited_) leaveParts();
    return edited_ != 0;
  }
  vertex_ = vertex;
  gesture_ = std::make_unique<VertexGesture>(*layout, pagePoint(*layout, event.pos()), element, vertex);
  return true;
}

// Deletes, adds or nudges the chosen one.
bool SelectTool::changeVertex(PageLayout& layout, QKeyEvent const& event) {
  auto const shown = vertices();
  if (!shown || vertex_.isNone() || vertex_.isNew) return false;
  if (vertex_.ring >= shown->rings().size() || vertex_.index >= shown->rings()[vertex_.ring].size()) return false;
  if (auto const by = nudgeOf(event)) {
    shown->replace(layout, QCoreApplication::translate("SelectTool", "Nudge the vertex"),
                   shown->moved(vertex_, shown->place(vertex_) + *by));
    return true;
  }
  if (!wants(event)) return false;
  if (event.key() == Qt::Key_Insert) {
    if (vertex_.index == 0 && !shown->isClosed()) return false;
    Vertex added = vertex_;
    added.isNew = true;
    if (added.index == 0) added.index = shown->rings()[added.ring].size();
    shown->replace(layout, QCoreApplication::translate("SelectTool", "Add a vertex"),
                   shown->moved(added, shown->place(added)));
    vertex_.index = added.index;
    return true;
  }
  auto const rings = shown->without(vertex_);
  if (rings.isEmpty()) return true;
  shown->replace(layout, QCoreApplication::translate("SelectTool", "Delete the vertex"), rings);
  vertex_.index = std::max(0, vertex_.index - 1);
  return true;
}

bool SelectTool::nudge(PageLayout& layout, QKeyEvent const& event) {
  auto const by = nudgeOf(event);
  if (!by) return false;
  moveSelection(layout, QCoreApplication::translate("SelectTool", "Nudge the selected elements"), *by);
  return true;
}
