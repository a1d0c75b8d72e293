#pragma once

#include "host/SysCarto/layers/LayerHost.h"

#include <SysCarto/FeatureLayer.h>

#include <algorithm>

namespace SysCarto {

/// Of feature layers, by any kind of pointer, those whose labels show at a scale, in the order in which they are
/// placed.
template <class Layers>
Layers inLabelOrder(Layers layers, double mapScale) {
  auto const isLeftOut = [mapScale](auto const& layer) {
    return !layer->IsVisible() || !layer->IsAnnotationVisible() ||
           !LayerHost::scales(*layer->GetAnnotationProperties()).contains(mapScale);
  };
  layers.erase(std::remove_if(layers.begin(), layers.end(), isLeftOut), layers.end());
  std::stable_sort(layers.begin(), layers.end(), [](auto const& a, auto const& b) {
    return a->GetAnnotationProperties()->GetPriority() > b->GetAnnotationProperties()->GetPriority();
  });
  return layers;
}

}  // namespace SysCarto
