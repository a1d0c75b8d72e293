#include <SysUtility/MathUtil.h>

#include <algorithm>
#include <cmath>

namespace SysUtility {

bool MathUtil::IsEqual(double a, double b) {
  if (a == b) return true;  // the infinities, too
  if (!std::isfinite(a) || !std::isfinite(b)) return false;
  double const tolerance = 1e-9;
  return std::abs(a - b) <= tolerance * std::max({1.0, std::abs(a), std::abs(b)});
}

}  // namespace SysUtility
