#pragma once

#include "ExportOptions.h"
#include "ImageTarget.h"

#include <SysUI/TrackerCancel.h>

#include <QRect>
#include <QSizeF>

#include <array>
#include <memory>
#include <optional>

class GDALDataset;
class OGRSpatialReference;
struct ImageTags;

/// The pixels of a page, drawn by the plug-in's renderer, tile by tile, into a file of GDAL's. What is in memory at a
/// time is one row of tiles, whatever the size of the image; but JPEG and WebP take the whole of it.
///
/// What answers a text answers an empty one, or a sentence for people that names the file.
class PageImage {
  Q_DECLARE_TR_FUNCTIONS(PageImage)

public:
  /// The document has a page; it is borrowed, and so is the target.
  PageImage(SysCarto::MapDocument& document, ImageTarget const& target, ImageFormat const& format,
            ExportOptions const& options);

  /// Works out what the image will be.
  QString plan();

  QSize size() const { return part_.size(); }
  int bands() const { return options_.transparent ? 4 : 3; }

  /// Draws and writes, into the target's working path. Where that is cancelled, the answer has no meaning.
  QString write(SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel, ExportProgress const& progress) const;

  /// Empty where there is none. After `plan`.
  QByteArray worldFile() const;
  QByteArray systemFile() const;  ///< of GDAL's `.aux.xml`

private:
  // Where a map lies on the image: GDAL's six numbers, and in which system.
  struct Georeference {
    std::array<double, 6> transform;
    std::shared_ptr<OGRSpatialReference const> system;
  };

  QRectF elementsCm(QSizeF const& pageCm) const;
  QString planGeoreference();
  bool drawTiles(GDALDataset& dataset, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                 ExportProgress const& progress) const;
  void describe(GDALDataset& pixels, ImageTags const& tags) const;
  bool convert(GDALDataset& pixels, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
               ExportProgress const& progress) const;

  SysCarto::MapDocument& document_;
  ImageTarget const& target_;
  ImageFormat const& format_;
  ExportOptions const options_;
  QSize whole_;  // the page in pixels
  QRect part_;   // of it, that becomes the image
  double pxPerInch_ = 0;
  std::optional<Georeference> georeference_;
};
