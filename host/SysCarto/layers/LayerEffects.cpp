#include "LayerEffects.h"

#include "host/SysDisplay/DrawTarget.h"

#include <QImage>
#include <QPainter>

namespace SysCarto {

namespace {

QPainter::CompositionMode modeOf(LayerBlend blend) {
  switch (blend) {
    case LayerBlend::Normal: return QPainter::CompositionMode_SourceOver;
    case LayerBlend::Multiply: return QPainter::CompositionMode_Multiply;
    case LayerBlend::Screen: return QPainter::CompositionMode_Screen;
  }
  return QPainter::CompositionMode_SourceOver;
}

SysDisplay::CanvasBlend canvasBlendOf(LayerBlend blend) {
  switch (blend) {
    case LayerBlend::Normal: return SysDisplay::CanvasBlend::Normal;
    case LayerBlend::Multiply: return SysDisplay::CanvasBlend::Multiply;
    case LayerBlend::Screen: return SysDisplay::CanvasBlend::Screen;
  }
  return SysDisplay::CanvasBlend::Normal;
}

}  // namespace

void drawWithEffects(LayerEffects const& effects, QPainter& painter, std::function<void(QPainter&)> const& draw) {
  if (effects.areNone()) return draw(painter);
  QRect const area = SysDisplay::reachableArea(painter).toAlignedRect();
  if (effects.opacityPercent <= 0 || area.isEmpty()) return;
  if (auto* const canvas = SysDisplay::VectorCanvas::of(painter)) {
    canvas->beginSheet(effects.opacityPercent / 100, canvasBlendOf(effects.blend));
    draw(painter);
    return canvas->endSheet();
  }
  QImage sheet(area.size(), QImage::Format_RGBA8888_Premultiplied);
  sheet.fill(Qt::transparent);
  {
    QPainter own(&sheet);
    own.translate(-area.topLeft());
    draw(own);
  }
  painter.save();
  painter.setOpacity(effects.opacityPercent / 100);
  painter.setCompositionMode(modeOf(effects.blend));
  painter.drawImage(area.topLeft(), sheet);
  painter.restore();
}

}  // namespace SysCarto
