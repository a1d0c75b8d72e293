#include "RasterColors.h"

#include "host/SysCarto/layers/ColorRamp.h"
#include "host/SysUtility/NumberText.h"

#include <SysDisplay/SimpleFillSymbol.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace SysCarto {

namespace {

using Kind = RasterRendererSettings::Kind;

constexpr int rampColors = 256;
constexpr int fewestTold = 4, mostTold = 12;
constexpr double noRange = 1e-9;
constexpr char const* slopeRamp = "Greys";

double valueAt(std::vector<float> const& sorted, double share) {
  return sorted[static_cast<size_t>(std::lround(share * double(sorted.size() - 1)))];
}

ColorRamp const& rampOf(RasterRendererSettings const& settings) {
  if (ColorRamp const* const named = ColorRamp::named(settings.ramp)) return *named;
  return settings.kind == Kind::Slope ? *ColorRamp::named(QLatin1String(slopeRamp))
                                      : ColorRamp::usual(RampKind::Sequential);
}

// Of what is not negative; std::lround asks more, and costs more than all else that is done for a pixel.
int rounded(double number) { return static_cast<int>(number + 0.5); }

QRgb mixed(QColor const& a, QColor const& b, double part) {
  auto const mix = [part](int from, int to) { return rounded(from + part * (to - from)); };
  return qRgba(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()), mix(a.alpha(), b.alpha()));
}

// Of great numbers, the next one is farther than 1.
double someAbove(double number) {
  return std::max(number + 1, std::nextafter(number, std::numeric_limits<double>::infinity()));
}

// Multiples of 1, 2 or 5 times a power of ten, at least a few of them.
std::vector<double> toldNumbers(ValueRange const& range) {
  std::vector<double> numbers;
  double const low = std::min(range.low, range.high), high = std::max(range.low, range.high), width = high - low;
  if (!(width > 0) || !std::isfinite(width)) return {range.low};
  double step = 5 * std::pow(10, std::floor(std::log10(width)));
  for (double const factor : {0.4, 0.5, 0.5}) {
    if (width / step >= fewestTold) break;
    step *= factor;
  }
  double const first = std::ceil(low / step) * step;
  for (int i = 0; i < mostTold && first + i * step <= high + step * noRange; ++i)
    if (double const number = first + i * step; numbers.empty() || number > numbers.back()) numbers.push_back(number);
  return numbers;
}

}  // namespace

ValueRange ValueRange::of(StretchSettings const& stretch, std::vector<float> values) {
  using Stretch = StretchSettings::Kind;
  ValueRange range;
  if (stretch.kind == Stretch::None) return range;
  if (stretch.kind == Stretch::Range)
    return {stretch.minimum, stretch.maximum == stretch.minimum ? someAbove(stretch.minimum) : stretch.maximum};
  if (values.empty()) return range;
  if (stretch.kind == Stretch::Deviations) {
    double const count = double(values.size());
    double const mean = std::accumulate(values.begin(), values.end(), 0.0) / count;
    double squares = 0;
    for (float const value : values) squares += (value - mean) * (value - mean);
    double const reach = stretch.deviations * std::sqrt(squares / count);
    range = {mean - reach, mean + reach};
  } else {
    std::sort(values.begin(), values.end());
    double const cut = stretch.kind == Stretch::Percentiles ? stretch.percent / 100 : 0;
    range = {valueAt(values, cut), valueAt(values, 1 - cut)};
  }
  if (!(range.high > range.low)) range.high = someAbove(range.low);
  return range;
}

RasterColors::RasterColors(RasterRendererSettings const& settings, ToneSettings const& tone, RasterSource const& source)
    : settings_(settings),
      tone_(tone),
      classes_(settings.classes),
      light_(settings.azimuth, settings.altitude, settings.multidirectional) {
  using Stretch = StretchSettings::Kind;
  bool const isStretched = settings.kind == Kind::Color || (settings.kind == Kind::Ramp && classes_.empty());
  bool const looks = isStretched && settings.stretch.kind != Stretch::None && settings.stretch.kind != Stretch::Range;
  std::vector<int> const bands = settings.bands();
  for (size_t i = 0; i < bands.size() && isStretched; ++i)
    ranges_[i] = ValueRange::of(settings.stretch, looks ? source.sample(bands[i]) : std::vector<float>());
  if (settings.kind == Kind::Slope) ranges_[0] = {0, settings.steepest};
  if (settings.kind == Kind::Palette && classes_.empty()) {
    QVector<QColor> const palette = source.palette(settings.band);
    for (int i = 0; i < palette.size(); ++i) classes_.push_back({double(i), palette[i], QString()});
  }
  std::stable_sort(classes_.begin(), classes_.end(),
                   [](RasterClass const& a, RasterClass const& b) { return a.value < b.value; });
  for (QColor const& color : rampOf(settings).colors(rampColors, settings.reversed)) ramp_.push_back(color.rgba());
  for (int i = 0; i < 256; ++i)
    gamma_[size_t(i)] = static_cast<unsigned char>(std::lround(255 * std::pow(i / 255.0, 1 / settings.gamma)));
}

// Of a value that belongs to no class, none. Pixels are read as floats, which hold no 0.1: so classes are compared.
QRgb RasterColors::stepOf(double value) const {
  auto const read = static_cast<float>(value);
  auto const above = std::upper_bound(classes_.begin(), classes_.end(), read, [](float one, RasterClass const& other) {
    return one < static_cast<float>(other.value);
  });
  if (settings_.kind == Kind::Palette) {
    if (above == classes_.begin() || static_cast<float>(std::prev(above)->value) != read) return 0;
    return std::prev(above)->color.rgba();
  }
  bool const mixes = settings_.interpolates;
  if (above == classes_.begin()) return mixes ? above->color.rgba() : 0;
  RasterClass const& below = *std::prev(above);
  if (!mixes || above == classes_.end()) return below.color.rgba();
  return mixed(below.color, above->color, (value - below.value) / (above->value - below.value));
}

QRgb RasterColors::colorOf(double value) const {
  if (!classes_.empty()) return stepOf(value);
  if (settings_.kind == Kind::Palette) return 0;
  double const place = std::clamp(ranges_[0].part(value), 0.0, 1.0) * (rampColors - 1);
  return ramp_[static_cast<size_t>(rounded(place))];
}

// Where a neighbour is missing, the ground goes on as it is.
QRgb RasterColors::reliefAt(SampledPixels const& sampled, QPoint const& place, GroundPixel const& ground) const {
  std::vector<float> const& heights = sampled.bands[0];
  size_t const middle = sampled.at(place.x(), place.y());
  HeightWindow window;
  size_t const row = size_t(sampled.area.width()), first = middle - row - 1;
  for (size_t y = 0; y < 3; ++y)
    for (size_t x = 0; x < 3; ++x) {
      size_t const k = first + y * row + x;
      window[3 * y + x] = settings_.verticalFactor * double(heights[sampled.cover[k] > 0 ? k : middle]);
    }
  Gradient const gradient = Gradient::of(window, ground.across, ground.down);
  if (settings_.kind == Kind::Slope) return colorOf(gradient.slopeDegrees());
  int const grey = rounded(light_.shade(gradient));
  return qRgb(grey, grey, grey);
}

void RasterColors::paint(SampledPixels const& sampled, std::vector<GroundPixel> const& ground, QPoint const& origin,
                         QImage& image) const {
  auto const channel = [&](int band, size_t i) {
    double const part = ranges_[size_t(band)].part(double(sampled.bands[size_t(band)][i]));
    return int(gamma_[static_cast<size_t>(rounded(255 * std::clamp(part, 0.0, 1.0)))]);
  };
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<unsigned char*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      QPoint const place = origin + QPoint(x, y);
      size_t const i = sampled.at(place.x(), place.y());
      QRgb color = 0;
      if (sampled.cover[i] > 0) {
        if (settings_.isRelief())
          color = reliefAt(sampled, place, ground[size_t(y) * size_t(image.width()) + size_t(x)]);
        else if (settings_.kind == Kind::Color)
          color = qRgb(channel(0, i), channel(1, i), channel(2, i));
        else
          color = colorOf(double(sampled.bands[0][i]));
        if (!tone_.areNone()) color = tone_.applied(color);
      }
      int const alpha = rounded(qAlpha(color) * double(sampled.cover[i]));
      QRgb const drawn = qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), alpha));
      line[4 * x] = static_cast<unsigned char>(qRed(drawn));
      line[4 * x + 1] = static_cast<unsigned char>(qGreen(drawn));
      line[4 * x + 2] = static_cast<unsigned char>(qBlue(drawn));
      line[4 * x + 3] = static_cast<unsigned char>(qAlpha(drawn));
    }
  }
}

// The values of a class, for people: of one that holds up to the next, from where to where.
QString RasterColors::rangeOf(size_t number) const {
  QString const from = SysUtility::grouped(classes_[number].value);
  if (settings_.kind == Kind::Palette || settings_.interpolates) return from;
  return number + 1 == classes_.size()
             ? QStringLiteral("≥ %1").arg(from)
             : QStringLiteral("%1 – %2").arg(from, SysUtility::grouped(classes_[number + 1].value));
}

QList<LegendClass> RasterColors::legend() const {
  QList<LegendClass> classes;
  auto const add = [&](QString const& label, QRgb color) {
    auto const symbol = SysUtility::make<SysDisplay::SimpleFillSymbol>();
    symbol->SetColor(QColor::fromRgba(tone_.areNone() ? color : tone_.applied(color)));
    classes << LegendClass{label, symbol};
  };
  if (settings_.kind == Kind::Color || settings_.kind == Kind::Hillshade) return classes;
  QString const unit = settings_.kind == Kind::Slope ? QStringLiteral("°") : QString();
  if (!settings_.classes.empty()) {
    for (size_t i = 0; i < classes_.size(); ++i)
      add(classes_[i].label.isEmpty() ? rangeOf(i) : classes_[i].label, classes_[i].color.rgba());
  } else if (settings_.kind != Kind::Palette) {
    for (double const number : toldNumbers(ranges_[0])) add(SysUtility::grouped(number) + unit, colorOf(number));
  }
  if (settings_.kind != Kind::Palette) std::reverse(classes.begin(), classes.end());  // as the ground rises
  return classes;
}

}  // namespace SysCarto
