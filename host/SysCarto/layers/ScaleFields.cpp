#include "ScaleFields.h"

#include "host/SysUtility/Fields.h"

namespace SysCarto {

namespace {

constexpr SysUtility::Range scales{0, 1e15, SysUtility::Unit::ScaleDenominator};

}  // namespace

void listScaleRange(SysUtility::Fields& fields, double& minScale, double& maxScale) {
  fields.number({"minScale", QT_TRANSLATE_NOOP("Fields", "From scale"),
                 QT_TRANSLATE_NOOP("Fields", "It shows above this scale denominator; 0 is no limit.")},
                minScale, scales, 0.0);
  fields.number({"maxScale", QT_TRANSLATE_NOOP("Fields", "To scale"),
                 QT_TRANSLATE_NOOP("Fields", "It shows below this scale denominator; 0 is no limit.")},
                maxScale, scales, 0.0);
}

}  // namespace SysCarto
