#include "VectorLayer.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/layers/FeaturePainter.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

using namespace SysDisplay;
using SysGeometry::Polygon;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int featurePhase = 1;
constexpr int betweenCancelChecks = 64;

bool isCancelled(_ptr_t<TrackerCancel> const& cancel) { return cancel && cancel->IsCanced(); }

double pixelsPerUnit(QTransform const& toDevice) { return std::hypot(toDevice.m11(), toDevice.m12()); }

// The reachable pixels and `reachPx` around them, in map units.
Box areaOf(DrawTarget const& target, double reachPx) {
  QRectF const area =
      target.toDevice().inverted().mapRect(target.area().adjusted(-reachPx, -reachPx, reachPx, reachPx));
  return {area.left(), area.top(), area.right(), area.bottom()};
}

// What draws the features of each class; null for nothing.
using Pass = std::vector<std::unique_ptr<FeaturePainter>>;

std::vector<Pass> passesOf(std::vector<SymbolClass> const& classes, DrawTarget& target) {
  std::vector<Pass> passes;
  for (size_t i = 0; i < classes.size(); ++i) {
    auto const symbols = FeaturePainter::passesOf(classes[i].symbol.get());
    for (int pass = 0; pass < symbols.size(); ++pass) {
      if (pass == static_cast<int>(passes.size())) passes.emplace_back(classes.size());
      passes[pass][i] = FeaturePainter::create(target, symbols[pass]);
    }
  }
  return passes;
}

}  // namespace

VectorLayer::VectorLayer(std::unique_ptr<Renderer> renderer)
    : renderer_(std::move(renderer)),
      properties_(make<AnnotationProperties>()),
      store_(std::make_unique<FeatureStore>()),
      thinned_(std::make_unique<ThinnedFeatures>(*store_)) {}

VectorLayer::~VectorLayer() = default;

QString VectorLayer::open(SourceSettings const& source, QString const& mapSystem, QStringList& warnings) {
  source_ = source;
  ReadFeatures read = readFeatures(source, mapSystem, *renderer_, {labels_.field, labels_.priorityField});
  store_ = std::move(read.store);
  thinned_ = std::make_unique<ThinnedFeatures>(*store_);
  warnings += read.warnings;
  problem_ = read.error;
  LayerHost::changeLook(*this);
  return problem_;
}

void VectorLayer::setRenderer(std::unique_ptr<Renderer> renderer) {
  renderer_ = std::move(renderer);
  LayerHost::changeLook(*this);
}

void VectorLayer::setLabelSettings(LabelSettings const& settings) {
  labels_ = settings;
  LayerHost::changeLook(*this);
}

void VectorLayer::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation, int phase,
                       _ptr_t<TrackerCancel> const& cancel) {
  if (phase != featurePhase || !transformation || store_->size() == 0) return;
  drawWithEffects(LayerHost::effects(*this), painter,
                  [&](QPainter& own) { drawFeatures(own, *transformation, cancel); });
}

void VectorLayer::drawFeatures(QPainter& painter, DisplayTransformation const& transformation,
                               _ptr_t<TrackerCancel> const& cancel) {
  DrawTarget target(painter, transformation);
  double const scale = pixelsPerUnit(target.toDevice());
  if (!(scale > 0) || !std::isfinite(scale) || target.area().isEmpty()) return;

  std::vector<Pass> const passes = passesOf(renderer_->classes(), target);
  double reachPx = 0;
  for (Pass const& pass : passes)
    for (auto const& painter : pass)
      if (painter) reachPx = std::max(reachPx, painter->reachPx());
  Box const area = areaOf(target, reachPx + 1);
  thinned_->setResolution(1 / scale);
  std::vector<int> const shown = store_->query(area);
  int untilCheck = 0;
  for (Pass const& pass : passes)
    for (int const feature : shown) {
      if (untilCheck-- == 0) {
        if (isCancelled(cancel)) return;
        untilCheck = betweenCancelChecks;
      }
      int const symbolClass = store_->features[feature].symbolClass;
      if (symbolClass >= 0 && pass[symbolClass]) pass[symbolClass]->draw(*thinned_, feature, area);
    }
}

QList<LegendClass> VectorLayer::legendClasses() const {
  QList<LegendClass> classes;
  for (SymbolClass const& one : renderer_->classes()) classes << LegendClass{one.label, one.symbol};
  return classes;
}

QVector<bool> VectorLayer::classesWithin(_ptr_t<DisplayTransformation> const& transformation) const {
  auto const bounds = transformation->GetFittedBounds();
  Box const shown{bounds->GetXMin(), bounds->GetYMin(), bounds->GetXMax(), bounds->GetYMax()};
  QTransform const& turn = DisplayTransformationHost::turn(*transformation);
  quint64 const look = LayerHost::look(*this);
  bool const isSame =
      within_.look == look && within_.turn == turn && within_.shown.contains(shown) && shown.contains(within_.shown);
  if (!isSame) {
    auto const found = store_->classesWithin(shown, turn, static_cast<int>(renderer_->classes().size()));
    within_ = {look, shown, turn, QVector<bool>(found.begin(), found.end())};
  }
  return within_.classes;
}

bool VectorLayer::IsAnnotationVisible() const { return labels_.visible && labels_.isUsed(); }
_ptr_t<AnnotationProperties> VectorLayer::GetAnnotationProperties() const { return properties_; }

void VectorLayer::GetAnnotationElements(QMap<int, QList<_ptr_t<Polygon>>>& obstacles, QList<_ptr_t<Element>>& labels,
                                        _ptr_t<DisplayTransformation> const& transformation,
                                        _ptr_t<TrackerCancel> cancel) {
  if (!transformation || !store_->keepsLabels || store_->size() == 0) return;
  LabelPlacer placer(*store_, labels_, *renderer_, *transformation);
  if (!placer.isUsable()) return;
  for (auto const& list : obstacles)
    for (_ptr_t<Polygon> const& obstacle : list)
      if (obstacle) placer.addObstacle(*obstacle);
  placer.place([&] { return isCancelled(cancel); });
  for (PlacedLabel const& placed : placer.labels()) {
    auto const element = make<TextElement>();
    ElementHost::becomeLabel(*element);
    element->setText(placed.text);
    element->setSymbol(placed.symbol);
    element->setPosition(placed.x, placed.y);
    element->setAngle(placed.angle);
    labels << element;
    obstacles[properties_->GetPriority()] << make<Polygon>(QVector<QVector<QPointF>>{placed.area});
  }
}

}  // namespace SysCarto
