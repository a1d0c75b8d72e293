#include "LabelSettings.h"

#include "host/SysCarto/layers/ScaleFields.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysDisplay/SymbolFields.h"

#include <SysCarto/FeatureLayer.h>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

constexpr int maxClasses = 100;
constexpr double farthest = 1e300;
constexpr int maxPriority = 1000000;

template <class Settings>
void listSymbolOf(Fields& fields, Settings& settings) {
  listSymbol(fields,
             {"symbol", QT_TRANSLATE_NOOP("Fields", "Text"), QT_TRANSLATE_NOOP("Fields", "How the letters look.")},
             settings.symbol);
}

}  // namespace

_ptr_t<SysDisplay::TextSymbol> const& LabelSettings::symbolFor(double priority) const {
  for (auto one = classes.rbegin(); one != classes.rend(); ++one)
    if (priority >= one->minimum) return one->symbol;
  return symbol;
}

void LabelSettings::list(Fields& fields) {
  fields.flag(
      {"visible", QT_TRANSLATE_NOOP("Fields", "Visible"), QT_TRANSLATE_NOOP("Fields", "Whether there are labels.")},
      visible, true);
  fields.filledText({"field", QT_TRANSLATE_NOOP("Fields", "Attribute"),
                     QT_TRANSLATE_NOOP("Fields", "The attribute whose value is the text.")},
                    field, TextKind::Attribute);
  fields.text(
      {"priorityField", QT_TRANSLATE_NOOP("Fields", "Attribute of the priority"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "A numeric attribute: features with a higher number are labelled first; without one, in their own order.")},
      priorityField, TextKind::Attribute, QString());
  fields.number(
      {"gap", QT_TRANSLATE_NOOP("Fields", "Gap"), QT_TRANSLATE_NOOP("Fields", "What is kept free around a label.")},
      gapPt, {0, 1000, Unit::Point}, LabelSettings().gapPt);
  listSymbolOf(fields, *this);
  fields.list(
      {"classes", QT_TRANSLATE_NOOP("Fields", "Classes"),
       QT_TRANSLATE_NOOP("Fields", "Letters of their own for features of a higher priority."), "labelClass"},
      classes, maxClasses, [this](Fields& own, LabelClass& one, int index) {
        if (own.isReading() && index > 0) one.minimum = classes[index - 1].minimum + 1;  // of a class that says nothing
        own.number({"minimum", QT_TRANSLATE_NOOP("Fields", "From"),
                    QT_TRANSLATE_NOOP("Fields", "The lowest priority of the class, above that of the class before.")},
                   one.minimum, {-farthest, farthest});
        listSymbolOf(own, one);
        if (index > 0 && !(one.minimum > classes[index - 1].minimum))
          own.fail("minimum", QCoreApplication::translate("LabelSettings", "is not above that of the class before"));
      });
}

AnnotationSettings AnnotationSettings::of(AnnotationProperties const& properties) {
  auto const scales = LayerHost::scales(properties);
  return {properties.GetPriority(), scales.min, scales.max};
}

void AnnotationSettings::list(Fields& fields) {
  fields.integer({"priority", QT_TRANSLATE_NOOP("Fields", "Priority"),
                  QT_TRANSLATE_NOOP("Fields", "Labels of layers with a higher one are placed first.")},
                 priority, -maxPriority, maxPriority, 0);
  listScaleRange(fields, minScale, maxScale);
}

void AnnotationSettings::applyTo(AnnotationProperties& properties) const {
  properties.SetPriority(priority);
  properties.SetScaleRange(minScale, maxScale);
}

}  // namespace SysCarto
