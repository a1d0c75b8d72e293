#include <SysDisplay/SimpleFillSymbol.h>

#include "host/SysDisplay/FillDrawing.h"
#include "host/SysDisplay/SymbolFields.h"

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

SimpleFillSymbol::SimpleFillSymbol() : style_(SimpleFillStyle::Solid) {}
SimpleFillSymbol::SimpleFillSymbol(SimpleFillSymbol const&) = default;
SimpleFillSymbol& SimpleFillSymbol::operator=(SimpleFillSymbol const&) = default;
SimpleFillSymbol::~SimpleFillSymbol() = default;

_ptr_t<Symbol> SimpleFillSymbol::Clone() const { return SysUtility::make<SimpleFillSymbol>(*this); }

SimpleFillStyle SimpleFillSymbol::GetStyle() const { return style_; }
void SimpleFillSymbol::SetStyle(SimpleFillStyle style) { style_ = style; }

void SimpleFillSymbol::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Geometry> const& geometry) const {
  DrawSurface(painter, transformation, geometry);
}

void SimpleFillSymbol::DrawSurface(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                   _ptr_t<Geometry> const& geometry) const {
  drawGeometry(*this, painter, transformation.get(), geometry.get());
}

void SimpleFillSymbol::DrawEnvelope(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                    _ptr_t<Envelope> const& envelope) const {
  DrawSurface(painter, transformation, envelope);
}

void SimpleFillSymbol::Draw(QPainter& painter, QPainterPath const& path) const { drawPath(*this, painter, path); }

_ptr_t<Envelope> SimpleFillSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  return fillBoundary(*this, style_ != SimpleFillStyle::Null, transformation, geometry);
}

bool SimpleFillSymbol::ImportFromJson(QJsonObject& json) { return importSymbol(json, *this); }
bool SimpleFillSymbol::ImportFromJson(QString const& json) { return importSymbol(json, *this); }
void SimpleFillSymbol::ExportToJson(QString& json) const { json = exportSymbol(*this); }

}  // namespace SysDisplay
