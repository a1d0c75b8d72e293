#include "GradientFillSymbol.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/FillDrawing.h"

#include <QImage>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace SysDisplay {

using SysGeometry::Box;
using SysUtility::_ptr_t;

namespace {

constexpr double pixelCost = 5;

constexpr int shades = 1024;
constexpr qint64 maxWaitingPixels = 4 * 1024 * 1024;

// The colours at evenly spaced places, premultiplied, so that what shines through does not darken on its way.
std::vector<QRgb> shadesOf(QVector<GradientStop> const& stops) {
  auto const channels = [](QColor const& color) {
    double const alpha = color.alphaF();
    return std::array<double, 4>{color.redF() * alpha, color.greenF() * alpha, color.blueF() * alpha, alpha};
  };
  std::vector<QRgb> result;
  int next = 0;
  for (int i = 0; i < shades; ++i) {
    double const percent = i * 100.0 / (shades - 1);
    while (next < stops.size() && stops[next].percent <= percent) ++next;
    GradientStop const& before = stops[std::max(next - 1, 0)];
    GradientStop const& after = stops[std::min(next, stops.size() - 1)];
    double const between = after.percent - before.percent;
    double const part = between > 0 ? (percent - before.percent) / between : 0;
    auto const from = channels(before.color), to = channels(after.color);
    int mixed[4];
    for (int c = 0; c < 4; ++c)
      mixed[c] = static_cast<int>(std::floor((from[c] + (to[c] - from[c]) * std::clamp(part, 0.0, 1.0)) * 255 + 0.5));
    result.push_back(qRgba(mixed[0], mixed[1], mixed[2], mixed[3]));
  }
  return result;
}

// How far along a gradient the places of a rectangle are. Counted from the rectangle's corner, so that tiles get the
// same numbers to the last bit.
class Course {
public:
  Course(GradientFillSymbol::Gradient const& gradient, QSizeF const& size)
      : isRadial_(gradient.shape == GradientShape::Radial), centre_(size.width() / 2, size.height() / 2) {
    QTransform const rotation = QTransform().rotate(gradient.angle);
    direction_ = {rotation.m11(), -rotation.m12()};
    length_ = isRadial_ ? std::max(size.width(), size.height()) / 2
                        : std::abs(size.width() * direction_.x()) + std::abs(size.height() * direction_.y());
  }

  QGradient gradient(QGradientStops const& stops) const {
    QPointF const half = direction_ * length_ / 2;
    QGradient result = isRadial_ ? QGradient(QRadialGradient(centre_, length_))
                                 : QGradient(QLinearGradient(centre_ - half, centre_ + half));
    result.setStops(stops);
    return result;
  }

  int shadeAt(double x, double y) const {
    double const dx = x - centre_.x(), dy = y - centre_.y();
    if (!(length_ > 0)) return 0;
    double const along = isRadial_ ? std::sqrt(dx * dx + dy * dy) / length_
                                   : (dx * direction_.x() + dy * direction_.y()) / length_ + 0.5;
    return along > 0 ? static_cast<int>(std::min(along, 1.0) * (shades - 1) + 0.5) : 0;
  }

private:
  bool const isRadial_;
  QPointF const centre_;
  QPointF direction_;
  double length_;
};

class GradientFilling final : public Filling {
public:
  explicit GradientFilling(GradientFillSymbol::Gradient const& gradient)
      : gradient_(gradient), shades_(shadesOf(gradient.stops)) {}

  void fill(DrawTarget& target, PointRuns const& rings, QRectF const&, Box const& shape) override {
    if (shape.isEmpty()) return;
    if (auto* const canvas = target.canvas()) {
      QRectF const place = onDevice(target.toDevice(), shape);
      return canvas->fill(rings, Course(gradient_, place.size()).gradient(stops()),
                          QTransform::fromTranslate(place.x(), place.y()), Qt::OddEvenFill);
    }
    QRect const area = target.area().toAlignedRect();
    QRect const seen = rings.bounds().intersected(QRectF(area)).toAlignedRect() & area;
    if (seen.isEmpty() || DrawingBudget::isSpent()) return;
    DrawingBudget::spend(pixelCost * seen.width() * seen.height());
    QImage const image = drawn(seen, onDevice(target.toDevice(), shape));
    if (image.isNull()) return;
    target.fill(rings,
                std::make_shared<Texture>(Texture{image.convertToFormat(target.textureFormat()), seen.topLeft()}),
                Qt::OddEvenFill);
    waitingPixels_ += qint64(seen.width()) * seen.height();
    if (waitingPixels_ < maxWaitingPixels) return;
    target.finish();
    waitingPixels_ = 0;
  }

private:
  static QRectF onDevice(QTransform const& toDevice, Box const& shape) {
    auto const corner = [&](double x, double y) {
      QPointF const place = toDevice.map(QPointF(x, y));
      return snapped(QPointF(std::clamp(place.x(), -maxCoordinatePx, maxCoordinatePx),
                             std::clamp(place.y(), -maxCoordinatePx, maxCoordinatePx)));
    };
    return QRectF(corner(shape.xmin, shape.ymin), corner(shape.xmax, shape.ymax)).normalized();
  }

  // Where two stops share a place, the colours change at once; Qt holds one stop at a place.
  QGradientStops stops() const {
    constexpr double nearest = 1e-6;
    QGradientStops stops;
    for (GradientStop const& stop : gradient_.stops) {
      double const place = stop.percent / 100;
      stops << QGradientStop(stops.isEmpty() ? place : std::max(place, stops.last().first + nearest), stop.color);
      if (stops.last().first > 1) stops.last().first = 1;
    }
    return stops;
  }

  QImage drawn(QRect const& area, QRectF const& shape) const {
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    Course const course(gradient_, shape.size());
    for (int row = 0; row < area.height(); ++row) {
      auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(row));
      double const y = area.top() + row + 0.5 - shape.top();
      for (int column = 0; column < area.width(); ++column)
        pixels[column] = shades_[static_cast<size_t>(course.shadeAt(area.left() + column + 0.5 - shape.left(), y))];
    }
    return image;
  }

  GradientFillSymbol::Gradient const gradient_;
  std::vector<QRgb> const shades_;
  qint64 waitingPixels_ = 0;
};

}  // namespace

GradientFillSymbol::GradientFillSymbol() {
  gradient_.stops = {{0, QColor(0xe8, 0xe8, 0xe8)}, {100, QColor(0x80, 0x80, 0x80)}};
}
GradientFillSymbol::GradientFillSymbol(GradientFillSymbol const&) = default;
GradientFillSymbol& GradientFillSymbol::operator=(GradientFillSymbol const&) = default;
GradientFillSymbol::~GradientFillSymbol() = default;

_ptr_t<Symbol> GradientFillSymbol::Clone() const { return SysUtility::make<GradientFillSymbol>(*this); }

std::unique_ptr<Filling> GradientFillSymbol::filling(double) const {
  if (gradient_.stops.isEmpty()) return nullptr;
  return std::make_unique<GradientFilling>(gradient_);
}

}  // namespace SysDisplay
