#pragma once

#include "host/SysDisplay/TextSymbol.h"

#include <SysCarto/Element.h>

#include <QList>
#include <QString>
#include <QVector>

namespace SysCarto {

/// A line of a legend: the name of a layer above its classes, one of these, or a layer that has none.
struct LegendRow {
  enum Kind { Heading, Class, Layer };
  QString text;
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;  ///< none for a heading
  Kind kind;
};

struct LegendLettering {
  SysUtility::_ptr_t<SysDisplay::TextSymbol> title, heading, label;  ///< hanging from their upper left corner
};

/// Lays a legend out in a rectangle of the page: a title and rows below it, in as many columns as show it largest.
class LegendLayout {
public:
  explicit LegendLayout(LegendLettering lettering);

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

  static double spaceAbove(QVector<LegendRow> const& rows, int row);
  void measure(QString const& title, QVector<LegendRow> const& rows);
  QVector<Column> columnsOf(QVector<LegendRow> const& rows, double maxHeight) const;
  Arrangement arrange(QVector<LegendRow> const& rows, int columns, SysGeometry::Envelope const& area) const;
  void addRow(LegendRow const& row, Measured const& size, double x, double y);
  void addPatch(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol, double middleX, double middleY);
  QPointF onPage(double x, double y) const;

  LegendLettering lettering_;
  QVector<Measured> sizes_;
  double titleWidth_ = 0, titleHeight_ = 0, patchesWidth_ = 0;
  double left_ = 0, top_ = 0, factor_ = 1;  // of the arrangement on the page, in centimetres
  QList<SysUtility::_ptr_t<Element>> pieces_;
};

}  // namespace SysCarto
