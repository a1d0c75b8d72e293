#include <SysDisplay/LineSymbol.h>

#include "host/SysDisplay/SymbolDefaults.h"

#include <cmath>

namespace SysDisplay {

struct LineSymbol::Private {
  double offset = 0;
  double width = SymbolDefaults::lineWidth;
  QColor color = SymbolDefaults::lineColor();
  LineCapStyle cap = SymbolDefaults::cap;
  LineJoinStyle join = SymbolDefaults::join;
  double miterLimit = SymbolDefaults::miterLimit;
};

LineSymbol::LineSymbol() : d(std::make_unique<Private>()) {}
LineSymbol::LineSymbol(LineSymbol const& other) : Symbol(other), d(std::make_unique<Private>(*other.d)) {}
LineSymbol& LineSymbol::operator=(LineSymbol const& other) {
  *d = *other.d;
  return *this;
}
LineSymbol::~LineSymbol() = default;

SymbolType LineSymbol::GetType() const { return SymbolType::Line; }

double LineSymbol::GetOffset() const { return d->offset; }
void LineSymbol::SetOffset(double points) {
  if (std::isfinite(points)) d->offset = points;
}
double LineSymbol::GetWidth() const { return d->width; }
void LineSymbol::SetWidth(double points) {
  if (std::isfinite(points) && points >= 0) d->width = points;
}
QColor LineSymbol::GetColor() const { return d->color; }
void LineSymbol::SetColor(QColor color) { d->color = color; }
LineCapStyle LineSymbol::GetCapStyle() const { return d->cap; }
void LineSymbol::SetCapStyle(LineCapStyle style) { d->cap = style; }
LineJoinStyle LineSymbol::GetJoinStyle() const { return d->join; }
void LineSymbol::SetJoinStyle(LineJoinStyle style) { d->join = style; }
double LineSymbol::GetMiterLimit() const { return d->miterLimit; }
void LineSymbol::SetMiterLimit(double limit) {
  if (std::isfinite(limit) && limit >= 0) d->miterLimit = limit;
}

}  // namespace SysDisplay
