#pragma once

#include <SysAdapterUI/Export.h>
#include <SysDisplay/Symbol.h>

#include <QRectF>

class QPainter;

namespace SysAdapterUI {

/// Draws a sample of a symbol in a rectangle of the painter: a marker in its middle, a line across it, a filled area,
/// or two letters. A symbol too large for the rectangle is shown smaller; `fills` enlarges a marker until it fits.
/// `pixelsPerPoint` is how large a point of the symbol is drawn.
SYSADAPTERUI_EXPORT void drawSymbolPreview(QPainter& painter, QRectF const& area, SysDisplay::Symbol const& symbol,
                                           double pixelsPerPoint, bool fills);

}  // namespace SysAdapterUI
