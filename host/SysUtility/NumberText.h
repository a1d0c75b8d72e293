#pragma once

#include <SysUtility/Export.h>

#include <QString>

namespace SysUtility {

/// A number with the thousands separators of the user's language, and no more decimals than it has: six at most, or as
/// many as so many significant digits of a smaller number take. Without these what is nearly 0 is written as 0.
SYSUTILITY_EXPORT QString grouped(double number, int significantDigits = 0);

}  // namespace SysUtility
