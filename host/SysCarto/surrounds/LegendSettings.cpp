#include "SurroundSettings.h"

#include "host/SysDisplay/SymbolFields.h"

#include <SysCarto/Map.h>

#include <algorithm>

namespace SysCarto {

using SysDisplay::listOptionalSymbol;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

constexpr int maxEntries = 1000, maxColumns = 12;
constexpr double maxWrapPt = 5000, minPatchPt = 1, maxPatchPt = 500;

// clang-format off
constexpr Choice otherLayers[] = {
    {OtherLayers::After,   "after", QT_TRANSLATE_NOOP("Fields", "After the entries")},
    {OtherLayers::LeftOut, "omit",  QT_TRANSLATE_NOOP("Fields", "Left out")},
};
constexpr Choice fillPatches[] = {
    {FillPatch::Rectangle, "rectangle", QT_TRANSLATE_NOOP("Fields", "Rectangle")},
    {FillPatch::Rounded,   "rounded",   QT_TRANSLATE_NOOP("Fields", "Rounded rectangle")},
    {FillPatch::Ellipse,   "ellipse",   QT_TRANSLATE_NOOP("Fields", "Ellipse")},
};
constexpr Choice linePatches[] = {
    {LinePatch::Straight, "straight", QT_TRANSLATE_NOOP("Fields", "Straight")},
    {LinePatch::Zigzag,   "zigzag",   QT_TRANSLATE_NOOP("Fields", "Zigzag")},
    {LinePatch::Wave,     "wave",     QT_TRANSLATE_NOOP("Fields", "Wave")},
};
// clang-format on

void listTexts(Fields& fields, LegendSettings& settings) {
  fields.text({"title", QT_TRANSLATE_NOOP("Fields", "Title"),
               QT_TRANSLATE_NOOP("Fields", "What stands above the legend; it may be empty.")},
              settings.title, TextKind::Line, LegendSettings::usualTitle());
  listOptionalSymbol(
      fields,
      {"titleSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the title"),
       QT_TRANSLATE_NOOP("Fields", "How the letters of the title look; without a symbol bold and 12 points high.")},
      settings.titleSymbol);
  listOptionalSymbol(
      fields,
      {"headingSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the headings"),
       QT_TRANSLATE_NOOP(
           "Fields", "How the name of a layer with several classes looks; without a symbol bold and 9 points high.")},
      settings.headingSymbol);
  listOptionalSymbol(
      fields,
      {"labelSymbol", QT_TRANSLATE_NOOP("Fields", "Text of the entries"),
       QT_TRANSLATE_NOOP("Fields", "How the letters of the entries look; without a symbol 8 points high.")},
      settings.labelSymbol);
}

void listPatch(Fields& fields, PatchSettings& patch) {
  PatchSettings const usual;
  fields.number({"patchWidth", QT_TRANSLATE_NOOP("Fields", "Width of the patches"),
                 QT_TRANSLATE_NOOP("Fields", "How wide a line or a fill is shown.")},
                patch.widthPt, {minPatchPt, maxPatchPt, Unit::Point}, usual.widthPt);
  fields.number({"patchHeight", QT_TRANSLATE_NOOP("Fields", "Height of the patches"),
                 QT_TRANSLATE_NOOP("Fields", "How high a fill is shown, and a line that is not straight.")},
                patch.heightPt, {minPatchPt, maxPatchPt, Unit::Point}, usual.heightPt);
  fields.choice<FillPatch>({"patchShape", QT_TRANSLATE_NOOP("Fields", "Shape of fills"),
                            QT_TRANSLATE_NOOP("Fields", "What is filled to show a fill.")},
                           patch.fill, fillPatches, usual.fill);
  fields.choice<LinePatch>({"lineShape", QT_TRANSLATE_NOOP("Fields", "Shape of lines"),
                            QT_TRANSLATE_NOOP("Fields",
                                              "How a line runs through its patch. One that is too wide for the height "
                                              "of the patches is shown straight.")},
                           patch.line, linePatches, usual.line);
}

}  // namespace

QString LegendSettings::usualTitle() { return QCoreApplication::translate("MapSurround", "Legend"); }

QStringList LegendSettings::layersFor(Legend const& legend) {
  LegendSettings const settings = of(legend);
  QStringList names;
  if (auto const map = legend.GetMap())
    for (auto const& layer : map->GetLayers()) names.prepend(layer->GetName());
  std::stable_partition(names.begin(), names.end(), [&](QString const& name) {
    return std::none_of(settings.entries.begin(), settings.entries.end(),
                        [&](LegendEntry const& entry) { return entry.layer == name || entry.with.contains(name); });
  });
  return names;
}

void LegendEntry::list(Fields& fields) {
  fields.filledText({"layer", QT_TRANSLATE_NOOP("Fields", "Layer"),
                     QT_TRANSLATE_NOOP("Fields",
                                       "The name of the layer. The entry stays, and shows nothing, while the map has "
                                       "none of that name.")},
                    layer, TextKind::Attribute);
  fields.text(
      {"text", QT_TRANSLATE_NOOP("Fields", "Text"),
       QT_TRANSLATE_NOOP("Fields",
                         "What stands for the layer, or above its classes; empty for the layer's name, or the label "
                         "of its only symbol.")},
      text, TextKind::Line, QString());
  fields.texts({"classes", QT_TRANSLATE_NOOP("Fields", "Classes"),
                QT_TRANSLATE_NOOP("Fields",
                                  "The labels of the classes that are shown, in that order; none for all, as the layer "
                                  "has them.")},
               classes);
  fields.texts({"omit", QT_TRANSLATE_NOOP("Fields", "Left out"),
                QT_TRANSLATE_NOOP("Fields", "The labels of classes that are not shown.")},
               omitted);
  fields.texts(
      {"with", QT_TRANSLATE_NOOP("Fields", "Drawn with"),
       QT_TRANSLATE_NOOP("Fields",
                         "The names of layers whose symbols are drawn in the same patches, over each other as in the "
                         "map, such as the casing below a road. Of each, the class with the same label is taken, or "
                         "its only one. They are not listed by themselves.")},
      with);
}

void LegendSettings::list(Fields& fields) {
  LegendSettings const usual;
  listTexts(fields, *this);
  fields.texts({"omit", QT_TRANSLATE_NOOP("Fields", "Left out"),
                QT_TRANSLATE_NOOP("Fields", "The names of layers that the legend does not list.")},
               omitted);
  fields.list({"entries", QT_TRANSLATE_NOOP("Fields", "Entries"),
               QT_TRANSLATE_NOOP("Fields", "Layers in the order in which the legend lists them."), "legendEntry"},
              entries, maxEntries, [](Fields& own, LegendEntry& entry, int) { entry.list(own); });
  fields.choice<OtherLayers>({"others", QT_TRANSLATE_NOOP("Fields", "Other layers"),
                              QT_TRANSLATE_NOOP("Fields",
                                                "What becomes of layers that no entry names: they follow, the topmost "
                                                "first, or are left out.")},
                             others, otherLayers, usual.others);
  fields.flag({"onMapOnly", QT_TRANSLATE_NOOP("Fields", "On the map only"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether only classes are listed of which a feature lies within what the map shows.")},
              onMapOnly, usual.onMapOnly);
  fields.integer({"columns", QT_TRANSLATE_NOOP("Fields", "Columns"),
                  QT_TRANSLATE_NOOP("Fields",
                                    "Into how many columns of about the same height the lines go, a heading always "
                                    "with its first class; 0 takes as many as show the legend largest.")},
                 columns, 0, maxColumns, usual.columns);
  fields.number({"wrap", QT_TRANSLATE_NOOP("Fields", "Width of texts"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "The width at which the title, headings and entries are broken into lines, at "
                                   "spaces; 0 for never.")},
                wrapPt, {0, maxWrapPt, Unit::Point}, usual.wrapPt);
  listPatch(fields, patch);
}

}  // namespace SysCarto
