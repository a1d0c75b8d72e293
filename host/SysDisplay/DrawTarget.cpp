#include "DrawTarget.h"

#include "DisplayTransformationHost.h"

#include <QPainter>

namespace SysDisplay {

QRectF reachableArea(QPainter const& painter) {
  if (auto const* const canvas = VectorCanvas::of(painter)) return canvas->area();
  QRectF area = painter.combinedTransform().inverted().mapRect(QRectF(painter.viewport()));
  if (painter.hasClipping()) area &= painter.clipBoundingRect();
  return area;
}

DrawTarget::DrawTarget(QPainter& painter, DisplayTransformation const& transformation)
    : DrawTarget(painter, transformation.ToDevice(), transformation.PixelsPerPoint(),
                 DisplayTransformationHost::patternOrigin(transformation)) {}

DrawTarget::DrawTarget(QPainter& painter, QTransform const& toDevice, double pixelsPerPoint, QPointF const& anchor)
    : painter_(painter),
      canvas_(VectorCanvas::of(painter)),
      toDevice_(toDevice),
      pixelsPerPoint_(pixelsPerPoint),
      anchor_(anchor),
      area_(reachableArea(painter)),
      fills_(painter) {
  painter_.save();
}

DrawTarget::~DrawTarget() {
  fills_.finish();
  painter_.restore();
}

}  // namespace SysDisplay
