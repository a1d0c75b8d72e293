#pragma once

#include <SysDisplay/Export.h>

#include <QByteArray>
#include <QString>

namespace SysDisplay {

/// Why an SVG must not be drawn, as a sentence; empty where it may. A document may come from a stranger, so an SVG that
/// refers to anything outside itself is refused, and so is one whose drawing would have no end.
SYSDISPLAY_EXPORT QString svgProblem(QByteArray const& svg);

}  // namespace SysDisplay
