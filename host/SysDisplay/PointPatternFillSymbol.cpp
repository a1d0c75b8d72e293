#include "PointPatternFillSymbol.h"

#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/PatternFilling.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace SysDisplay {

using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

// Where fewer pixels than this are left for a marker, a tint of the same strength takes their place.
constexpr double fewestPixels = 2.25;

// Markers that cover each other more often than this along either axis are left out.
constexpr double maxOverlap = 8;

class PointPattern final : public Pattern {
public:
  PointPattern(std::unique_ptr<MarkerDrawing> marker, PointPatternFillSymbol::Grid const& grid, double pixelsPerPoint)
      : marker_(std::move(marker)), pixelsPerPoint_(pixelsPerPoint), staggered_(grid.staggered) {
    QRectF const bounds = marker_->bounds();
    auto const stepPx = [](double step, double size) {
      return step * std::max(1.0, std::ceil(size / (maxOverlap * step)));
    };
    dx_ = stepPx(grid.dx * pixelsPerPoint, bounds.width());
    dy_ = stepPx(grid.dy * pixelsPerPoint, bounds.height());
    toDevice_.rotate(-grid.angle);
  }

  QImage drawn(QRect const& area, QPointF const& anchor) override {
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    draw(painter, QRectF(area), anchor);
    return image;
  }

  void drawShapes(DrawTarget& target, VectorCanvas& canvas, PointRuns const& rings) override {
    canvas.save();
    canvas.clip(rings);
    if (!canvas.area().isEmpty())
      visit(canvas.area(), target.anchor(), [&](QPointF const& position) { marker_->drawAt(target, position); });
    canvas.restore();
  }

  // The colour of the pattern seen from afar.
  QColor mean() {
    int const side = static_cast<int>(std::clamp(std::ceil(8 * std::max(dx_, dy_)), 64.0, 512.0));
    return meanColor(drawn(QRect(0, 0, side, side), QPointF()));
  }

private:
  void draw(QPainter& painter, QRectF const& area, QPointF const& anchor) {
    DrawTarget target(painter, QTransform(), pixelsPerPoint_);
    visit(area, anchor, [&](QPointF const& position) { marker_->drawAt(target, position); });
  }

  // The places of all markers that reach into the area.
  template <class Visit>
  void visit(QRectF const& area, QPointF const& anchor, Visit const& visit) {
    QRectF const bounds = marker_->bounds();
    QRectF const reached =
        area.adjusted(-bounds.right() - 2, -bounds.bottom() - 2, -bounds.left() + 2, -bounds.top() + 2);
    QRectF const onGrid = toDevice_.inverted().mapRect(reached.translated(-anchor));
    double const lastRow = std::ceil(onGrid.bottom() / dy_);
    for (double row = std::floor(onGrid.top() / dy_); row <= lastRow && row + 1 > row; ++row) {
      double const shift = staggered_ && std::fmod(row, 2) != 0 ? dx_ / 2 : 0;
      double const lastColumn = std::ceil((onGrid.right() - shift) / dx_);
      for (double column = std::floor((onGrid.left() - shift) / dx_); column <= lastColumn && column + 1 > column;
           ++column) {
        QPointF const position = anchor + toDevice_.map(QPointF(column * dx_ + shift, row * dy_));
        if (reached.contains(position)) visit(position);
      }
    }
  }

  std::unique_ptr<MarkerDrawing> const marker_;
  double const pixelsPerPoint_;
  bool const staggered_;
  double dx_, dy_;
  QTransform toDevice_;  // of the grid, but for the anchor
};

}  // namespace

PointPatternFillSymbol::PointPatternFillSymbol() : marker_(SysUtility::make<SimpleMarkerSymbol>()) {}
PointPatternFillSymbol::PointPatternFillSymbol(PointPatternFillSymbol const& other) : PatternedFill(other) {
  *this = other;
}
PointPatternFillSymbol& PointPatternFillSymbol::operator=(PointPatternFillSymbol const& other) {
  PatternedFill::operator=(other);
  marker_ = other.marker_ ? ptr_cast<MarkerSymbol>(other.marker_->Clone()) : nullptr;
  grid_ = other.grid_;
  return *this;
}
PointPatternFillSymbol::~PointPatternFillSymbol() = default;

_ptr_t<Symbol> PointPatternFillSymbol::Clone() const { return SysUtility::make<PointPatternFillSymbol>(*this); }

std::unique_ptr<Filling> PointPatternFillSymbol::filling(double pixelsPerPoint) const {
  auto const marker = ptr_cast<PreparableMarker>(marker_);
  double const pixels = grid_.dx * grid_.dy * pixelsPerPoint * pixelsPerPoint;
  if (!marker || !(pixels > 0)) return nullptr;
  bool const isFine = pixels < fewestPixels;
  double const scale = isFine ? pixelsPerPoint * 8 / std::sqrt(pixels) : pixelsPerPoint;
  auto drawing = marker->prepare(scale);
  if (!drawing) return nullptr;
  auto pattern = std::make_unique<PointPattern>(std::move(drawing), grid_, scale);
  return isFine ? solidFilling(pattern->mean()) : patternFilling(std::move(pattern));
}

}  // namespace SysDisplay
