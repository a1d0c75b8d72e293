#pragma once

#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <SysCarto/Element.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QHash>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <functional>

namespace SysCarto {

/// The patches in which a legend shows symbols, which don't change meanwhile. Lengths in points, y downwards.
class LegendPatch {
public:
  using Symbols = QVector<SysUtility::_ptr_t<SysDisplay::Symbol>>;
  using ToPage = std::function<QPointF(double x, double y)>;

  explicit LegendPatch(PatchSettings const& settings) : settings_(settings) {}

  /// What symbols that are drawn one over the other cover about the middle of their patch.
  QSizeF sizeOf(Symbols const& symbols) const;

  /// Adds graphics that draw the symbols about a place. `toPage` answers page centimetres, `factor` times as large:
  /// symbols get smaller with the legend, so that none covers more than was measured.
  void add(QList<SysUtility::_ptr_t<Element>>& pieces, Symbols const& symbols, QPointF const& middle, double factor,
           ToPage const& toPage) const;

private:
  QSizeF sizeOf(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol) const;
  double swing(double breadth) const;
  QVector<QPointF> line(double breadth) const;
  QVector<QPointF> roundedRectangle() const;

  QRectF unitBoundsOf(SysDisplay::MarkerSymbol const& marker) const;

  PatchSettings const settings_;
  // To measure a marker, it is prepared for drawing. Each is asked for several times.
  mutable QHash<SysDisplay::MarkerSymbol const*, QRectF> measured_;
};

}  // namespace SysCarto
