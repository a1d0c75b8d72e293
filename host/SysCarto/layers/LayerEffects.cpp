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

}  // namespace

void drawWithEffects(LayerEffects const& effects, QPainter& painter, std::function<void(QPainter&)> const& draw) {
  if (effects.areNone()) return draw(painter);
  QRect const area = SysDisplay::reachableArea(painter).toAlignedRect();
  if (effects.opacityPercent <= 0 || area.isEmpty()) return;
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
