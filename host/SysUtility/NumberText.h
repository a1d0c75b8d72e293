#pragma once

#include <SysUtility/Export.h>

#include <QString>

namespace SysUtility {

/// A number with the thousands separators of the user's language, and no more decimals than it has, six at most.
SYSUTILITY_EXPORT QString grouped(double number);

}  // namespace SysUtility
