#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/Renderer.h"

#include <vector>

namespace SysCarto {

/// How a renderer draws the features of a store at a scale. Both must outlive it.
class SYSCARTO_EXPORT FeatureLooks {
public:
  FeatureLooks(Renderer const& renderer, FeatureStore const& store, double scaleDenominator);

  /// For each `Feature::symbolClass`, the classes of the renderer that draw it, the lowest first.
  std::vector<std::vector<int>> const& drawing() const { return drawing_; }

  /// Whether symbols of the class differ from feature to feature.
  bool varies(int symbolClass) const;

  /// What tells the looks of a class apart; features with the same look alike.
  using Look = std::vector<double>;
  Look lookOf(int symbolClass, int feature) const;

  /// The symbol of the class with that look; of one that does not vary, its own.
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol(int symbolClass, Look const& look) const;

  /// The look with the largest size of any feature.
  Look largest(int symbolClass) const;

  /// Puts features into the order in which they are drawn: large markers in proportion first.
  void sort(std::vector<int>& features) const;

  /// Whether that is another order than that of the source, and by which number a feature comes sooner.
  bool isSorted() const;
  double rankOf(int feature) const;

  /// The marker in proportion to a number.
  SysUtility::_ptr_t<SysDisplay::Symbol> markerFor(double number) const;

  /// The numbers that a legend of markers in proportion tells, the largest first.
  std::vector<double> toldNumbers() const;

private:
  double adjusted(VariedProperty const& property, double value) const;

  Renderer const& renderer_;
  FeatureStore const& store_;
  double reference_ = 0;
  std::vector<std::vector<int>> drawing_;
};

}  // namespace SysCarto
