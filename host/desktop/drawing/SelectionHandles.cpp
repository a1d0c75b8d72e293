#include "SelectionHandles.h"

#include "host/SysCarto/elements/Turning.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

using SysCarto::Element;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

constexpr double handlePx = 8;
constexpr double reachPx = 10;  // of the mouse
constexpr double referencePx = 2.5;
constexpr double roomForMiddlesPx = 3 * handlePx;

constexpr Handle handles[] = {{-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {0, -1}, {0, 1}, {-1, 0}, {1, 0}, {0, 0, true}};
constexpr double turnGapPx = 24;  // from the box to the handle that turns it

QRectF rectangleOf(Element const& element) {
  auto const envelope = element.GetEnvelope();
  return {envelope->GetXMin(), envelope->GetYMin(), envelope->GetWidth(), envelope->GetHeight()};
}

// As QRectF::united, which passes over rectangles without a width.
QRectF united(QRectF const& a, QRectF const& b) {
  return QRectF(QPointF(qMin(a.left(), b.left()), qMin(a.top(), b.top())),
                QPointF(qMax(a.right(), b.right()), qMax(a.bottom(), b.bottom())));
}

}  // namespace

bool isInReach(Element const& element) { return element.IsVisible() && !isLocked(element); }

SysCarto::ElementContainer& workplace(PageLayout const& layout) { return SysCarto::PageLayoutHost::workplace(layout); }

QRectF areaOf(IElementContainer const& elements) {
  QRectF area;
  for (auto const& element : elements.GetElements())
    area = area.isNull() ? rectangleOf(*element) : united(area, rectangleOf(*element));
  return area;
}

QList<_ptr_t<Element>> movableSelection(PageLayout const& layout) {
  QList<_ptr_t<Element>> movable;
  for (auto const& element : workplace(layout).GetSelectedElements())
    if (isInReach(*element)) movable << element;
  return movable;
}

SelectionHandles::SelectionHandles(PageLayout const& layout) {
  QTransform const toDevice = layout.GetDisplayTransformation()->ToDevice();
  for (auto const& element : movableSelection(layout)) {
    canTurn_ = canTurn_ && SysCarto::canTurn(*element);
    QRectF const rectangle = rectangleOf(*element);
    boundsCm_ = framesPx_.isEmpty() ? rectangle : united(boundsCm_, rectangle);
    framesPx_ << toDevice.mapRect(rectangle);
  }
  boundsPx_ = toDevice.mapRect(boundsCm_);
}

// y of a handle is upwards as on the page; pixels go down.
QRectF SelectionHandles::place(Handle const& handle) const {
  QPointF const centre =
      boundsPx_.center() + QPointF(handle.x * boundsPx_.width() / 2, -handle.y * boundsPx_.height() / 2);
  double const above = handle.turns ? boundsPx_.height() / 2 + turnGapPx : 0;
  return {centre.x() - handlePx / 2, centre.y() - above - handlePx / 2, handlePx, handlePx};
}

Handle SelectionHandles::at(QPoint const& pixel) const {
  if (framesPx_.isEmpty()) return {};
  double const slack = (reachPx - handlePx) / 2;
  for (Handle const& handle : handles)
    if (isShown(handle) && place(handle).adjusted(-slack, -slack, slack, slack).contains(pixel)) return handle;
  return {};
}

// Those in the middle of a side need room beside the corners.
bool SelectionHandles::isShown(Handle const& handle) const {
  if (handle.turns) return canTurn_;
  bool const isCorner = handle.x != 0 && handle.y != 0;
  return isCorner || ((handle.x != 0 || boundsPx_.width() >= roomForMiddlesPx) &&
                      (handle.y != 0 || boundsPx_.height() >= roomForMiddlesPx));
}

void SelectionHandles::paint(QPainter& painter) const {
  if (framesPx_.isEmpty()) return;
  painter.save();
  QColor const colour(0x1a, 0x73, 0xe8);
  painter.setPen(QPen(colour, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRects(framesPx_);
  if (framesPx_.size() > 1) {
    // The first one is what the others are aligned with.
    painter.setPen(QPen(colour, referencePx));
    painter.drawRect(framesPx_.first());
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    painter.drawRect(boundsPx_);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.25));
  painter.setBrush(Qt::white);
  for (Handle const& handle : handles) {
    if (!isShown(handle)) continue;
    if (handle.turns) {
      painter.drawLine(QPointF(boundsPx_.center().x(), boundsPx_.top()), place(handle).center());
      painter.drawEllipse(place(handle));
    } else {
      painter.drawRoundedRect(place(handle), 1.5, 1.5);
    }
  }
  painter.restore();
}
