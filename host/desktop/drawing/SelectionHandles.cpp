#include "SelectionHandles.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

using SysCarto::Element;
using SysCarto::MapFrameElement;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

constexpr double handlePx = 8;
constexpr double reachPx = 10;  // of the mouse
constexpr double roomForMiddlesPx = 3 * handlePx;

constexpr Handle handles[] = {{-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {0, -1}, {0, 1}, {-1, 0}, {1, 0}};

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

QList<_ptr_t<Element>> movableSelection(PageLayout const& layout) {
  QList<_ptr_t<Element>> movable;
  for (auto const& element : layout.GetGraphicsContainer()->GetSelectedElements())
    if (!isLocked(*element)) movable << element;
  return movable;
}

SelectionHandles::SelectionHandles(PageLayout const& layout) {
  QTransform const toDevice = layout.GetDisplayTransformation()->ToDevice();
  for (auto const& element : movableSelection(layout)) {
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
  return {centre.x() - handlePx / 2, centre.y() - handlePx / 2, handlePx, handlePx};
}

Handle SelectionHandles::at(QPoint const& pixel) const {
  if (framesPx_.isEmpty()) return {};
  double const slack = (reachPx - handlePx) / 2;
  for (Handle const& handle : handles) {
    bool const isCorner = handle.x != 0 && handle.y != 0;
    bool const hasRoom = (handle.x != 0 || boundsPx_.width() >= roomForMiddlesPx) &&
                         (handle.y != 0 || boundsPx_.height() >= roomForMiddlesPx);
    if ((isCorner || hasRoom) && place(handle).adjusted(-slack, -slack, slack, slack).contains(pixel)) return handle;
  }
  return {};
}

void SelectionHandles::paint(QPainter& painter) const {
  if (framesPx_.isEmpty()) return;
  painter.save();
  QColor const colour(0x1a, 0x73, 0xe8);
  painter.setPen(QPen(colour, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRects(framesPx_);
  if (framesPx_.size() > 1) {
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    painter.drawRect(boundsPx_);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.25));
  painter.setBrush(Qt::white);
  for (Handle const& handle : handles) {
    if (handle.x == 0 && boundsPx_.width() < roomForMiddlesPx) continue;
    if (handle.y == 0 && boundsPx_.height() < roomForMiddlesPx) continue;
    painter.drawRoundedRect(place(handle), 1.5, 1.5);
  }
  painter.restore();
}
