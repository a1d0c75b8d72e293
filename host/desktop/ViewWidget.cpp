#include "ViewWidget.h"

#include "layers/FeatureHighlight.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int restMs = 60;
constexpr double textMarginPx = 4, textGapPx = 16;

}  // namespace

ViewWidget::ViewWidget(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  connect(&slices_, &QTimer::timeout, this, [this] {
    bool const hasChanged = continuePicture();
    if (!canGoOn()) slices_.stop();
    if (hasChanged || !slices_.isActive()) update();
  });
  rest_.setSingleShot(true);
  rest_.setInterval(restMs);
  connect(&rest_, &QTimer::timeout, this, [this] { refresh(SysCarto::RefreshPhase::Everything); });
}

ViewWidget::~ViewWidget() = default;

void ViewWidget::beginTracker() {
  shapes_.clear();
  texts_.clear();
  offset_ = {};
}

void ViewWidget::endTracker() { update(); }
void ViewWidget::trackerOffset(double dx, double dy) { offset_ = {dx, dy}; }

// The tool may reuse its symbol and its geometry before they are painted.
void ViewWidget::trackerShape(SysDisplay::Symbol const& symbol,
                              SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry,
                              SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) {
  shapes_.push_back({symbol.Clone(), geometry->Clone(), transformation});
}

void ViewWidget::trackerText(QString const& text, QPointF const& placePx) { texts_.push_back({text, placePx}); }

// Below the mouse, and on the other side of it where there is no room.
void ViewWidget::paintText(QPainter& painter, Text const& text) const {
  QSizeF const size = fontMetrics().boundingRect(text.words).size() + QSizeF(2 * textMarginPx, 2 * textMarginPx);
  QPointF corner = text.placePx + QPointF(textGapPx, textGapPx);
  if (corner.x() + size.width() > width()) corner.rx() = text.placePx.x() - textGapPx - size.width();
  if (corner.y() + size.height() > height()) corner.ry() = text.placePx.y() - textGapPx - size.height();
  QRectF const box(corner, size);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::ToolTipBase));
  painter.drawRoundedRect(box, textMarginPx, textMarginPx);
  painter.setPen(palette().color(QPalette::ToolTipText));
  painter.drawText(box, Qt::AlignCenter, text.words);
}

// Several changes in one turn of the event loop are painted once.
void ViewWidget::refresh(int) {
  isStale_ = true;
  update();
  emit viewChanged();
}

void ViewWidget::clearOverlay() {
  beginTracker();
  endTracker();
}

double ViewWidget::zoomOf(QWheelEvent const& event) {
  constexpr double zoomPerStep = 1.25;
  return std::pow(zoomPerStep, event.angleDelta().y() / wheelStep);
}

void ViewWidget::setCursor(QCursor const& cursor) { QWidget::setCursor(cursor); }

void ViewWidget::paintAids(QPainter&) {}
void ViewWidget::paintOver(QPainter&) {}

QRectF ViewWidget::placeOfPicture() const { return {QPointF(), QSizeF(picture().size()) / devicePixelRatioF()}; }

void ViewWidget::composeAtRest() {
  rest_.start();
  slices_.stop();
  update();
}

// The slices come in turns of their own.
void ViewWidget::compose() {
  isStale_ = false;
  rest_.stop();
  composePicture();
  goOn();
}

void ViewWidget::goOn() {
  if (canGoOn() && !isPaused_) slices_.start(0);
  update();
}

void ViewWidget::setPaused(bool isPaused) {
  isPaused_ = isPaused;
  slices_.stop();
  if (!isPaused) goOn();
}

void ViewWidget::paintEvent(QPaintEvent*) {
  if (isStale_) compose();
  QPainter painter(this);
  QRectF const place = placeOfPicture().translated(offset_);
  if (!place.contains(rect())) painter.fillRect(rect(), palette().color(QPalette::Mid));
  painter.drawImage(place, picture());
  if (highlight_)
    for (ShownMap const& shown : shownMaps()) highlight_->paint(painter, *shown.map, shown.placePx.translated(offset_));
  paintAids(painter);
  for (Shape const& shape : shapes_) shape.symbol->Draw(painter, shape.transformation, shape.geometry);
  for (Text const& text : texts_) paintText(painter, text);
  if (!hasOverlay()) paintOver(painter);
}

void ViewWidget::mouseMoveEvent(QMouseEvent* event) { emit pointed(event->pos()); }
void ViewWidget::leaveEvent(QEvent*) { emit left(); }
