#pragma once

#include "host/SysDisplay/PointRuns.h"

namespace SysDisplay {

/// The lengths of a line's dashes, in pixels; none for a solid line.
struct Dashes {
  std::vector<double> pattern;  ///< dash and gap in turn; an even count
  double start = 0;             ///< how far into the pattern the line begins; not negative
};

/// Appends the dashes that lie within `area`, each whole, as runs to be stroked. The pattern starts at the line's first
/// point and its phase is counted along the whole line, so that it doesn't depend on the area.
void dashLine(std::vector<QPointF> const& line, bool closed, Dashes const& dashes, QRectF const& area, PointRuns& out);

}  // namespace SysDisplay
