#pragma once

#include <SysCarto/Export.h>

#include <QColor>
#include <QString>
#include <QVector>

namespace SysCarto {

/// What a ramp is for: numbers from low to high, numbers on both sides of a middle, or kinds that have no order.
enum class RampKind { Sequential, Diverging, Qualitative };

/// A named row of colours for classes.
struct SYSCARTO_EXPORT ColorRamp {
  char const* name;
  RampKind kind;
  int fewest, most;     ///< counts of classes that have colours of their own
  char const* numbers;  ///< rrggbb each: all the rows of so many colours, one after the other

  /// For so many classes. Where the ramp has no row of that count, colours are interpolated in Oklab; those of a
  /// qualitative ramp come again darker and lighter.
  QVector<QColor> colors(int count, bool reversed = false) const;

  /// All ramps, by kind and name.
  static QVector<ColorRamp> const& all();

  /// Whatever the case of the letters; null where there is none.
  static ColorRamp const* named(QString const& name);

  /// What a person who names none is given.
  static ColorRamp const& usual(RampKind kind);
};

}  // namespace SysCarto
