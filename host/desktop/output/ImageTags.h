#pragma once

#include "host/SysCarto/document/PageTexts.h"

#include <QByteArray>
#include <QString>

class GDALDataset;
struct ImageFormat;

/// What an image file says about itself: how large it is on paper, the colours that its numbers mean (sRGB), and
/// where it comes from.
struct ImageTags {
  SysCarto::FileInformation information;
  double dpi = 0;

  /// Gives a dataset what GDAL's TIFF driver takes over from it. Other drivers take nothing.
  void describe(GDALDataset& dataset) const;

  /// The creation option by which GDAL stores the colours, where the format has a place for them; else empty.
  static QByteArray colorOption(ImageFormat const& format);

  /// Puts what GDAL leaves out into the file that it wrote. False where the file could not be written, or is not as
  /// the format has it.
  bool addTo(QString const& path, ImageFormat const& format, QSize const& size, bool hasAlpha) const;
};
