#pragma once

#include <SysDisplay/Symbol.h>

#include <QPixmap>

namespace SysAdapterUI {

constexpr QSize swatchPx(24, 16);

/// How a symbol looks in a list.
QPixmap swatch(SysDisplay::Symbol const& symbol, double devicePixelRatio);

}  // namespace SysAdapterUI
