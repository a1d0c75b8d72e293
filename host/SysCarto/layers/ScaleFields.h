#pragma once

namespace SysUtility {
class Fields;
}

namespace SysCarto {

/// The smallest and the largest scale denominator at which something shows: a layer, its labels, a rule.
void listScaleRange(SysUtility::Fields& fields, double& minScale, double& maxScale);

}  // namespace SysCarto
