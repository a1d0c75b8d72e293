#include "SvgMarkerSymbol.h"

#include "host/SysDisplay/DrawingBudget.h"

#include <QImage>
#include <QMap>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace SysDisplay {

using SysUtility::_ptr_t;

namespace {

constexpr int cellPx = 256;
constexpr int phases = 4;     // positions within a pixel, along either axis
constexpr int maxCells = 64;  // kept: 16 MB

// The SVG renderer draws with curves and pens, which Qt rounds differently on the two sides of a tile's edge. So the
// picture is drawn into cells that hang on the marker, and a tile copies the cells that it sees pixel by pixel.
class SvgDrawing final : public MarkerDrawing {
public:
  SvgDrawing(std::shared_ptr<SvgPicture> picture, double sizePx, double degrees) : picture_(std::move(picture)) {
    QSizeF const box = picture_->viewBox().size();
    double const scale = sizePx / std::max(box.width(), box.height());
    size_ = box * scale;
    rotation_.rotate(-degrees);
    bounds_ = rotation_.mapRect(QRectF(-size_.width() / 2, -size_.height() / 2, size_.width(), size_.height()));
  }

  QRectF bounds() const override { return bounds_; }

  void draw(DrawTarget& target, QPointF const& position) override {
    if (target.canvas()) return drawShapes(target.painter(), position);
    // The bias sends what lies between two phases the same way in every tile.
    auto const phased = [](double p) { return std::floor(p * phases + 0.5 + 1e-4); };
    double const x = phased(position.x()), y = phased(position.y());
    double const wholeX = std::floor(x / phases), wholeY = std::floor(y / phases);
    if (std::abs(wholeX) > 1e6 || std::abs(wholeY) > 1e6) return;
    Cell cell{static_cast<int>(x - wholeX * phases), static_cast<int>(y - wholeY * phases), 0, 0};
    QPoint const place(static_cast<int>(wholeX), static_cast<int>(wholeY));
    QRect const seen = covered() & target.area().toAlignedRect().translated(-place);
    if (seen.isEmpty()) return;
    DrawingBudget::spend(double(seen.width()) * seen.height());
    for (cell.row = cellOf(seen.top()); cell.row <= cellOf(seen.bottom()); ++cell.row)
      for (cell.column = cellOf(seen.left()); cell.column <= cellOf(seen.right()); ++cell.column)
        target.painter().drawImage(place + area(cell).topLeft(), image(cell));
  }

private:
  void drawShapes(QPainter& painter, QPointF const& position) {
    painter.save();
    painter.setClipRect(bounds_.translated(position));
    painter.translate(position);
    painter.setTransform(rotation_, true);
    picture_->render(painter, QRectF(-size_.width() / 2, -size_.height() / 2, size_.width(), size_.height()));
    painter.restore();
  }

  struct Cell {
    int phaseX, phaseY, column, row;
    bool operator<(Cell const& o) const {
      return std::tie(phaseX, phaseY, column, row) < std::tie(o.phaseX, o.phaseY, o.column, o.row);
    }
  };

  // A marker of usual size lies within the one cell about its position.
  static int cellOf(int px) { return static_cast<int>(std::floor((px + cellPx / 2.0) / cellPx)); }
  QRect area(Cell const& cell) const {
    return QRect(cell.column * cellPx - cellPx / 2, cell.row * cellPx - cellPx / 2, cellPx, cellPx) & covered();
  }

  // The pixels about the position that the marker may cover in any phase.
  QRect covered() const { return bounds_.toAlignedRect().adjusted(-1, -1, 2, 2); }

  QImage const& image(Cell const& cell) {
    auto const known = cells_.constFind(cell);
    if (known != cells_.constEnd()) return *known;
    if (cells_.size() >= maxCells) cells_.clear();
    return *cells_.insert(cell, drawn(cell));
  }

  QImage drawn(Cell const& cell) {
    QRect const pixels = area(cell);
    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(-pixels.topLeft());
    painter.setClipRect(covered());  // an SVG may draw beyond its view box
    painter.translate(cell.phaseX / double(phases), cell.phaseY / double(phases));
    painter.setTransform(rotation_, true);
    picture_->render(painter, QRectF(-size_.width() / 2, -size_.height() / 2, size_.width(), size_.height()));
    return image;
  }

  std::shared_ptr<SvgPicture> const picture_;
  QSizeF size_;
  QTransform rotation_;
  QRectF bounds_;
  QMap<Cell, QImage> cells_;
};

}  // namespace

SvgMarkerSymbol::SvgMarkerSymbol() = default;
SvgMarkerSymbol::SvgMarkerSymbol(SvgMarkerSymbol const&) = default;
SvgMarkerSymbol& SvgMarkerSymbol::operator=(SvgMarkerSymbol const&) = default;
SvgMarkerSymbol::~SvgMarkerSymbol() = default;

_ptr_t<Symbol> SvgMarkerSymbol::Clone() const { return SysUtility::make<SvgMarkerSymbol>(*this); }

std::unique_ptr<MarkerDrawing> SvgMarkerSymbol::prepare(double pixelsPerPoint) const {
  if (!picture_ || GetSize() <= 0) return nullptr;
  return std::make_unique<SvgDrawing>(picture_, GetSize() * pixelsPerPoint, GetAngle());
}

QString SvgMarkerSymbol::setSvg(QByteArray const& svg) {
  QString problem;
  if (auto const picture = SvgPicture::of(svg, problem)) picture_ = picture;
  return problem;
}

}  // namespace SysDisplay
