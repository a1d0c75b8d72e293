#include <SysCarto/MapSurround.h>

namespace SysCarto {

using SysUtility::_ptr_t;

MarkerNorthArrow::MarkerNorthArrow() : MapSurround(6) {}
MarkerNorthArrow::MarkerNorthArrow(MarkerNorthArrow const&) = default;
MarkerNorthArrow::~MarkerNorthArrow() = default;

// An unbound surround answers none.
QList<_ptr_t<Element>> MarkerNorthArrow::GetElements() { return {}; }

_ptr_t<MapSurround> MarkerNorthArrow::Clone() const { return SysUtility::make<MarkerNorthArrow>(*this); }

void MarkerNorthArrow::SetMarkerSymbol(_ptr_t<SysDisplay::MarkerSymbol> const& symbol) { symbol_ = symbol; }
_ptr_t<SysDisplay::MarkerSymbol> MarkerNorthArrow::GetMarkerSymbol() const { return symbol_; }

}  // namespace SysCarto
