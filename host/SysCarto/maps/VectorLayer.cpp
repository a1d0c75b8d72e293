#include "VectorLayer.h"

#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/layers/FeaturePasses.h"
#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/PathDrawing.h"
#include "host/SysUtility/NumberText.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

using namespace SysDisplay;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int featurePhase = 1;
constexpr int betweenCancelChecks = 64;

// What is drawn or placed now will be anew.
bool lacksFeatures() {
  auto const* const meanwhile = WithoutWaiting::current();
  return meanwhile && meanwhile->isIncomplete;
}

bool isCancelled(_ptr_t<TrackerCancel> const& cancel) { return cancel && cancel->IsCanced(); }

double pixelsPerUnit(QTransform const& toDevice) { return std::hypot(toDevice.m11(), toDevice.m12()); }

// The reachable pixels and `reachPx` around them, in map units.
Box areaOf(DrawTarget const& target, double reachPx) {
  QRectF const area =
      target.toDevice().inverted().mapRect(target.area().adjusted(-reachPx, -reachPx, reachPx, reachPx));
  return {area.left(), area.top(), area.right(), area.bottom()};
}

}  // namespace

VectorLayer::VectorLayer(std::unique_ptr<Renderer> renderer)
    : renderer_(std::move(renderer)),
      properties_(make<AnnotationProperties>()),
      store_(std::make_unique<FeatureStore>()),
      thinned_(std::make_unique<ThinnedFeatures>(*store_)),
      windows_([this] { LayerHost::changeLook(*this); }, [this](ReadFeatures const& read) { keepWarnings(read); }) {}

VectorLayer::~VectorLayer() { giveUpReading(); }

void VectorLayer::setRenderer(std::unique_ptr<Renderer> renderer) {
  planned_ = nullptr;
  renderer_ = std::move(renderer);
  LayerHost::changeLook(*this);
}

// A label that is put somewhere is read whatever others there are.
void VectorLayer::setLabelSettings(LabelSettings const& settings) {
  auto const isSame = [](PinnedLabel const& a, PinnedLabel const& b) { return a.key == b.key; };
  if (!std::equal(settings.pinned.begin(), settings.pinned.end(), labels_.pinned.begin(), labels_.pinned.end(), isSame))
    windows_.clear();
  planned_ = nullptr;
  labels_ = settings;
  LayerHost::changeLook(*this);
}

void VectorLayer::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation, int phase,
                       _ptr_t<TrackerCancel> const& cancel) {
  if (phase != featurePhase || !transformation || (!hasWindows() && features().size() == 0)) return;
  drawWithEffects(LayerHost::effects(*this), painter,
                  [&](QPainter& own) { drawFeatures(own, *transformation, cancel); });
}

void VectorLayer::drawFeatures(QPainter& painter, DisplayTransformation const& transformation,
                               _ptr_t<TrackerCancel> const& cancel) {
  DrawTarget target(painter, transformation);
  double const scale = pixelsPerUnit(target.toDevice());
  if (!(scale > 0) || !std::isfinite(scale) || target.area().isEmpty()) return;

  if (hasWindows()) {
    drawWindow(target, transformation, 1 / scale, cancel);
    return drawSpotlight(target, 1 / scale);
  }
  FeatureStore const& store = features();
  FeatureLooks const looks(*renderer_, store, transformation.GetMapScale());
  FeaturePasses const passes(*renderer_, looks, target);
  Box const area = areaOf(target, passes.reachPx() + 1);
  thinned().setResolution(1 / scale);
  std::vector<int> shown = store.query(area);
  auto const isLeftOut = [&](int feature) { return isHidden(store.ids[static_cast<size_t>(feature)]); };
  shown.erase(std::remove_if(shown.begin(), shown.end(), isLeftOut), shown.end());
  looks.sort(shown);
  int untilCheck = 0;
  for (FeaturePasses::Pass const& pass : passes.passes())
    for (int const feature : shown) {
      if (untilCheck-- == 0) {
        if (isCancelled(cancel)) return;
        untilCheck = betweenCancelChecks;
      }
      int const symbolClass = store.features[feature].symbolClass;
      if (symbolClass >= 0 && pass[symbolClass]) pass[symbolClass]->draw(*thinned_, feature, area);
    }
  drawSpotlight(target, 1 / scale);
}

void VectorLayer::setSpotlight(std::optional<Spotlight> const& spotlight) {
  if (!spotlight && !spotlight_) return;
  planned_ = nullptr;
  spotlight_ = spotlight;
  LayerHost::changeLook(*this);
}

bool VectorLayer::isHidden(qint64 id) const {
  return spotlight_ && spotlight_->hidesOthers && id != spotlight_->feature;
}

void VectorLayer::drawSpotlight(DrawTarget& target, double unitsPerPixel) {
  if (!spotlight_) return;
  auto const store = featuresNumbered({spotlight_->feature}, &spotlightProblem_);
  ThinnedFeatures features(*store);
  features.setResolution(unitsPerPixel);
  for (int const feature : featuresOf(*store, {spotlight_->feature})) {
    drawOutside(target, features, feature);
    for (Symbol const* const pass : FeaturePainter::passesOf(spotlight_->symbol.get()))
      if (auto const painter = FeaturePainter::create(target, pass))
        painter->draw(features, feature, areaOf(target, painter->reachPx() + 1));
  }
}

// All that is reached is an area with the feature for a hole.
void VectorLayer::drawOutside(DrawTarget& target, ThinnedFeatures& features, int feature) {
  auto const cover = spotlight_->outside ? prepared(target, *spotlight_->outside) : nullptr;
  if (!cover) return;
  Box const reached = areaOf(target, cover->reachPx() + 1);
  double const edge[] = {reached.xmin, reached.ymin, reached.xmax, reached.ymin, reached.xmax,
                         reached.ymax, reached.xmin, reached.ymax, reached.xmin, reached.ymin};
  cover->addRing({edge, 5}, false);
  for (Part const& part : features.parts(feature)) {
    if (part.kind == PartKind::Outline) cover->addLine(part.run());
    if (part.kind == PartKind::Ring || part.kind == PartKind::FilledRing)
      cover->addRing(part.run(), part.kind == PartKind::Ring);
  }
  cover->draw(reached);
}

// Of markers in proportion, some sizes and what has no number.
QList<LegendClass> VectorLayer::legendClasses() const {
  QList<LegendClass> classes;
  std::vector<SymbolClass> const& all = renderer_->classes();
  bool const isProportional = renderer_->settings().kind == RendererSettings::Kind::Proportional;
  if (isProportional) {
    FeatureLooks const looks(*renderer_, form(), 0);
    for (double const number : looks.toldNumbers())
      classes << LegendClass{SysUtility::grouped(number), looks.markerFor(number)};
  }
  for (size_t i = isProportional ? 1 : 0; i < all.size(); ++i)
    if (all[i].isInLegend) classes << LegendClass{all[i].label, all[i].symbol};
  return classes;
}

QVector<bool> VectorLayer::classesWithin(_ptr_t<DisplayTransformation> const& transformation) const {
  auto const bounds = transformation->GetFittedBounds();
  Box const shown{bounds->GetXMin(), bounds->GetYMin(), bounds->GetXMax(), bounds->GetYMax()};
  QTransform const& turn = DisplayTransformationHost::turn(*transformation);
  quint64 const look = LayerHost::look(*this);
  double const scale = transformation->GetMapScale();
  auto* const meanwhile = WithoutWaiting::current();
  bool const isSame = within_.look == look && within_.turn == turn && within_.scale == scale &&
                      within_.shown.contains(shown) && shown.contains(within_.shown);
  bool const isGood = within_.isWhole || (meanwhile && within_.news == windows_.news());
  if (!isSame || !isGood) {
    bool const lackedBefore = meanwhile && std::exchange(meanwhile->isIncomplete, false);
    auto const classes = findClassesWithin(*transformation, shown);
    within_ = {look, shown, turn, scale, classes, !lacksFeatures(), windows_.news()};
    if (meanwhile) meanwhile->isIncomplete |= lackedBefore;
  }
  if (meanwhile && !within_.isWhole) meanwhile->isIncomplete = true;
  return within_.classes;
}

int VectorLayer::proportionalClasses() const {
  if (renderer_->settings().kind != RendererSettings::Kind::Proportional) return 0;
  return static_cast<int>(FeatureLooks(*renderer_, form(), 0).toldNumbers().size());
}

// As the legend lists them.
QVector<bool> VectorLayer::classesOf(std::vector<bool> const& found) const {
  std::vector<SymbolClass> const& all = renderer_->classes();
  QVector<bool> classes;
  bool const isProportional = renderer_->settings().kind == RendererSettings::Kind::Proportional;
  if (isProportional) classes.fill(found[0], proportionalClasses());
  for (size_t i = isProportional ? 1 : 0; i < all.size(); ++i)
    if (all[i].isInLegend) classes << found[i];
  return classes;
}

bool VectorLayer::IsAnnotationVisible() const { return labels_.visible && labels_.isUsed(); }
_ptr_t<AnnotationProperties> VectorLayer::GetAnnotationProperties() const { return properties_; }

void VectorLayer::setObstacle(LabelObstacle obstacle) {
  if (obstacle != obstacle_) LayerHost::changeLook(*this);
  obstacle_ = obstacle;
}

}  // namespace SysCarto
