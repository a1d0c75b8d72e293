#include <SysDisplay/SimpleLineSymbol.h>

#include "host/SysDisplay/StrokeDrawing.h"
#include "host/SysDisplay/SymbolFields.h"

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

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
  drawGeometry(*this, painter, transformation.get(), geometry.get());
}

void SimpleLineSymbol::Draw(QPainter& painter, QPainterPath const& path) const { drawPath(*this, painter, path); }

_ptr_t<Envelope> SimpleLineSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  if (!transformation || style_ == SimpleLineStyle::Null) return nullptr;
  return strokeBoundary(*this, *transformation, geometry.get());
}

bool SimpleLineSymbol::ImportFromJson(QJsonObject& json) { return importSymbol(json, *this); }
bool SimpleLineSymbol::ImportFromJson(QString const& json) { return importSymbol(json, *this); }
void SimpleLineSymbol::ExportToJson(QString& json) const { json = exportSymbol(*this); }

}  // namespace SysDisplay
