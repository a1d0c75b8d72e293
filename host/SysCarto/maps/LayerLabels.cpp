#include "VectorLayer.h"

#include "LabelOrder.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/labels/LabelPlan.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WithoutWaiting.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <QHash>

#include <deque>
#include <map>

namespace SysCarto {

using namespace SysDisplay;
using SysGeometry::Polygon;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;

// What a layer does with its labels.

namespace {

constexpr double leaderWidthPt = 0.4;

using Obstacles = QMap<int, QList<_ptr_t<Polygon>>>;

_ptr_t<TextElement> elementOf(PlacedLabel const& placed, _ptr_t<TextSymbol> const& symbol) {
  auto const element = make<TextElement>();
  ElementHost::becomeLabel(*element);
  element->setText(placed.text);
  element->setSymbol(symbol);
  element->setPosition(placed.x, placed.y);
  element->setAngle(placed.angle);
  return element;
}

_ptr_t<LineElement> leaderOf(PlacedLabel const& placed) {
  auto const symbol = make<SimpleLineSymbol>();
  symbol->SetColor(placed.symbol->format().color);
  symbol->SetWidth(leaderWidthPt);
  auto const element = make<LineElement>();
  ElementHost::becomeLabel(*element);
  element->setShape(make<SysGeometry::Polyline>(placed.leader));
  element->setSymbol(symbol);
  return element;
}

}  // namespace

struct VectorLayer::Placement {
  int count = 0;
  std::vector<PlacedLabel> labels, unplaced;
};

// Labels of layers that are asked for theirs in turn: each finds of the obstacles that it is given whether it is its
// turn.
struct VectorLayer::PlannedLabels {
  _ptr_t<DisplayTransformation> transformation;
  Obstacles next;
  std::map<VectorLayer const*, Placement> parts;
};

LabelCount VectorLayer::labelCount() const {
  return {placedLabels_ + static_cast<int>(unplaced_.size()), placedLabels_};
}

QList<_ptr_t<Element>> VectorLayer::unplacedLabels() const {
  QList<_ptr_t<Element>> labels;
  QHash<TextSymbol const*, _ptr_t<TextSymbol>> reds;
  for (PlacedLabel const& label : unplaced_) {
    _ptr_t<TextSymbol>& red = reds[label.symbol.get()];
    if (!red) {
      TextFormat format = label.symbol->format();
      format.color = Qt::red;
      red = make<TextSymbol>(format);
    }
    labels << elementOf(label, red);
  }
  return labels;
}

VectorLayer::Others VectorLayer::obstaclesIn(DisplayTransformation const& transformation,
                                             _ptr_t<TrackerCancel> const& cancel) const {
  Others others;
  for (Layer const* const fellow : LayerHost::fellows(*this)) {
    auto const* const layer = dynamic_cast<VectorLayer const*>(fellow);
    bool const isNoObstacle = !layer || layer == this || layer->obstacle_ == LabelObstacle::None ||
                              !layer->showsAt(transformation.GetMapScale());
    if (isNoObstacle) continue;
    if (auto features = layer->shownBy(transformation, cancel)) others.emplace_back(layer, std::move(features));
  }
  return others;
}

// Those whose turn comes after this one, and itself.
std::vector<VectorLayer*> VectorLayer::labelledFrom(double mapScale) {
  QList<VectorLayer*> layers;
  for (Layer* const fellow : LayerHost::fellows(*this))
    if (auto* const layer = dynamic_cast<VectorLayer*>(fellow)) layers << layer;
  QList<VectorLayer*> const ordered = inLabelOrder(layers, mapScale);
  int const own = ordered.indexOf(this);
  if (own < 0) return {this};
  return {ordered.begin() + own, ordered.end()};
}

// All at once, or nothing where features are missing that a view doesn't wait for.
void VectorLayer::planLabels(Obstacles const& obstacles, _ptr_t<DisplayTransformation> const& transformation,
                             _ptr_t<TrackerCancel> const& cancel) {
  struct Given {
    VectorLayer* layer;
    std::shared_ptr<FeatureStore const> store;
    Others others;
  };
  auto const* const meanwhile = WithoutWaiting::current();
  std::vector<Given> all;
  for (VectorLayer* const layer : labelledFrom(transformation->GetMapScale())) {
    auto store = layer->shownBy(*transformation, cancel);
    auto others = store ? layer->obstaclesIn(*transformation, cancel) : Others();
    if (meanwhile && meanwhile->isIncomplete) return;
    all.push_back({layer, std::move(store), std::move(others)});
  }

  std::deque<LabelPlacer> placers;
  std::vector<std::pair<VectorLayer*, LabelPlacer*>> placed;
  auto const planned = std::make_shared<PlannedLabels>();
  planned->transformation = transformation;
  planned->next = obstacles;
  for (auto const& [layer, store, others] : all) {
    layer->planned_ = planned;
    planned->parts[layer];
    if (!store || !store->keepsLabels || store->size() == 0) continue;
    LabelPlacer& placer = placers.emplace_back(*store, layer->labels_, *layer->renderer_, *transformation);
    if (!placer.isUsable()) {
      placers.pop_back();
      continue;
    }
    if (layer->spotlight_ && layer->spotlight_->hidesOthers) placer.keepOnly(layer->spotlight_->feature);
    for (auto const& list : obstacles)
      for (_ptr_t<Polygon> const& obstacle : list)
        if (obstacle) placer.addObstacle(*obstacle);
    for (auto const& [other, features] : others) placer.addObstacles(*features, *other->renderer_, other->obstacle_);
    placed.emplace_back(layer, &placer);
  }
  std::vector<LabelPlacer*> working;
  for (LabelPlacer& placer : placers) working.push_back(&placer);
  placeLabels(working, [&] { return cancel && cancel->IsCanced(); });
  for (auto const& [layer, placer] : placed)
    planned->parts[layer] = {placer->placedCount(), placer->labels(), placer->unplaced()};
}

void VectorLayer::GetAnnotationElements(Obstacles& obstacles, QList<_ptr_t<Element>>& labels,
                                        _ptr_t<DisplayTransformation> const& transformation,
                                        _ptr_t<TrackerCancel> cancel) {
  bool const isItsTurn = planned_ && planned_->transformation == transformation && planned_->next == obstacles;
  if (!isItsTurn) planned_ = nullptr;
  if (!planned_ && transformation) planLabels(obstacles, transformation, cancel);
  auto const planned = std::exchange(planned_, nullptr);
  if (!planned && transformation) return;
  Placement own = planned ? std::move(planned->parts[this]) : Placement();
  placedLabels_ = own.count;
  placed_ = std::move(own.labels);
  unplaced_ = std::move(own.unplaced);
  if (placed_.empty()) return;
  auto& taken = obstacles[properties_->GetPriority()];
  for (PlacedLabel const& label : placed_) {
    if (!label.leader.isEmpty()) {
      labels << leaderOf(label);
      taken << make<Polygon>(QVector<QVector<QPointF>>{label.leader + label.leader.mid(0, 1)});
    }
    labels << elementOf(label, label.symbol);
    taken << make<Polygon>(QVector<QVector<QPointF>>{label.area});
  }
  planned->next = obstacles;
}

}  // namespace SysCarto
