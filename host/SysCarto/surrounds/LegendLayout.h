#pragma once

#include "host/SysCarto/surrounds/LegendPatch.h"
#include "host/SysCarto/surrounds/LegendRows.h"
#include "host/SysCarto/surrounds/NestedMarkers.h"

#include <SysCarto/Element.h>

#include <map>

namespace SysCarto {

struct LegendLettering {
  SysUtility::_ptr_t<SysDisplay::TextSymbol> title, heading, label;  ///< hanging from their upper left corner
};

struct LegendStyle {
  LegendLettering lettering;
  PatchSettings patch;
  int columns;    ///< 0 for as many as show the legend largest
  double wrapPt;  ///< the width of a text; 0 for any
};

/// Lays a legend out in a rectangle of the page: a title and rows below it, in columns.
class LegendLayout {
public:
  explicit LegendLayout(LegendStyle style);

  QList<SysUtility::_ptr_t<Element>> elements(QString const& title, QVector<LegendRow> const& rows,
                                              SysGeometry::Envelope const& area);

private:
  // All lengths in points, before the whole is made smaller; y downwards.
  struct Measured {
    double height, width, above;  // `above` is the space before it, none at the top of a column
  };
  struct Column {
    int first, count;
    double width, height;
  };
  struct Arrangement {
    QVector<Column> columns;
    double width, height, factor;
  };

  SysUtility::_ptr_t<SysDisplay::TextSymbol>& symbolOf(LegendRow const& row);
  double spaceAbove(int row) const;
  bool follows(int row) const;
  void measure(QString const& title, QVector<LegendRow> const& rows);
  QVector<Column> columnsOf(double maxHeight, int atLeast) const;
  Arrangement arrange(int columns, int atLeast, SysGeometry::Envelope const& area) const;
  Arrangement best(SysGeometry::Envelope const& area) const;
  void addRow(int row, double x, double y);
  QPointF onPage(double x, double y) const;

  LegendStyle style_;
  LegendPatch const patch_;
  QVector<LegendRow> rows_;  // with their texts broken into lines
  QVector<Measured> sizes_;
  std::map<int, NestedMarkers> nested_;  // by row
  double titleWidth_ = 0, titleHeight_ = 0, patchesWidth_ = 0;
  double left_ = 0, top_ = 0, factor_ = 1;  // of the arrangement on the page, in centimetres
  QList<SysUtility::_ptr_t<Element>> pieces_;
};

}  // namespace SysCarto
