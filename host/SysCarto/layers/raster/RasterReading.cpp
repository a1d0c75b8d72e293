#include "OwnFilesOnly.h"
#include "RasterSource.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>

// Levels of a raster, and pixels of these.

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterSource)
};

constexpr double enough = 1.2;  // an overview may be coarser than a picture by this
constexpr int sampleSide = 512, sampleWindows = 16, sampleWindowSide = 32;
constexpr qint64 smallRaster = 4000000;  // pixels, all of which are looked at
constexpr int mostSamples = 32;          // of the pixels that become one, each way
constexpr qint64 samplesAtOnce = 1024 * 1024;
constexpr float greatest = 1e30f;  // what is greater stands for nothing, like the lowest float

RasterLevel levelOf(QSize const& whole, GDALRasterBand* overview, int number, int reduction) {
  RasterLevel level;
  level.overview = number;
  level.reduction = reduction;
  QSize const own = overview ? QSize(overview->GetXSize(), overview->GetYSize()) : whole;
  level.size = {std::max(1, own.width() / reduction), std::max(1, own.height() / reduction)};
  level.columns = double(whole.width()) / own.width() * reduction;
  level.rows = double(whole.height()) / own.height() * reduction;
  return level;
}

}  // namespace

RasterLevel RasterSource::levelFor(double pixels) const {
  OwnFilesOnly const own;
  GDALRasterBand& band = *dataset_->GetRasterBand(1);
  RasterLevel best = levelOf(size_, nullptr, -1, 1);
  for (int i = 0; i < band.GetOverviewCount(); ++i) {
    RasterLevel const level = levelOf(size_, band.GetOverview(i), i, 1);
    if (level.columns <= pixels * enough && level.columns > best.columns) best = level;
  }
  while (best.columns * 2 <= pixels * enough && std::min(best.size.width(), best.size.height()) > 1)
    best = levelOf(size_, best.overview < 0 ? nullptr : band.GetOverview(best.overview), best.overview,
                   best.reduction * 2);
  return best;
}

RasterLevel RasterSource::coarser(RasterLevel const& level) const { return levelFor(level.columns * 2); }

GDALRasterBand* RasterSource::bandOf(RasterLevel const& level, int band) const {
  GDALRasterBand* const own = dataset_->GetRasterBand(band);
  return level.overview < 0 ? own : own->GetOverview(level.overview);
}

// What is read of a level at once.
struct RasterSource::Samples {
  QRect area;  // of what is stored
  QSize size;
  bool isMean = false;

  bool fill(GDALRasterBand* band, void* values, GDALDataType type) const {
    GDALRasterIOExtraArg how;
    INIT_RASTERIO_EXTRA_ARG(how);
    how.eResampleAlg = isMean ? GRIORA_Average : GRIORA_NearestNeighbour;
    return band && band->RasterIO(GF_Read, area.x(), area.y(), area.width(), area.height(), values, size.width(),
                                  size.height(), type, 0, 0, &how) == CE_None;
  }
};

namespace {

// Values by which a band says that there is none; an overview may be older than the file's own word.
std::vector<float> missingValues(GDALRasterBand& own, GDALRasterBand& read, QVector<double> const& others) {
  std::vector<float> values;
  for (double const value : others) values.push_back(static_cast<float>(value));
  int isGiven = 0, isKnown = 0;
  double const value = own.GetNoDataValue(&isGiven);
  read.GetNoDataValue(&isKnown);
  if (isGiven != 0 && isKnown == 0) values.push_back(static_cast<float>(value));
  return values;
}

}  // namespace

// Of several bands that tell by a value what is missing, all must: a pure colour has a 0 in two of three.
bool RasterSource::readSamples(Samples const& samples, RasterLevel const& level, std::vector<int> const& bands,
                               RasterPixels& pixels) const {
  size_t const count = size_t(samples.size.width()) * size_t(samples.size.height());
  pixels.bands.assign(bands.size(), std::vector<float>(count));
  pixels.cover.assign(count, 255);
  std::vector<unsigned char> mask(count), isThere(count, 0);
  bool canMiss = false;
  for (size_t i = 0; i < bands.size(); ++i) {
    GDALRasterBand* const band = bandOf(level, bands[i]);
    std::vector<float>& values = pixels.bands[i];
    if (!samples.fill(band, values.data(), GDT_Float32)) return false;
    int const flags = band->GetMaskFlags();
    bool const hasMask = (flags & GMF_ALL_VALID) == 0;
    bool const isByValue = (flags & GMF_NODATA) != 0 && (flags & GMF_PER_DATASET) == 0;
    if (hasMask && !samples.fill(band->GetMaskBand(), mask.data(), GDT_Byte)) return false;
    std::vector<float> const missing = missingValues(*dataset_->GetRasterBand(bands[i]), *band, noData_);
    bool const tells = isByValue || !missing.empty();
    canMiss = canMiss || tells;
    RasterBand const& meaning = bands_[size_t(bands[i]) - 1];
    bool const isPlain = meaning.factor == 1 && meaning.offset == 0 && !tells;
    for (size_t k = 0; k < count; ++k) {
      float& value = values[k];
      if (isPlain && !hasMask && std::abs(value) <= greatest) continue;
      if (hasMask && !isByValue) pixels.cover[k] = std::min(pixels.cover[k], mask[k]);
      bool const isMissing =
          (isByValue && mask[k] == 0) || std::find(missing.begin(), missing.end(), value) != missing.end();
      if (tells && !isMissing) isThere[k] = 1;
      auto const result = static_cast<float>(value * meaning.factor + meaning.offset);
      bool const isNumber = std::abs(value) <= greatest && std::abs(result) <= greatest;
      if (!isNumber && !isMissing) pixels.cover[k] = 0;
      value = isNumber ? result : 0;
    }
  }
  for (size_t k = 0; k < count && canMiss; ++k)
    if (isThere[k] == 0) pixels.cover[k] = 0;
  return true;
}

// Where values can be missing, the mean is taken here, over the others: GDAL knows nothing of the layer's own values.
QString RasterSource::read(RasterLevel const& level, QRect const& window, std::vector<int> const& bands, bool takesMean,
                           RasterPixels& pixels) const {
  OwnFilesOnly const own;
  GdalErrors const errors;
  bool const canMiss = !noData_.isEmpty() || std::any_of(bands.begin(), bands.end(), [&](int number) {
    GDALRasterBand& band = *dataset_->GetRasterBand(number);
    int isGiven = 0;
    band.GetNoDataValue(&isGiven);
    return isGiven != 0 || GDALDataTypeIsFloating(band.GetRasterDataType());
  });
  int const step = level.reduction, side = takesMean && canMiss ? std::min(step, mostSamples) : 1;
  size_t const width = size_t(window.width()), count = width * size_t(window.height());
  qint64 const inRow = qint64(window.width()) * side * side;
  int const rowsAtOnce = static_cast<int>(std::clamp<qint64>(samplesAtOnce / inRow, 1, window.height()));
  pixels.window = window;
  pixels.bands.assign(bands.size(), std::vector<float>(count));
  pixels.cover.assign(count, 0);
  bool isRead = true;
  RasterPixels strip;
  for (int top = 0; top < window.height() && isRead; top += rowsAtOnce) {
    int const rows = std::min(rowsAtOnce, window.height() - top);
    Samples const samples{{window.x() * step, (window.y() + top) * step, window.width() * step, rows * step},
                          {window.width() * side, rows * side},
                          takesMean && !canMiss && step > 1};
    isRead = readSamples(samples, level, bands, strip);
    for (size_t k = 0; isRead && k < width * size_t(rows); ++k) {
      size_t const to = size_t(top) * width + k, length = width * size_t(side);
      size_t const first = k / width * size_t(side) * length + k % width * size_t(side);
      auto const each = [&](auto const& take) {
        for (size_t y = 0; y < size_t(side); ++y)
          for (size_t x = 0; x < size_t(side); ++x) take(first + y * length + x);
      };
      int covered = 0;
      each([&](size_t i) { covered += strip.cover[i]; });
      pixels.cover[to] = static_cast<unsigned char>((covered + side * side / 2) / (side * side));
      for (size_t band = 0; band < bands.size() && covered > 0; ++band) {
        double sum = 0;
        each([&](size_t i) { sum += double(strip.cover[i]) * double(strip.bands[band][i]); });
        pixels.bands[band][to] = static_cast<float>(sum / covered);
      }
    }
  }
  if (isRead && !errors.hasFailure()) return {};
  return errors.reason().isEmpty() ? Texts::tr("a part of it is missing") : errors.reason();
}

// A coarse overview where there is one; else small windows here and there, since all of a large file takes minutes.
std::vector<float> RasterSource::sample(int band) const {
  std::vector<float> values;
  auto const add = [&](RasterLevel const& level, QRect const& window) {
    RasterPixels pixels;
    if (!read(level, window, {band}, false, pixels).isEmpty()) return;
    for (size_t i = 0; i < pixels.cover.size(); ++i)
      if (pixels.cover[i] > 0) values.push_back(pixels.bands[0][i]);
  };
  bool const isSmall = qint64(size_.width()) * size_.height() <= smallRaster;
  RasterLevel level = levelFor(isSmall ? 0 : double(std::max(size_.width(), size_.height())) / sampleSide);
  if (level.reduction == 1) {
    add(level, QRect(QPoint(0, 0), level.size));
    return values;
  }
  level = levelFor(0);
  for (int row = 0; row < sampleWindows; ++row)
    for (int column = 0; column < sampleWindows; ++column) {
      auto const place = [](int side, int i) {
        return static_cast<int>(std::max<qint64>(0, qint64(side - sampleWindowSide) * i / (sampleWindows - 1)));
      };
      QRect const window(place(size_.width(), column), place(size_.height(), row), sampleWindowSide, sampleWindowSide);
      add(level, window & QRect(QPoint(0, 0), size_));
    }
  return values;
}

}  // namespace SysCarto
