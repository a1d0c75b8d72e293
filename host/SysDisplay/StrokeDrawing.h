#pragma once

#include "host/SysDisplay/DashLine.h"
#include "host/SysDisplay/PathDrawing.h"
#include "host/SysDisplay/Stroker.h"

namespace SysDisplay {

/// The line that a simple line symbol draws, or a foreign one. An empty pointer where there is nothing to draw.
std::unique_ptr<PathDrawing> prepareSimpleLine(DrawTarget& target, LineSymbol const& symbol);

/// The same for all but the style: the lengths of the dashes are given.
std::unique_ptr<PathDrawing> prepareStroke(DrawTarget& target, LineSymbol const& symbol, Dashes const& dashes);

/// What the stroke of a line symbol covers of a geometry; empty pointer for nothing.
SysUtility::_ptr_t<SysGeometry::Envelope> strokeBoundary(LineSymbol const& symbol,
                                                         DisplayTransformation const& transformation,
                                                         SysGeometry::Geometry const* geometry);

/// The course of a line as a symbol follows it, in device pixels: moved aside, and without a repeated first point where
/// it is closed. `moved` is where it is made.
std::vector<QPointF> const& courseOf(std::vector<QPointF> const& points, bool closed, double offsetPx,
                                     std::vector<QPointF>& moved);

}  // namespace SysDisplay
