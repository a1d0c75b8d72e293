#include "SeriesSettings.h"

#include "LayerSettings.h"

#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysDisplay/SymbolFields.h"

namespace SysCarto {

using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

constexpr int maxFollowers = 100;
constexpr int maxScales = 100;
constexpr SysUtility::Range denominators{0, 1e15, Unit::ScaleDenominator};

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SeriesSettings)
};

SeriesSettings::Frame stored(SeriesFrame const& frame, DocumentContext const& context) {
  return {frame, context.maps.indexOf(frame.map)};
}

SeriesFrame made(SeriesSettings::Frame const& stored, DocumentContext const& context) {
  SeriesFrame frame = stored.frame;
  frame.map = context.maps.value(stored.map);
  return frame;
}

}  // namespace

SeriesSettings SeriesSettings::of(PageLayout const& layout, DocumentContext const& context) {
  SeriesSettings settings;
  settings.lastMap = context.maps.size() - 1;
  settings.series = PageLayoutHost::series(layout);
  if (!settings.series.isUsed()) return settings;
  settings.series.source = storedSource(settings.series.source, context);
  settings.frame = stored(settings.series.frame, context);
  for (SeriesFrame const& follower : qAsConst(settings.series.followers))
    settings.followers << stored(follower, context);
  return settings;
}

void SeriesSettings::list(Fields& fields) {
  bool const wasUsed = series.isUsed();
  fields.text(
      {"layer", QT_TRANSLATE_NOOP("Fields", "Layer"),
       QT_TRANSLATE_NOOP("Fields",
                         "The name of a layer of the map: each of its features has a page. Empty where a source "
                         "of its own has the features.")},
      series.layer, TextKind::Line, QString());
  bool const hasSource = fields.optionalObject(
      {"source", QT_TRANSLATE_NOOP("Fields", "Source"),
       QT_TRANSLATE_NOOP("Fields", "Data of which no map has a layer: each feature or row of a table has a page.")},
      series.source.isGiven(), [this](Fields& own) { listSource(own, series.source); });
  if (fields.isReading() && !hasSource) series.source = {};
  fields.text(
      {"filter", QT_TRANSLATE_NOOP("Fields", "Filter"),
       QT_TRANSLATE_NOOP("Fields", "A condition on the attributes as in SQL: only features that meet it have a page.")},
      series.filter, TextKind::Condition, QString());
  fields.text({"sort", QT_TRANSLATE_NOOP("Fields", "Sorted by"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The attribute by which pages are in order; empty for the order of the data. What "
                                 "has no value comes last.")},
              series.sortField, TextKind::Attribute, QString());
  fields.flag({"descending", QT_TRANSLATE_NOOP("Fields", "Descending"),
               QT_TRANSLATE_NOOP("Fields", "Whether the highest value comes first.")},
              series.isDescending, false);
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name of a page"),
               QT_TRANSLATE_NOOP("Fields",
                                 "What a page is called in lists and bookmarks, as in “[field:name]”. Empty for the "
                                 "value by which pages are sorted, or their number.")},
              series.name, TextKind::Line, QString());
  listFrame(fields, frame);
  fields.list<QVector<Frame>>(
      {"followers", QT_TRANSLATE_NOOP("Fields", "Other maps that follow"),
       QT_TRANSLATE_NOOP("Fields", "Maps of further data frames that follow the features, each in its own way."),
       "follower"},
      followers, maxFollowers, [this](Fields& own, Frame& one, int) { listFrame(own, one); });
  SysDisplay::listOptionalSymbol(
      fields,
      {"highlight", QT_TRANSLATE_NOOP("Fields", "Highlight"),
       QT_TRANSLATE_NOOP("Fields",
                         "With what the feature of the page is drawn over its layer; without it, it is not.")},
      series.highlight);
  fields.flag({"hideOthers", QT_TRANSLATE_NOOP("Fields", "Hide others"),
               QT_TRANSLATE_NOOP("Fields", "Whether the other features of the layer are left out, with their labels.")},
              series.hidesOthers, false);
  SysDisplay::listOptionalSymbol(
      fields,
      {"outside", QT_TRANSLATE_NOOP("Fields", "Outside"),
       QT_TRANSLATE_NOOP("Fields",
                         "With what all that lies outside the feature's area is covered, as far as it lies below the "
                         "layer; without it, nothing is.")},
      series.outside);
  if (!fields.isReading() || !fields.ok() || series.isUsed()) return;
  if (!wasUsed)
    fields.fail("layer",
                Texts::tr("is missing; name the layer, or a “source”, whose features are to have a page each"));
  *this = {};
}

void SeriesSettings::listFrame(Fields& fields, Frame& one) const {
  SeriesFrame& own = one.frame;
  SeriesFrame const usual;
  fields.integer({"map", QT_TRANSLATE_NOOP("Fields", "Map"),
                  QT_TRANSLATE_NOOP("Fields", "The number of the map that follows the features; −1 for none.")},
                 one.map, -1, lastMap, 0);
  fields.number({"margin", QT_TRANSLATE_NOOP("Fields", "Margin"),
                 QT_TRANSLATE_NOOP("Fields", "What is left free at each side, in parts of the feature's size.")},
                own.marginPercent, {-45, 10000, Unit::Percent}, usual.marginPercent);
  fields.number({"scale", QT_TRANSLATE_NOOP("Fields", "Scale"),
                 QT_TRANSLATE_NOOP("Fields", "The scale of the map on all pages; 0 for one that the feature fits.")},
                own.scale, denominators, usual.scale);
  fields.numberList({"scales", QT_TRANSLATE_NOOP("Fields", "Scales to choose from"),
                     QT_TRANSLATE_NOOP("Fields",
                                       "The map gets the largest of these that shows the whole feature. Where none "
                                       "does, or none is given, it is fitted freely.")},
                    own.scales, {0, maxScales}, {1, denominators.max, Unit::ScaleDenominator});
  fields.flag({"mainPart", QT_TRANSLATE_NOOP("Fields", "Main part"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether the map shows the largest part of the feature with what lies near, and lets "
                                 "far islands go.")},
              own.mainPart, usual.mainPart);
  fields.flag({"alongLines", QT_TRANSLATE_NOOP("Fields", "Along lines"),
               QT_TRANSLATE_NOOP("Fields", "Whether the map is turned so that a line leads from left to right.")},
              own.alongLines, usual.alongLines);
  fields.text({"rotation", QT_TRANSLATE_NOOP("Fields", "Rotation by"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The attribute that holds by how many degrees the map is turned counterclockwise; "
                                 "empty for none.")},
              own.rotationField, TextKind::Attribute, QString());
}

void SeriesSettings::applyTo(PageLayout& layout, DocumentContext const& context) const {
  Series made = series;
  made.source = sourceToOpen(series.source, context);
  if (series.source.file.isEmpty()) made.source.file.clear();
  made.frame = SysCarto::made(frame, context);
  made.followers.clear();
  for (Frame const& follower : followers) made.followers << SysCarto::made(follower, context);
  PageLayoutHost::setSeries(layout, made);
}

SourceSettings coverageOf(PageLayout const& layout) {
  Series const& series = PageLayoutHost::series(layout);
  if (series.layer.isEmpty()) return series.source;
  for (auto const& layer : series.frame.map ? series.frame.map->GetLayers() : QList<SysUtility::_ptr_t<Layer>>())
    if (auto const vector = SysUtility::ptr_cast<VectorLayer>(layer); vector && layer->GetName() == series.layer)
      return vector->source();
  return {};
}

}  // namespace SysCarto
