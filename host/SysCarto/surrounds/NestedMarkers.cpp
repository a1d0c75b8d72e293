#include "NestedMarkers.h"

#include "Pieces.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>

namespace SysCarto {

using SysDisplay::MarkerSymbol;
using SysDisplay::SimpleMarkerSymbol;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;

namespace {

// In points.
constexpr double leader = 8;  // how far a line reaches beyond the markers
constexpr double textGap = 3;
constexpr double leaderWidth = 0.3, edgeWidth = 0.4;

// Plain markers of one colour get an edge, or nobody would see them within each other.
_ptr_t<MarkerSymbol> edged(_ptr_t<MarkerSymbol> const& marker) {
  auto const* const plain = dynamic_cast<SimpleMarkerSymbol const*>(marker.get());
  if (!plain || plain->outlineWidth() > 0) return marker;
  auto const edged = SysUtility::make<SimpleMarkerSymbol>(*plain);
  constexpr int lighter = 180, darker = 160;  // percent
  QColor const color = plain->color();
  edged->setOutlineColor(color.lightness() < 128 ? color.lighter(lighter) : color.darker(darker));
  edged->setOutlineWidth(edgeWidth);
  return edged;
}

}  // namespace

// From the smallest marker upwards texts give way to the one below.
NestedMarkers::NestedMarkers(QVector<LegendClass> const& classes, TextSymbol const& lettering) {
  double textsWidth = 0, height = 0;
  for (LegendClass const& one : classes) {
    if (one.symbol->GetType() != SysDisplay::SymbolType::Marker) continue;
    auto const marker = edged(SysUtility::ptr_cast<MarkerSymbol>(one.symbol));
    QRectF const unit = unitBounds(*marker), text = lettering.bounds(one.label);
    QRectF const bounds(unit.topLeft() * marker->GetSize(), unit.size() * marker->GetSize());
    rows_ << Row{one.label, marker, bounds, 0, text.height()};
    textsWidth = std::max(textsWidth, text.width());
    markersWidth_ = std::max(markersWidth_, bounds.width());
  }
  double below = 0;  // above the common foot, upwards, while measuring
  for (auto row = rows_.rbegin(); row != rows_.rend(); ++row) {
    double const middle = std::max(row->bounds.height(), below + row->textHeight / 2);
    row->textTop = middle + row->textHeight / 2;
    below = row->textTop;
    height = std::max(height, row->textTop);
  }
  for (Row& row : rows_) row.textTop = height - row.textTop;
  size_ = {markersWidth_ + leader + textGap + textsWidth, height};
}

void NestedMarkers::add(QList<_ptr_t<Element>>& pieces, QPointF const& upperLeft, double factor,
                        _ptr_t<TextSymbol> const& lettering, LegendPatch::ToPage const& toPage) const {
  auto const line = SysUtility::make<SysDisplay::SimpleLineSymbol>();
  line->SetColor(lettering->format().color);
  line->SetWidth(leaderWidth * factor);
  double const x = upperLeft.x(), middle = x + markersWidth_ / 2, foot = upperLeft.y() + size_.height();
  double const end = x + markersWidth_ + leader;
  for (Row const& row : rows_) {
    QPointF const off = row.bounds.center();
    double const top = foot - row.bounds.height(), textMiddle = upperLeft.y() + row.textTop + row.textHeight / 2;
    pieces << markerPiece(toPage(middle - off.x(), foot - row.bounds.height() / 2 - off.y()),
                          resized(*row.marker, factor));
    pieces << linePiece({toPage(middle, top), toPage(end - leader / 2, top), toPage(end, textMiddle)}, line);
    pieces << textPiece(row.text, lettering, toPage(end + textGap, upperLeft.y() + row.textTop));
  }
}

}  // namespace SysCarto
