#pragma once

#include "host/SysDisplay/PathDrawing.h"

namespace SysDisplay {

/// What an area shows, made ready for one target.
class Filling {
public:
  virtual ~Filling();

  /// Fills rings (even-odd, device pixels), limited to `area`, a little more than what the target can reach. `shape` is
  /// what the whole shape covers in the world.
  virtual void fill(DrawTarget& target, PointRuns const& rings, QRectF const& area, SysGeometry::Box const& shape) = 0;
};

/// An area with an outline. An empty pointer where there is neither; `filling` and `outline` may be null.
std::unique_ptr<PathDrawing> prepareFill(DrawTarget& target, std::unique_ptr<Filling> filling,
                                         LineSymbol const* outline);

/// The area that a simple fill symbol draws, or a foreign one.
std::unique_ptr<PathDrawing> prepareSimpleFill(DrawTarget& target, FillSymbol const& symbol);

/// What a fill symbol with one outline covers of a geometry; empty pointer for nothing.
SysUtility::_ptr_t<SysGeometry::Envelope> fillBoundary(FillSymbol const& symbol, bool fills,
                                                       SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                                                       SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry);

/// Fills with one colour.
std::unique_ptr<Filling> solidFilling(QColor const& color);

}  // namespace SysDisplay
