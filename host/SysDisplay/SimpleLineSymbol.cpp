#include <SysDisplay/SimpleLineSymbol.h>

#include "host/SysDisplay/GeometryParts.h"
#include "host/SysDisplay/LinePainter.h"
#include "host/SysDisplay/SymbolFields.h"

#include <cmath>

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

void add(LinePainter& line, GeometryPart const& part) {
  if (part.closed)
    line.addRing(part.run);
  else
    line.addLine(part.run);
}

}  // namespace

SimpleLineSymbol::SimpleLineSymbol() : style_(SimpleLineStyle::Solid) {}
SimpleLineSymbol::SimpleLineSymbol(SimpleLineSymbol const&) = default;
SimpleLineSymbol& SimpleLineSymbol::operator=(SimpleLineSymbol const&) = default;
SimpleLineSymbol::~SimpleLineSymbol() = default;

_ptr_t<Symbol> SimpleLineSymbol::Clone() const { return SysUtility::make<SimpleLineSymbol>(*this); }

SimpleLineStyle SimpleLineSymbol::GetStyle() const { return style_; }
void SimpleLineSymbol::SetStyle(SimpleLineStyle style) { style_ = style; }

void SimpleLineSymbol::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Geometry> const& geometry) const {
  DrawCurve(painter, transformation, geometry);
}

void SimpleLineSymbol::DrawCurve(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                 _ptr_t<Geometry> const& geometry) const {
  if (!transformation || !geometry) return;
  DrawTarget target(painter, *transformation);
  LinePainter line(target, *this);
  visitParts(geometry.get(), [&](GeometryPart const& part) { add(line, part); });
  line.draw();
}

void SimpleLineSymbol::Draw(QPainter& painter, QPainterPath const& path) const {
  DrawTarget target(painter, QTransform(), DisplayTransformation().PixelsPerPoint());
  LinePainter line(target, *this);
  visitParts(path, [&](GeometryPart const& part) { add(line, part); });
  line.draw();
}

_ptr_t<Envelope> SimpleLineSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  if (!transformation || !geometry || GetWidth() <= 0 || style_ == SimpleLineStyle::Null) return nullptr;
  double const pixelsPerPoint = transformation->PixelsPerPoint();
  Stroker const stroker(GetWidth() * pixelsPerPoint, GetCapStyle(), GetJoinStyle(), GetMiterLimit());
  double const offset = std::abs(GetOffset()) * pixelsPerPoint;
  QTransform const toDevice = transformation->ToDevice();
  std::optional<QRectF> covered;
  std::vector<QPointF> line;
  visitParts(geometry.get(), [&](GeometryPart const& part) {
    line.clear();
    for (int i = 0; i < part.run.count; ++i) {
      QPointF const point = toDevice.map(QPointF(part.run.xy[2 * i], part.run.xy[2 * i + 1]));
      if (line.empty() || line.back() != point) line.push_back(point);
    }
    if (part.closed && line.size() > 1 && line.front() == line.back()) line.pop_back();
    QRectF const bounds = stroker.bounds(line.data(), static_cast<int>(line.size()), part.closed)
                              .adjusted(-offset, -offset, offset, offset);
    covered = covered ? covered->united(bounds) : bounds;
  });
  return toWorld(*transformation, covered);
}

bool SimpleLineSymbol::ImportFromJson(QJsonObject& json) { return importSymbol(json, *this); }
bool SimpleLineSymbol::ImportFromJson(QString const& json) { return importSymbol(json, *this); }
void SimpleLineSymbol::ExportToJson(QString& json) const { json = exportSymbol(*this); }

}  // namespace SysDisplay
