#pragma once

#include "host/SysDisplay/TextSymbol.h"

namespace SysDisplay {

/// The text with line ends put in so that no line is wider than so many points: at spaces, and wherever else the
/// script may be broken. A word that is too wide stands alone. 0 breaks nothing.
SYSDISPLAY_EXPORT QString wrapped(QString const& text, TextSymbol const& symbol, double widthPt);

}  // namespace SysDisplay
