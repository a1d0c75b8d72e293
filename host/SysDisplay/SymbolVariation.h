#pragma once

#include <SysDisplay/Symbol.h>

#include <QColor>

namespace SysDisplay {

// A symbol that differs from others of its kind in one thing. Symbols are changed in place and have to be the caller's
// own.

/// The colour by which the symbol is told from others; that of a layered symbol is one of its layers. An invalid one
/// for a symbol that has none, such as a picture.
SYSDISPLAY_EXPORT QColor colorOf(Symbol const& symbol);

/// Answers false for a symbol without a colour.
SYSDISPLAY_EXPORT bool setColor(Symbol& symbol, QColor const& color);

/// The size of a marker or the width of a line, in points; 0 for others.
SYSDISPLAY_EXPORT double sizeOf(Symbol const& symbol);

/// Answers false for what is neither a marker nor a line.
SYSDISPLAY_EXPORT bool setSize(Symbol& symbol, double points);

/// Turns a marker, in degrees counterclockwise. Answers false for others.
SYSDISPLAY_EXPORT bool setAngle(Symbol& symbol, double degrees);

/// A copy that has a colour: the symbol itself, or a plain one of its class and size.
SYSDISPLAY_EXPORT SysUtility::_ptr_t<Symbol> colored(Symbol const& symbol, QColor const& color);

}  // namespace SysDisplay
