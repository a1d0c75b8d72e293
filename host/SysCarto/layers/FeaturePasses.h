#pragma once

#include "host/SysCarto/layers/FeatureLooks.h"
#include "host/SysCarto/layers/FeaturePainter.h"

#include <memory>
#include <vector>

namespace SysCarto {

/// What draws the features of a layer on one target, one pass after the other, each for all features.
class FeaturePasses {
public:
  /// What it is made of must outlive it.
  FeaturePasses(Renderer const& renderer, FeatureLooks const& looks, SysDisplay::DrawTarget& target);

  /// By the symbol class of a feature; null for nothing.
  using Pass = std::vector<FeaturePainter*>;
  std::vector<Pass> const& passes() const { return passes_; }

  /// How far from their geometry the symbols reach, in pixels.
  double reachPx() const;

private:
  std::vector<FeaturePainter*> paintersOf(int symbolClass);
  void addPasses(std::vector<std::vector<FeaturePainter*>> const& byClass, int only);

  Renderer const& renderer_;
  FeatureLooks const& looks_;
  SysDisplay::DrawTarget& target_;
  std::vector<std::unique_ptr<FeaturePainter>> painters_;
  std::vector<Pass> passes_;
};

}  // namespace SysCarto
