#pragma once

#include "OutputIntent.h"
#include "PageBoxes.h"
#include "PdfCanvas.h"

#include "host/SysCarto/document/PageTexts.h"

#include <SysUI/TrackerCancel.h>

#include <QPolygonF>

/// A data frame on a page, and where on the globe it lies.
struct GeoreferencedFrame {
  QString name;
  QRectF frame;       ///< in pixels of its page's canvas
  QPolygonF corners;  ///< of a rectangle in it that lies on the globe, four
  QPolygonF places;   ///< their longitudes and latitudes in the degrees of the map's own datum
  QString wkt;        ///< of the map's coordinate system, in the first version of WKT
  int epsg = 0;       ///< its code; 0 where there is none
  bool isProjected = true;
};

/// A PDF 1.7 that is a PDF/A-2b, too. Pages are added one by one.
class PdfFile {
public:
  /// Asked from time to time whether to go on; may be null.
  using Cancel = SysUtility::_ptr_t<SysUI::TrackerCancel>;

  PdfFile(SysCarto::FileInformation information, OutputIntent intent);

  PdfObjects& objects() { return objects_; }
  PdfFonts& fonts() { return fonts_; }

  /// The canvas must be of this file's objects and fonts, and be the media box of `boxes`, of that size in points.
  void addPage(PdfCanvas const& canvas, QSizeF const& sizePt, std::vector<GeoreferencedFrame> const& frames,
               PageBoxes const& boxes);

  /// A bookmark that leads to the page that was added last.
  void addBookmark(QString const& name);

  /// Writes the file. Throws what qpdf throws, as adding does, and where that is cancelled. Once.
  void write(QString const& path, Cancel const& cancel);

private:
  QPDFObjectHandle viewport(GeoreferencedFrame const& frame, QTransform const& toPoints);
  void addParts(PdfCanvas const& canvas, QPDFObjectHandle const& page, int pageNumber);
  void addOutline();
  void describe();
  QByteArray metadata() const;

  SysCarto::FileInformation const information_;
  OutputIntent const intent_;
  QPDF file_;
  PdfObjects objects_;
  PdfFonts fonts_;
  QPDFObjectHandle structure_, whole_, parents_;  // what is read to a person: the tree, its root element, its index
  QPDFObjectHandle lastPage_;
  std::vector<QPDFObjectHandle> bookmarks_;
  int pages_ = 0;
};
