#include "VectorLayer.h"

#include "LabelOrder.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/labels/LabelPlan.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <QHash>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

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
  QList<_ptr_t<Element>> elements;
  QList<_ptr_t<Polygon>> areas;  // that are taken

  bool isMade() const { return made_ == labels.size(); }
  void makeNext();

private:
  size_t made_ = 0;  // of the labels
};

void VectorLayer::Placement::makeNext() {
  PlacedLabel const& label = labels[made_++];
  if (!label.leader.isEmpty()) {
    elements << leaderOf(label);
    areas << make<Polygon>(QVector<QVector<QPointF>>{label.leader + label.leader.mid(0, 1)});
  }
  elements << elementOf(label, label.symbol);
  areas << make<Polygon>(QVector<QVector<QPointF>>{label.area});
}

// All that decides what comes of it. Each layer finds of the obstacles that it is given whether it is its turn. Who
// doesn't wait may have been given finer windows of features than who does.
struct VectorLayer::LabelQuestion {
  DisplayTransformationHost::OnPage page;
  QTransform turn;
  double mapScale;
  Obstacles obstacles;
  bool waits;
  QList<quint64> looks = {};                              // of all layers of the map
  std::vector<std::pair<VectorLayer*, int>> layers = {};  // that are to be labelled yet, and their priorities

  bool operator==(LabelQuestion const& other) const {
    return page.bounds == other.page.bounds && page.unitsPerPoint == other.page.unitsPerPoint && turn == other.turn &&
           mapScale == other.mapScale && obstacles == other.obstacles && waits == other.waits && looks == other.looks &&
           layers == other.layers;
  }
};

// The labels of layers that are asked for theirs in turn, as they are placed, and then handed out.
struct VectorLayer::PlannedLabels {
  // What is labelled, or in the way of labels, as it was when this began.
  struct Shown {
    std::shared_ptr<FeatureStore const> features;
    std::shared_ptr<Renderer const> renderer;
  };
  struct Obstacle {
    Shown shown;
    LabelObstacle kind;
  };
  struct Labelled {
    VectorLayer const* layer;
    Shown shown;
    LabelSettings settings;
    std::optional<qint64> only;
    std::vector<Obstacle> others;
    std::unique_ptr<LabelPlacer> placer = {};
  };

  LabelQuestion question;
  int effort;  // of the search
  _ptr_t<DisplayTransformation> transformation;
  std::deque<Labelled> layers;
  size_t prepared = 0, handed = 0;  // of these
  std::optional<MapLabelling> labelling;
  bool isUnderWay = false;  // who cancels may run events, and these ask, too
  bool isDone = false;
  std::map<VectorLayer const*, Placement> parts;  // then

  void goOn(std::function<bool()> const& mayGoOn);
  bool place(std::function<bool()> const& mayGoOn);
  void prepare(Labelled& layer) const;
};

void VectorLayer::PlannedLabels::prepare(Labelled& layer) const {
  Shown const& shown = layer.shown;
  if (!shown.features || !shown.features->keepsLabels || shown.features->size() == 0) return;
  layer.placer = std::make_unique<LabelPlacer>(*shown.features, layer.settings, *shown.renderer, *transformation);
  if (!layer.placer->isUsable()) return layer.placer.reset();
  if (layer.only) layer.placer->keepOnly(*layer.only);
  for (auto const& list : question.obstacles)
    for (_ptr_t<Polygon> const& obstacle : list)
      if (obstacle) layer.placer->addObstacle(*obstacle);
  for (auto const& [other, kind] : layer.others) layer.placer->addObstacles(*other.features, *other.renderer, kind);
}

bool VectorLayer::PlannedLabels::place(std::function<bool()> const& mayGoOn) {
  for (; prepared < layers.size(); ++prepared) {
    if (!mayGoOn()) return false;
    prepare(layers[prepared]);
  }
  if (!labelling) {
    std::vector<LabelPlacer*> placers;
    for (Labelled& layer : layers)
      if (layer.placer) placers.push_back(layer.placer.get());
    labelling.emplace(placers, effort);
  }
  if (!labelling->goOn(mayGoOn)) return false;
  for (; handed < layers.size(); ++handed) {
    Placement& part = parts[layers[handed].layer];
    auto const& placer = layers[handed].placer;
    if (placer && part.labels.empty()) {
      part.count = placer->placedCount();
      part.labels = placer->takeLabels();
      part.unplaced = placer->takeUnplaced();
    }
    for (; !part.isMade(); part.makeNext())
      if (!mayGoOn()) return false;
  }
  return true;
}

void VectorLayer::PlannedLabels::goOn(std::function<bool()> const& mayGoOn) {
  if (isDone) return;
  isUnderWay = true;
  isDone = place(mayGoOn);
  isUnderWay = false;
  if (!isDone) return;
  labelling.reset();
  layers.clear();
}

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

// Those whose turn comes after this one, and itself.
std::vector<VectorLayer*> VectorLayer::labelledFrom(double mapScale) {
  QList<VectorLayer*> const ordered = inLabelOrder(fellows(), mapScale);
  int const own = ordered.indexOf(this);
  if (own < 0) return {this};
  return {ordered.begin() + own, ordered.end()};
}

// Of a map, itself among them.
QList<VectorLayer*> VectorLayer::fellows() const {
  QList<VectorLayer*> layers;
  for (Layer* const fellow : LayerHost::fellows(*this))
    if (auto* const layer = dynamic_cast<VectorLayer*>(fellow)) layers << layer;
  return layers;
}

VectorLayer::LabelQuestion VectorLayer::labelQuestion(Obstacles const& obstacles,
                                                      DisplayTransformation const& transformation) {
  LabelQuestion question{DisplayTransformationHost::onPage(transformation),
                         DisplayTransformationHost::turn(transformation), transformation.GetMapScale(), obstacles,
                         !WithoutWaiting::current()};
  if (LayerHost::fellows(*this).isEmpty()) question.looks << LayerHost::look(*this);
  for (Layer const* const fellow : LayerHost::fellows(*this)) question.looks << LayerHost::look(*fellow);
  for (VectorLayer* const layer : labelledFrom(question.mapScale))
    question.layers.emplace_back(layer, layer->properties_->GetPriority());
  return question;
}

// Nothing where features are missing that a view doesn't wait for, or somebody has had enough of waiting for.
std::shared_ptr<VectorLayer::PlannedLabels> VectorLayer::planLabels(Obstacles const& obstacles,
                                                                    _ptr_t<DisplayTransformation> const& transformation,
                                                                    _ptr_t<TrackerCancel> const& cancel) {
  auto const* const meanwhile = WithoutWaiting::current();
  auto planned = std::make_shared<PlannedLabels>();
  planned->effort = std::max(LayerHost::labelEffort(*this), 1);
  planned->transformation = transformation->Clone();
  auto const shownOf = [&](VectorLayer const& layer) {
    return PlannedLabels::Shown{layer.shownBy(*transformation, cancel), layer.renderer_};
  };
  double const mapScale = transformation->GetMapScale();
  for (VectorLayer const* const layer : labelledFrom(mapScale)) {
    PlannedLabels::Labelled labelled{layer, shownOf(*layer), layer->labels_, {}, {}};
    if (layer->spotlight_ && layer->spotlight_->hidesOthers) labelled.only = layer->spotlight_->feature;
    for (VectorLayer const* const other : layer->fellows()) {
      bool const isNoObstacle = other == layer || other->obstacle_ == LabelObstacle::None || !other->showsAt(mapScale);
      if (isNoObstacle) continue;
      if (auto const shown = shownOf(*other); shown.features) labelled.others.push_back({shown, other->obstacle_});
    }
    if ((meanwhile && meanwhile->isIncomplete) || (cancel && cancel->IsCanced())) return nullptr;
    planned->layers.push_back(std::move(labelled));
  }
  planned->question = labelQuestion(obstacles, *transformation);  // what was fetched may have changed looks
  for (VectorLayer* const fellow : fellows()) fellow->planned_ = nullptr;
  for (auto const& [layer, priority] : planned->question.layers) layer->planned_ = planned;
  return planned;
}

// Null where they are not all placed yet.
std::shared_ptr<VectorLayer::PlannedLabels> VectorLayer::placeLabels(
    Obstacles const& obstacles, _ptr_t<DisplayTransformation> const& transformation,
    _ptr_t<TrackerCancel> const& cancel) {
  auto* const meanwhile = WithoutWaiting::current();
  if (meanwhile && planned_ && planned_->isUnderWay) meanwhile->hasMoreToDo = true;
  if (meanwhile && meanwhile->hasMoreToDo) return nullptr;
  auto planned = planned_;
  bool const isTaken =
      planned && !planned->isUnderWay && planned->question == labelQuestion(obstacles, *transformation);
  if (!isTaken) planned = planLabels(obstacles, transformation, cancel);
  if (!planned) return nullptr;
  bool isFirst = true;  // on a machine that is busy a moment may be over before anything was done
  planned->goOn([&] {
    if (meanwhile) return std::exchange(isFirst, false) || !meanwhile->isTimeUp();
    return !(cancel && cancel->IsCanced());
  });
  if (planned->isDone) return planned;
  if (meanwhile)
    meanwhile->hasMoreToDo = true;
  else
    for (auto const& [layer, priority] : planned->question.layers) layer->planned_ = nullptr;
  return nullptr;
}

void VectorLayer::GetAnnotationElements(Obstacles& obstacles, QList<_ptr_t<Element>>& labels,
                                        _ptr_t<DisplayTransformation> const& transformation,
                                        _ptr_t<TrackerCancel> cancel) {
  auto const planned = transformation ? placeLabels(obstacles, transformation, cancel) : nullptr;
  if (transformation && !planned) return;
  planned_ = nullptr;
  Placement own = planned ? std::move(planned->parts[this]) : Placement();
  placedLabels_ = own.count;
  placed_ = std::move(own.labels);
  unplaced_ = std::move(own.unplaced);
  labels << own.elements;
  if (!own.areas.isEmpty()) obstacles[properties_->GetPriority()] << own.areas;
  if (!planned) return;
  planned->question.obstacles = obstacles;
  planned->question.layers.erase(planned->question.layers.begin());
}

}  // namespace SysCarto
