#include "DashLineSymbol.h"

#include "host/SysDisplay/StrokeDrawing.h"

#include <algorithm>
#include <cmath>

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

// Where the dashes come nearer together than this, a tint of the same strength takes their place.
constexpr double shortestPatternPx = 1;

Dashes dashesOf(DashLineSymbol const& symbol, double pixelsPerPoint) {
  Dashes dashes;
  int const count = symbol.pattern().size();
  for (int i = 0; i < (count % 2 ? 2 * count : count); ++i)
    dashes.pattern.push_back(symbol.pattern()[i % count] * pixelsPerPoint);
  return dashes;
}

}  // namespace

DashLineSymbol::DashLineSymbol() = default;
DashLineSymbol::DashLineSymbol(DashLineSymbol const&) = default;
DashLineSymbol& DashLineSymbol::operator=(DashLineSymbol const&) = default;
DashLineSymbol::~DashLineSymbol() = default;

_ptr_t<Symbol> DashLineSymbol::Clone() const { return SysUtility::make<DashLineSymbol>(*this); }

std::unique_ptr<PathDrawing> DashLineSymbol::prepare(DrawTarget& target) const {
  Dashes dashes = dashesOf(*this, target.pixelsPerPoint());
  double drawn = 0, period = 0;
  for (size_t i = 0; i < dashes.pattern.size(); ++i) {
    if (!(dashes.pattern[i] > 0)) return prepareStroke(target, *this, {});
    period += dashes.pattern[i];
    if (i % 2 == 0) drawn += dashes.pattern[i];
  }
  if (!(period > 0)) return prepareStroke(target, *this, {});
  if (period < shortestPatternPx) {
    DashLineSymbol tint(*this);
    QColor color = GetColor();
    color.setAlphaF(color.alphaF() * drawn / period);
    tint.SetColor(color);
    return prepareStroke(target, tint, {});
  }
  double const start = std::fmod(start_ * target.pixelsPerPoint(), period);
  dashes.start = start < 0 ? start + period : start;
  return prepareStroke(target, *this, dashes);
}

_ptr_t<Envelope> DashLineSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                               _ptr_t<Geometry> const& geometry) const {
  return transformation ? strokeBoundary(*this, *transformation, geometry.get()) : nullptr;
}

void DashLineSymbol::resize(double factor) {
  SetWidth(GetWidth() * factor);
  SetOffset(GetOffset() * factor);
  for (double& length : pattern_) length = std::clamp(length * factor, minLength, maxLength);
  start_ = std::clamp(start_ * factor, -maxLength, maxLength);
}

}  // namespace SysDisplay
