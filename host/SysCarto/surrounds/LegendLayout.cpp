#include "LegendLayout.h"

#include "Pieces.h"

#include "host/SysDisplay/TextWrap.h"

#include <algorithm>

namespace SysCarto {

using SysDisplay::TextSymbol;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

// In points.
constexpr double patchGap = 6;  // between a patch and its label
constexpr double rowGap = 3;    // between two rows
constexpr double layerGap = 7;  // before a heading
constexpr double titleGap = 6;  // below the title
constexpr double columnGap = 16;
constexpr int maxColumns = 12;  // that are chosen

}  // namespace

LegendLayout::LegendLayout(LegendStyle style) : style_(std::move(style)), patch_(style_.patch) {}

_ptr_t<TextSymbol>& LegendLayout::symbolOf(LegendRow const& row) {
  return row.kind == LegendRow::Heading ? style_.lettering.heading : style_.lettering.label;
}

// Layers that have classes stand apart from what is above and below them.
double LegendLayout::spaceAbove(int row) const {
  bool const followsClasses =
      row > 0 && (rows_[row - 1].kind == LegendRow::Class || rows_[row - 1].kind == LegendRow::Nested);
  bool const standsApart =
      rows_[row].kind == LegendRow::Heading || (rows_[row].kind == LegendRow::Layer && followsClasses);
  return standsApart ? layerGap : rowGap;
}

// A heading stays with its first class.
bool LegendLayout::follows(int row) const { return row > 0 && rows_[row - 1].kind == LegendRow::Heading; }

void LegendLayout::measure(QString const& title, QVector<LegendRow> const& rows) {
  rows_ = rows;
  QRectF const titleBounds = style_.lettering.title->bounds(title);
  titleWidth_ = titleBounds.width();
  titleHeight_ = title.isEmpty() ? 0 : titleBounds.height() + titleGap;
  sizes_.clear();
  nested_.clear();
  patchesWidth_ = 0;
  for (LegendRow const& row : rows)
    if (row.kind != LegendRow::Heading && row.kind != LegendRow::Nested)
      patchesWidth_ = std::max(patchesWidth_, patch_.sizeOf(row.symbols).width());
  for (int i = 0; i < rows_.size(); ++i) {
    LegendRow& row = rows_[i];
    if (row.kind == LegendRow::Nested) {
      NestedMarkers const nested(row.nested, *style_.lettering.label);
      QSizeF const size = nested.size();
      nested_.insert({i, nested});
      sizes_ << Measured{size.height(), size.width(), spaceAbove(i)};
      continue;
    }
    bool const isHeading = row.kind == LegendRow::Heading;
    auto const& symbol = symbolOf(row);
    row.text = SysDisplay::wrapped(row.text, *symbol, style_.wrapPt);
    QRectF const text = symbol->bounds(row.text);
    double const height = isHeading ? text.height() : std::max(text.height(), patch_.sizeOf(row.symbols).height());
    sizes_ << Measured{height, text.width() + (isHeading ? 0 : patchesWidth_ + patchGap), spaceAbove(i)};
  }
}

// From above into columns no higher than that; a column ends before it is full where each of the rest is needed to
// make as many as asked for.
QVector<LegendLayout::Column> LegendLayout::columnsOf(double maxHeight, int atLeast) const {
  int starts = 0;
  for (int i = 0; i < rows_.size(); ++i) starts += follows(i) ? 0 : 1;
  QVector<Column> columns;
  for (int i = 0; i < rows_.size(); ++i) {
    bool const leads = rows_[i].kind == LegendRow::Heading && i + 1 < rows_.size();
    double const needed = sizes_[i].height + (leads ? sizes_[i + 1].above + sizes_[i + 1].height : 0);
    bool const isFull = !columns.isEmpty() && columns.last().height + sizes_[i].above + needed > maxHeight + 1e-6;
    bool const isOwed = starts <= atLeast - columns.size();
    if (columns.isEmpty() || ((isFull || isOwed) && !follows(i))) columns << Column{i, 0, 0, 0};
    if (!follows(i)) --starts;
    Column& column = columns.last();
    column.height += (column.count > 0 ? sizes_[i].above : 0) + sizes_[i].height;
    column.width = std::max(column.width, sizes_[i].width);
    ++column.count;
  }
  return columns;
}

LegendLayout::Arrangement LegendLayout::arrange(int columns, int atLeast, Envelope const& area) const {
  double total = 0, tallest = 0;
  for (Measured const& size : sizes_) {
    total += size.above + size.height;
    tallest = std::max(tallest, size.height);
  }
  // The lowest height for which the rows fill no more than so many columns.
  double low = std::max(total / columns * 0.5, tallest), high = total;
  for (int i = 0; i < 24; ++i) {
    double const middle = (low + high) / 2;
    (columnsOf(middle, 0).size() <= columns ? high : low) = middle;
  }
  Arrangement result{columnsOf(high, atLeast), 0, titleHeight_, 1};
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

LegendLayout::Arrangement LegendLayout::best(Envelope const& area) const {
  if (style_.columns > 0) return arrange(style_.columns, style_.columns, area);
  Arrangement best = arrange(1, 0, area);
  for (int columns = 2; columns <= maxColumns && best.factor < 1; ++columns) {
    Arrangement const next = arrange(columns, 0, area);
    if (next.factor > best.factor + 1e-9) best = next;
  }
  return best;
}

QList<_ptr_t<Element>> LegendLayout::elements(QString const& given, QVector<LegendRow> const& rows,
                                              Envelope const& area) {
  QString const title = SysDisplay::wrapped(given, *style_.lettering.title, style_.wrapPt);
  measure(title, rows);
  Arrangement const arrangement = best(area);
  left_ = area.GetXMin();
  top_ = area.GetYMax();
  factor_ = arrangement.factor;
  if (factor_ < 1)
    for (auto* symbol : {&style_.lettering.title, &style_.lettering.heading, &style_.lettering.label})
      *symbol = (*symbol)->resized(factor_);
  pieces_.clear();
  if (titleHeight_ > 0) pieces_ << textPiece(title, style_.lettering.title, onPage(0, 0));
  double x = 0;
  for (Column const& column : qAsConst(arrangement.columns)) {
    double y = titleHeight_;
    for (int i = column.first; i < column.first + column.count; ++i) {
      if (i > column.first) y += sizes_[i].above;
      addRow(i, x, y);
      y += sizes_[i].height;
    }
    x += column.width + columnGap;
  }
  return pieces_;
}

void LegendLayout::addRow(int number, double x, double y) {
  LegendRow const& row = rows_[number];
  double const height = sizes_[number].height;
  auto const toPage = [this](double left, double top) { return onPage(left, top); };
  if (row.kind == LegendRow::Nested)
    return nested_.at(number).add(pieces_, QPointF(x, y), factor_, style_.lettering.label, toPage);
  auto const& symbol = symbolOf(row);
  double const textHeight = symbol->bounds(row.text).height() / factor_;
  double const indent = row.kind == LegendRow::Heading ? 0 : patchesWidth_ + patchGap;
  patch_.add(pieces_, row.symbols, QPointF(x + patchesWidth_ / 2, y + height / 2), factor_, toPage);
  pieces_ << textPiece(row.text, symbol, onPage(x + indent, y + (height - textHeight) / 2));
}

QPointF LegendLayout::onPage(double x, double y) const {
  return {left_ + x * factor_ * SysDisplay::cmPerPoint, top_ - y * factor_ * SysDisplay::cmPerPoint};
}

}  // namespace SysCarto
