#include "DrawTarget.h"

#include <QPainter>

namespace SysDisplay {

DrawTarget::DrawTarget(QPainter& painter, DisplayTransformation const& transformation)
    : DrawTarget(painter, transformation.ToDevice(), transformation.PixelsPerPoint()) {}

DrawTarget::DrawTarget(QPainter& painter, QTransform const& toDevice, double pixelsPerPoint)
    : painter_(painter), toDevice_(toDevice), pixelsPerPoint_(pixelsPerPoint), anchor_(anchorOf(toDevice)) {
  painter_.save();
  area_ = painter_.combinedTransform().inverted().mapRect(QRectF(painter_.viewport()));
  if (painter_.hasClipping()) area_ &= painter_.clipBoundingRect();
}

DrawTarget::~DrawTarget() { painter_.restore(); }

}  // namespace SysDisplay
