#pragma once

#include "host/SysCarto/layers/LocalDataset.h"
#include "host/SysGeometry/Box.h"

#include <QColor>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QTransform>
#include <QVector>

#include <memory>
#include <tuple>
#include <vector>

class GDALRasterBand;
class OGRSpatialReference;

namespace SysCarto {

/// Where the pixels of a layer come from.
struct RasterSourceSettings {
  QString file;              ///< absolute
  QString layer;             ///< a table of a GeoPackage; empty for the first
  QString coordinateSystem;  ///< stands in for the file's own; empty for that
  QVector<double> noData;    ///< values that mean that there is none, beside what the file says

  bool operator==(RasterSourceSettings const& other) const {
    return std::tie(file, layer, coordinateSystem, noData) ==
           std::tie(other.file, other.layer, other.coordinateSystem, other.noData);
  }
};

/// Formats of files that hold pixels themselves, whether this GDAL has them or not.
SYSCARTO_EXPORT QVector<DataFormat> const& rasterFormats();

/// Whether the name of a file is that of such a format, and of a picture, whether it has a world file beside it. A
/// GeoPackage may hold features, rasters or both.
SYSCARTO_EXPORT bool isRasterFileName(QString const& path);

/// What a band of a raster holds.
struct RasterBand {
  enum class Meaning { Value, Red, Green, Blue, Alpha, Palette };
  Meaning meaning = Meaning::Value;
  bool isByte = false;
  int bits = 8;                   ///< of a byte that are used
  double factor = 1, offset = 0;  ///< a value is what is stored × factor + offset
};

/// A grid of the whole raster that is as coarse as it is, or coarser: what is read for a picture that shows less.
struct RasterLevel {
  int overview = -1;  ///< of the file; −1 for its own pixels
  int reduction = 1;  ///< of these, as many in each direction become one
  QSize size;
  double columns = 1, rows = 1;  ///< of the raster's own pixels on one of the level
};

/// Pixels of a level, row by row.
struct RasterPixels {
  QRect window;
  std::vector<std::vector<float>> bands;
  std::vector<unsigned char> cover;  ///< 0 where there is nothing, 255 where all is there
};

/// A raster in a local file. Opening it reads no pixels but those that show whether the file is whole.
///
/// As for vector data, only formats are opened that hold their pixels themselves, and of the files beside it those that
/// can't lead further (README).
class SYSCARTO_EXPORT RasterSource {
public:
  /// On a failure an empty pointer, and `error` is a sentence that names the file.
  static std::unique_ptr<RasterSource> open(RasterSourceSettings const& settings, QString& error);
  ~RasterSource();

  QSize size() const { return size_; }

  /// About what it covers in its coordinate system.
  SysGeometry::Box extent() const;

  /// From columns and rows, counted from the upper left corner, to the raster's coordinate system.
  QTransform const& toWorld() const { return toWorld_; }

  /// Null where none is known.
  OGRSpatialReference const* system() const { return system_.get(); }

  std::vector<RasterBand> const& bands() const { return bands_; }
  QString format() const;

  /// The colours of a palette by value; empty where the band, counted from 1, has none.
  QVector<QColor> palette(int band) const;

  /// The files beside one that are opened with it, absolute.
  static QStringList companionsOf(QString const& path);

  /// The tables of a GeoPackage that hold rasters, by name; of a single one without it.
  static QStringList tablesOf(QString const& path);

  /// The level for so many of the raster's pixels on one of a picture; not coarser than that.
  RasterLevel levelFor(double pixels) const;

  /// The next coarser one.
  RasterLevel coarser(RasterLevel const& level) const;

  /// Reads the part of a level that lies in a window. Where pixels are joined, by their mean or else by one of them.
  /// An empty text, or a clause that says why it could not be read.
  QString read(RasterLevel const& level, QRect const& window, std::vector<int> const& bands, bool takesMean,
               RasterPixels& pixels) const;

  /// Values of a band from all over the raster, some hundred thousand at most.
  std::vector<float> sample(int band) const;

private:
  explicit RasterSource(DatasetPointer dataset);
  QString take(RasterSourceSettings const& settings);
  QString checkEnds() const;
  struct Samples;
  bool readSamples(Samples const& samples, RasterLevel const& level, std::vector<int> const& bands,
                   RasterPixels& pixels) const;
  GDALRasterBand* bandOf(RasterLevel const& level, int band) const;

  DatasetPointer dataset_;
  QSize size_;
  QTransform toWorld_;
  std::unique_ptr<OGRSpatialReference> system_;
  std::vector<RasterBand> bands_;
  QVector<double> noData_;
};

}  // namespace SysCarto
