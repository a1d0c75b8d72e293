#include "LabelSettings.h"

#include "host/SysDisplay/SymbolArchive.h"
#include "host/SysUtility/Archive.h"

#include <SysCarto/FeatureLayer.h>

#include <QCoreApplication>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Archive;

namespace {

constexpr int mostClasses = 100;
constexpr double farthest = 1e300;
constexpr double mostScale = 1e15;
constexpr int mostPriority = 1000000;

}  // namespace

_ptr_t<SysDisplay::TextSymbol> const& LabelSettings::symbolFor(double priority) const {
  for (auto one = classes.rbegin(); one != classes.rend(); ++one)
    if (priority >= one->minimum) return one->symbol;
  return symbol;
}

void describeLabels(Archive& archive, LabelSettings& settings, AnnotationProperties& properties) {
  archive.flag("visible", settings.visible, true);
  archive.text("field", settings.field);
  if (settings.field.isEmpty())
    archive.fail("field", QCoreApplication::translate("LabelSettings", "names no field; leave out the labels"));
  archive.text("priorityField", settings.priorityField, QString());
  archive.number("gap", settings.gapPt, 0, 1000, 1.5);
  describeSymbol(archive, "symbol", settings.symbol);
  if (archive.reading()) settings.classes.clear();
  archive.list("classes", static_cast<int>(settings.classes.size()), mostClasses, [&](Archive& item, int i) {
    if (item.reading()) settings.classes.emplace_back();
    LabelClass& one = settings.classes[i];
    item.number("minimum", one.minimum, -farthest, farthest);
    describeSymbol(item, "symbol", one.symbol);
    if (i > 0 && !(one.minimum > settings.classes[i - 1].minimum))
      item.fail("minimum", QCoreApplication::translate("LabelSettings", "is not above that of the class before"));
  });

  int priority = properties.GetPriority();
  double minScale = properties.storedMinScale(), maxScale = properties.storedMaxScale();
  archive.integer("priority", priority, -mostPriority, mostPriority, 0);
  archive.number("minScale", minScale, 0, mostScale, 0);
  archive.number("maxScale", maxScale, 0, mostScale, 0);
  properties.SetPriority(priority);
  properties.SetScaleRange(minScale, maxScale);
}

}  // namespace SysCarto
