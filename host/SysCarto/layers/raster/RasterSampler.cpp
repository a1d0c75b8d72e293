#include "RasterSampler.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr qint64 maxWindowPixels = 32 * 1024 * 1024;
constexpr int margin = 2;  // pixels about a place that a cubic takes into account
constexpr int maxTaps = 8;
constexpr size_t maxBandsAtOnce = 16;
constexpr double leastWeight = 1e-6;

// Weights of neighbouring columns or rows, of which the first is `first`.
struct Taps {
  int first = 0, count = 0;
  double weights[maxTaps];
};

// Keys's cubic convolution with a = −1/2.
double cubic(double distance) {
  double const x = std::abs(distance);
  if (x < 1) return (1.5 * x - 2.5) * x * x + 1;
  return x < 2 ? ((-0.5 * x + 2.5) * x - 4) * x + 2 : 0;
}

// `place` is counted from the edge of the first pixel, whose middle is at a half. `breadth` are the raster's pixels on
// one of the picture.
Taps tapsAt(double place, double breadth, Resampling resampling) {
  Taps taps;
  if (resampling == Resampling::Average && breadth > 1) {
    double const half = std::min(breadth, maxTaps - 1.0) / 2, from = place - half, to = place + half;
    taps.first = static_cast<int>(std::floor(from));
    taps.count = std::min(maxTaps, static_cast<int>(std::ceil(to)) - taps.first);
    for (int i = 0; i < taps.count; ++i)
      taps.weights[i] = std::min(to, taps.first + i + 1.0) - std::max(from, double(taps.first + i));
    return taps;
  }
  if (resampling == Resampling::Nearest || resampling == Resampling::Average) {
    taps.first = static_cast<int>(std::floor(place));
    taps.count = 1;
    taps.weights[0] = 1;
    return taps;
  }
  double const middle = place - 0.5, below = std::floor(middle), rest = middle - below;
  int const reach = resampling == Resampling::Cubic ? 2 : 1;
  taps.first = static_cast<int>(below) - reach + 1;
  taps.count = 2 * reach;
  for (int i = 0; i < taps.count; ++i)
    taps.weights[i] = resampling == Resampling::Cubic ? cubic(rest - (i - reach + 1)) : i == 0 ? 1 - rest : rest;
  return taps;
}

// What is read of a level for all places: with what lies about them, as far as the level reaches.
QRect windowOf(PixelPlaces const& places, RasterLevel const& level) {
  double xmin = level.size.width(), ymin = level.size.height(), xmax = 0, ymax = 0;
  for (size_t i = 0; i < places.columns.size(); ++i) {
    if (!std::isfinite(places.columns[i])) continue;
    double const x = places.columns[i] / level.columns, y = places.rows[i] / level.rows;
    xmin = std::min(xmin, x);
    xmax = std::max(xmax, x);
    ymin = std::min(ymin, y);
    ymax = std::max(ymax, y);
  }
  QPoint const from(static_cast<int>(std::floor(xmin)) - margin, static_cast<int>(std::floor(ymin)) - margin);
  QPoint const to(static_cast<int>(std::floor(xmax)) + margin, static_cast<int>(std::floor(ymax)) + margin);
  QRect const last(level.size.width() - 1, level.size.height() - 1, 1, 1);  // where a level leaves out a narrow rest
  QRect const window = QRect(from, to) & QRect(QPoint(0, 0), level.size);
  return window.isEmpty() ? last : window;
}

// Beyond the raster's edge its last pixel goes on.
class Sampler {
public:
  Sampler(RasterPixels const& pixels, SampledPixels& sampled) : pixels_(pixels), sampled_(sampled) {}

  void add(size_t i, Taps const& across, Taps const& down) {
    QRect const& window = pixels_.window;
    size_t columns[maxTaps] = {};
    for (int column = 0; column < across.count; ++column)
      columns[column] = size_t(std::clamp(across.first + column - window.left(), 0, window.width() - 1));
    size_t const bands = std::min<size_t>(pixels_.bands.size(), maxBandsAtOnce);
    double sums[maxBandsAtOnce] = {}, whole = 0, covered = 0;
    for (int row = 0; row < down.count; ++row) {
      int const y = std::clamp(down.first + row - window.top(), 0, window.height() - 1);
      size_t const start = size_t(y) * size_t(window.width());
      for (int column = 0; column < across.count; ++column) {
        size_t const k = start + columns[column];
        double const weight = across.weights[column] * down.weights[row];
        double const cover = weight * pixels_.cover[k];
        whole += weight;
        covered += cover;
        for (size_t band = 0; band < bands; ++band) sums[band] += cover * double(pixels_.bands[band][k]);
      }
    }
    double const share = whole > 0 ? covered / (255 * whole) : 0;
    if (share < leastWeight) return;
    sampled_.cover[i] = static_cast<float>(std::min(share, 1.0));
    for (size_t band = 0; band < bands; ++band) sampled_.bands[band][i] = static_cast<float>(sums[band] / covered);
  }

private:
  RasterPixels const& pixels_;
  SampledPixels& sampled_;
};

}  // namespace

QString sampleRaster(RasterSource const& source, PixelPlaces const& places, std::vector<int> const& bands,
                     Resampling resampling, SampledPixels& sampled) {
  size_t const count = places.columns.size();
  sampled.area = places.area;
  sampled.bands.assign(bands.size(), std::vector<float>(count, 0));
  sampled.cover.assign(count, 0);
  if (places.isEmpty) return {};
  RasterLevel level = source.levelFor(std::min(places.perPixelX, places.perPixelY));
  QRect window = windowOf(places, level);
  while (qint64(window.width()) * window.height() > maxWindowPixels) {
    RasterLevel const coarser = source.coarser(level);
    if (coarser.columns <= level.columns) break;
    level = coarser;
    window = windowOf(places, level);
  }
  RasterPixels pixels;
  QString const problem = source.read(level, window, bands, resampling != Resampling::Nearest, pixels);
  if (!problem.isEmpty()) return problem;
  Sampler sampler(pixels, sampled);
  double const acrossBreadth = places.perPixelX / level.columns, downBreadth = places.perPixelY / level.rows;
  for (size_t i = 0; i < count; ++i)
    if (std::isfinite(places.columns[i]))
      sampler.add(i, tapsAt(places.columns[i] / level.columns, acrossBreadth, resampling),
                  tapsAt(places.rows[i] / level.rows, downBreadth, resampling));
  return {};
}

}  // namespace SysCarto
