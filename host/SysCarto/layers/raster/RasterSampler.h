#pragma once

#include "RasterPlaces.h"
#include "RasterSource.h"

namespace SysCarto {

/// How values are found between the pixels of a raster.
enum class Resampling { Nearest, Bilinear, Cubic, Average };

/// The values of a raster at the pixels of a picture, by rows.
struct SampledPixels {
  QRect area;
  std::vector<std::vector<float>> bands;
  std::vector<float> cover;  ///< from 0, where there is nothing, to 1

  size_t at(int x, int y) const { return size_t(y - area.top()) * size_t(area.width()) + size_t(x - area.left()); }
};

/// Samples the bands of a raster at places, from the level whose pixels are about as large as those of the picture.
/// What is missing weighs nothing. An empty text, or a clause that says why the raster could not be read.
QString sampleRaster(RasterSource const& source, PixelPlaces const& places, std::vector<int> const& bands,
                     Resampling resampling, SampledPixels& sampled);

}  // namespace SysCarto
