#include "Ruler.h"

#include "host/desktop/DocumentViews.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr double minLabelPx = 48;  // from one number to the next
constexpr int minTickPx = 4;
constexpr int textMarginPx = 2;

// The shortest of 1, 2 and 5 times a power of ten that is that long at least.
double roundLength(double minCm) {
  double const power = std::pow(10.0, std::floor(std::log10(minCm)));
  for (double const factor : {1.0, 2.0, 5.0})
    if (factor * power >= minCm) return factor * power;
  return 10 * power;
}

}  // namespace

Ruler::Ruler(Qt::Orientation orientation, DocumentViews& views, QWidget* parent)
    : QWidget(parent), orientation_(orientation), views_(views) {
  bool const isLevel = orientation == Qt::Horizontal;
  setObjectName(isLevel ? QStringLiteral("ruler_Horizontal") : QStringLiteral("ruler_Vertical"));
  setToolTip(tr("Centimetres on the page; pull a guide out of here"));
  setCursor(isLevel ? Qt::SplitVCursor : Qt::SplitHCursor);
  setSizePolicy(isLevel ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                isLevel ? QSizePolicy::Fixed : QSizePolicy::Expanding);
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * 0.8);
  setFont(small);
  connect(&views.layoutView(), &ViewWidget::viewChanged, this, QOverload<>::of(&QWidget::update));
  connect(&views.layoutView(), &ViewWidget::pointed, this, [this](QPoint const& at) {
    mousePx_ = orientation_ == Qt::Horizontal ? at.x() : at.y();
    update();
  });
  connect(&views.layoutView(), &ViewWidget::left, this, [this] {
    mousePx_.reset();
    update();
  });
}

Ruler::~Ruler() = default;

QSize Ruler::sizeHint() const {
  int const thick = fontMetrics().height() + 2 * textMarginPx + minTickPx;
  return {thick, thick};
}

void Ruler::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  update();
}

// Numbers at round lengths, and ticks between them down to the finest that can be told apart.
void Ruler::paintTicks(QPainter& painter, QTransform const& toDevice) const {
  bool const isLevel = orientation_ == Qt::Horizontal;
  double const pxPerCm = toDevice.m11();
  double const label = roundLength(minLabelPx / pxPerCm);
  double tick = label;
  for (double const part : {10.0, 5.0, 2.0})
    if (tick == label && label / part * pxPerCm >= minTickPx) tick = label / part;
  int const length = isLevel ? width() : height(), thick = isLevel ? height() : width();
  QTransform const back = toDevice.inverted();
  double const first = isLevel ? back.map(QPointF(0, 0)).x() : back.map(QPointF(0, length)).y();
  double const last = isLevel ? back.map(QPointF(length, 0)).x() : back.map(QPointF(0, 0)).y();
  for (double i = std::ceil(first / tick); i <= last / tick; ++i) {
    double const cm = i * tick;
    QPointF const place = toDevice.map(QPointF(cm, cm));
    double const at = std::floor(isLevel ? place.x() : place.y()) + 0.5;
    bool const isLabel = std::abs(std::remainder(cm, label)) < tick / 2;
    double const from = isLabel ? 0 : thick - minTickPx;
    painter.drawLine(isLevel ? QLineF(at, from, at, thick) : QLineF(from, at, thick, at));
    if (!isLabel) continue;
    QString const number = locale().toString(cm, 'g', 6);
    double const end = textMarginPx + fontMetrics().horizontalAdvance(number);
    if (isLevel ? at + end > length : at - end < 0) continue;  // not in part
    painter.save();
    painter.translate(isLevel ? QPointF(at + textMarginPx, fontMetrics().ascent())
                              : QPointF(fontMetrics().ascent(), at - textMarginPx));
    if (!isLevel) painter.rotate(-90);
    painter.drawText(QPointF(), number);
    painter.restore();
  }
}

void Ruler::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Text));
  auto const layout = views_.GetPageLayout();
  if (layout) paintTicks(painter, layout->GetDisplayTransformation()->ToDevice());
  bool const isLevel = orientation_ == Qt::Horizontal;
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(isLevel ? QLineF(0, height() - 0.5, width(), height() - 0.5)
                           : QLineF(width() - 0.5, 0, width() - 0.5, height()));
  if (!mousePx_) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.drawLine(isLevel ? QLine(*mousePx_, 0, *mousePx_, height()) : QLine(0, *mousePx_, width(), *mousePx_));
}

void Ruler::followMouse(QMouseEvent const& event) {
  auto& view = views_.layoutView();
  if (gesture_ && layout_ != views_.GetPageLayout()) endGesture(false);
  if (gesture_) gesture_->moveTo(pagePoint(*layout_, view.mapFromGlobal(event.globalPos())), gestureKeys(view, event));
}

void Ruler::mousePressEvent(QMouseEvent* event) {
  auto const layout = views_.GetPageLayout();
  if (event->button() != Qt::LeftButton || !layout || !layout->GetPage()) return;
  layout_ = layout;
  // The ruler along the upper edge holds level guides, the one at the side upright ones.
  Guide const guide{orientation_ == Qt::Horizontal ? Qt::Horizontal : Qt::Vertical, -1};
  QPoint const at = views_.layoutView().mapFromGlobal(event->globalPos());
  gesture_ = std::make_unique<GuideGesture>(views_, *layout, pagePoint(*layout, at), guide);
  grabKeyboard();
}

void Ruler::mouseMoveEvent(QMouseEvent* event) { followMouse(*event); }

void Ruler::mouseReleaseEvent(QMouseEvent* event) {
  followMouse(*event);
  endGesture(true);
}

void Ruler::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) endGesture(false);
}

// No command changes the page while a guide is pulled.
bool Ruler::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && gesture_) event->accept();
  return QWidget::event(event);
}

void Ruler::endGesture(bool isTaken) {
  if (!gesture_) return;
  releaseKeyboard();
  auto const gesture = std::move(gesture_);
  isTaken ? gesture->finish() : gesture->cancel();
  layout_ = nullptr;
}
