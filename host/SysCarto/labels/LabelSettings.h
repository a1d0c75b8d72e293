#pragma once

#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Export.h>

#include <QString>

#include <vector>

namespace SysUtility {
class Archive;
}

namespace SysCarto {

class AnnotationProperties;

/// A text symbol of its own for features whose priority value is at least `minimum`.
struct LabelClass {
  double minimum = 0;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
};

/// What the labels of a layer say and how they look.
struct LabelSettings {
  bool visible = false;
  QString field;          ///< its value is the text; empty for no labels
  QString priorityField;  ///< numeric, higher is placed first; empty for the order of the features
  double gapPt = 1.5;     ///< kept free around a label
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;
  std::vector<LabelClass> classes;  ///< by minimum, ascending

  bool isUsed() const { return !field.isEmpty(); }
  SysUtility::_ptr_t<SysDisplay::TextSymbol> const& symbolFor(double priority) const;
};

/// Describes the settings in an object of their own, with the scale range and the priority that `properties` holds.
SYSCARTO_EXPORT void describeLabels(SysUtility::Archive& archive, LabelSettings& settings,
                                    AnnotationProperties& properties);

}  // namespace SysCarto
