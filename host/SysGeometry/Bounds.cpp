#include "Bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

namespace {

struct Bounds {
  static constexpr double far = std::numeric_limits<double>::infinity();
  double xmin = far, ymin = far, xmax = -far, ymax = -far;

  void add(QVector<QPointF> const& points) {
    for (QPointF const& point : points) {
      if (std::isnan(point.x()) || std::isnan(point.y())) continue;
      xmin = std::min(xmin, point.x());
      ymin = std::min(ymin, point.y());
      xmax = std::max(xmax, point.x());
      ymax = std::max(ymax, point.y());
    }
  }

  _ptr_t<Envelope> envelope() const { return xmin > xmax ? make<Envelope>() : make<Envelope>(xmin, ymin, xmax, ymax); }
};

}  // namespace

_ptr_t<Envelope> boundsOf(QVector<QPointF> const& points) {
  Bounds bounds;
  bounds.add(points);
  return bounds.envelope();
}

_ptr_t<Envelope> boundsOf(QVector<QVector<QPointF>> const& runs) {
  Bounds bounds;
  for (QVector<QPointF> const& points : runs) bounds.add(points);
  return bounds.envelope();
}

}  // namespace SysGeometry
