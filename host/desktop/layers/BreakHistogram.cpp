#include "BreakHistogram.h"

#include "host/SysCarto/layers/Classification.h"
#include "host/SysCarto/layers/Classify.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int barPx = 4, marginPx = 6, reachPx = 5;

}  // namespace

BreakHistogram::BreakHistogram(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setMinimumHeight(80);
  setObjectName(QStringLiteral("histogram"));
  setAccessibleName(tr("Histogram"));
}

QSize BreakHistogram::sizeHint() const { return {420, 120}; }

void BreakHistogram::setValues(std::vector<double> const& sorted) {
  sorted_ = sorted;
  bounds_.clear();
  first_ = sorted.empty() ? 0 : sorted.front();
  last_ = sorted.empty() || sorted.back() == first_ ? first_ + 1 : sorted.back();
  update();
}

void BreakHistogram::setClasses(std::vector<double> const& bounds, QVector<QColor> const& colors) {
  bounds_ = bounds;
  colors_ = colors;
  if (dragged_ + 1 >= static_cast<int>(bounds_.size())) dragged_ = -1;
  update();
}

QRectF BreakHistogram::area() const {
  return QRectF(rect()).adjusted(marginPx, marginPx, -marginPx, -marginPx - fontMetrics().height());
}

double BreakHistogram::toX(double value) const {
  return area().left() + (value - first_) / (last_ - first_) * area().width();
}

double BreakHistogram::toValue(double x) const {
  double const perPx = (last_ - first_) / area().width(), value = first_ + (x - area().left()) * perPx;
  return SysCarto::roundestWithin(value - perPx / 2, value + perPx / 2);
}

int BreakHistogram::boundAt(double x) const {
  int found = -1;
  double nearest = reachPx;
  for (int i = 1; i + 1 < static_cast<int>(bounds_.size()); ++i)
    if (double const far = std::abs(toX(bounds_[i]) - x); far <= nearest) {
      nearest = far;
      found = i;
    }
  return found;
}

QColor BreakHistogram::colorOf(double value) const {
  auto const next = std::upper_bound(bounds_.begin(), bounds_.end(), value);
  int const own = static_cast<int>(next - bounds_.begin()) - 1;
  return colors_.isEmpty() || !colors_.first().isValid() ? palette().color(QPalette::Mid)
                                                         : colors_[qBound(0, own, colors_.size() - 1)];
}

void BreakHistogram::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QRectF const frame = area();
  painter.fillRect(frame, palette().base());
  int const bars = std::max(1, static_cast<int>(frame.width() / barPx));
  std::vector<int> counts(bars);
  for (double const value : sorted_)
    ++counts[std::min(bars - 1, static_cast<int>((value - first_) / (last_ - first_) * bars))];
  double const most = std::sqrt(*std::max_element(counts.begin(), counts.end()));
  double const width = frame.width() / bars;
  for (int i = 0; i < bars; ++i) {
    if (counts[i] == 0) continue;
    double const height = std::max(1.0, std::sqrt(counts[i]) / most * frame.height());
    painter.fillRect(QRectF(frame.left() + i * width, frame.bottom() - height, width - 1, height),
                     colorOf(first_ + (i + 0.5) / bars * (last_ - first_)));
  }
  for (int i = 1; i + 1 < static_cast<int>(bounds_.size()); ++i) {
    double const x = std::round(toX(bounds_[i]));
    if (x < frame.left() || x > frame.right()) continue;
    painter.fillRect(QRectF(x - 0.5, frame.top(), i == dragged_ ? 2 : 1, frame.height()), palette().text());
  }
  painter.setPen(palette().color(QPalette::Text));
  QRectF const below(frame.left(), frame.bottom() + 2, frame.width(), fontMetrics().height());
  painter.drawText(below, Qt::AlignLeft, SysCarto::boundText(first_));
  painter.drawText(below, Qt::AlignRight, SysCarto::boundText(last_));
  if (dragged_ > 0) painter.drawText(below, Qt::AlignHCenter, SysCarto::boundText(bounds_[dragged_]));
}

void BreakHistogram::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) dragged_ = boundAt(event->localPos().x());
  update();
}

// A bound stays between its neighbours.
void BreakHistogram::mouseMoveEvent(QMouseEvent* event) {
  double const x = event->localPos().x();
  if (dragged_ < 1) return setCursor(boundAt(x) < 0 ? Qt::ArrowCursor : Qt::SplitHCursor);
  double const value = toValue(x);
  if (value > bounds_[dragged_ - 1] && value < bounds_[dragged_ + 1] && value != bounds_[dragged_])
    emit moved(dragged_, value);
}

void BreakHistogram::mouseReleaseEvent(QMouseEvent*) {
  dragged_ = -1;
  update();
}
