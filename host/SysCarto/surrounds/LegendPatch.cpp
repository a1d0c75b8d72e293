#include "LegendPatch.h"

#include "Pieces.h"

#include <SysDisplay/LineSymbol.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::MarkerSymbol;
using SysDisplay::Symbol;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

constexpr double quarter = 1.5707963267948966;
constexpr int stepsOfCorner = 8, stepsOfWave = 48;
constexpr double cornerPart = 0.3;  // of the shorter side

double breadthOf(LineSymbol const& line) { return line.GetWidth() + 2 * std::abs(line.GetOffset()); }

// Lines that are drawn over each other run alike, as the widest can.
double breadthOf(LegendPatch::Symbols const& symbols) {
  double widest = 0;
  for (auto const& symbol : symbols)
    if (auto const line = ptr_cast<LineSymbol>(symbol)) widest = std::max(widest, breadthOf(*line));
  return widest;
}

}  // namespace

// A zigzag's joins reach about as far beyond it as the line is wide, as long as it is no steeper than this. At its ends
// there is room for caps.
double LegendPatch::swing(double breadth) const {
  if (settings_.line == LinePatch::Straight) return 0;
  return std::max(0.0, std::min(settings_.heightPt - 2 * breadth, (settings_.widthPt - breadth) / 2));
}

QRectF LegendPatch::unitBoundsOf(MarkerSymbol const& marker) const {
  auto const known = measured_.constFind(&marker);
  return known != measured_.constEnd() ? *known : *measured_.insert(&marker, unitBounds(marker));
}

QSizeF LegendPatch::sizeOf(_ptr_t<Symbol> const& symbol) const {
  QSizeF const patch(settings_.widthPt, settings_.heightPt);
  if (auto const marker = ptr_cast<MarkerSymbol>(symbol))
    return patch.expandedTo(unitBoundsOf(*marker).size() * marker->GetSize());
  if (auto const line = ptr_cast<LineSymbol>(symbol)) return patch.expandedTo({settings_.widthPt, breadthOf(*line)});
  auto const fill = ptr_cast<FillSymbol>(symbol);
  auto const outline = fill ? fill->GetOutlineSymbol() : nullptr;
  return outline ? patch + QSizeF(outline->GetWidth(), outline->GetWidth()) : patch;
}

QSizeF LegendPatch::sizeOf(Symbols const& symbols) const {
  QSizeF size(settings_.widthPt, settings_.heightPt);
  for (auto const& symbol : symbols) size = size.expandedTo(sizeOf(symbol));
  return size;
}

// About (0, 0), from left to right.
QVector<QPointF> LegendPatch::line(double breadth) const {
  double const h = swing(breadth), w = settings_.widthPt - (h > 0 ? breadth : 0);
  QVector<QPointF> points;
  if (h == 0) {
    points << QPointF(-w / 2, 0) << QPointF(w / 2, 0);
  } else if (settings_.line == LinePatch::Zigzag) {
    for (int i = 0; i < 4; ++i) points << QPointF(-w / 2 + i * w / 3, i % 2 == 0 ? h / 2 : -h / 2);
  } else {
    for (int i = 0; i <= stepsOfWave; ++i)
      points << QPointF(-w / 2 + i * w / stepsOfWave, -h / 2 * std::sin(4 * quarter * i / stepsOfWave));
  }
  return points;
}

QVector<QPointF> LegendPatch::roundedRectangle() const {
  double const w = settings_.widthPt / 2, h = settings_.heightPt / 2, radius = cornerPart * 2 * std::min(w, h);
  QVector<QPointF> points;
  for (int corner = 0; corner < 4; ++corner) {
    QPointF const centre((corner == 0 || corner == 3 ? 1 : -1) * (w - radius), (corner < 2 ? 1 : -1) * (h - radius));
    for (int i = 0; i <= stepsOfCorner; ++i) {
      double const angle = quarter * (corner + double(i) / stepsOfCorner);
      points << centre + radius * QPointF(std::cos(angle), std::sin(angle));
    }
  }
  return points;
}

void LegendPatch::add(QList<_ptr_t<Element>>& pieces, Symbols const& symbols, QPointF const& middle, double factor,
                      ToPage const& toPage) const {
  double const w = settings_.widthPt, h = settings_.heightPt, breadth = breadthOf(symbols);
  auto const moved = [&](QVector<QPointF> points) {
    for (QPointF& point : points) point = toPage(middle.x() + point.x(), middle.y() + point.y());
    return points;
  };
  for (auto const& symbol : symbols) {
    if (auto const marker = ptr_cast<MarkerSymbol>(symbol)) {
      QPointF const offCentre = unitBoundsOf(*marker).center() * marker->GetSize();
      pieces << markerPiece(toPage(middle.x() - offCentre.x(), middle.y() - offCentre.y()), resized(*marker, factor));
    } else if (auto const line = ptr_cast<LineSymbol>(symbol)) {
      pieces << linePiece(moved(this->line(breadth)), resized(*line, factor));
    } else if (auto const fill = ptr_cast<FillSymbol>(symbol)) {
      auto const filled = withOutlineResized(*fill, factor);
      QPointF const upperLeft = toPage(middle.x() - w / 2, middle.y() - h / 2),
                    lowerRight = toPage(middle.x() + w / 2, middle.y() + h / 2);
      if (settings_.fill == FillPatch::Rounded)
        pieces << polygonPiece(moved(roundedRectangle()), filled);
      else
        pieces << (settings_.fill == FillPatch::Ellipse ? ellipsePiece : rectanglePiece)(
            upperLeft.x(), lowerRight.y(), lowerRight.x(), upperLeft.y(), filled);
    }
  }
}

}  // namespace SysCarto
