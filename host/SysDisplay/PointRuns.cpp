#include "PointRuns.h"

#include "host/SysGeometry/Box.h"

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
  SysGeometry::Box box;
  for (QPointF const& point : points) box.add(point.x(), point.y());
  return QRectF(QPointF(box.xmin, box.ymin), QPointF(box.xmax, box.ymax));
}

}  // namespace SysDisplay
