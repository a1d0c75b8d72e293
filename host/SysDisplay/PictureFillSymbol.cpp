#include "PictureFillSymbol.h"

#include "host/SysDisplay/PatternFilling.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace SysDisplay {

using SysUtility::_ptr_t;

namespace {

// A tile is drawn with so many texels to a pixel, and sampled between four of them.
constexpr double texelsPerPixel = 2;
constexpr int maxTexels = 2048;  // along either side of a tile: 16 MB

// A tile with a shorter side is seen as one colour.
constexpr double shortestSidePx = 1.5;

QImage drawnTile(SvgPicture& picture, QSizeF const& sizePx) {
  auto const texels = [](double px) {
    return static_cast<int>(std::clamp(std::round(px * texelsPerPixel), 1.0, double(maxTexels)));
  };
  return picture.drawn({texels(sizePx.width()), texels(sizePx.height())});
}

// The tile at any place between its texels; beyond its sides it goes on.
class Sampler {
public:
  explicit Sampler(QImage const& tile) : tile_(tile) {}

  /// In texels from the upper left corner.
  QRgb at(double u, double v) const {
    double const left = std::floor(u - 0.5), top = std::floor(v - 0.5);
    unsigned const right = share(u - 0.5 - left), below = share(v - 0.5 - top);
    int const x1 = wrapped(static_cast<int>(left), tile_.width()), x2 = wrapped(x1 + 1, tile_.width());
    int const y1 = wrapped(static_cast<int>(top), tile_.height()), y2 = wrapped(y1 + 1, tile_.height());
    QRgb const *upper = line(y1), *lower = line(y2);
    return mixed(mixed(upper[x1], upper[x2], right), mixed(lower[x1], lower[x2], right), below);
  }

private:
  static unsigned share(double part) { return static_cast<unsigned>(part * 256); }
  static int wrapped(int number, int count) {
    return number < 0 ? number + count : number >= count ? number - count : number;
  }
  static QRgb mixed(QRgb a, QRgb b, unsigned shareOfB) {
    auto const channel = [=](int shift) {
      return ((((a >> shift) & 255) * (256 - shareOfB) + ((b >> shift) & 255) * shareOfB + 128) >> 8) << shift;
    };
    return channel(0) | channel(8) | channel(16) | channel(24);
  }
  QRgb const* line(int y) const { return reinterpret_cast<QRgb const*>(tile_.constScanLine(y)); }

  QImage const& tile_;
};

// Pictures side by side must not show where they meet, at whatever angle and fraction of a pixel. So no picture is
// drawn there: each pixel is looked up in one tile, by its distance from the anchor.
class PicturePattern final : public Pattern {
public:
  PicturePattern(std::shared_ptr<SvgPicture> const& picture, QSizeF const& sizePx, double degrees)
      : picture_(picture), sizePx_(sizePx), degrees_(degrees) {
    QTransform const rotation = QTransform().rotate(degrees);
    cosine_ = rotation.m11();
    sine_ = rotation.m12();
  }

  QImage drawn(QRect const& area, QPointF const& anchor) override {
    if (tile_.isNull()) tile_ = drawnTile(*picture_, sizePx_);
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    Sampler const sampler(tile_);
    for (int row = 0; row < area.height(); ++row) {
      auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(row));
      double const y = area.top() + row + 0.5 - anchor.y();
      for (int column = 0; column < area.width(); ++column) {
        double const x = area.left() + column + 0.5 - anchor.x();
        pixels[column] = sampler.at(texel(x * cosine_ - y * sine_, sizePx_.width(), tile_.width()),
                                    texel(x * sine_ + y * cosine_, sizePx_.height(), tile_.height()));
      }
    }
    return image;
  }

  void drawShapes(DrawTarget& target, VectorCanvas& canvas, PointRuns const& rings) override {
    if (&canvas != canvas_) {
      canvas.beginSymbol(QRectF(QPointF(0, 0), sizePx_));
      {
        DrawTarget own(target.painter(), QTransform(), target.pixelsPerPoint());
        picture_->render(own.painter(), QRectF(QPointF(0, 0), sizePx_));
      }
      symbol_ = canvas.endSymbol();
      canvas_ = &canvas;
    }
    QTransform const turned = QTransform().rotate(-degrees_);
    canvas.fill(rings,
                {symbol_, sizePx_, turned * QTransform::fromTranslate(target.anchor().x(), target.anchor().y())});
  }

private:
  static double texel(double px, double sidePx, int texels) {
    double const tiles = px / sidePx;
    return (tiles - std::floor(tiles)) * texels;
  }

  std::shared_ptr<SvgPicture> const picture_;
  QSizeF const sizePx_;
  double const degrees_;
  QImage tile_;  // once it is looked at
  double cosine_, sine_;
  VectorCanvas* canvas_ = nullptr;  // which knows the tile
  int symbol_ = 0;                  // by this number
};

}  // namespace

PictureFillSymbol::PictureFillSymbol() = default;
PictureFillSymbol::PictureFillSymbol(PictureFillSymbol const&) = default;
PictureFillSymbol& PictureFillSymbol::operator=(PictureFillSymbol const&) = default;
PictureFillSymbol::~PictureFillSymbol() = default;

_ptr_t<Symbol> PictureFillSymbol::Clone() const { return SysUtility::make<PictureFillSymbol>(*this); }

std::unique_ptr<Filling> PictureFillSymbol::filling(double pixelsPerPoint) const {
  if (!picture_ || !(widthPt_ > 0)) return nullptr;
  QSizeF const box = picture_->viewBox().size();
  double const widthPx = widthPt_ * pixelsPerPoint;
  QSizeF const sizePx(widthPx, widthPx * box.height() / box.width());
  if (std::min(sizePx.width(), sizePx.height()) < shortestSidePx)
    return solidFilling(meanColor(drawnTile(*picture_, {64, 64})));
  return patternFilling(std::make_unique<PicturePattern>(picture_, sizePx, angle_));
}

}  // namespace SysDisplay
