#include <SysDisplay/SimpleFillSymbol.h>

#include "host/SysDisplay/FillPainter.h"
#include "host/SysDisplay/GeometryParts.h"
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
  if (!transformation || !isArea(geometry.get())) return;
  DrawTarget target(painter, *transformation);
  FillPainter fill(target, *this);
  visitParts(geometry.get(), [&](GeometryPart const& part) { fill.addRing(part.run); });
  fill.draw();
}

void SimpleFillSymbol::DrawEnvelope(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                                    _ptr_t<Envelope> const& envelope) const {
  DrawSurface(painter, transformation, envelope);
}

void SimpleFillSymbol::Draw(QPainter& painter, QPainterPath const& path) const {
  DrawTarget target(painter, QTransform(), DisplayTransformation().PixelsPerPoint());
  FillPainter fill(target, *this);
  visitParts(path, [&](GeometryPart const& part) { fill.addRing(part.run); });
  fill.draw();
}

_ptr_t<Envelope> SimpleFillSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  if (!transformation || !isArea(geometry.get())) return nullptr;
  _ptr_t<Envelope> boundary;
  if (auto const outline = GetOutlineSymbol()) boundary = outline->QueryBoundary(transformation, geometry);
  if (boundary || style_ == SimpleFillStyle::Null) return boundary;  // an outline covers at least the area
  _ptr_t<Envelope> const area = geometry->GetEnvelope();
  return area && !area->IsEmpty() ? SysUtility::make<Envelope>(*area) : nullptr;
}

bool SimpleFillSymbol::ImportFromJson(QJsonObject& json) { return importSymbol(json, *this); }
bool SimpleFillSymbol::ImportFromJson(QString const& json) { return importSymbol(json, *this); }
void SimpleFillSymbol::ExportToJson(QString& json) const { json = exportSymbol(*this); }

}  // namespace SysDisplay
