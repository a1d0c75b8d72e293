#include "Pieces.h"

#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/PathDrawing.h"

namespace SysCarto {

using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::MarkerSymbol;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

_ptr_t<Element> textPiece(QString const& text, _ptr_t<TextSymbol> const& symbol, QPointF const& position) {
  auto const element = make<TextElement>();
  element->setText(text);
  element->setFillsPlaceholders(!text.contains(QLatin1Char('[')));  // a name on the map says what it says
  element->setSymbol(symbol);
  element->setPosition(position.x(), position.y());
  return element;
}

namespace {

template <class Kind, class Shape, class Symbol>
_ptr_t<Element> piece(_ptr_t<Shape> const& shape, _ptr_t<Symbol> const& symbol) {
  auto const element = make<Kind>();
  element->setShape(shape);
  element->setSymbol(symbol);
  return element;
}

}  // namespace

_ptr_t<Element> rectanglePiece(double left, double bottom, double right, double top, _ptr_t<FillSymbol> const& symbol) {
  return piece<RectangleElement>(make<SysGeometry::Envelope>(left, bottom, right, top), symbol);
}

_ptr_t<Element> ellipsePiece(double left, double bottom, double right, double top, _ptr_t<FillSymbol> const& symbol) {
  return piece<EllipseElement>(make<SysGeometry::Envelope>(left, bottom, right, top), symbol);
}

_ptr_t<Element> polygonPiece(QVector<QPointF> const& ring, _ptr_t<FillSymbol> const& symbol) {
  return piece<PolygonElement>(make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{ring}), symbol);
}

_ptr_t<Element> linePiece(QVector<QPointF> const& points, _ptr_t<LineSymbol> const& symbol) {
  return piece<LineElement>(make<SysGeometry::Polyline>(points), symbol);
}

_ptr_t<Element> markerPiece(QPointF const& position, _ptr_t<MarkerSymbol> const& symbol) {
  return piece<MarkerElement>(make<SysGeometry::Point>(position.x(), position.y(), 0.0), symbol);
}

QRectF unitBounds(MarkerSymbol const& symbol) {
  constexpr double measuredPt = 100;
  auto const measured = ptr_cast<SysDisplay::PreparableMarker>(symbol.Clone());
  if (!measured) return {};
  measured->SetSize(measuredPt);
  auto const drawing = measured->prepare(1);
  if (!drawing) return {};
  QRectF const bounds = drawing->bounds();
  return {bounds.topLeft() / measuredPt, bounds.size() / measuredPt};
}

_ptr_t<MarkerSymbol> resized(MarkerSymbol const& symbol, double factor) {
  auto const made = ptr_cast<MarkerSymbol>(symbol.Clone());
  made->SetSize(symbol.GetSize() * factor);
  return made;
}

_ptr_t<LineSymbol> resized(LineSymbol const& symbol, double factor) {
  auto const made = ptr_cast<LineSymbol>(symbol.Clone());
  SysDisplay::resize(*made, factor);
  return made;
}

_ptr_t<FillSymbol> withOutlineResized(FillSymbol const& symbol, double factor) {
  auto const made = ptr_cast<FillSymbol>(symbol.Clone());
  SysDisplay::resize(*made, factor);
  return made;
}

}  // namespace SysCarto
