#include "PointRuns.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace SysDisplay {

namespace {

// Half of the widest polygon that the rasteriser's 32 bit arithmetic can take.
constexpr double halfBoxPx = 16000.0;

QRectF boxAround(QPainter const& painter) {
  QPointF const centre =
      QRectF(painter.viewport()).center() - QPointF(painter.combinedTransform().dx(), painter.combinedTransform().dy());
  QPointF const middle(std::round(centre.x()), std::round(centre.y()));
  return QRectF(middle - QPointF(halfBoxPx, halfBoxPx), middle + QPointF(halfBoxPx, halfBoxPx));
}

bool liesWithin(QRectF const& box, PointRuns const& rings) {
  return std::all_of(rings.points.begin(), rings.points.end(), [&](QPointF const& p) {
    return p.x() >= box.left() && p.x() <= box.right() && p.y() >= box.top() && p.y() <= box.bottom();
  });
}

// One side of the box: positive distances are inside.
struct Side {
  double a, b, c;
  double distance(QPointF const& p) const { return a * p.x() + b * p.y() + c; }
};

std::vector<QPointF> cut(std::vector<QPointF> const& ring, Side const& side) {
  std::vector<QPointF> kept;
  for (size_t i = 0; i < ring.size(); ++i) {
    QPointF const& from = ring[i];
    QPointF const& to = ring[(i + 1) % ring.size()];
    double const d1 = side.distance(from), d2 = side.distance(to);
    if (d1 >= 0) kept.push_back(from);
    if ((d1 >= 0) != (d2 >= 0)) kept.push_back(from + (to - from) * (d1 / (d1 - d2)));
  }
  return kept;
}

PointRuns cutToBox(PointRuns const& rings, QRectF const& box) {
  std::array<Side, 4> const sides{
      {{1, 0, -box.left()}, {-1, 0, box.right()}, {0, 1, -box.top()}, {0, -1, box.bottom()}}};
  PointRuns result;
  for (int i = 0; i < rings.count(); ++i) {
    std::vector<QPointF> ring(rings.run(i), rings.run(i) + rings.size(i));
    for (Side const& side : sides) ring = cut(ring, side);
    for (QPointF const& point : ring) result.add(point);
    result.endRun();
  }
  return result;
}

void drawRings(QPainter& painter, PointRuns const& rings, Qt::FillRule rule) {
  // A polygon of few points might be taken for a rectangle, which the raster engine draws in another way.
  if (rings.count() == 1 && rings.size(0) > 5) {
    painter.drawPolygon(rings.run(0), rings.size(0), rule);
    return;
  }
  QPainterPath path;
  path.setFillRule(rule);
  path.reserve(static_cast<int>(rings.points.size()) + 1);
  for (int i = 0; i < rings.count(); ++i) {
    QPointF const* points = rings.run(i);
    path.moveTo(points[0]);
    for (int j = 1; j < rings.size(i); ++j) path.lineTo(points[j]);
  }
  painter.drawPath(path);
}

}  // namespace

void PointRuns::clear() {
  points.clear();
  ends.clear();
}

void PointRuns::endRun() {
  int const end = static_cast<int>(points.size());
  if (end > (ends.empty() ? 0 : ends.back())) ends.push_back(end);
}

QRectF PointRuns::bounds() const {
  if (points.empty()) return QRectF();
  double left = points[0].x(), right = left, top = points[0].y(), bottom = top;
  for (QPointF const& point : points) {
    left = std::min(left, point.x());
    right = std::max(right, point.x());
    top = std::min(top, point.y());
    bottom = std::max(bottom, point.y());
  }
  return QRectF(QPointF(left, top), QPointF(right, bottom));
}

void fillRuns(QPainter& painter, PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (rings.isEmpty() || color.alpha() == 0) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  QRectF const box = boxAround(painter);
  if (liesWithin(box, rings))
    drawRings(painter, rings, rule);
  else
    drawRings(painter, cutToBox(rings, box), rule);
}

}  // namespace SysDisplay
