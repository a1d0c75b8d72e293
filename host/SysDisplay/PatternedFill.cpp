#include "PatternedFill.h"

#include "host/SysDisplay/FillDrawing.h"

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

PatternedFill::PatternedFill() = default;
PatternedFill::PatternedFill(PatternedFill const&) = default;
PatternedFill& PatternedFill::operator=(PatternedFill const&) = default;
PatternedFill::~PatternedFill() = default;

std::unique_ptr<PathDrawing> PatternedFill::prepare(DrawTarget& target) const {
  return prepareFill(target, filling(target.pixelsPerPoint()), GetOutlineSymbol().get());
}

_ptr_t<Envelope> PatternedFill::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                              _ptr_t<Geometry> const& geometry) const {
  return fillBoundary(*this, true, transformation, geometry);
}

}  // namespace SysDisplay
