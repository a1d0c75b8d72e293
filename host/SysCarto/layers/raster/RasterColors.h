#pragma once

#include "RasterRenderer.h"
#include "RasterSampler.h"
#include "Relief.h"

#include <SysCarto/Layer.h>

#include <QImage>

#include <array>
#include <cmath>
#include <vector>

namespace SysCarto {

/// The least and the greatest of the values that have colours of their own.
struct ValueRange {
  double low = 0, high = 255;

  /// 0 at `low`, 1 at `high`; 0 also where numbers are too great to tell.
  double part(double value) const {
    double const part = (value - low) / (high - low);
    return std::isnan(part) ? 0 : part;
  }

  static ValueRange of(StretchSettings const& stretch, std::vector<float> values);
};

/// Metres of ground on a pixel.
struct GroundPixel {
  double across = 1, down = 1;
};

/// How the values of a raster become colours. Where settings ask for what its values are, they are looked at once.
class RasterColors {
public:
  RasterColors(RasterRendererSettings const& settings, ToneSettings const& tone, RasterSource const& source);

  /// Paints an image, whose upper left pixel is `origin`. For a relief, `sampled` reaches a pixel farther, and `ground`
  /// has an entry for each pixel of the image.
  void paint(SampledPixels const& sampled, std::vector<GroundPixel> const& ground, QPoint const& origin,
             QImage& image) const;

  /// What a legend lists.
  QList<LegendClass> legend() const;

private:
  QRgb colorOf(double value) const;
  QString rangeOf(size_t number) const;
  QRgb stepOf(double value) const;
  QRgb reliefAt(SampledPixels const& sampled, QPoint const& place, GroundPixel const& ground) const;

  RasterRendererSettings const settings_;
  ToneSettings const tone_;
  std::array<ValueRange, 3> ranges_;
  std::vector<QRgb> ramp_;  // evenly spaced
  std::vector<RasterClass> classes_;
  std::array<unsigned char, 256> gamma_;
  Hillshade const light_;
};

}  // namespace SysCarto
