#include "MapView.h"

#include <QElapsedTimer>
#include <QPainter>

using SysCarto::Map;
using SysCarto::MapFrameElement;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

MapView::MapView(QWidget* parent) : ViewWidget(parent) { setObjectName(QStringLiteral("mapView")); }
MapView::~MapView() {
  if (shown_) shown_->setSurface(nullptr);
}

_ptr_t<Map> MapView::map() const { return layout_ ? layout_->GetFocusMap() : nullptr; }

void MapView::setLayout(_ptr_t<PageLayout> const& layout) {
  if (shown_) shown_->setSurface(nullptr);
  layout_ = layout;
  shown_ = map();
  if (shown_) shown_->setSurface(this);
  refresh(everything);
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

void MapView::paintMap() {
  if (picture_.isNull()) return;
  picture_.fill(palette().color(QPalette::Mid));
  QPainter painter(&picture_);
  if (tiles_.sizePx().isEmpty()) {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(picture_.rect(), Qt::AlignCenter, tr("The page has no data frame, so there is no map to show."));
    return;
  }
  QRect const place(
      QPoint((picture_.width() - tiles_.sizePx().width()) / 2, (picture_.height() - tiles_.sizePx().height()) / 2),
      tiles_.sizePx());
  painter.fillRect(place, Qt::white);
  tiles_.paint(painter, place.topLeft());
}

void MapView::continuePicture() {
  auto const frame = layout_ ? layout_->GetFocusMapFrameElement() : nullptr;
  if (!frame || tiles_.isComplete()) return;
  QElapsedTimer clock;
  clock.start();
  while (!tiles_.drawNext(*frame).isNull() && clock.elapsed() < sliceMs) continue;
  paintMap();
}

void MapView::resizeEvent(QResizeEvent*) { refresh(everything); }
