#include <SysDisplay/FillSymbol.h>

#include "host/SysDisplay/SymbolDefaults.h"

namespace SysDisplay {

using SysUtility::_ptr_t;

struct FillSymbol::Private {
  QColor color = SymbolDefaults::fillColor();
  _ptr_t<LineSymbol> outline;

  Private() = default;
  Private(Private const& other) : color(other.color) {
    if (other.outline) outline = SysUtility::ptr_cast<LineSymbol>(other.outline->Clone());
  }
};

FillSymbol::FillSymbol() : d(std::make_unique<Private>()) {}
FillSymbol::FillSymbol(FillSymbol const& other) : Symbol(other), d(std::make_unique<Private>(*other.d)) {}
FillSymbol& FillSymbol::operator=(FillSymbol const& other) {
  if (this != &other) d = std::make_unique<Private>(*other.d);
  return *this;
}
FillSymbol::~FillSymbol() = default;

SymbolType FillSymbol::GetType() const { return SymbolType::Fill; }

QColor FillSymbol::GetColor() const { return d->color; }
void FillSymbol::SetColor(QColor color) { d->color = color; }
_ptr_t<LineSymbol> FillSymbol::GetOutlineSymbol() const { return d->outline; }
void FillSymbol::SetOutlineSymbol(_ptr_t<LineSymbol> const& outline) { d->outline = outline; }

}  // namespace SysDisplay
