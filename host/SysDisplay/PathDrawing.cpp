#include "PathDrawing.h"

#include "host/SysDisplay/FillDrawing.h"
#include "host/SysDisplay/GeometryParts.h"
#include "host/SysDisplay/StrokeDrawing.h"

#include <cmath>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

PathDrawing::~PathDrawing() = default;

PreparableLine::PreparableLine() = default;
PreparableLine::PreparableLine(PreparableLine const&) = default;
PreparableLine& PreparableLine::operator=(PreparableLine const&) = default;
PreparableLine::~PreparableLine() = default;

PreparableFill::PreparableFill() = default;
PreparableFill::PreparableFill(PreparableFill const&) = default;
PreparableFill& PreparableFill::operator=(PreparableFill const&) = default;
PreparableFill::~PreparableFill() = default;

std::unique_ptr<PathDrawing> prepared(DrawTarget& target, LineSymbol const& symbol) {
  if (auto const* own = dynamic_cast<PreparableLine const*>(&symbol)) return own->prepare(target);
  return prepareSimpleLine(target, symbol);
}

std::unique_ptr<PathDrawing> prepared(DrawTarget& target, FillSymbol const& symbol) {
  if (auto const* own = dynamic_cast<PreparableFill const*>(&symbol)) return own->prepare(target);
  return prepareSimpleFill(target, symbol);
}

namespace {

class Parts {
public:
  Parts(PathDrawing& drawing, bool areRings) : drawing_(drawing), areRings_(areRings) {}

  void add(GeometryPart const& part) {
    for (int i = 0; i < part.run.count; ++i) {
      double const x = part.run.xy[2 * i], y = part.run.xy[2 * i + 1];
      if (std::isfinite(x) && std::isfinite(y)) shape_.add(x, y);
    }
    if (part.closed || areRings_)
      drawing_.addRing(part.run);
    else
      drawing_.addLine(part.run);
  }

  void draw() { drawing_.draw(shape_); }

private:
  PathDrawing& drawing_;
  bool const areRings_;
  Box shape_;
};

// All that a fill symbol receives is an area.
template <class PathSymbol, class Visited>
void drawParts(DrawTarget& target, PathSymbol const& symbol, Visited const& visited) {
  auto const drawing = prepared(target, symbol);
  if (!drawing) return;
  Parts parts(*drawing, std::is_same_v<PathSymbol, FillSymbol>);
  visitParts(visited, [&](GeometryPart const& part) { parts.add(part); });
  parts.draw();
}

template <class PathSymbol>
void drawOnDevice(PathSymbol const& symbol, QPainter& painter, QPainterPath const& path) {
  DrawTarget target(painter, QTransform(), DisplayTransformation().PixelsPerPoint());
  drawParts(target, symbol, path);
}

}  // namespace

void drawGeometry(LineSymbol const& symbol, QPainter& painter, DisplayTransformation const* transformation,
                  Geometry const* geometry) {
  if (!transformation || !geometry) return;
  DrawTarget target(painter, *transformation);
  drawParts(target, symbol, geometry);
}

void drawGeometry(FillSymbol const& symbol, QPainter& painter, DisplayTransformation const* transformation,
                  Geometry const* geometry) {
  if (!transformation || !isArea(geometry)) return;
  DrawTarget target(painter, *transformation);
  drawParts(target, symbol, geometry);
}

void drawPath(LineSymbol const& symbol, QPainter& painter, QPainterPath const& path) {
  drawOnDevice(symbol, painter, path);
}
void drawPath(FillSymbol const& symbol, QPainter& painter, QPainterPath const& path) {
  drawOnDevice(symbol, painter, path);
}

void resize(LineSymbol& symbol, double factor) {
  if (auto* const own = dynamic_cast<PreparableLine*>(&symbol)) return own->resize(factor);
  symbol.SetWidth(symbol.GetWidth() * factor);
  symbol.SetOffset(symbol.GetOffset() * factor);
}

void resize(FillSymbol& symbol, double factor) {
  if (auto* const own = dynamic_cast<PreparableFill*>(&symbol)) return own->resizeOutlines(factor);
  if (auto const outline = symbol.GetOutlineSymbol()) resize(*outline, factor);
}

void PreparableLine::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                          _ptr_t<Geometry> const& geometry) const {
  drawGeometry(*this, painter, transformation.get(), geometry.get());
}
void PreparableLine::Draw(QPainter& painter, QPainterPath const& path) const { drawPath(*this, painter, path); }
void PreparableLine::DrawCurve(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                               _ptr_t<Geometry> const& geometry) const {
  Draw(painter, transformation, geometry);
}

void PreparableFill::resizeOutlines(double factor) {
  if (auto const outline = GetOutlineSymbol()) SysDisplay::resize(*outline, factor);
}
void PreparableFill::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                          _ptr_t<Geometry> const& geometry) const {
  drawGeometry(*this, painter, transformation.get(), geometry.get());
}
void PreparableFill::Draw(QPainter& painter, QPainterPath const& path) const { drawPath(*this, painter, path); }
void PreparableFill::DrawSurface(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                 _ptr_t<Geometry> const& geometry) const {
  Draw(painter, transformation, geometry);
}
void PreparableFill::DrawEnvelope(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                  _ptr_t<Envelope> const& envelope) const {
  Draw(painter, transformation, envelope);
}

}  // namespace SysDisplay
