#include "LayerSettings.h"

#include "RasterLayerSettings.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/ScaleFields.h"
#include "host/SysUtility/Fields.h"

#include <QDir>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

constexpr int maxJoins = 20;
constexpr int maxLayers = 10000;
enum Kind { FeatureKind, RasterKind, GroupKind };
constexpr Choice blends[] = {
    {LayerBlend::Normal, "normal", QT_TRANSLATE_NOOP("Fields", "Cover")},
    {LayerBlend::Multiply, "multiply", QT_TRANSLATE_NOOP("Fields", "Darken")},
    {LayerBlend::Screen, "screen", QT_TRANSLATE_NOOP("Fields", "Lighten")},
};
constexpr Choice dataKinds[] = {
    {SourceSettings::Data::File, "file", QT_TRANSLATE_NOOP("Fields", "A file")},
    {SourceSettings::Data::Globe, "globe", QT_TRANSLATE_NOOP("Fields", "The whole globe")},
};
constexpr Choice obstacles[] = {
    {LabelObstacle::None, "none", QT_TRANSLATE_NOOP("Fields", "Nothing")},
    {LabelObstacle::Marks, "marks", QT_TRANSLATE_NOOP("Fields", "Markers and lines")},
    {LabelObstacle::Areas, "areas", QT_TRANSLATE_NOOP("Fields", "Whole areas")},
};
constexpr Choice kinds[] = {{FeatureKind, "feature", QT_TRANSLATE_NOOP("Fields", "Features")},
                            {RasterKind, "raster", QT_TRANSLATE_NOOP("Fields", "Raster")},
                            {GroupKind, "group", QT_TRANSLATE_NOOP("Fields", "Group of layers")}};

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerSettings)
};

void listJoin(Fields& fields, TableJoin& join) {
  fields.text({"file", QT_TRANSLATE_NOOP("Fields", "File"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The local file of the table (CSV or any other of data), relative to the "
                                 "document.")},
              join.file, TextKind::File);
  fields.text({"layer", QT_TRANSLATE_NOOP("Fields", "Layer of the file"),
               QT_TRANSLATE_NOOP("Fields", "Its name in the file; the first one where it is empty.")},
              join.layer, TextKind::Line, QString());
  fields.text({"key", QT_TRANSLATE_NOOP("Fields", "Key of the features"),
               QT_TRANSLATE_NOOP("Fields", "The attribute that tells which row of the table a feature has.")},
              join.key, TextKind::Attribute);
  fields.text({"tableKey", QT_TRANSLATE_NOOP("Fields", "Key of the table"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The field of the table that holds the same values: the same texts, or numbers of the "
                                 "same value. Of several rows with one key the first counts.")},
              join.tableKey, TextKind::Line);
  fields.text(
      {"prefix", QT_TRANSLATE_NOOP("Fields", "Prefix"),
       QT_TRANSLATE_NOOP("Fields",
                         "Stands before the names of the table's fields. Without one, a name that is taken gets "
                         "the table's name and an underscore before it.")},
      join.prefix, TextKind::Line, QString());
}

void open(VectorLayer& layer, SourceSettings const& source, Map const& map, DocumentContext& context) {
  if (context.wasStopped) return;
  QStringList warnings;
  ReadProgress watched;
  if (context.progress)
    watched = [&](qint64 read, qint64 count) { return !(context.wasStopped = !context.progress(read, count)); };
  QString const error = layer.open(source, map.GetCoordinateSystem(), warnings, watched, context.depth);
  if (!error.isEmpty()) {
    ++context.unreadableSources;
    warnings.prepend(error);
  }
  for (QString const& warning : warnings) context.warnings << Texts::tr("Layer “%1”: %2").arg(layer.GetName(), warning);
}

}  // namespace

// What may not be opened stays as it was written.
QString storedPath(QString const& file, DocumentContext const& context) {
  if (file.isEmpty() || !context.relativePaths || context.folder.isEmpty() || !DataSource::refusal(file).isEmpty())
    return file;
  return QDir(context.folder).relativeFilePath(file);
}

QString pathToOpen(QString const& stored, DocumentContext const& context) {
  if (!DataSource::refusal(stored).isEmpty()) return stored;
  return QDir::cleanPath(QDir(context.folder).absoluteFilePath(stored));
}

void listSource(Fields& fields, SourceSettings& source) {
  fields.choice<SourceSettings::Data>(
      {"data", QT_TRANSLATE_NOOP("Fields", "Data"),
       QT_TRANSLATE_NOOP("Fields",
                         "Whether the features come from a file, or the layer is one area that covers the whole globe, "
                         "as the sea below countries; the other fields are those of a file.")},
      source.data, dataKinds, SourceSettings::Data::File);
  fields.text(
      {"file", QT_TRANSLATE_NOOP("Fields", "File"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "The local file of the data (GeoPackage, GeoJSON, Shapefile, FlatGeobuf, GPX, KML, MapInfo, DXF or CSV), "
           "relative to the document.")},
      source.file, TextKind::File, QString());
  fields.text({"connection", QT_TRANSLATE_NOOP("Fields", "Connection"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Stands in for the file where it is not empty: the name of a connection to a PostGIS "
                                 "database, as it is called on the computer that opens the document.")},
              source.connection, TextKind::Line, QString());
  if (fields.isReading() && source.data == SourceSettings::Data::File && !source.isGiven())
    fields.fail("file", Texts::tr("is missing; name the file of the data"));
  fields.text({"layer", QT_TRANSLATE_NOOP("Fields", "Layer of the file"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Its name in the file; the first one where it is empty. Of a connection, the table "
                                 "with its schema, as in “public.roads”.")},
              source.layer, TextKind::Line, QString());
  fields.text(
      {"filter", QT_TRANSLATE_NOOP("Fields", "Filter"),
       QT_TRANSLATE_NOOP("Fields",
                         "A condition on the attributes as in SQL, “population > 1000000”; empty for all features.")},
      source.filter, TextKind::Condition, QString());
  fields.text({"coordinateSystem", QT_TRANSLATE_NOOP("Fields", "Coordinate system"),
               QT_TRANSLATE_NOOP("Fields", "Stands in for that of the file where it is not empty.")},
              source.coordinateSystem, TextKind::CoordinateSystem, QString());
  fields.text({"xField", QT_TRANSLATE_NOOP("Fields", "Column of x"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Of a table: the column that holds eastings or longitudes. Where none is named, the "
                                 "names and values of the columns tell.")},
              source.xField, TextKind::Attribute, QString());
  fields.text({"yField", QT_TRANSLATE_NOOP("Fields", "Column of y"),
               QT_TRANSLATE_NOOP("Fields", "Of a table: the column that holds northings or latitudes.")},
              source.yField, TextKind::Attribute, QString());
  fields.text({"geometryField", QT_TRANSLATE_NOOP("Fields", "Column of geometries"),
               QT_TRANSLATE_NOOP("Fields", "Of a table: the column that holds geometries as well-known text.")},
              source.geometryField, TextKind::Attribute, QString());
  fields.list<std::vector<TableJoin>>(
      {"joins", QT_TRANSLATE_NOOP("Fields", "Joined tables"),
       QT_TRANSLATE_NOOP("Fields",
                         "Tables whose fields become those of the features: labels, classes and the filter may use "
                         "them."),
       "join"},
      source.joins, maxJoins, [](Fields& own, TableJoin& join, int) { listJoin(own, join); });
}

SourceSettings storedSource(SourceSettings source, DocumentContext const& context) {
  source.file = storedPath(source.file, context);
  for (TableJoin& join : source.joins) join.file = storedPath(join.file, context);
  return source;
}

SourceSettings sourceToOpen(SourceSettings source, DocumentContext const& context) {
  source.file = pathToOpen(source.file, context);
  for (TableJoin& join : source.joins) join.file = pathToOpen(join.file, context);
  return source;
}

CommonLayerSettings CommonLayerSettings::of(Layer const& layer) {
  auto const scales = LayerHost::scales(layer);
  return {layer.GetName(), LayerHost::isSwitchedOn(layer), scales.min,
          scales.max,      LayerHost::effects(layer),      LayerHost::credits(layer)};
}

void CommonLayerSettings::list(Fields& fields) {
  CommonLayerSettings const usual;
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"), QT_TRANSLATE_NOOP("Fields", "What the layer is called.")},
              name, TextKind::Line);
  fields.flag(
      {"visible", QT_TRANSLATE_NOOP("Fields", "Visible"), QT_TRANSLATE_NOOP("Fields", "Whether the layer shows.")},
      visible, true);
  listScaleRange(fields, minScale, maxScale);
  if (minScale > 0 && maxScale > 0 && minScale > maxScale)
    fields.fail("minScale", Texts::tr("is larger than maxScale"));
  fields.number(
      {"opacity", QT_TRANSLATE_NOOP("Fields", "Opacity"),
       QT_TRANSLATE_NOOP("Fields", "How much of the layer is seen; features of it do not show through each other.")},
      effects.opacityPercent, {0, 100, SysUtility::Unit::Percent}, usual.effects.opacityPercent);
  fields.choice<LayerBlend>({"blend", QT_TRANSLATE_NOOP("Fields", "Blending"),
                             QT_TRANSLATE_NOOP("Fields",
                                               "Whether the layer covers the layers below, or darkens or lightens "
                                               "them.")},
                            effects.blend, blends, usual.effects.blend);
  fields.text({"credits", QT_TRANSLATE_NOOP("Fields", "Credits"),
               QT_TRANSLATE_NOOP("Fields", "Whom the data come from; [credits] in a text of the page names them all.")},
              credits, TextKind::Line, QString());
}

void CommonLayerSettings::applyTo(Layer& layer) const {
  layer.SetName(name);
  layer.SetVisible(visible);
  layer.SetScaleRange(minScale, maxScale);
  LayerHost::setEffects(layer, effects);
  LayerHost::setCredits(layer, credits);
}

LayerSettings LayerSettings::of(VectorLayer const& layer, DocumentContext const& context) {
  return {storedSource(layer.source(), context),
          layer.renderer().settings(),
          CommonLayerSettings::of(layer),
          layer.labelSettings(),
          AnnotationSettings::of(*layer.GetAnnotationProperties()),
          layer.obstacle()};
}

void LayerSettings::list(Fields& fields) {
  LayerSettings const usual;
  fields.object(
      {"source", QT_TRANSLATE_NOOP("Fields", "Source"), QT_TRANSLATE_NOOP("Fields", "Where the data come from.")},
      [this](Fields& own) { listSource(own, source); });
  fields.object(
      {"renderer", QT_TRANSLATE_NOOP("Fields", "Symbols"), QT_TRANSLATE_NOOP("Fields", "How features are drawn.")},
      [this](Fields& own) { renderer.list(own); });
  common.list(fields);
  fields.choice<LabelObstacle>({"obstacle", QT_TRANSLATE_NOOP("Fields", "Kept free"),
                                QT_TRANSLATE_NOOP("Fields",
                                                  "What the labels of other layers keep off: nothing, markers and "
                                                  "lines, or these and whole areas.")},
                               obstacle, obstacles, usual.obstacle);
  bool const hasLabels =
      fields.optionalObject({"labels", QT_TRANSLATE_NOOP("Fields", "Labels"),
                             QT_TRANSLATE_NOOP("Fields", "Texts at the features; without them, none are written.")},
                            labels.isUsed(), [this](Fields& own) {
                              labels.list(own);
                              annotation.list(own);
                            });
  if (!fields.isReading() || hasLabels) return;
  labels = {};
  annotation = {};
}

_ptr_t<Layer> LayerSettings::make(Map const& map, DocumentContext& context) const {
  auto const layer = SysUtility::make<VectorLayer>(makeRenderer(renderer));
  give(*layer);
  open(*layer, sourceToOpen(source, context), map, context);
  return layer;
}

void LayerSettings::applyTo(VectorLayer& layer, Map const& map, DocumentContext& context) const {
  SourceSettings const opened = sourceToOpen(source, context);
  bool const readsAlike = opened == layer.source() && renderer.classifiesAs(layer.renderer().settings()) &&
                          labels.read() == layer.labelSettings().read();
  layer.setRenderer(makeRenderer(renderer));
  give(layer);
  if (!readsAlike) open(layer, opened, map, context);
}

// All but the renderer and the data.
void LayerSettings::give(VectorLayer& layer) const {
  common.applyTo(layer);
  layer.setLabelSettings(labels);
  layer.setObstacle(obstacle);
  annotation.applyTo(*layer.GetAnnotationProperties());
}

void LayerGroupSettings::list(Fields& fields) {
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"), QT_TRANSLATE_NOOP("Fields", "What the group is called.")},
              name, TextKind::Line);
  fields.flag({"visible", QT_TRANSLATE_NOOP("Fields", "Visible"),
               QT_TRANSLATE_NOOP("Fields", "Whether the layers of the group show that are visible themselves.")},
              visible, true);
}

void LayerGroupSettings::applyTo(LayerGroup& group) const {
  group.setName(name);
  group.setVisible(visible);
}

namespace {

void listGroup(Fields& fields, LayerEntry& entry, Map const& map, DocumentContext& context, int depth) {
  if (depth >= maxLayerGroupDepth)
    return fields.fail(nullptr, Texts::tr("groups are nested more than %1 deep").arg(maxLayerGroupDepth));
  auto settings = entry.group ? LayerGroupSettings::of(*entry.group) : LayerGroupSettings();
  settings.list(fields);
  fields.list({"layers", QT_TRANSLATE_NOOP("Fields", "Layers"),
               QT_TRANSLATE_NOOP(
                   "Fields", "The layers of the group, the lowest first; groups lie at most 16 deep in each other."),
               "layer"},
              entry.entries, {1, maxLayers},
              [&](Fields& own, LayerEntry& member, int) { listLayerEntry(own, member, map, context, depth + 1); });
  if (!fields.isReading() || !fields.ok()) return;
  entry.group = SysUtility::make<LayerGroup>();
  settings.applyTo(*entry.group);
}

}  // namespace

void listLayerEntry(Fields& fields, LayerEntry& entry, Map const& map, DocumentContext& context, int depth) {
  auto const present = fields.isReading() ? nullptr : entry.layer;
  auto const features = SysUtility::ptr_cast<VectorLayer>(present);
  auto const raster = SysUtility::ptr_cast<RasterLayer>(present);
  if (present && !features && !raster) return fields.fail(nullptr, Texts::tr("is a layer that can't be stored"));
  LayerSettings settings = features ? LayerSettings::of(*features, context) : LayerSettings();
  RasterLayerSettings pixels = raster ? RasterLayerSettings::of(*raster, context) : RasterLayerSettings();
  int kind = entry.group ? GroupKind : raster ? RasterKind : FeatureKind;
  fields.variant(
      {"type", QT_TRANSLATE_NOOP("Fields", "Kind"), QT_TRANSLATE_NOOP("Fields", "What kind of layer it is.")}, kind,
      kinds, [&](int chosen) {
        if (chosen == GroupKind) return listGroup(fields, entry, map, context, depth);
        if (chosen == RasterKind) return pixels.list(fields);
        settings.list(fields);
      });
  if (!fields.isReading() || !fields.ok()) return;
  if (kind == FeatureKind) entry.layer = settings.make(map, context);
  if (kind == RasterKind) entry.layer = pixels.make(map, context);
}

void listLayerEntries(Fields& fields, std::vector<LayerEntry>& entries, Map const& map, DocumentContext& context) {
  fields.list({"layers", QT_TRANSLATE_NOOP("Fields", "Layers"),
               QT_TRANSLATE_NOOP("Fields", "The layers of the map, the lowest first."), "layer"},
              entries, maxLayers,
              [&](Fields& own, LayerEntry& entry, int) { listLayerEntry(own, entry, map, context); });
}

}  // namespace SysCarto
