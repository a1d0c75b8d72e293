#include "ElementContainer.h"

#include "EditorRecord.h"
#include "TextElement.h"
#include "ElementHost.h"

#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/DrawTarget.h"

#include <QSet>

#include <algorithm>
#include <optional>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysDisplay::DrawTarget;
using SysGeometry::Envelope;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

using ElementPtr = IElementContainer::ElementPtr;
using Handles = QSet<ElementHandle>;

// A handle beyond this is not taken over, so that there is always a next one.
constexpr ElementHandle maxTakenHandle = 1000000000;

QList<ElementPtr> reversed(QList<ElementPtr> elements) {
  std::reverse(elements.begin(), elements.end());
  return elements;
}

QList<ElementPtr> broughtToFront(QList<ElementPtr> elements, Handles const& chosen) {
  std::stable_partition(elements.begin(), elements.end(),
                        [&](ElementPtr const& element) { return !chosen.contains(element->GetHandle()); });
  return elements;
}

// The other element after a run sinks past the whole run, one place at a time.
QList<ElementPtr> broughtForward(QList<ElementPtr> elements, Handles const& chosen) {
  for (int i = elements.size() - 2; i >= 0; --i)
    if (chosen.contains(elements[i]->GetHandle()) && !chosen.contains(elements[i + 1]->GetHandle()))
      elements.swapItemsAt(i, i + 1);
  return elements;
}

QList<ElementPtr> sentToBack(QList<ElementPtr> elements, Handles const& chosen) {
  return reversed(broughtToFront(reversed(std::move(elements)), chosen));
}

QList<ElementPtr> sentBackward(QList<ElementPtr> elements, Handles const& chosen) {
  return reversed(broughtForward(reversed(std::move(elements)), chosen));
}

// The edge of a picture is rounded to whole pixels, beyond its rectangle.
_ptr_t<Envelope> drawnArea(DisplayTransformation const& transformation) {
  double const slack = 2 / DisplayTransformationHost::pixelsPerUnit(transformation);
  QRectF const area = DisplayTransformationHost::coveredWorld(transformation).adjusted(-slack, -slack, slack, slack);
  return SysUtility::make<Envelope>(area.left(), area.top(), area.right(), area.bottom());
}

}  // namespace
}  // namespace SysCarto

IElementContainer::~IElementContainer() = default;

namespace SysCarto {

ElementContainer::ElementContainer() : token_(std::make_shared<ElementContainer*>(this)) {}

ElementContainer::~ElementContainer() {
  for (ElementPtr const& element : qAsConst(order_.elements)) ElementHost::setContainer(*element, nullptr);
}

ElementPtr ElementContainer::find(ElementHandle handle) const {
  auto const rank = order_.ranks.constFind(handle);
  return rank == order_.ranks.constEnd() ? nullptr : order_.elements.value(*rank);
}

bool ElementContainer::holds(ElementPtr const& element) const {
  return element && order_.ranks.contains(element->GetHandle());
}

ElementHandle ElementContainer::freeHandle(ElementHandle wanted) {
  bool const isFree = wanted > 0 && wanted <= maxTakenHandle && !order_.ranks.contains(wanted);
  ElementHandle const handle = isFree ? wanted : lastHandle_ + 1;
  lastHandle_ = std::max(lastHandle_, handle);
  return handle;
}

// Before each change. What happens outside an operation is no step of the history.
void ElementContainer::changing(bool stays) {
  if (!Editor::Instance()->d->records(*this) && stays) change_.raise();
}

void ElementContainer::AddElement(ElementPtr const& element) {
  if (!element || ElementHost::isPlaced(*element)) return;
  changing(!ElementHost::isLabel(*element));
  ElementHandle const handle = freeHandle(element->GetHandle());
  qint64 const rank = order_.elements.isEmpty() ? 0 : order_.elements.lastKey() + 1;
  order_.elements.insert(order_.elements.constEnd(), rank, element);
  order_.ranks.insert(handle, rank);
  ElementHost::setHandle(*element, handle);
  ElementHost::setContainer(*element, this);
}

void ElementContainer::AddElements(QList<ElementPtr> const& elements) {
  for (ElementPtr const& element : elements) AddElement(element);
}

QList<ElementPtr> ElementContainer::GetElements() const { return order_.elements.values(); }

void ElementContainer::DeleteElement(ElementPtr const& element) {
  if (!holds(element)) return;
  changing(!ElementHost::isLabel(*element));
  ElementHandle const handle = element->GetHandle();
  ElementPtr const taken = order_.elements.take(order_.ranks.take(handle));
  if (selected_.remove(handle)) selection_.removeOne(handle);
  ElementHost::setContainer(*taken, nullptr);
}

int ElementContainer::GetSelectedElementCount() const { return selection_.size(); }

QList<ElementPtr> ElementContainer::GetSelectedElements() const {
  QList<ElementPtr> elements;
  for (ElementHandle handle : selection_) elements << find(handle);
  return elements;
}

void ElementContainer::SelectElement(ElementPtr const& element) {
  if (!holds(element) || selected_.contains(element->GetHandle())) return;
  selection_ << element->GetHandle();
  selected_ << element->GetHandle();
}

void ElementContainer::UnselectAllElements() {
  selection_.clear();
  selected_.clear();
}

void ElementContainer::UnselectElement(ElementPtr const& element) {
  if (element && selected_.remove(element->GetHandle())) selection_.removeOne(element->GetHandle());
}

void ElementContainer::ReplaceElement(ElementHandle handle, ElementPtr const& element) {
  ElementPtr const old = find(handle);
  if (!old || !element || (ElementHost::isPlaced(*element) && element != old)) return;
  changing();
  order_.elements[order_.ranks.value(handle)] = element;
  ElementHost::setContainer(*old, nullptr);
  ElementHost::setHandle(*element, handle);
  ElementHost::setContainer(*element, this);
}

void ElementContainer::BringForward(QList<ElementPtr> const& elements) { restack(elements, broughtForward); }
void ElementContainer::BringToFront(QList<ElementPtr> const& elements) { restack(elements, broughtToFront); }
void ElementContainer::SendBackward(QList<ElementPtr> const& elements) { restack(elements, sentBackward); }
void ElementContainer::SendToBack(QList<ElementPtr> const& elements) { restack(elements, sentToBack); }

void ElementContainer::restack(QList<ElementPtr> const& elements, Restacking restacked) {
  Handles chosen;
  for (ElementPtr const& element : elements)
    if (holds(element)) chosen << element->GetHandle();
  if (chosen.isEmpty()) return;
  changing();
  Order order;
  for (ElementPtr const& element : restacked(GetElements(), chosen)) {
    qint64 const rank = order.elements.size();
    order.elements.insert(order.elements.constEnd(), rank, element);
    order.ranks.insert(element->GetHandle(), rank);
  }
  order_ = order;
}

void ElementContainer::setElements(QList<ElementPtr> const& elements) {
  changing();
  Order next;
  for (ElementPtr const& element : elements) {
    bool const isHere = element && find(element->GetHandle()) == element;
    if (!element || (ElementHost::isPlaced(*element) && !isHere)) continue;
    if (!isHere) ElementHost::setHandle(*element, freeHandle(element->GetHandle()));
    qint64 const rank = next.elements.size();
    if (next.ranks.contains(element->GetHandle())) continue;
    next.elements.insert(next.elements.constEnd(), rank, element);
    next.ranks.insert(element->GetHandle(), rank);
  }
  exchange(next);
}

void ElementContainer::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation, int phase,
                            _ptr_t<TrackerCancel> const& cancel) {
  if (phase != 1 || !transformation) return;
  _ptr_t<Envelope> const area = drawnArea(*transformation);
  auto const elements = order_.elements;  // as they are now, whatever drawing them does
  std::optional<DrawTarget> texts;        // shared by those that follow each other, as the many labels of a map do
  for (ElementPtr const& element : elements) {
    if (cancel && cancel->IsCanced()) return;
    if (!element->IsVisible()) continue;
    if (auto const* text = dynamic_cast<TextElement const*>(element.get())) {
      if (!texts) texts.emplace(painter, *transformation);
      text->drawOn(*texts);
      continue;
    }
    texts.reset();
    if (element->GetBoundary(transformation)->Intersects(area)) element->Draw(painter, transformation, cancel);
  }
}

void ElementContainer::setHistory(QUndoStack* history) { history_ = history; }
QUndoStack* ElementContainer::history() const { return history_; }

void ElementContainer::setPlaceholders(std::shared_ptr<Placeholders> const& placeholders) {
  placeholders_ = placeholders;
  for (ElementPtr const& element : qAsConst(order_.elements)) usePlaceholders(*element, placeholders_);
}

void ElementContainer::elementMoved() {
  if (change_.raise() && history_) history_->clear();
}

void ElementContainer::exchange(Order& other) {
  std::swap(order_, other);
  for (ElementPtr const& element : qAsConst(other.elements)) ElementHost::setContainer(*element, nullptr);
  for (ElementPtr const& element : qAsConst(order_.elements)) ElementHost::setContainer(*element, this);
  selection_.erase(std::remove_if(selection_.begin(), selection_.end(),
                                  [this](ElementHandle handle) { return !order_.ranks.contains(handle); }),
                   selection_.end());
  selected_ = QSet<ElementHandle>(selection_.begin(), selection_.end());
}

}  // namespace SysCarto
