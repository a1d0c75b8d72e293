#include "NewLayers.h"

#include "LayerStyle.h"

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/SysCarto/maps/ValueStep.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/MapDocument.h>
#include <SysCarto/PageLayout.h>
#include <SysFramework/HostAccess.h>

#include <QFileInfo>

#include <algorithm>

using SysCarto::DataFile;
using SysCarto::GeometryKind;
using SysCarto::Layer;
using SysCarto::LayerDescription;
using SysCarto::LayerGroups;
using SysCarto::Map;
using SysCarto::VectorLayer;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double usualMarginCm = 1;
constexpr double room = 0.03;           // of the extent, at each of its sides
constexpr double aboutOnePlace = 1000;  // metres or degrees × 10⁵ shown of a layer that holds one place

struct Kind {
  GeometryKind kind;
  char const* name;
  char const* condition;  // what OGR calls such geometries
};
constexpr Kind kindsOfMixed[] = {
    {GeometryKind::Areas, QT_TRANSLATE_NOOP("NewLayers", "%1 (areas)"),
     "OGR_GEOMETRY IN ('POLYGON', 'MULTIPOLYGON', 'CURVEPOLYGON', 'MULTISURFACE', 'POLYHEDRALSURFACE', 'TIN', "
     "'TRIANGLE', 'GEOMETRYCOLLECTION')"},
    {GeometryKind::Lines, QT_TRANSLATE_NOOP("NewLayers", "%1 (lines)"),
     "OGR_GEOMETRY IN ('LINESTRING', 'MULTILINESTRING', 'CIRCULARSTRING', 'COMPOUNDCURVE', 'MULTICURVE')"},
    {GeometryKind::Points, QT_TRANSLATE_NOOP("NewLayers", "%1 (points)"), "OGR_GEOMETRY IN ('POINT', 'MULTIPOINT')"},
};

int rankOf(GeometryKind kind) { return kind == GeometryKind::Points ? 2 : kind == GeometryKind::Lines ? 1 : 0; }

QString nameOf(DataFile const& file, LayerDescription const& layer) {
  return file.layers.size() == 1 ? QFileInfo(file.path).fileName().section(QLatin1Char('.'), 0, 0) : layer.name;
}

LayerGroups commonGroups(LayerGroups const& a, LayerGroups const& b) {
  LayerGroups common;
  for (int i = 0; i < std::min(a.size(), b.size()) && a[i] == b[i]; ++i) common << a[i];
  return common;
}

// Between members of a group it belongs to the group, and above a chosen layer to all groups of that.
void put(SysCarto::LayerList& list, _ptr_t<Layer> const& layer, _ptr_t<Layer> const& below) {
  int at = list.layers.indexOf(below) + 1;
  LayerGroups groups;
  if (at > 0) {
    groups = list.groups[at - 1];
  } else {
    for (int i = 0; i < list.layers.size(); ++i)
      if (rankOf(kindDrawn(*list.layers[i])) <= rankOf(kindDrawn(*layer))) at = i + 1;
    if (at > 0 && at < list.layers.size()) groups = commonGroups(list.groups[at - 1], list.groups[at]);
  }
  list.layers.insert(at, layer);
  list.groups.insert(at, groups);
}

SysGeometry::Envelope shown(SysGeometry::Box const& box, QString const& system) {
  bool const isDegrees = box.grown(0).xmin >= -180 && box.xmax <= 180 && !system.isEmpty();
  double const side = std::max(box.xmax - box.xmin, box.ymax - box.ymin);
  double const least = isDegrees ? aboutOnePlace / 1e5 : aboutOnePlace;
  SysGeometry::Box const wide = box.grown(side > 0 ? room * side : least / 2);
  return {wide.xmin, wide.ymin, wide.xmax, wide.ymax};
}

_ptr_t<SysCarto::MapFrameElement> frameWithinMargins(SysCarto::PageLayout const& layout) {
  SysCarto::Page const& page = *layout.GetPage();
  SysCarto::PageAids const& aids = SysCarto::PageHost::aids(page);
  double width, height;
  page.QuerySize(width, height);
  auto const margin = [&](double cm) { return cm > 0 ? cm : std::min(usualMarginCm, std::min(width, height) / 10); };
  auto const frame = make<SysCarto::MapFrameElement>();
  frame->SetGeometry(make<SysGeometry::Envelope>(margin(aids.left), margin(aids.bottom), width - margin(aids.right),
                                                 height - margin(aids.top)));
  frame->GetMap()->SetName(QStringLiteral("Map1"));
  return frame;
}

struct Read {
  std::vector<_ptr_t<VectorLayer>> layers;
  QStringList problems;
  bool wasStopped = false;
};

_ptr_t<VectorLayer> read(NewLayer const& wanted, QString const& system, QList<_ptr_t<Layer>> const& present,
                         SysCarto::ReadProgress const& progress, Read& result, QStringList& warnings) {
  auto const layer = make<VectorLayer>(SysCarto::makeSimpleRenderer(plainSymbol(wanted.kind, present)));
  layer->SetName(wanted.name);
  QStringList own;
  QString const problem = layer->open(wanted.source, system, own, [&](qint64 count, qint64 of) {
    return !(result.wasStopped = progress && !progress(count, of));
  });
  if (!problem.isEmpty() && layer->features().size() == 0) {
    result.problems << problem;
    return nullptr;
  }
  if (!problem.isEmpty()) own.prepend(problem);
  warnings += own;
  return layer;
}

Read readAll(std::vector<NewLayer> const& wanted, QString const& system, QList<_ptr_t<Layer>> present,
             SysCarto::ReadProgress const& progress, QStringList& warnings) {
  Read result;
  for (NewLayer const& one : wanted) {
    auto const layer = read(one, system, present, progress, result, warnings);
    if (result.wasStopped) break;
    bool const isPartOfMixed = one.source.filter.startsWith(QLatin1String("OGR_GEOMETRY"));
    if (!layer || (isPartOfMixed && layer->features().size() == 0)) continue;
    present << layer;
    result.layers.push_back(layer);
  }
  return result;
}

void putSystem(Map& map, QString const& system) { map.SetCoordinateSystem(system); }

}  // namespace

QString NewLayers::conditionOf(GeometryKind kind) {
  for (Kind const& row : kindsOfMixed)
    if (row.kind == kind) return QLatin1String(row.condition);
  return QString();
}

std::vector<NewLayer> NewLayers::of(DataFile const& file, LayerDescription const& layer) {
  if (layer.kind == GeometryKind::None) return {};
  NewLayer one{{file.path, layer.name, {}, {}, layer.xField, layer.yField, layer.geometryField},
               layer.kind,
               nameOf(file, layer),
               layer.coordinateSystem};
  bool const isTable = !layer.xField.isEmpty() || !layer.geometryField.isEmpty();
  if (isTable) one.source.coordinateSystem = layer.coordinateSystem;
  if (layer.kind != GeometryKind::Mixed) return {one};
  std::vector<NewLayer> parts;
  for (Kind const& kind : kindsOfMixed) {
    NewLayer part = one;
    part.kind = kind.kind;
    part.name = tr(kind.name).arg(one.name);
    part.source.filter = conditionOf(kind.kind);
    parts.push_back(part);
  }
  return parts;
}

std::vector<NewLayer> NewLayers::of(DataFile const& file) {
  std::vector<NewLayer> all;
  for (LayerDescription const& layer : file.layers)
    for (NewLayer const& one : of(file, layer)) all.push_back(one);
  return all;
}

QString NewLayers::add(SysCarto::MapDocument const& document, std::vector<NewLayer> const& wanted,
                       _ptr_t<Layer> const& below, SysCarto::ReadProgress const& progress, QStringList& warnings) {
  auto const layout = document.GetPageLayout();
  if (!layout || !layout->GetPage()) return tr("The document has no page that could hold a map.");
  auto const frame = layout->GetFocusMap() ? nullptr : frameWithinMargins(*layout);
  auto const map = frame ? frame->GetMap() : layout->GetFocusMap();
  bool const isFirst = map->GetLayerCount() == 0;
  bool const takesSystem = isFirst && map->GetCoordinateSystem().isEmpty() && !wanted.empty();
  QString const system = takesSystem ? wanted.front().coordinateSystem : map->GetCoordinateSystem();

  Read const result = readAll(wanted, system, map->GetLayers(), progress, warnings);
  if (result.wasStopped) return QString();
  if (result.layers.empty())
    return result.problems.isEmpty() ? tr("There is nothing to draw in these data.")
                                     : result.problems.join(QLatin1Char(' '));
  warnings += result.problems;

  SysCarto::LayerList list = SysCarto::layersOf(*map);
  SysGeometry::Box extent;
  _ptr_t<Layer> lower = below;
  for (auto const& layer : result.layers) {
    put(list, layer, lower);
    if (below) lower = layer;
    extent.add(layer->features().box());
  }
  QString const step = result.layers.size() == 1 ? tr("Add the layer “%1”").arg(result.layers.front()->GetName())
                                                 : tr("Add %1 layers").arg(result.layers.size());
  SysCarto::OneStep const whole(step);
  if (frame) {
    SysFramework::EditorOperation const operation(step);
    layout->GetGraphicsContainer()->AddElement(frame);
  }
  if (takesSystem && !system.isEmpty())
    SysCarto::takeStep(
        std::make_unique<SysCarto::ValueStep<Map, QString>>(step, -1, *map, QString(), system, putSystem));
  SysCarto::MapSteps::changeLayers(step, {list});
  if (isFirst && !extent.isEmpty()) SysCarto::MapSteps::setExtent(*map, shown(extent, system));
  if (frame) layout->SetFocusMap(map);
  return QString();
}

QString NewLayers::addNamed(SysCarto::MapDocument const& document, QString const& text, QStringList& warnings) {
  QString const path = QFileInfo(text.section(QLatin1Char('|'), 0, 0)).absoluteFilePath();
  QString const name = text.section(QLatin1Char('|'), 1);
  DataFile const file = SysCarto::describeFile(path);
  if (!file.error.isEmpty()) return file.error;
  QStringList names;
  std::vector<NewLayer> wanted;
  for (LayerDescription const& layer : file.layers) {
    names << layer.name;
    if (!name.isEmpty() && layer.name != name) continue;
    for (NewLayer const& one : of(file, layer)) wanted.push_back(one);
  }
  if (!name.isEmpty() && !names.contains(name))
    return tr("The file “%1” has no layer “%2”; it has: %3.").arg(path, name, names.join(QStringLiteral(", ")));
  if (wanted.empty())
    return tr("There is no geometry in “%1”, and no column of coordinates: join it as a table to a layer.").arg(text);
  return add(document, wanted, nullptr, {}, warnings);
}
