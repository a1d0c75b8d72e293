#pragma once

#include <cmath>
#include <utility>

namespace SysCarto {

/// Two scale denominators, 0 for a side without a limit. Kept as they were set; those who compare get an extreme value
/// for an open side, since a test of both sides takes a single 0 for no limit at all.
struct ScaleRange {
  double min = 0;
  double max = 0;

  void set(double minDenominator, double maxDenominator) {
    min = limit(minDenominator);
    max = limit(maxDenominator);
    if (min > 0 && max > 0 && min > max) std::swap(min, max);
  }
  double comparedMin() const { return min == 0 && max > 0 ? 1e-9 : min; }
  double comparedMax() const { return max == 0 && min > 0 ? 1e15 : max; }
  bool contains(double denominator) const { return (min == 0 || denominator > min) && (max == 0 || denominator < max); }

private:
  static double limit(double denominator) { return std::isfinite(denominator) && denominator > 0 ? denominator : 0; }
};

}  // namespace SysCarto
