#include "Stroker.h"

#include "host/SysDisplay/DevicePath.h"

#include <algorithm>
#include <cmath>

namespace SysDisplay {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double arcTolerancePx = 0.04;

// A join that opens no more than this is drawn as one point on either side.
constexpr double smallGapPx = 0.25;

}  // namespace

Stroker::Stroker(double widthPx, LineCapStyle cap, LineJoinStyle join, double miterLimit)
    : half_(widthPx / 2), cap_(cap), join_(join), miterLimit_(miterLimit) {
  arcStep_ = half_ > arcTolerancePx ? 2 * std::acos(1 - arcTolerancePx / half_) : pi;
  arcCosine_ = arcStep_ < pi ? std::cos(arcStep_) : -1;
}

double Stroker::reachPx() const {
  double const join = join_ == LineJoinStyle::Miter ? std::max(1.0, 2 * miterLimit_) : 1.0;
  double const cap = cap_ == LineCapStyle::Square ? 1.5 : 1.0;
  return half_ * std::max(join, cap) + 1;
}

void Stroker::measure(QPointF const* points, int count, int segments) {
  normals_.resize(segments);
  for (int i = 0; i < segments; ++i) normals_[i] = leftOf(points[i], points[i + 1 == count ? 0 : i + 1]);
}

// With the outline's two halves (left of the line forwards, right of it backwards) made of pieces that all turn the
// same way, and inner corners led through the vertex itself, no place inside the line can cancel out.
void Stroker::strokeOpen(QPointF const* points, int count, PointRuns& out) {
  if (count < 1) return;
  if (count == 1) return dot(points[0], out);
  measure(points, count, count - 1);
  int const last = count - 2;
  for (int i = 1; i <= last; ++i) joinAt(points[i], normals_[i - 1], normals_[i], out);
  capAt(points[count - 1], normals_[last], out);
  for (int i = last; i >= 1; --i) joinAt(points[i], -normals_[i], -normals_[i - 1], out);
  capAt(points[0], -normals_[0], out);
  out.endRun();
}

void Stroker::strokeClosed(QPointF const* points, int count, PointRuns& out) {
  if (count < 3) {
    if (count == 2) {
      QPointF const thereAndBack[] = {points[0], points[1], points[0]};
      return strokeOpen(thereAndBack, 3, out);
    }
    return strokeOpen(points, count, out);
  }
  measure(points, count, count);
  for (int i = 0; i < count; ++i) joinAt(points[i], normals_[i ? i - 1 : count - 1], normals_[i], out);
  out.endRun();
  for (int i = count - 1; i >= 0; --i) joinAt(points[i], -normals_[i], -normals_[i ? i - 1 : count - 1], out);
  out.endRun();
}

bool Stroker::reachesTip(double cosine) const {
  // The tip lies half ÷ cos(turn ÷ 2) from the vertex, and cos² (turn ÷ 2) is (1 + cosine) ÷ 2.
  return 2 * (1 + cosine) * miterLimit_ * miterLimit_ >= 1.0;
}

void Stroker::joinAt(QPointF const& point, QPointF const& n1, QPointF const& n2, PointRuns& out) const {
  double const cosine = std::clamp(QPointF::dotProduct(n1, n2), -1.0, 1.0);
  QPointF const direction2(-n2.y(), n2.x());
  bool const inner = QPointF::dotProduct(n1, direction2) > 0;
  double const gapSquared = 2 * (1 - cosine) * half_ * half_;
  bool const tip = !inner && join_ == LineJoinStyle::Miter && reachesTip(cosine);
  if (tip || (cosine > 0 && gapSquared < smallGapPx * smallGapPx)) {
    out.add(snapped(point + (n1 + n2) * (half_ / (1 + cosine))));
    return;
  }
  out.add(snapped(point + n1 * half_));
  if (inner)
    out.add(snapped(point));
  else if (join_ == LineJoinStyle::Round && cosine < arcCosine_)
    arc(point, n1, std::acos(cosine), out);
  out.add(snapped(point + n2 * half_));
}

void Stroker::capAt(QPointF const& point, QPointF const& normal, PointRuns& out) const {
  QPointF const side = normal * half_;
  QPointF const ahead = cap_ == LineCapStyle::Square ? QPointF(-side.y(), side.x()) : QPointF();
  out.add(snapped(point + side + ahead));
  if (cap_ == LineCapStyle::Round) arc(point, normal, pi, out);
  out.add(snapped(point - side + ahead));
}

// The points between the ends of an arc, which turns from `from` towards the line's direction.
void Stroker::arc(QPointF const& centre, QPointF const& from, double angle, PointRuns& out) const {
  int const steps = static_cast<int>(std::ceil(angle / arcStep_));
  double const c = std::cos(angle / steps), s = std::sin(angle / steps);
  QPointF radius = from * half_;
  for (int i = 1; i < steps; ++i) {
    radius = QPointF(radius.x() * c - radius.y() * s, radius.x() * s + radius.y() * c);
    out.add(snapped(centre + radius));
  }
}

void Stroker::dot(QPointF const& centre, PointRuns& out) const {
  if (cap_ == LineCapStyle::Butt) return;
  capAt(centre, QPointF(0, -1), out);
  capAt(centre, QPointF(0, 1), out);
  out.endRun();
}

QRectF Stroker::bounds(QPointF const* points, int count, bool closed) const {
  if (count < 1) return QRectF();
  bool const isRing = closed && count > 2;
  PointRuns reached;
  auto const reach = [&](QPointF const& p, QPointF const& by) {
    reached.points.push_back(p + by);
    reached.points.push_back(p - by);
  };
  auto const reachAllRound = [&](QPointF const& p) {
    reach(p, QPointF(half_, 0));
    reach(p, QPointF(0, half_));
  };
  for (int i = 0; i < count; ++i) {
    QPointF const& p = points[i];
    bool const isStart = !isRing && i == 0, isEnd = !isRing && i + 1 == count;
    bool const isRound = isStart || isEnd ? cap_ == LineCapStyle::Round : join_ == LineJoinStyle::Round;
    if (isRound || count == 1) reachAllRound(p);
    if (isRound || count == 1) continue;
    QPointF const before = isStart ? QPointF() : leftOf(points[(i + count - 1) % count], p) * half_;
    QPointF const after = isEnd ? QPointF() : leftOf(p, points[(i + 1) % count]) * half_;
    reach(p, before);
    reach(p, after);
    if (isStart || isEnd) {
      QPointF const side = before + after;
      if (cap_ == LineCapStyle::Square) reach(p, side + QPointF(-side.y(), side.x()));
      if (cap_ == LineCapStyle::Square) reach(p, side - QPointF(-side.y(), side.x()));
      continue;
    }
    double const cosine = QPointF::dotProduct(before, after) / (half_ * half_);
    if (join_ == LineJoinStyle::Miter && cosine > -0.999999 && reachesTip(cosine))
      reach(p, (before + after) / (1 + cosine));
  }
  return reached.bounds();
}

}  // namespace SysDisplay
