#pragma once

#include "host/SysDisplay/PointRuns.h"

namespace SysDisplay {

/// Lengths in pixels, dash and gap in turn; an even count.
using DashPattern = std::vector<double>;

/// Appends the dashes that lie within `area`, each whole, as runs to be stroked. The pattern starts at the line's first
/// point and its phase is counted along the whole line, so that it doesn't depend on the area.
SYSDISPLAY_EXPORT void dashLine(std::vector<QPointF> const& line, bool closed, DashPattern const& pattern,
                                QRectF const& area, PointRuns& out);

}  // namespace SysDisplay
