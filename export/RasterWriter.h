#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

class GDALDataset;

namespace Plugin {

/// Writes an image file piece by piece, through a temporary uncompressed TIFF in the folder of the file, which GDAL
/// then converts into the format that the file's suffix names: "jpg", "png", "bmp", and TIFF for everything else.
///
/// Reports nothing; what GDAL has to say goes to its error handler. The temporary file is gone when this object is.
class RasterWriter {
public:
  /// GDAL's progress signature: told a fraction from 0 to 1, answers 0 to stop.
  using Progress = int (*)(double, char const*, void*);

  explicit RasterWriter(QString const& path);
  ~RasterWriter();
  RasterWriter(RasterWriter const&) = delete;
  RasterWriter& operator=(RasterWriter const&) = delete;

  /// GDAL's name of the driver for a path.
  static char const* driverName(QString const& path);

  /// Creates the temporary file. False, with nothing left behind, where it can't be created or GDAL has no driver for
  /// the format.
  bool create(QSize const& size);

  /// Writes the red, green and blue bytes of an RGBA image whose rows have no padding at a place in the file.
  bool write(QImage const& tile, QPoint const& position);

  /// Converts what was written and removes the temporary file. GDAL's result is not looked at.
  void convert(Progress progress, void* data);

private:
  void removeTemporary();

  QString path_;
  QString temporaryPath_;
  GDALDataset* temporary_ = nullptr;  // owned
};

}  // namespace Plugin
