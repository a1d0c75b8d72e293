#include "Pieces.h"
#include "SurroundSettings.h"

#include "host/SysDisplay/SvgMarkerSymbol.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>

#include <QCoreApplication>

#include <algorithm>

namespace SysCarto {

using SysDisplay::MarkerSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

// The arrow that nobody has chosen another for: half of it shaded, with an N.
constexpr char const* usualArrow =
    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 64'>"
    "<path d='M14 16V1h3l7 10V1h2.6v15h-3l-7-10v10z' fill='#2b2a33'/>"
    "<path d='M20 22l16 40-16-10-16 10z' fill='#fff' stroke='#2b2a33'/><path d='M20 22l16 40-16-10z' fill='#2b2a33'/>"
    "</svg>";

_ptr_t<MarkerSymbol> usualSymbol() {
  auto const symbol = make<SysDisplay::SvgMarkerSymbol>();
  symbol->setSvg(usualArrow);
  return symbol;
}

}  // namespace

struct MarkerNorthArrow::Private {
  NorthArrowSettings settings;
};

MarkerNorthArrow::MarkerNorthArrow() : MapSurround(SurroundKind::NorthArrow), d(std::make_unique<Private>()) {}
MarkerNorthArrow::MarkerNorthArrow(MarkerNorthArrow const& other)
    : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
MarkerNorthArrow::~MarkerNorthArrow() = default;

QList<_ptr_t<Element>> MarkerNorthArrow::GetElements() {
  if (!hasPlace()) return {};
  auto const arrow = ptr_cast<MarkerSymbol>(GetMarkerSymbol()->Clone());
  arrow->SetAngle(arrow->GetAngle() + (d->settings.trueNorth ? GetMap()->GetNorthAngle() : GetMap()->GetRotation()));
  QRectF const unit = unitBounds(*arrow);
  if (unit.isEmpty()) return {};
  arrow->SetSize(std::min(rectangle().GetWidth() / unit.width(), rectangle().GetHeight() / unit.height()) /
                 SysDisplay::cmPerPoint);
  auto const middle = rectangle().GetAnchorPoint();
  return {markerPiece(QPointF(middle->GetX(), middle->GetY()), arrow)};
}

_ptr_t<MapSurround> MarkerNorthArrow::Clone() const { return make<MarkerNorthArrow>(*this); }
QString MarkerNorthArrow::title() const { return QCoreApplication::translate("MapSurround", "North arrow"); }

void MarkerNorthArrow::SetMarkerSymbol(_ptr_t<MarkerSymbol> const& symbol) { d->settings.symbol = symbol; }
_ptr_t<MarkerSymbol> MarkerNorthArrow::GetMarkerSymbol() const {
  return d->settings.symbol ? d->settings.symbol : usualSymbol();
}

NorthArrowSettings NorthArrowSettings::of(MarkerNorthArrow const& arrow) { return arrow.d->settings; }
void NorthArrowSettings::applyTo(MarkerNorthArrow& arrow) const { arrow.d->settings = *this; }

}  // namespace SysCarto
