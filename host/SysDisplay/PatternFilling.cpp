#include "PatternFilling.h"

#include "host/SysDisplay/DrawingBudget.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace SysDisplay {

using SysGeometry::Box;

namespace {

constexpr int cellPx = 128;
constexpr double pixelCost = 20;

class PatternFilling final : public Filling {
public:
  explicit PatternFilling(std::unique_ptr<Pattern> pattern) : pattern_(std::move(pattern)) {}

  void fill(DrawTarget& target, PointRuns const& rings, QRectF const&, Box const&) override {
    if (!std::isfinite(target.anchor().x()) || !std::isfinite(target.anchor().y())) return;
    if (auto* const canvas = target.canvas()) return pattern_->drawShapes(target, *canvas, rings);
    if (!sheet_) unfold(target);
    QRect const seen = rings.bounds().intersected(QRectF(area_)).toAlignedRect() & area_;
    if (seen.isEmpty() || !pixels_) return;
    QRect const cells(QPoint((seen.left() - area_.left()) / cellPx, (seen.top() - area_.top()) / cellPx),
                      QPoint((seen.right() - area_.left()) / cellPx, (seen.bottom() - area_.top()) / cellPx));
    for (int row = cells.top(); row <= cells.bottom(); ++row)
      for (int column = cells.left(); column <= cells.right(); ++column) draw(target, column, row);
    target.fill(rings, sheet_, Qt::OddEvenFill);
  }

private:
  // Room for all that can be reached. The queue reads the pixels while others are written, so that they are written
  // where they are, and not through the image, which would make a copy.
  void unfold(DrawTarget& target) {
    area_ = target.area().toAlignedRect();
    QImage image(area_.size(), target.textureFormat());
    pixels_ = image.isNull() ? nullptr : image.bits();
    bytesPerLine_ = image.bytesPerLine();
    columns_ = (area_.width() + cellPx - 1) / cellPx;
    isDrawn_.assign(static_cast<size_t>(columns_) * ((area_.height() + cellPx - 1) / cellPx), false);
    sheet_ = std::make_shared<Texture>(Texture{image, area_.topLeft()});
  }

  void draw(DrawTarget& target, int column, int row) {
    std::vector<bool>::reference isDrawn = isDrawn_[static_cast<size_t>(row) * columns_ + column];
    if (isDrawn) return;
    isDrawn = true;
    if (DrawingBudget::isSpent()) return;
    DrawingBudget::spend(pixelCost * cellPx * cellPx);
    QRect const cell =
        QRect(area_.left() + column * cellPx, area_.top() + row * cellPx, cellPx, cellPx).intersected(area_);
    QImage const drawn = pattern_->drawn(cell, target.anchor()).convertToFormat(target.textureFormat());
    uchar* at = pixels_ + (cell.top() - area_.top()) * bytesPerLine_ + (cell.left() - area_.left()) * 4;
    for (int y = 0; y < drawn.height(); ++y, at += bytesPerLine_)
      std::memcpy(at, drawn.constScanLine(y), static_cast<size_t>(drawn.width()) * 4);
  }

  std::unique_ptr<Pattern> const pattern_;
  QRect area_;
  std::shared_ptr<Texture const> sheet_;  // empty until something is filled
  uchar* pixels_ = nullptr;
  qsizetype bytesPerLine_ = 0;
  int columns_ = 0;
  std::vector<bool> isDrawn_;  // the cells, row by row
};

}  // namespace

Pattern::~Pattern() = default;

std::unique_ptr<Filling> patternFilling(std::unique_ptr<Pattern> pattern) {
  return std::make_unique<PatternFilling>(std::move(pattern));
}

QColor meanColor(QImage const& image) {
  double red = 0, green = 0, blue = 0, alpha = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      QRgb const pixel = reinterpret_cast<QRgb const*>(image.constScanLine(y))[x];
      red += qRed(pixel);
      green += qGreen(pixel);
      blue += qBlue(pixel);
      alpha += qAlpha(pixel);
    }
  if (alpha <= 0) return Qt::transparent;
  auto const channel = [&](double sum) { return std::min(sum / alpha, 1.0); };
  return QColor::fromRgbF(channel(red), channel(green), channel(blue),
                          alpha / 255 / (double(image.width()) * image.height()));
}

}  // namespace SysDisplay
