#include "MarkerPainter.h"

#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/GeometryParts.h"

#include <cmath>

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

MarkerDrawing::~MarkerDrawing() = default;

void MarkerDrawing::drawAt(DrawTarget& target, QPointF const& position) {
  if (DrawingBudget::isSpent()) return;
  VectorCanvas* const canvas = target.canvas();
  if (!canvas) return draw(target, position);
  DrawingBudget::spendOnVertices(1);
  if (canvas != canvas_) {
    canvas->beginSymbol(bounds().adjusted(-1, -1, 1, 1));
    {
      DrawTarget own(target.painter(), QTransform(), target.pixelsPerPoint());
      draw(own, {0, 0});
    }
    symbol_ = canvas->endSymbol();
    canvas_ = canvas;
  }
  canvas->place(symbol_, position);
}

PreparableMarker::PreparableMarker() = default;
PreparableMarker::PreparableMarker(PreparableMarker const&) = default;
PreparableMarker& PreparableMarker::operator=(PreparableMarker const&) = default;
PreparableMarker::~PreparableMarker() = default;

void PreparableMarker::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Geometry> const& geometry) const {
  auto const place = placeOf(geometry.get());
  if (!transformation || !place) return;
  DrawTarget target(painter, *transformation);
  MarkerPainter(target, *this).draw(place->x(), place->y());
}

_ptr_t<Envelope> PreparableMarker::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  auto const place = placeOf(geometry.get());
  auto const drawing = transformation && place ? prepare(transformation->PixelsPerPoint()) : nullptr;
  if (!drawing) return nullptr;
  return toWorld(*transformation, drawing->bounds().translated(transformation->ToDevice().map(*place)));
}

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
  drawing_->drawAt(target_, position);
}

}  // namespace SysDisplay
