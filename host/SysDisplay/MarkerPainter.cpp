#include "MarkerPainter.h"

#include "host/SysDisplay/DevicePath.h"

#include <cmath>

namespace SysDisplay {

MarkerDrawing::~MarkerDrawing() = default;
PreparableMarker::~PreparableMarker() = default;

MarkerPainter::MarkerPainter(DrawTarget& target, MarkerSymbol const& symbol) : target_(target) {
  if (auto const* marker = dynamic_cast<PreparableMarker const*>(&symbol))
    drawing_ = marker->prepare(target.pixelsPerPoint());
}

MarkerPainter::~MarkerPainter() = default;

QRectF MarkerPainter::bounds() const { return drawing_ ? drawing_->bounds() : QRectF(); }

void MarkerPainter::draw(double x, double y) { drawAt(target_.toDevice().map(QPointF(x, y))); }

void MarkerPainter::drawAt(QPointF const& position) {
  if (!drawing_ || !std::isfinite(position.x()) || !std::isfinite(position.y())) return;
  if (!drawing_->bounds().translated(position).adjusted(-4, -4, 4, 4).intersects(target_.area())) return;
  drawing_->drawAt(target_.painter(), position);
}

}  // namespace SysDisplay
