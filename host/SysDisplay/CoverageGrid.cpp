#include "CoverageGrid.h"

#include <algorithm>
#include <cmath>

namespace SysDisplay {

namespace {

constexpr double opaque = 255;

double partWithin(double winding, Qt::FillRule rule) {
  double const turns = std::abs(winding);
  if (rule == Qt::WindingFill) return std::min(turns, 1.0);
  double const odd = turns - 2 * std::floor(turns / 2);
  return std::min(odd, 2 - odd);
}

}  // namespace

void CoverageGrid::clear(QRect const& pixels) {
  pixels_ = pixels;
  stride_ = static_cast<size_t>(pixels.width()) + 1;
  changes_.assign(stride_ * static_cast<size_t>(pixels.height()), 0);
}

void CoverageGrid::add(QPointF a, QPointF b) {
  a -= pixels_.topLeft();
  b -= pixels_.topLeft();
  double const sign = a.y() < b.y() ? 1 : -1;
  if (sign < 0) std::swap(a, b);
  double const top = std::max(a.y(), 0.0), bottom = std::min(b.y(), double(pixels_.height()));
  if (!(top < bottom)) return;
  double const slope = (b.x() - a.x()) / (b.y() - a.y());
  auto const xAt = [&](double y) { return y >= b.y() ? b.x() : a.x() + (y - a.y()) * slope; };
  double y = top, x = xAt(top);
  for (auto row = static_cast<size_t>(top); y < bottom; ++row) {
    double const nextY = std::min(static_cast<double>(row + 1), bottom), nextX = xAt(nextY);
    addInRow(&changes_[row * stride_], x, nextX, sign * (nextY - y));
    y = nextY;
    x = nextX;
  }
}

// What lies to the left of the row counts as at its left end, what lies to its right changes nothing; the pixels
// between are crossed one after the other, from left to right.
void CoverageGrid::addInRow(double* row, double x1, double x2, double height) const {
  double const width = pixels_.width();
  double const left = std::min(x1, x2), right = std::max(x1, x2);
  if (left >= width) return;
  if (right <= 0) {
    row[0] += height;
    return;
  }
  double const heightOfX = right > left ? height / (right - left) : 0;
  if (left < 0) row[0] += heightOfX * -left;
  double const end = std::min(right, width);
  double x = std::max(left, 0.0);
  auto column = static_cast<size_t>(x);
  do {
    double const next = std::min(static_cast<double>(column + 1), end);
    double const part = right > left ? heightOfX * (next - x) : height;
    double const rightOf = part * ((x + next) / 2 - static_cast<double>(column));
    row[column] += part - rightOf;
    row[column + 1] += rightOf;
    x = next;
    ++column;
  } while (x < end);
}

QImage CoverageGrid::mask(Qt::FillRule rule) const {
  QImage mask(pixels_.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < pixels_.height(); ++y) {
    double const* const row = &changes_[static_cast<size_t>(y) * stride_];
    auto* const line = reinterpret_cast<QRgb*>(mask.scanLine(y));
    double winding = 0;
    for (int x = 0; x < pixels_.width(); ++x) {
      winding += row[x];
      line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(opaque * partWithin(winding, rule))));
    }
  }
  return mask;
}

}  // namespace SysDisplay
