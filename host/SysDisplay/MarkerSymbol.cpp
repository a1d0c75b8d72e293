#include <SysDisplay/MarkerSymbol.h>

#include "host/SysDisplay/SymbolDefaults.h"

#include <cmath>

namespace SysDisplay {

struct MarkerSymbol::Private {
  double size = SymbolDefaults::markerSize;
  double angle = 0;
};

MarkerSymbol::MarkerSymbol() : d(std::make_unique<Private>()) {}
MarkerSymbol::MarkerSymbol(MarkerSymbol const& other) : Symbol(other), d(std::make_unique<Private>(*other.d)) {}
MarkerSymbol& MarkerSymbol::operator=(MarkerSymbol const& other) {
  *d = *other.d;
  return *this;
}
MarkerSymbol::~MarkerSymbol() = default;

SymbolType MarkerSymbol::GetType() const { return SymbolType::Marker; }

double MarkerSymbol::GetSize() const { return d->size; }
void MarkerSymbol::SetSize(double points) {
  if (std::isfinite(points) && points >= 0) d->size = points;
}
double MarkerSymbol::GetAngle() const { return d->angle; }
void MarkerSymbol::SetAngle(double degrees) {
  if (std::isfinite(degrees)) d->angle = degrees;
}

}  // namespace SysDisplay
