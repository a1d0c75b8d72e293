#include "FeaturePasses.h"

#include <algorithm>
#include <map>

namespace SysCarto {

using SysDisplay::DrawTarget;

namespace {

// A symbol that is another one for features that look otherwise.
class VaryingPainter final : public FeaturePainter {
public:
  VaryingPainter(DrawTarget& target, FeatureLooks const& looks, int symbolClass, int pass)
      : target_(target), looks_(looks), symbolClass_(symbolClass), pass_(pass) {}

  // A marker that is turned reaches as far as its corners.
  double reachPx() const override {
    constexpr double turned = 1.42;
    auto const painter = make(looks_.largest(symbolClass_));
    return painter ? turned * painter->reachPx() : 0;
  }

  void draw(ThinnedFeatures& features, int feature, Box const& area) override {
    auto const look = looks_.lookOf(symbolClass_, feature);
    auto known = painters_.find(look);
    if (known == painters_.end()) {
      if (keptPx_ >= maxKeptPx) forget();
      known = painters_.emplace(look, make(look)).first;
      keptPx_ += known->second ? pixelsOf(*known->second) : 0;
    }
    if (known->second) known->second->draw(features, feature, area);
  }

private:
  static constexpr double maxKeptPx = 16e6;

  // What a painter may keep drawn, and something for itself.
  static double pixelsOf(FeaturePainter const& painter) {
    constexpr double own = 16000, most = 4e6, phases = 16;
    double const side = 2 * painter.reachPx();
    return std::min(own + phases * side * side, most);
  }

  void forget() {
    painters_.clear();
    keptPx_ = 0;
  }

  std::unique_ptr<FeaturePainter> make(FeatureLooks::Look const& look) const {
    auto const symbol = looks_.symbol(symbolClass_, look);
    auto const passes = FeaturePainter::passesOf(symbol.get());
    return FeaturePainter::create(target_, passes.value(pass_));
  }

  DrawTarget& target_;
  FeatureLooks const& looks_;
  int const symbolClass_, pass_;
  std::map<FeatureLooks::Look, std::unique_ptr<FeaturePainter>> painters_;
  double keptPx_ = 0;
};

}  // namespace

FeaturePasses::FeaturePasses(Renderer const& renderer, FeatureLooks const& looks, DrawTarget& target)
    : renderer_(renderer), looks_(looks), target_(target) {
  std::vector<std::vector<FeaturePainter*>> byClass;
  size_t mostDrawing = 0;
  for (int i = 0; i < static_cast<int>(renderer.classes().size()); ++i) byClass.push_back(paintersOf(i));
  for (auto const& drawing : looks.drawing()) mostDrawing = std::max(mostDrawing, drawing.size());
  if (mostDrawing <= 1) addPasses(byClass, -1);
  for (int i = 0; mostDrawing > 1 && i < static_cast<int>(byClass.size()); ++i) addPasses(byClass, i);
}

// Those of one class, or of all where each feature has one at most.
void FeaturePasses::addPasses(std::vector<std::vector<FeaturePainter*>> const& byClass, int only) {
  auto const& drawing = looks_.drawing();
  size_t const before = passes_.size();
  for (size_t features = 0; features < drawing.size(); ++features)
    for (int const drawn : drawing[features]) {
      if (only >= 0 && drawn != only) continue;
      auto const& painters = byClass[drawn];
      for (size_t pass = 0; pass < painters.size(); ++pass) {
        if (before + pass == passes_.size()) passes_.emplace_back(drawing.size());
        passes_[before + pass][features] = painters[pass];
      }
    }
}

std::vector<FeaturePainter*> FeaturePasses::paintersOf(int symbolClass) {
  std::vector<FeaturePainter*> painters;
  auto const symbols = FeaturePainter::passesOf(renderer_.classes()[symbolClass].symbol.get());
  bool const varies = looks_.varies(symbolClass);
  for (int pass = 0; pass < symbols.size(); ++pass) {
    painters_.push_back(varies ? std::make_unique<VaryingPainter>(target_, looks_, symbolClass, pass)
                               : FeaturePainter::create(target_, symbols[pass]));
    painters.push_back(painters_.back().get());
  }
  return painters;
}

double FeaturePasses::reachPx() const {
  double reachPx = 0;
  for (auto const& painter : painters_)
    if (painter) reachPx = std::max(reachPx, painter->reachPx());
  return reachPx;
}

}  // namespace SysCarto
