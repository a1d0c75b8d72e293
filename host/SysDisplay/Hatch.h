#pragma once

#include "host/SysDisplay/DevicePath.h"

namespace SysDisplay {

class DrawTarget;

/// Directions as seen on the page.
enum class HatchDirection { Horizontal, Vertical, RisingLeft, RisingRight };

/// Appends the hatch lines within the rings (even-odd), as quadrangles to be filled by the winding rule, limited to
/// `area`. The lines hang on `anchor`.
SYSDISPLAY_EXPORT void hatchRings(PointRuns const& rings, HatchDirection direction, double spacingPx, double widthPx,
                                  QRectF const& area, QPointF const& anchor, PointRuns& out);

/// Fills what `hatchRings` made.
SYSDISPLAY_EXPORT void fillHatch(DrawTarget& target, PointRuns const& lines, QColor const& color, QRectF const& area);

}  // namespace SysDisplay
