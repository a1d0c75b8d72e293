#include "LayerActions.h"

#include "LayerArrangement.h"

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using SysCarto::Editable;
using SysCarto::Layer;
using SysCarto::LayerHost;
using SysCarto::LayerRow;
using SysCarto::Map;
using SysCarto::MapSteps;
using SysCarto::OneStep;
using SysGeometry::Box;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

using Rows = LayerActions::Rows;

constexpr double roomAround = 1.05;
constexpr double leastSide = 0.008;  // of the longer one
constexpr double insideLimit = 0.8;  // of a scale limit that is the only one

// The layers of the rows, those in groups, too; of a map those that show.
QList<_ptr_t<Layer>> layersOf(Rows const& rows) {
  QList<_ptr_t<Layer>> layers;
  for (LayerRow const& row : rows)
    for (auto const& layer : row.map->GetLayers()) {
      bool const isMeant = row.layer   ? layer == row.layer
                           : row.group ? LayerHost::groups(*layer).contains(row.group)
                                       : layer->IsVisible();
      if (isMeant && !layers.contains(layer)) layers << layer;
    }
  return layers;
}

Box boxOf(QList<_ptr_t<Layer>> const& layers) {
  Box box;
  for (auto const& layer : layers) box.add(SysCarto::boxOf(*layer));
  return box;
}

QString lockOf(SysCarto::PageLayout const& layout, Map const& map) {
  for (auto const& element : layout.GetGraphicsContainer()->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
    if (frame && frame->GetMap().get() == &map && frame->IsLocked())
      return LayerActions::tr("the data frame is locked; Plotvane_UnlockDataFrame unlocks it.");
  }
  return {};
}

template <class T>
bool isCalled(T const& name, QString const& wanted, int number) {
  return name == wanted || wanted == QStringLiteral("#%1").arg(number);
}

QString set(SysCarto::MapDocument const& document, Rows const& rows, QStringList const& path, QJsonValue const& value,
            QStringList& warnings) {
  Editable::List things;
  for (LayerRow const& row : rows)
    if (auto const thing = LayerActions::editable(row)) things << thing;
  QString const problem = Editable::set(
      document, things, path, [&](QJsonValue const&) { return value; }, warnings);
  return problem.isEmpty() ? problem : problem + QLatin1Char('.');
}

// The legends of a map that name a layer.
Editable::List legendsWith(SysCarto::MapDocument const& document, Map const& map, QString const& name) {
  Editable::List legends;
  auto const layout = document.GetPageLayout();
  for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapSurroundFrame>(element);
    auto const legend = frame ? SysUtility::ptr_cast<SysCarto::Legend>(frame->GetMapSurround()) : nullptr;
    if (!legend || legend->GetMap().get() != &map) continue;
    auto const settings = SysCarto::LegendSettings::of(*legend);
    bool const isNamed = settings.omitted.contains(name) ||
                         std::any_of(settings.entries.begin(), settings.entries.end(), [&](auto const& entry) {
                           return entry.layer == name || entry.with.contains(name);
                         });
    if (isNamed) legends << Editable::element(document, element->GetHandle());
  }
  return legends;
}

// A legend as a document has it, with another name of a layer.
QJsonValue withOtherName(QJsonValue const& legend, QString const& from, QString const& to) {
  auto const renamed = [&](QJsonValue const& names) {
    QJsonArray changed;
    for (QJsonValue const& name : names.toArray()) changed.append(name.toString() == from ? QJsonValue(to) : name);
    return changed;
  };
  QString const layer = QStringLiteral("layer"), with = QStringLiteral("with"), omit = QStringLiteral("omit");
  QJsonObject changed = legend.toObject();
  QJsonArray entries;
  for (QJsonValue const& value : changed[QStringLiteral("entries")].toArray()) {
    QJsonObject entry = value.toObject();
    if (entry[layer].toString() == from) entry[layer] = to;
    if (entry.contains(with)) entry[with] = renamed(entry[with]);
    entries.append(entry);
  }
  if (!entries.isEmpty()) changed[QStringLiteral("entries")] = entries;
  if (changed.contains(omit)) changed[omit] = renamed(changed[omit]);
  return changed;
}

bool setSwitch(LayerRow const& row, bool visible) {
  if (row.layer) MapSteps::setVisible(*row.layer, visible);
  if (row.group && !row.layer) MapSteps::setVisible(*row.group, visible);
  return row.layer || row.group;
}

bool isOn(LayerRow const& row) { return row.layer ? LayerHost::isSwitchedOn(*row.layer) : row.group->isVisible(); }

// The layers whose data can't be read, with where they would be if those of one lie in this file.
std::vector<std::pair<LayerRow, QString>> foundWith(SysCarto::MapDocument const& document, LayerRow const& row,
                                                    QString const& file) {
  std::vector<std::pair<LayerRow, QString>> found{{row, file}};
  QDir const folder = QFileInfo(file).absoluteDir();
  QString const former = SysCarto::filesOf(*row.layer).first();
  QList<_ptr_t<Map>> maps;
  document.GetMaps(maps);
  for (auto const& map : qAsConst(maps))
    for (auto const& layer : map->GetLayers()) {
      QString const own = SysCarto::filesOf(*layer).value(0);
      if (own.isEmpty() || layer == row.layer || SysCarto::problemOf(*layer).isEmpty()) continue;
      if (QFileInfo::exists(own)) continue;
      QString const beside = folder.filePath(QFileInfo(own).fileName());
      QString const wanted = own == former ? file : beside;
      if (QFileInfo::exists(wanted)) found.push_back({{map, nullptr, layer}, wanted});
    }
  return found;
}

}  // namespace

Rows LayerActions::named(SysCarto::MapDocument const& document, QString const& text) {
  QString const layerPrefix = QStringLiteral("layer:"), mapPrefix = QStringLiteral("map:");
  bool const isLayer = text.startsWith(layerPrefix);
  if (!isLayer && !text.startsWith(mapPrefix)) return {};
  QString const path = text.mid(isLayer ? layerPrefix.size() : mapPrefix.size());
  QString const mapName = isLayer ? path.section(QLatin1Char('/'), 0, 0) : path;
  QString const name = path.section(QLatin1Char('/'), 1);
  QList<_ptr_t<Map>> maps;
  document.GetMaps(maps);
  Rows rows;
  for (int i = 0; i < maps.size(); ++i) {
    if (!isCalled(maps[i]->GetName(), mapName, i)) continue;
    if (!isLayer) rows.append({maps[i]});
    auto const& layers = maps[i]->GetLayers();
    for (int j = 0; isLayer && j < layers.size(); ++j)
      if (isCalled(layers[j]->GetName(), name, j)) rows.append({maps[i], nullptr, layers[j]});
    if (!isLayer) continue;
    for (auto const& group : groupsOf(*maps[i]))
      if (group->name() == name) rows.append({maps[i], group});
  }
  return rows;
}

Editable::Pointer LayerActions::editable(LayerRow const& row) {
  if (row.layer) return Editable::layer(row.map, row.layer);
  if (row.group) return Editable::layerGroup(row.group);
  return row.map ? Editable::map(row.map) : nullptr;
}

bool LayerActions::isThere(SysCarto::MapDocument const& document, LayerRow const& row) {
  QList<_ptr_t<Map>> maps;
  document.GetMaps(maps);
  return maps.contains(row.map) && (!row.layer || row.map->GetLayers().contains(row.layer)) &&
         (!row.group || groupsOf(*row.map).contains(row.group));
}

QString LayerActions::problemOf(LayerRow const& row) { return row.layer ? SysCarto::problemOf(*row.layer) : QString(); }

LayerOutcome LayerActions::setVisible(Rows const& rows, bool visible) {
  Rows changed;
  for (LayerRow const& row : rows)
    if ((row.layer || row.group) && isOn(row) != visible) changed << row;
  if (changed.size() == 1) setSwitch(changed.first(), visible);
  if (changed.size() < 2) return {{}, rows, {}};
  OneStep const step(visible ? tr("Show layers") : tr("Hide layers"));
  for (LayerRow const& row : qAsConst(changed)) setSwitch(row, visible);
  return {{}, rows, {}};
}

LayerOutcome LayerActions::toggleVisible(Rows const& rows) {
  bool const isOneOn =
      std::any_of(rows.begin(), rows.end(), [](LayerRow const& row) { return (row.layer || row.group) && isOn(row); });
  return setVisible(rows, !isOneOn);
}

LayerOutcome LayerActions::setOpacity(SysCarto::MapDocument const& document, Rows const& rows, double percent) {
  Rows layers;
  for (LayerRow const& row : rows)
    for (auto const& layer : layersOf({row}))
      if (row.layer || row.group) layers.append({row.map, nullptr, layer});
  LayerOutcome outcome{{}, rows, {}};
  outcome.problem = set(document, layers, {QStringLiteral("opacity")}, percent, outcome.warnings);
  return outcome;
}

LayerOutcome LayerActions::rename(SysCarto::MapDocument const& document, LayerRow const& row, QString const& name) {
  LayerOutcome outcome{{}, {row}, {}};
  QString const former = row.layer ? row.layer->GetName() : QString();
  auto const& layers = row.map->GetLayers();
  bool const isAlone =
      std::count_if(layers.begin(), layers.end(), [&](auto const& layer) { return layer->GetName() == former; }) == 1;
  auto const legends = isAlone ? legendsWith(document, *row.map, former) : Editable::List();
  if (!legends.isEmpty()) {
    OneStep const step(tr("Rename “%1”").arg(former));
    auto const renamed = [&](QJsonValue const& value) { return withOtherName(value, former, name); };
    for (auto const& legend : legends)  // which take fewer names than a layer, so nothing is renamed by half
      if (outcome.problem.isEmpty())
        outcome.problem = Editable::set(document, {legend}, {QStringLiteral("surround")}, renamed, outcome.warnings);
    if (outcome.problem.isEmpty())
      outcome.problem = set(document, {row}, {QStringLiteral("name")}, name, outcome.warnings);
    return outcome;
  }
  outcome.problem = set(document, {row}, {QStringLiteral("name")}, name, outcome.warnings);
  return outcome;
}

LayerOutcome LayerActions::zoomTo(SysCarto::PageLayout const& layout, Rows const& rows) {
  if (rows.isEmpty()) return {};
  Map& map = *rows.first().map;
  Rows own;
  for (LayerRow const& row : rows)
    if (row.map.get() == &map) own << row;
  QString const problem = zoomTo(layout, map, boxOf(layersOf(own)), roomAround);
  return problem.isEmpty() ? LayerOutcome{{}, rows, {}} : LayerOutcome{problem, {}, {}};
}

QString LayerActions::zoomTo(SysCarto::PageLayout const& layout, Map& map, Box const& box, double room) {
  if (box.isEmpty()) return tr("There is nothing in it that a map could show.");
  QString const lock = lockOf(layout, map);
  if (!lock.isEmpty()) return lock;
  double const x = (box.xmin + box.xmax) / 2, y = (box.ymin + box.ymax) / 2;
  double const side = std::max(box.xmax - box.xmin, box.ymax - box.ymin);
  Envelope extent = *map.GetExtent();
  if (side > 0) {
    double const width = std::max(box.xmax - box.xmin, side * leastSide) * room / 2;
    double const height = std::max(box.ymax - box.ymin, side * leastSide) * room / 2;
    extent = Envelope(x - width, y - height, x + width, y + height);
  } else {
    extent.CenterAt(x, y);
  }
  return MapSteps::setExtent(map, extent) ? QString() : tr("A map can't show that much or that little.");
}

LayerOutcome LayerActions::zoomToScales(SysCarto::PageLayout const& layout, LayerRow const& row) {
  auto const scales = row.layer ? LayerHost::scales(*row.layer) : SysCarto::ScaleRange();
  if (scales.min == 0 && scales.max == 0) return {tr("It has no limits of scale."), {}, {}};
  QString const lock = lockOf(layout, *row.map);
  if (!lock.isEmpty()) return {lock, {}, {}};
  if (scales.contains(row.map->GetDisplayTransformation()->GetMapScale())) return {{}, {row}, {}};
  double const scale = scales.min == 0   ? scales.max * insideLimit
                       : scales.max == 0 ? scales.min / insideLimit
                                         : std::sqrt(scales.min * scales.max);
  if (!MapSteps::setScale(*row.map, scale)) return {tr("A map can't show that much or that little."), {}, {}};
  return {{}, {row}, {}};
}

LayerOutcome LayerActions::repair(SysCarto::MapDocument const& document, LayerRow const& row, QString const& file) {
  if (!row.layer || SysCarto::filesOf(*row.layer).isEmpty()) return {tr("It has no file."), {}, {}};
  auto const found = foundWith(document, row, QFileInfo(file).absoluteFilePath());
  LayerOutcome outcome{{}, {row}, {}};
  OneStep const step(tr("Repair the source of “%1”").arg(row.layer->GetName()));
  for (auto const& one : found) {
    QString const problem =
        set(document, {one.first}, {QStringLiteral("source"), QStringLiteral("file")}, one.second, outcome.warnings);
    if (!problem.isEmpty()) outcome.warnings << problem;
  }
  return outcome;
}
