#include "LegendLayout.h"

#include "Pieces.h"

#include <SysDisplay/LineSymbol.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::MarkerSymbol;
using SysDisplay::Symbol;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

// In points.
constexpr double patchWidth = 20, patchHeight = 10;
constexpr double patchGap = 6;  // between a patch and its label
constexpr double rowGap = 3;    // between two rows
constexpr double layerGap = 7;  // before a heading
constexpr double titleGap = 6;  // below the title
constexpr double columnGap = 16;
constexpr int maxColumns = 12;

// What a symbol covers about the middle of its patch.
QSizeF sizeOf(_ptr_t<Symbol> const& symbol) {
  QSizeF const patch(patchWidth, patchHeight);
  if (auto const marker = ptr_cast<MarkerSymbol>(symbol))
    return patch.expandedTo(unitBounds(*marker).size() * marker->GetSize());
  if (auto const line = ptr_cast<LineSymbol>(symbol))
    return patch.expandedTo({patchWidth, line->GetWidth() + 2 * std::abs(line->GetOffset())});
  auto const fill = ptr_cast<FillSymbol>(symbol);
  auto const outline = fill ? fill->GetOutlineSymbol() : nullptr;
  return outline ? patch + QSizeF(outline->GetWidth(), outline->GetWidth()) : patch;
}

}  // namespace

LegendLayout::LegendLayout(LegendLettering lettering) : lettering_(std::move(lettering)) {}

// Layers that have classes stand apart from what is above and below them.
double LegendLayout::spaceAbove(QVector<LegendRow> const& rows, int row) {
  bool const followsClasses = row > 0 && rows[row - 1].kind == LegendRow::Class;
  bool const standsApart =
      rows[row].kind == LegendRow::Heading || (rows[row].kind == LegendRow::Layer && followsClasses);
  return standsApart ? layerGap : rowGap;
}

void LegendLayout::measure(QString const& title, QVector<LegendRow> const& rows) {
  QRectF const titleBounds = lettering_.title->bounds(title);
  titleWidth_ = titleBounds.width();
  titleHeight_ = title.isEmpty() ? 0 : titleBounds.height() + titleGap;
  sizes_.clear();
  patchesWidth_ = 0;
  for (LegendRow const& row : rows)
    if (row.symbol) patchesWidth_ = std::max(patchesWidth_, sizeOf(row.symbol).width());
  for (int i = 0; i < rows.size(); ++i) {
    LegendRow const& row = rows[i];
    bool const isHeading = row.kind == LegendRow::Heading;
    QRectF const text = (isHeading ? lettering_.heading : lettering_.label)->bounds(row.text);
    double const height = isHeading ? text.height() : std::max(text.height(), sizeOf(row.symbol).height());
    sizes_ << Measured{height, text.width() + (isHeading ? 0 : patchesWidth_ + patchGap), spaceAbove(rows, i)};
  }
}

// A heading stays with its first class.
QVector<LegendLayout::Column> LegendLayout::columnsOf(QVector<LegendRow> const& rows, double maxHeight) const {
  QVector<Column> columns;
  for (int i = 0; i < rows.size(); ++i) {
    bool const leads = rows[i].kind == LegendRow::Heading && i + 1 < rows.size();
    double const needed = sizes_[i].height + (leads ? sizes_[i + 1].above + sizes_[i + 1].height : 0);
    bool const follows = i > 0 && rows[i - 1].kind == LegendRow::Heading;
    bool const isFull = !columns.isEmpty() && columns.last().height + sizes_[i].above + needed > maxHeight + 1e-6;
    if (columns.isEmpty() || (isFull && !follows)) columns << Column{i, 0, 0, 0};
    Column& column = columns.last();
    column.height += (column.count > 0 ? sizes_[i].above : 0) + sizes_[i].height;
    column.width = std::max(column.width, sizes_[i].width);
    ++column.count;
  }
  return columns;
}

LegendLayout::Arrangement LegendLayout::arrange(QVector<LegendRow> const& rows, int columns,
                                                Envelope const& area) const {
  double total = 0, tallest = 0;
  for (Measured const& size : sizes_) {
    total += size.above + size.height;
    tallest = std::max(tallest, size.height);
  }
  // The lowest height for which the rows fill no more than so many columns.
  double low = std::max(total / columns * 0.5, tallest), high = total;
  for (int i = 0; i < 24; ++i) {
    double const middle = (low + high) / 2;
    (columnsOf(rows, middle).size() <= columns ? high : low) = middle;
  }
  Arrangement result{columnsOf(rows, high), 0, titleHeight_, 1};
  double deepest = 0;
  for (Column const& column : qAsConst(result.columns)) {
    result.width += column.width + (result.width > 0 ? columnGap : 0);
    deepest = std::max(deepest, column.height);
  }
  result.width = std::max(result.width, titleWidth_);
  result.height += deepest;
  result.factor = std::min({1.0, area.GetWidth() / SysDisplay::cmPerPoint / result.width,
                            area.GetHeight() / SysDisplay::cmPerPoint / result.height});
  return result;
}

QList<_ptr_t<Element>> LegendLayout::elements(QString const& title, QVector<LegendRow> const& rows,
                                              Envelope const& area) {
  measure(title, rows);
  Arrangement best = arrange(rows, 1, area);
  for (int columns = 2; columns <= maxColumns && best.factor < 1; ++columns) {
    Arrangement const next = arrange(rows, columns, area);
    if (next.factor > best.factor + 1e-9) best = next;
  }
  left_ = area.GetXMin();
  top_ = area.GetYMax();
  factor_ = best.factor;
  if (factor_ < 1)
    for (auto* symbol : {&lettering_.title, &lettering_.heading, &lettering_.label})
      *symbol = (*symbol)->resized(factor_);
  pieces_.clear();
  if (titleHeight_ > 0) pieces_ << textPiece(title, lettering_.title, onPage(0, 0));
  double x = 0;
  for (Column const& column : qAsConst(best.columns)) {
    double y = titleHeight_;
    for (int i = column.first; i < column.first + column.count; ++i) {
      if (i > column.first) y += sizes_[i].above;
      addRow(rows[i], sizes_[i], x, y);
      y += sizes_[i].height;
    }
    x += column.width + columnGap;
  }
  return pieces_;
}

void LegendLayout::addRow(LegendRow const& row, Measured const& size, double x, double y) {
  auto const& symbol = row.kind == LegendRow::Heading ? lettering_.heading : lettering_.label;
  double const textHeight = symbol->bounds(row.text).height() / factor_;
  double const indent = row.kind == LegendRow::Heading ? 0 : patchesWidth_ + patchGap;
  addPatch(row.symbol, x + patchesWidth_ / 2, y + size.height / 2);
  pieces_ << textPiece(row.text, symbol, onPage(x + indent, y + (size.height - textHeight) / 2));
}

// Symbols get smaller with the legend, so that none covers more than was measured.
void LegendLayout::addPatch(_ptr_t<Symbol> const& symbol, double middleX, double middleY) {
  QPointF const upperLeft = onPage(middleX - patchWidth / 2, middleY - patchHeight / 2),
                lowerRight = onPage(middleX + patchWidth / 2, middleY + patchHeight / 2);
  if (auto const marker = ptr_cast<MarkerSymbol>(symbol)) {
    QPointF const offCentre = unitBounds(*marker).center() * marker->GetSize();
    pieces_ << markerPiece(onPage(middleX - offCentre.x(), middleY - offCentre.y()), resized(*marker, factor_));
  } else if (auto const line = ptr_cast<LineSymbol>(symbol)) {
    QPointF const start = onPage(middleX - patchWidth / 2, middleY), end = onPage(middleX + patchWidth / 2, middleY);
    pieces_ << linePiece({start, end}, resized(*line, factor_));
  } else if (auto const fill = ptr_cast<FillSymbol>(symbol)) {
    pieces_ << rectanglePiece(upperLeft.x(), lowerRight.y(), lowerRight.x(), upperLeft.y(),
                              withOutlineResized(*fill, factor_));
  }
}

QPointF LegendLayout::onPage(double x, double y) const {
  return {left_ + x * factor_ * SysDisplay::cmPerPoint, top_ - y * factor_ * SysDisplay::cmPerPoint};
}

}  // namespace SysCarto
