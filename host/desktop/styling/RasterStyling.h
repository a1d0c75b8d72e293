#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

namespace SysCarto {
class RasterSource;
}

/// How a raster that nobody has styled is drawn by one layer of it.
struct RasterLook {
  QJsonObject renderer;
  bool isRelief = false;  ///< shades what is drawn before it
  bool isLegendWorthy = false;
  QString reason;  ///< what was chosen and why, as of a `StyledLayer`
};

namespace RasterStyling {

/// By what the bands hold: a palette in its colours; three bands or more as a picture; one of bytes in greys; all
/// others are taken for heights.
std::vector<RasterLook> looksOf(SysCarto::RasterSource const& raster);

/// Whether the file is so large, and without overviews, that a person should know.
bool isSlow(SysCarto::RasterSource const& raster);

}  // namespace RasterStyling
