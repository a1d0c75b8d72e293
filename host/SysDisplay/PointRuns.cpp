#include "PointRuns.h"

#include <algorithm>
#include <iterator>

namespace SysDisplay {

void PointRuns::clear() {
  points.clear();
  ends.clear();
}

void PointRuns::endRun() {
  int const end = static_cast<int>(points.size());
  if (end > (ends.empty() ? 0 : ends.back())) ends.push_back(end);
}

void PointRuns::append(PointRuns const& other) {
  int const before = static_cast<int>(points.size());
  points.insert(points.end(), other.points.begin(), other.points.end());
  std::transform(other.ends.begin(), other.ends.end(), std::back_inserter(ends), [=](int end) { return before + end; });
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

}  // namespace SysDisplay
