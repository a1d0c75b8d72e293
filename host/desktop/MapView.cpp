#include "MapView.h"

#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/MapSteps.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

using SysCarto::ActiveViewHost;
using SysCarto::Map;
using SysCarto::MapHost;
using SysCarto::MapSteps;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

MapView::MapView(QWidget* parent) : ViewWidget(parent) { setObjectName(QStringLiteral("mapView")); }
MapView::~MapView() {
  if (shown_) ActiveViewHost::setSurface(*shown_, nullptr);
}

_ptr_t<Map> MapView::map() const { return layout_ ? layout_->GetFocusMap() : nullptr; }

void MapView::setLayout(_ptr_t<PageLayout> const& layout) {
  if (shown_) ActiveViewHost::setSurface(*shown_, nullptr);
  layout_ = layout;
  shown_ = map();
  if (shown_) ActiveViewHost::setSurface(*shown_, this);
  refresh(SysCarto::RefreshPhase::Everything);
}

void MapView::composePicture() {
  QSize const size = this->size() * devicePixelRatioF();
  if (picture_.size() != size) picture_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
  auto const frame = layout_ ? layout_->GetFocusMapFrameElement() : nullptr;
  if (frame && !size.isEmpty()) {
    auto const rectangle = frame->GetEnvelope();
    tiles_.follow(*frame, qMin(size.width() / qMax(0.01, rectangle->GetWidth()),
                               size.height() / qMax(0.01, rectangle->GetHeight())));
    tiles_.setShown(picture_.rect());
  } else {
    tiles_ = {};
  }
  paintMap();
}

void MapView::takeNews() {
  tiles_.takeNews();
  goOn();
}

// Of the map in the picture.
QRect MapView::placePx() const {
  QSize const size = tiles_.sizePx();
  return {QPoint((picture_.width() - size.width()) / 2, (picture_.height() - size.height()) / 2), size};
}

QVector<ViewWidget::ShownMap> MapView::shownMaps() const {
  auto const shown = map();
  if (!shown || tiles_.sizePx().isEmpty()) return {};
  QRect const place = placePx();
  return {{shown, {QPointF(place.topLeft()) / devicePixelRatioF(), QSizeF(place.size()) / devicePixelRatioF()}}};
}

void MapView::paintMap() {
  if (picture_.isNull()) return;
  picture_.fill(palette().color(QPalette::Mid));
  QPainter painter(&picture_);
  if (tiles_.sizePx().isEmpty()) {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(picture_.rect(), Qt::AlignCenter, tr("The page has no data frame, so there is no map to show."));
    return;
  }
  painter.fillRect(placePx(), Qt::white);
  tiles_.paint(painter, placePx().topLeft());
}

bool MapView::continuePicture() {
  auto const frame = layout_ ? layout_->GetFocusMapFrameElement() : nullptr;
  if (!frame || !tiles_.canGoOn()) return false;
  QElapsedTimer clock;
  clock.start();
  bool hasChanged = false;
  while (!tiles_.drawNext(*frame).isNull()) {
    hasChanged = true;
    if (clock.elapsed() >= sliceMs) break;
  }
  if (hasChanged) paintMap();
  return hasChanged;
}

void MapView::resizeEvent(QResizeEvent*) { refresh(SysCarto::RefreshPhase::Everything); }

bool MapView::isFree() const {
  auto const frame = layout_ ? layout_->GetFocusMapFrameElement() : nullptr;
  return frame && !frame->IsLocked() && !tiles_.sizePx().isEmpty();
}

bool MapView::isFreeToZoom() const { return isFree() && MapHost::lockedScale(*map()) == 0; }

double MapView::unitsPerPx() const { return map()->GetExtent()->GetWidth() / placePx().width(); }

// A place that stays where it is, in device pixels.
void MapView::zoomAt(QPointF const& fixedPx, double factor) {
  QPointF const place = placePx().topLeft();
  auto const shown = map()->GetExtent();
  double const x = shown->GetXMin() + (fixedPx.x() - place.x()) * unitsPerPx();
  double const y = shown->GetYMax() - (fixedPx.y() - place.y()) * unitsPerPx();
  auto const nearer = [factor](double centre, double side) { return centre + (side - centre) / factor; };
  shown->PutCoords(nearer(x, shown->GetXMin()), nearer(y, shown->GetYMin()), nearer(x, shown->GetXMax()),
                   nearer(y, shown->GetYMax()));
  MapSteps::zoom(*map(), MapHost::turnedBack(*map(), *shown));
}

void MapView::wheelEvent(QWheelEvent* event) {
  if (!isFreeToZoom() || grabbed_) return;
  zoomAt(event->position() * devicePixelRatioF(), zoomOf(*event));
  event->accept();
}

void MapView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = event->pos();
  if (isFree() && event->button() == Qt::LeftButton) grabbed_ = event->pos();
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
  ViewWidget::mouseMoveEvent(event);
  if (!grabbed_) return;
  QPoint const offset = event->pos() - *grabbed_;
  beginTracker();
  trackerOffset(offset.x(), offset.y());
  endTracker();
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (pressed_ == event->pos() && map()) emit clicked(event->localPos());
  if (!grabbed_) return;
  QPointF const offset = QPointF(event->pos() - *std::exchange(grabbed_, std::nullopt)) * devicePixelRatioF();
  clearOverlay();
  if (offset.isNull() || !isFree()) return;
  auto const shown = map()->GetExtent();
  shown->Offset(-offset.x() * unitsPerPx(), offset.y() * unitsPerPx());
  MapSteps::pan(*map(), MapHost::turnedBack(*map(), *shown));
}

void MapView::hideEvent(QHideEvent*) {
  if (std::exchange(grabbed_, std::nullopt)) clearOverlay();
}
