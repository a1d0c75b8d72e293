#pragma once

#include "host/SysCarto/layers/ScaleRange.h"

#include <SysCarto/FeatureLayer.h>

namespace SysCarto {

/// How colours meet those of the layers below.
enum class LayerBlend { Normal, Multiply, Screen };

/// What is done with a layer once all of it is drawn. So features of one layer do not show through each other.
struct LayerEffects {
  double opacityPercent = 100;
  LayerBlend blend = LayerBlend::Normal;

  bool areNone() const { return opacityPercent == 100 && blend == LayerBlend::Normal; }
};

struct SYSCARTO_EXPORT LayerHost {
  // The limits as they were set: what a document stores.
  static ScaleRange scales(Layer const& layer);
  static ScaleRange scales(AnnotationProperties const& labels);

  static LayerEffects effects(Layer const& layer);
  static void setEffects(Layer& layer, LayerEffects const& effects);

  /// When what can be set of every layer was last changed outside the history's steps (`ChangeMark`).
  static quint64 lastChange(Layer const& layer);
};

}  // namespace SysCarto
