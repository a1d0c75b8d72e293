#pragma once

#include <SysGeometry/Envelope.h>

#include <algorithm>
#include <limits>

namespace SysGeometry {

/// A rectangle in world units; without a point in it until one is added.
struct Box {
  double xmin = std::numeric_limits<double>::infinity(), ymin = xmin, xmax = -xmin, ymax = -xmin;

  bool isEmpty() const { return !(xmin <= xmax && ymin <= ymax); }
  void add(double x, double y) {
    xmin = std::min(xmin, x);
    xmax = std::max(xmax, x);
    ymin = std::min(ymin, y);
    ymax = std::max(ymax, y);
  }
  void add(double const* xy, int count) {
    for (int i = 0; i < count; ++i) add(xy[2 * i], xy[2 * i + 1]);
  }
  void add(Box const& other) {
    if (other.isEmpty()) return;
    add(other.xmin, other.ymin);
    add(other.xmax, other.ymax);
  }
  bool meets(Box const& other) const {
    return xmin <= other.xmax && other.xmin <= xmax && ymin <= other.ymax && other.ymin <= ymax;
  }
  bool contains(double x, double y) const { return x >= xmin && x <= xmax && y >= ymin && y <= ymax; }
  bool contains(Box const& other) const { return contains(other.xmin, other.ymin) && contains(other.xmax, other.ymax); }
  Box grown(double distance) const { return {xmin - distance, ymin - distance, xmax + distance, ymax + distance}; }
  SysUtility::_ptr_t<Envelope> envelope() const {
    return isEmpty() ? SysUtility::make<Envelope>() : SysUtility::make<Envelope>(xmin, ymin, xmax, ymax);
  }
};

}  // namespace SysGeometry
