#pragma once

#include <SysDisplay/LineSymbol.h>

/// What a new symbol has, and what a document leaves out.
namespace SysDisplay::SymbolDefaults {

constexpr double lineWidth = 0.5;
constexpr LineCapStyle cap = LineCapStyle::Round;
constexpr LineJoinStyle join = LineJoinStyle::Round;
constexpr double miterLimit = 2.0;
inline QColor lineColor() { return QColor(0, 0, 0); }
inline QColor fillColor() { return QColor(192, 192, 192); }

constexpr double markerSize = 6.0;
inline QColor markerColor() { return QColor(64, 64, 64); }

}  // namespace SysDisplay::SymbolDefaults
