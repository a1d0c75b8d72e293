#include "DrawTarget.h"

#include "DisplayTransformationHost.h"
#include "DrawingBudget.h"

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

void DrawTarget::fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (DrawingBudget::isSpent()) return;
  if (canvas_) {
    DrawingBudget::spendOnVertices(static_cast<double>(rings.points.size()));
    return canvas_->fill(rings, color, rule);
  }
  DrawingBudget::spendOnFill(rings, area_);
  if (!DrawingBudget::isSpent()) fills_.add(rings, color, rule);
}

void DrawTarget::fill(PointRuns const& rings, std::shared_ptr<Texture const> const& texture, Qt::FillRule rule) {
  if (DrawingBudget::isSpent()) return;
  DrawingBudget::spendOnFill(rings, area_);
  if (!DrawingBudget::isSpent()) fills_.add(rings, texture, rule);
}

}  // namespace SysDisplay
