#include "LabelSettings.h"

#include "host/SysCarto/layers/ScaleFields.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysDisplay/SymbolFields.h"

#include <SysCarto/FeatureLayer.h>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

constexpr int maxClasses = 100;
constexpr double farthest = 1e300;
constexpr int maxPinned = 10000;
constexpr int maxPriority = 1000000;

constexpr double maxPaperCm = 1000;
constexpr double maxOffsetPt = 1000;

// clang-format off
constexpr Choice linePlaces[] = {
    {LinePlace::Above, "above", QT_TRANSLATE_NOOP("Fields", "Above the line")},
    {LinePlace::On, "on", QT_TRANSLATE_NOOP("Fields", "On the line")},
    {LinePlace::Curved, "curved", QT_TRANSLATE_NOOP("Fields", "Curved with the line")},
    {LinePlace::Level, "level", QT_TRANSLATE_NOOP("Fields", "Level on the line")},
};
constexpr Choice areaTexts[] = {
    {AreaText::Level, "level", QT_TRANSLATE_NOOP("Fields", "Level")},
    {AreaText::Curved, "curved", QT_TRANSLATE_NOOP("Fields", "Along the area")},
    {AreaText::Spread, "spread", QT_TRANSLATE_NOOP("Fields", "Spread over the area")},
};
constexpr Choice areaPlaces[] = {
    {AreaPlace::Inside, "inside", QT_TRANSLATE_NOOP("Fields", "Inside")},
    {AreaPlace::Across, "across", QT_TRANSLATE_NOOP("Fields", "Across the border where it does not fit")},
    {AreaPlace::Outside, "outside", QT_TRANSLATE_NOOP("Fields", "Outside where it does not fit")},
};
// clang-format on

QStringList knownPlaces() {
  QStringList names;
  for (PointPlace const& place : pointPlaces) names << QLatin1String(place.name);
  return names;
}

void listText(Fields& fields, LabelSettings& labels) {
  fields.filledText({"field", QT_TRANSLATE_NOOP("Fields", "Attribute"),
                     QT_TRANSLATE_NOOP("Fields", "The attribute whose value is the text.")},
                    labels.field, TextKind::Attribute);
  fields.text(
      {"expression", QT_TRANSLATE_NOOP("Fields", "Text of an expression"),
       QT_TRANSLATE_NOOP("Fields",
                         "An expression on the attributes as in SQL, “concat(name, ', ', country)”, for the text; "
                         "where it has no value, the attribute's stands.")},
      labels.expression, TextKind::Condition, QString());
  fields.text({"language", QT_TRANSLATE_NOOP("Fields", "Language"),
               QT_TRANSLATE_NOOP("Fields",
                                 "A code such as de: where a feature has an attribute of that language beside the one "
                                 "that is named (name:de or name_de beside name), it is the text.")},
              labels.language, TextKind::Line, QString());
  fields.flag({"groupsNumbers", QT_TRANSLATE_NOOP("Fields", "Numbers as they are read"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether numbers have the decimal and thousands separators of the user's language.")},
              labels.groupsNumbers, false);
}

void listPlaces(Fields& fields, LabelSettings& labels) {
  LabelSettings const usual;
  fields.number(
      {"gap", QT_TRANSLATE_NOOP("Fields", "Gap"), QT_TRANSLATE_NOOP("Fields", "What is kept free around a label.")},
      labels.gapPt, {0, 1000, Unit::Point}, usual.gapPt);
  fields.number({"offset", QT_TRANSLATE_NOOP("Fields", "Distance"),
                 QT_TRANSLATE_NOOP("Fields", "From the mark of a point, or from the line, to the label.")},
                labels.offsetPt, {-maxOffsetPt, maxOffsetPt, Unit::Point}, usual.offsetPt);
  fields.number(
      {"wrap", QT_TRANSLATE_NOOP("Fields", "Broken at"),
       QT_TRANSLATE_NOOP("Fields", "The width at which labels of points are broken into lines; 0 for never.")},
      labels.wrapPt, {0, 10000, Unit::Point}, usual.wrapPt);
  fields.texts(
      {"pointPlaces", QT_TRANSLATE_NOOP("Fields", "Places beside points"),
       QT_TRANSLATE_NOOP("Fields",
                         "Where a label may stand, the most wanted place first: upperRight, upperLeft, "
                         "lowerRight, lowerLeft, right, left, above, below or centre; where none is named, all "
                         "but the last in this order, and some between them.")},
      labels.places);
  for (QString const& place : qAsConst(labels.places))
    if (!knownPlaces().contains(place))
      fields.fail("pointPlaces", QCoreApplication::translate("LabelSettings", "“%1” is no place; there are: %2")
                                     .arg(place, knownPlaces().join(QStringLiteral(", "))));
  fields.choice<LinePlace>(
      {"linePlace", QT_TRANSLATE_NOOP("Fields", "Place along lines"),
       QT_TRANSLATE_NOOP("Fields",
                         "How the label of a line lies on it; letters stand upright. Level ones turn with no line, "
                         "as the shields of roads.")},
      labels.linePlace, linePlaces, usual.linePlace);
  fields.number(
      {"repeat", QT_TRANSLATE_NOOP("Fields", "Repeated after"),
       QT_TRANSLATE_NOOP("Fields",
                         "How far from each other the same text stands along lines; with 0, each line has one "
                         "label.")},
      labels.repeatCm, {0, maxPaperCm, Unit::Centimetre}, usual.repeatCm);
  fields.choice<AreaText>(
      {"areaText", QT_TRANSLATE_NOOP("Fields", "In areas"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "How a label lies in its area: level, along the area's length, or along it with its letters as far "
           "apart as tells how far the area reaches. Where the area holds no such label, it lies level.")},
      labels.areaText, areaTexts, usual.areaText);
  fields.choice<AreaPlace>({"areaPlace", QT_TRANSLATE_NOOP("Fields", "Place at areas"),
                            QT_TRANSLATE_NOOP("Fields",
                                              "Whether a label that does not fit into its area is left out, reaches "
                                              "beyond it, or stands beside it with a line that leads there.")},
                           labels.areaPlace, areaPlaces, usual.areaPlace);
  fields.number(
      {"minSize", QT_TRANSLATE_NOOP("Fields", "Least size"),
       QT_TRANSLATE_NOOP("Fields", "On the page: shorter lines and narrower areas have no labels. 0 for no limit.")},
      labels.minSizeCm, {0, maxPaperCm, Unit::Centimetre}, usual.minSizeCm);
}

void listPinned(Fields& fields, LabelSettings& labels) {
  fields.text({"keyField", QT_TRANSLATE_NOOP("Fields", "Attribute of the key"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The attribute by which pinned labels know their features; without one, the number "
                                 "that the file gives them.")},
              labels.keyField, TextKind::Attribute, QString());
  fields.list(
      {"pinned", QT_TRANSLATE_NOOP("Fields", "Pinned labels"),
       QT_TRANSLATE_NOOP("Fields", "Labels that stay where they were put, or are hidden."), "pinnedLabel"},
      labels.pinned, maxPinned, [](Fields& own, PinnedLabel& pin, int) {
        own.filledText({"key", QT_TRANSLATE_NOOP("Fields", "Key"),
                        QT_TRANSLATE_NOOP("Fields", "Which feature it is: the value of its key.")},
                       pin.key, TextKind::Line);
        own.flag({"hidden", QT_TRANSLATE_NOOP("Fields", "Hidden"),
                  QT_TRANSLATE_NOOP("Fields", "Whether the feature has no label at all.")},
                 pin.hidden, false);
        own.number({"x", QT_TRANSLATE_NOOP("Fields", "x"), QT_TRANSLATE_NOOP("Fields", "Of the middle of the text.")},
                   pin.x, {-farthest, farthest, Unit::MapUnit}, 0);
        own.number({"y", QT_TRANSLATE_NOOP("Fields", "y"), QT_TRANSLATE_NOOP("Fields", "Of the middle of the text.")},
                   pin.y, {-farthest, farthest, Unit::MapUnit}, 0);
        own.number({"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
                    QT_TRANSLATE_NOOP("Fields", "By which the text is turned counterclockwise on the page.")},
                   pin.angle, {-360, 360, Unit::Degree}, 0);
      });
}

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
  listText(fields, *this);
  fields.text(
      {"priorityField", QT_TRANSLATE_NOOP("Fields", "Attribute of the priority"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "A numeric attribute: no label of a feature with a higher number is given up for others; without one, all "
           "count alike.")},
      priorityField, TextKind::Attribute, QString());
  listPlaces(fields, *this);
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
  listPinned(fields, *this);
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
