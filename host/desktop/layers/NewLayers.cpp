#include "NewLayers.h"

#include "host/SysCarto/document/LayerClip.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/PageHost.h"
#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/SysCarto/maps/ValueStep.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/styling/Bulk.h"
#include "host/desktop/styling/LayerStyling.h"
#include "host/desktop/styling/ProjectionChoice.h"
#include "host/desktop/styling/ShownArea.h"

#include <SysCarto/MapDocument.h>
#include <SysCarto/PageLayout.h>
#include <SysFramework/HostAccess.h>

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
using SysUtility::ptr_cast;

namespace {

constexpr double usualMarginCm = 1;
constexpr double room = 0.03;           // of the extent, at each of its sides
constexpr double aboutOnePlace = 1000;  // metres or degrees × 10⁵ shown of a layer that holds one place

LayerGroups commonGroups(LayerGroups const& a, LayerGroups const& b) {
  LayerGroups common;
  for (int i = 0; i < std::min(a.size(), b.size()) && a[i] == b[i]; ++i) common << a[i];
  return common;
}

struct Styled {
  _ptr_t<Layer> layer;
  DrawingOrder order;
  int outliers;
};

void insert(SysCarto::LayerList& list, int at, _ptr_t<Layer> const& layer, LayerGroups const& groups) {
  list.layers.insert(at, layer);
  list.groups.insert(at, groups);
}

// Each above the one before it, the first above a chosen layer, and all in the groups of that.
void putAbove(SysCarto::LayerList& list, std::vector<Styled> const& layers, _ptr_t<Layer> const& chosen) {
  int at = list.layers.indexOf(chosen);
  for (Styled const& styled : layers) {
    insert(list, at + 1, styled.layer, LayerGroups(list.groups[at]));
    ++at;
  }
}

// Between members of a group a layer belongs to the group.
void putInOrder(SysCarto::LayerList& list, std::vector<Styled> const& layers) {
  QString const system = list.map->GetCoordinateSystem();
  std::vector<DrawingOrder> orders;  // of all that are in the list, each found out once
  for (auto const& layer : list.layers) orders.push_back(DrawingOrder::of(*layer, system));
  for (Styled const& styled : layers) {
    int at = 0;
    for (int i = 0; i < list.layers.size(); ++i)
      if (!styled.order.isBelow(orders[i])) at = i + 1;
    bool const isBetween = at > 0 && at < list.layers.size();
    insert(list, at, styled.layer, isBetween ? commonGroups(list.groups[at - 1], list.groups[at]) : LayerGroups());
    orders.insert(orders.begin() + at, DrawingOrder::of(*styled.layer, system));
  }
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

// The layers on their way into a map that may have none yet, nor a coordinate system.
class Adding {
public:
  Adding(Map const& map, QSizeF const& frameCm, SysCarto::ReadProgress const& progress) : map_(map), frameCm_(frameCm) {
    if (progress)
      progress_ = [this, progress](qint64 read, qint64 count) { return !(wasStopped_ = !progress(read, count)); };
  }

  bool wasStopped() const { return wasStopped_; }
  QStringList const& problems() const { return problems_; }

  void survey(std::vector<NewLayer> const& wanted) {
    for (NewLayer const& one : wanted) {
      QString problem;
      auto survey = surveyLayer(one.source, one.description, progress_, problem);
      if (wasStopped_) return;
      if (!survey) problems_ << problem;  // of one that is read in part, the reading tells
      if (survey && survey->count > 0) surveys_.push_back(std::move(*survey));
    }
    place_ = DataPlace::of(surveys_);
  }

  DataPlace const& place() const { return place_; }
  QString suitableSystem() const { return ProjectionChoice::forData(place_).definition; }

  std::vector<Styled> read(QString const& system, QStringList& warnings) {
    std::vector<Styled> layers;
    auto const own = make<Map>();  // stands in for one that has not the system yet
    own->SetCoordinateSystem(system);
    for (StyledLayer const& styled : style(system)) {
      QString problem;
      auto const read = SysCarto::LayerClip::make({styled.json}, *own, problem, warnings, progress_);
      if (wasStopped_) return {};
      if (!problem.isEmpty()) problems_ << problem;
      if (!read.empty()) layers.push_back({read.front().layer, styled.order, styled.outliers});
    }
    return layers;
  }

private:
  std::vector<StyledLayer> style(QString const& system) const {
    auto const extent = map_.GetExtent();
    QRectF const now(extent->GetXMin(), extent->GetYMin(), extent->GetWidth(), extent->GetHeight());
    bool const isFirst = map_.GetLayerCount() == 0;
    QRectF const shape = isFirst && place_.isKnown ? mapAreaOf(system, place_.area) : now;
    ShownArea const shown = ShownArea::of(system, shape, frameCm_, isFirst ? room : 0);
    LayerStyling styling(frameCm_.width() * frameCm_.height(), shown.isSmallScale ? shown.area : GlobeArea());
    for (auto const& layer : map_.GetLayers()) styling.notice(*layer);
    return styling.style(surveys_);
  }

  Map const& map_;
  QSizeF const frameCm_;
  SysCarto::ReadProgress progress_;
  bool wasStopped_ = false;
  QStringList problems_;
  std::vector<LayerSurvey> surveys_;
  DataPlace place_;
};

QSizeF sizeOf(SysCarto::MapFrameElement const* frame) {
  auto const sides = frame ? frame->GetGeometry()->GetEnvelope() : nullptr;
  constexpr double usualCm = 20;
  return sides ? QSizeF(sides->GetWidth(), sides->GetHeight()) : QSizeF(usualCm, usualCm);
}

SysGeometry::Box boxOf(Styled const& styled) {
  auto const vector = ptr_cast<VectorLayer>(styled.layer);
  if (!vector || styled.outliers == 0) return SysCarto::boxOf(*styled.layer);
  BoxSample boxes;
  for (SysCarto::Feature const& feature : vector->features().features) boxes.add(feature.box);
  return Bulk::of(boxes).box;
}

void putSystem(Map& map, QString const& system) { map.SetCoordinateSystem(system); }

}  // namespace

std::vector<NewLayer> NewLayers::of(DataFile const& file, LayerDescription const& layer) {
  if (layer.kind == GeometryKind::None) return {};
  NewLayer one{SysCarto::sourceOf(file, layer), layer};
  bool const isTable = !layer.xField.isEmpty() || !layer.geometryField.isEmpty();
  if (isTable) one.source.coordinateSystem = layer.coordinateSystem;
  return {one};
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
  Adding adding(*map, sizeOf((frame ? frame : layout->GetFocusMapFrameElement()).get()), progress);
  adding.survey(wanted);
  if (adding.wasStopped()) return QString();
  bool const takesSystem = isFirst && map->GetCoordinateSystem().isEmpty() && adding.place().hasFeatures;
  QString const system = takesSystem ? adding.suitableSystem() : map->GetCoordinateSystem();
  std::vector<Styled> const layers = adding.read(system, warnings);
  if (adding.wasStopped()) return QString();
  if (layers.empty())
    return adding.problems().isEmpty() ? tr("There is nothing to draw in these data.")
                                       : adding.problems().join(QLatin1Char(' '));
  warnings += adding.problems();
  if (isFirst && adding.place().outliers > 0) warnings << adding.place().outlierText();

  SysCarto::LayerList list = SysCarto::layersOf(*map);
  SysGeometry::Box extent;
  for (Styled const& styled : layers) extent.add(boxOf(styled));
  if (list.layers.contains(below))
    putAbove(list, layers, below);
  else
    putInOrder(list, layers);
  QString const step = layers.size() == 1 ? tr("Add the layer “%1”").arg(layers.front().layer->GetName())
                                          : tr("Add %1 layers").arg(layers.size());
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
  QString const path = SysCarto::absoluteOrigin(text.section(QLatin1Char('|'), 0, 0));
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
