#pragma once

#include <functional>

class QPainter;

namespace SysCarto {

/// How colours meet those of the layers below.
enum class LayerBlend { Normal, Multiply, Screen };

/// What is done with a layer once all of it is drawn. So its features do not show through each other.
struct LayerEffects {
  double opacityPercent = 100;
  LayerBlend blend = LayerBlend::Normal;

  bool areNone() const { return opacityPercent == 100 && blend == LayerBlend::Normal; }
};

/// Draws with effects: on a sheet of its own, as large as what the painter can reach, which is then laid over it.
/// Without effects, on the painter itself.
void drawWithEffects(LayerEffects const& effects, QPainter& painter, std::function<void(QPainter&)> const& draw);

}  // namespace SysCarto
