#pragma once

#include <SysUtility/Export.h>

namespace SysUtility {

class SYSUTILITY_EXPORT MathUtil {
public:
  /// True when the two values are within the host's tolerance of each other: 1e-9, absolute for values up to 1 and
  /// relative above. Not a number equals nothing.
  static bool IsEqual(double a, double b);
};

}  // namespace SysUtility
