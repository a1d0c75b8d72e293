#pragma once

#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Export.h>

#include <QString>

#include <vector>

namespace SysUtility {
class Fields;
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

  void list(SysUtility::Fields& fields);
};

/// When the labels of a layer show, and before which other layers they are placed.
struct AnnotationSettings {
  int priority = 0;
  double minScale = 0, maxScale = 0;  ///< scale denominators; 0 is no limit

  static AnnotationSettings of(AnnotationProperties const& properties);
  void list(SysUtility::Fields& fields);
  void applyTo(AnnotationProperties& properties) const;
};

}  // namespace SysCarto
