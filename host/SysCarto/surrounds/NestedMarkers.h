#pragma once

#include "host/SysCarto/surrounds/LegendPatch.h"
#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Layer.h>

namespace SysCarto {

/// Markers of a legend that stand in each other on one line, each with a line from its top to its number beside them.
/// Lengths in points, y downwards.
class NestedMarkers {
public:
  /// The largest marker first. Texts hang from their upper left corner.
  NestedMarkers(QVector<LegendClass> const& classes, SysDisplay::TextSymbol const& lettering);

  QSizeF size() const { return size_; }

  /// Adds graphics below and right of a place; `toPage` and `factor` as of a `LegendPatch`. `lettering` is as many
  /// times as large.
  void add(QList<SysUtility::_ptr_t<Element>>& pieces, QPointF const& upperLeft, double factor,
           SysUtility::_ptr_t<SysDisplay::TextSymbol> const& lettering, LegendPatch::ToPage const& toPage) const;

private:
  struct Row {
    QString text;
    SysUtility::_ptr_t<SysDisplay::MarkerSymbol> marker;
    QRectF bounds;  // of the marker about its position
    double textTop, textHeight;
  };
  QVector<Row> rows_;
  double markersWidth_ = 0;
  QSizeF size_;
};

}  // namespace SysCarto
