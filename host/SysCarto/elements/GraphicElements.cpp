#include "GraphicElements.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysDisplay::SimpleMarkerSymbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysGeometry::Polygon;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

_ptr_t<Envelope> unitSquare() { return make<Envelope>(0.0, 0.0, 1.0, 1.0); }

_ptr_t<SimpleFillSymbol> outlinedFill() {
  auto const symbol = make<SimpleFillSymbol>();
  symbol->SetOutlineSymbol(make<SimpleLineSymbol>());
  return symbol;
}

}  // namespace

MarkerElement::MarkerElement() : SymbolElement(make<Point>(0.0, 0.0, 0.0), make<SimpleMarkerSymbol>()) {}
MarkerElement::MarkerElement(MarkerElement const&) = default;
MarkerElement::~MarkerElement() = default;
int MarkerElement::GetType() const { return ElementType::Marker; }
_ptr_t<Element> MarkerElement::Clone() const { return make<MarkerElement>(*this); }

LineElement::LineElement() : SymbolElement(make<Polyline>(), make<SimpleLineSymbol>()) {}
LineElement::LineElement(LineElement const&) = default;
LineElement::~LineElement() = default;
int LineElement::GetType() const { return ElementType::Line; }
_ptr_t<Element> LineElement::Clone() const { return make<LineElement>(*this); }

ArrowShape LineElement::arrow(DisplayTransformation const& transformation) const {
  return {shape()->GetPoints(), heads_, worldPerPoint(transformation)};
}

void LineElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                       _ptr_t<SysUI::TrackerCancel> const& cancel) {
  if (heads_.isNone() || !symbol() || !transformation) return SymbolElement::Draw(painter, transformation, cancel);
  arrow(*transformation).draw(painter, transformation, *symbol());
}

_ptr_t<Geometry> LineElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  auto const line = SymbolElement::GetBoundary(transformation);
  if (heads_.isNone() || !symbol() || !transformation) return line;
  auto const heads = arrow(*transformation).bounds();
  // An open head's corners reach as far as their mitre does.
  double const reach = symbol()->GetWidth() * 1.5 * worldPerPoint(*transformation);
  heads->Expand(reach, reach, false);
  include(*heads, line);
  return heads;
}

PolygonElement::PolygonElement() : SymbolElement(make<Polygon>(), outlinedFill()) {}
PolygonElement::PolygonElement(PolygonElement const&) = default;
PolygonElement::~PolygonElement() = default;
int PolygonElement::GetType() const { return ElementType::Polygon; }
_ptr_t<Element> PolygonElement::Clone() const { return make<PolygonElement>(*this); }

RectangleElement::RectangleElement() : SymbolElement(unitSquare(), outlinedFill()) {}
RectangleElement::RectangleElement(RectangleElement const&) = default;
RectangleElement::~RectangleElement() = default;
int RectangleElement::GetType() const { return ElementType::Rectangle; }
_ptr_t<Element> RectangleElement::Clone() const { return make<RectangleElement>(*this); }

EllipseElement::EllipseElement() : SymbolElement(unitSquare(), outlinedFill()), outline_(ellipseIn(*shape())) {}
EllipseElement::EllipseElement(EllipseElement const&) = default;
EllipseElement::~EllipseElement() = default;
int EllipseElement::GetType() const { return ElementType::Ellipse; }
_ptr_t<Element> EllipseElement::Clone() const { return make<EllipseElement>(*this); }
void EllipseElement::shapeChanged() { outline_ = ellipseIn(*shape()); }
_ptr_t<Geometry> EllipseElement::drawn() const { return outline_; }

}  // namespace SysCarto
