#include "PageImage.h"

#include "Dataset.h"
#include "ImageFormat.h"
#include "ImageTags.h"
#include "XmlText.h"

#include "export/LayoutRenderer.h"
#include "host/SysCarto/layout/MapPicture.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysUtility/ChangeMark.h"
#include "host/desktop/OffscreenDesktop.h"

#include <SysDisplay/Units.h>

#include <QFile>
#include <QPainter>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <memory>

using Plugin::LayoutRenderer;
using SysCarto::MapFrameElement;
using SysDisplay::cmPerInch;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

GDALDriver* driver(char const* name) { return GetGDALDriverManager()->GetDriverByName(name); }

// Where GDAL's block cache does not hold a whole row of tiles, each tile of the row makes it read and write all the
// rows of pixels anew. The fourth part more is for its book-keeping.
void reserveBlockCache(int imageWidthPx, int bands) {
  GIntBig const bytesPerColumn = GIntBig{bands} * LayoutRenderer::tileSize;
  GDALSetCacheMax64(std::max(GDALGetCacheMax64(), bytesPerColumn * imageWidthPx * 5 / 4));
}

// A page without its background, for as long as this lives; nothing of the document counts as changed.
class BackgroundHider {
public:
  BackgroundHider(SysCarto::Page& page, bool hides) : page_(page), background_(page.GetBackground()) {
    if (hides) set(nullptr);
  }
  ~BackgroundHider() { set(background_); }
  BackgroundHider(BackgroundHider const&) = delete;
  BackgroundHider& operator=(BackgroundHider const&) = delete;

private:
  void set(_ptr_t<SysCarto::IBackground> const& background) {
    SysUtility::ChangeMark::Step const unmarked;
    page_.SetBackGround(background);
  }

  SysCarto::Page& page_;
  _ptr_t<SysCarto::IBackground> const background_;
};

bool writeTile(GDALDataset& dataset, QImage const& tile, QPoint const& place, int bands) {
  return dataset.RasterIO(GF_Write, place.x(), place.y(), tile.width(), tile.height(),
                          const_cast<uchar*>(tile.constBits()), tile.width(), tile.height(), GDT_Byte, bands, nullptr,
                          4, tile.bytesPerLine(), 1, nullptr) == CE_None;
}

// On nothing, colours as they are and not as they show.
QImage clearTile(LayoutRenderer const& renderer, QRect const& part, _ptr_t<TrackerCancel> const& cancel) {
  QImage tile(part.size(), QImage::Format_RGBA8888_Premultiplied);
  tile.fill(Qt::transparent);
  {
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.drawTile(painter, part, cancel);
  }
  return std::move(tile).convertToFormat(QImage::Format_RGBA8888);
}

bool haveSameRows(GDALDataset& one, GDALDataset& other) {
  int const width = one.GetRasterXSize(), height = one.GetRasterYSize(), bands = one.GetRasterCount();
  constexpr int rowsAtOnce = 64;
  std::vector<uchar> first(std::size_t(width) * rowsAtOnce * std::size_t(bands)), second(first.size());
  auto const read = [&](GDALDataset& dataset, int y, int rows, std::vector<uchar>& bytes) {
    return dataset.RasterIO(GF_Read, 0, y, width, rows, bytes.data(), width, rows, GDT_Byte, bands, nullptr, 0, 0, 0,
                            nullptr) == CE_None;
  };
  for (int y = 0; y < height; y += rowsAtOnce) {
    int const rows = std::min(rowsAtOnce, height - y);
    if (!read(one, y, rows, first) || !read(other, y, rows, second) || first != second) return false;
  }
  return true;
}

// GDAL's progress function; `data` is one that is told per cent, and answers whether to go on.
int tellProgress(double fraction, char const*, void* data) {
  auto const& told = *static_cast<std::function<bool(int)> const*>(data);
  return told(static_cast<int>(fraction * 100)) ? 1 : 0;
}

}  // namespace

PageImage::PageImage(SysCarto::MapDocument& document, ImageTarget const& target, ImageFormat const& format,
                     ExportOptions const& options)
    : document_(document), target_(target), format_(format), options_(options) {}

QString PageImage::plan() {
  auto const layout = document_.GetPageLayout();
  QSizeF pageCm;
  layout->GetPage()->QuerySize(pageCm.rwidth(), pageCm.rheight());
  QRectF const partCm = options_.crop ? elementsCm(pageCm) : QRectF(QPointF(0, 0), pageCm);
  if (partCm.isEmpty())
    return tr("%1 was not written: there are no elements on the page to crop it to.").arg(target_.name());
  if (options_.widthPx > 0) {
    pxPerInch_ = options_.widthPx / partCm.width() * cmPerInch;
    auto const pixels = [&](double cm) { return std::lround(std::min(cm / cmPerInch * pxPerInch_, 1e9)); };
    whole_ = QSize(static_cast<int>(pixels(pageCm.width())), static_cast<int>(pixels(pageCm.height())));
  } else {
    pxPerInch_ = options_.dpi;
    layout->QueryOutputSize(options_.dpi, whole_.rwidth(), whole_.rheight());
  }
  part_ = QRect(QPoint(0, 0), whole_);
  if (options_.crop) {
    QTransform const toPixels = QTransform::fromScale(pxPerInch_ / cmPerInch, pxPerInch_ / cmPerInch);
    part_ &= toPixels.mapRect(partCm).toAlignedRect();
    if (options_.widthPx > 0) part_.setWidth(options_.widthPx);
  }
  return options_.georeference.isEmpty() ? QString() : planGeoreference();
}

// Counted from the page's upper left corner. Sizes of symbols are a part of it, whatever the resolution.
QRectF PageImage::elementsCm(QSizeF const& pageCm) const {
  auto const layout = document_.GetPageLayout();
  QSize size;
  layout->QueryOutputSize(ExportOptions::defaultDpi, size.rwidth(), size.rheight());
  LayoutRenderer const renderer(layout, size, ExportOptions::defaultDpi);
  QRectF all;
  for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
    if (!element->IsVisible()) continue;
    auto const box = element->GetBoundary(renderer.pageTransform())->GetEnvelope();
    all |= QRectF(QPointF(box->GetXMin(), pageCm.height() - box->GetYMax()),
                  QPointF(box->GetXMax(), pageCm.height() - box->GetYMin()));
  }
  return all & QRectF(QPointF(0, 0), pageCm);
}

QString PageImage::planGeoreference() {
  auto const layout = document_.GetPageLayout();
  LayoutRenderer const renderer(layout, whole_, std::max(1, qRound(pxPerInch_)));
  QStringList names;
  for (auto const& element : layout->GetGraphicsContainer()->GetElements()) {
    auto const frame = ptr_cast<MapFrameElement>(element);
    if (!frame || !frame->IsVisible()) continue;
    QString const map = frame->GetMap()->GetName();
    names << QLatin1Char('"') + map + QLatin1Char('"');
    if (options_.georeference != map && options_.georeference != frame->GetName()) continue;
    auto system = SysCarto::makeCoordinateSystem(frame->GetMap()->GetCoordinateSystem());
    auto const [pixels, transformation] = SysCarto::mapPixels(*frame, *renderer.pageTransform());
    if (!system || pixels.isEmpty())
      return tr("%1 was not written: the map of \"%2\" has no coordinate system that is known; give it one.")
          .arg(target_.name(), options_.georeference);
    QPoint const shift = part_.topLeft() - pixels.topLeft();
    QTransform const toMap = QTransform::fromTranslate(shift.x(), shift.y()) * transformation->ToDevice().inverted();
    georeference_ = Georeference{{toMap.dx(), toMap.m11(), toMap.m21(), toMap.dy(), toMap.m12(), toMap.m22()},
                                 std::shared_ptr<OGRSpatialReference const>(std::move(system))};
    return QString();
  }
  return tr("%1 was not written: no data frame is called \"%2\"; the page has %3.")
      .arg(target_.name(), options_.georeference, names.isEmpty() ? tr("none") : names.join(QStringLiteral(", ")));
}

// The centre of the first pixel, and what each pixel adds, in the order of such files.
QByteArray PageImage::worldFile() const {
  if (!georeference_ || qstrcmp(format_.driver, "GTiff") == 0) return QByteArray();
  auto const& t = georeference_->transform;
  QByteArray lines;
  for (double number : {t[1], t[4], t[2], t[5], t[0] + (t[1] + t[2]) / 2, t[3] + (t[4] + t[5]) / 2})
    lines += QByteArray::number(number, 'g', 17) + '\n';
  return lines;
}

// As GDAL itself notes what a file has no room for: a TIFF has none for systems that the first version of WKT lacks.
QByteArray PageImage::systemFile() const {
  if (!georeference_) return QByteArray();
  OGRSpatialReference const& system = *georeference_->system;
  QString wkt = SysCarto::wktOf(system, "WKT1_GDAL");
  if (wkt.contains(QLatin1String("custom_proj4"))) wkt.clear();
  if (qstrcmp(format_.driver, "GTiff") == 0 && !wkt.isEmpty()) return QByteArray();
  if (wkt.isEmpty()) wkt = SysCarto::wktOf(system, "WKT2_2019");
  QStringList axes;
  for (int const axis : system.GetDataAxisToSRSAxisMapping()) axes << QString::number(axis);
  return "<PAMDataset>\n  <SRS dataAxisToSRSAxisMapping=\"" + axes.join(QLatin1Char(',')).toLatin1() + "\">" +
         escapedXml(wkt) + "</SRS>\n</PAMDataset>\n";
}

QString PageImage::write(_ptr_t<TrackerCancel> const& cancel, ExportProgress const& progress) const {
  reserveBlockCache(part_.width(), bands());
  SysCarto::GdalErrors const errors;
  QByteArray const path = target_.besidePath(QStringLiteral("pixels.tif")).toUtf8();
  char const* const layout[] = {"INTERLEAVE=PIXEL", "PHOTOMETRIC=RGB", options_.transparent ? "ALPHA=YES" : nullptr,
                                nullptr};
  DatasetPtr pixels(driver("GTiff")->Create(path.constData(), part_.width(), part_.height(), bands(), GDT_Byte,
                                            const_cast<char**>(layout)));
  ImageTags const tags{SysCarto::FileInformation::of(document_), pxPerInch_};
  if (pixels && qstrcmp(format_.driver, "GTiff") == 0) describe(*pixels, tags);
  bool isWritten = pixels && drawTiles(*pixels, cancel, progress);
  bool const isWhole = !cancel->IsCanced() && !SysDisplay::DrawingBudget::isSpent();
  if (isWritten && isWhole) isWritten = convert(*pixels, cancel, progress);
  pixels.reset();
  // The disk may have room for one more copy of the image, and not for this, too.
  QFile::remove(QString::fromUtf8(path));
  if (isWritten && isWhole && !cancel->IsCanced())
    isWritten = tags.addTo(target_.workingPath(), format_, part_.size(), options_.transparent);
  if (!isWritten || errors.hasFailure()) return target_.failure(errors);
  return QString();
}

bool PageImage::drawTiles(GDALDataset& dataset, _ptr_t<TrackerCancel> const& cancel,
                          ExportProgress const& progress) const {
  auto const desktop = SysUtility::make<OffscreenDesktop>(document_);
  LayoutRenderer const renderer(document_.GetPageLayout(), whole_, std::max(1, qRound(pxPerInch_)));
  Plugin::PlacedLabels const labels(*static_cast<IApplicationHook*>(desktop->hook()), renderer.pageTransform());
  BackgroundHider const hider(*document_.GetPageLayout()->GetPage(), options_.transparent);
  constexpr int side = LayoutRenderer::tileSize;
  for (int y = 0; y < part_.height(); y += side)
    for (int x = 0; x < part_.width(); x += side) {
      if (cancel->IsCanced() || SysDisplay::DrawingBudget::isSpent()) return true;
      QRect const tile = QRect(part_.topLeft() + QPoint(x, y), QSize(side, side)) & part_;
      QImage const image = options_.transparent ? clearTile(renderer, tile, cancel) : renderer.tileImage(tile, cancel);
      if (!writeTile(dataset, image, {x, y}, bands())) return false;
      if (progress)
        progress(tr("Drawing"),
                 static_cast<int>(100.0 * (double(y) + side * (double(x) / part_.width())) / part_.height()));
    }
  return true;
}

// A TIFF takes over what the pixels' file says, which has to be said before there are pixels: a large file is written
// meanwhile, and refuses it then.
void PageImage::describe(GDALDataset& pixels, ImageTags const& tags) const {
  tags.describe(pixels);
  if (!georeference_) return;
  auto transform = georeference_->transform;
  pixels.SetGeoTransform(transform.data());
  pixels.SetSpatialRef(georeference_->system.get());
}

bool PageImage::convert(GDALDataset& pixels, _ptr_t<TrackerCancel> const& cancel,
                        ExportProgress const& progress) const {
  QList<QByteArray> options{ImageTags::colorOption(format_)};
  auto const* const way = format_.compression(options_.compression);
  if (way) options << QByteArray(way->options).split(' ');
  if (format_.hasQuality && !way) options << "QUALITY=" + QByteArray::number(options_.quality);
  if (qstrcmp(format_.driver, "GTiff") == 0) options << "BIGTIFF=IF_SAFER";
  options.removeAll(QByteArray());
  std::vector<char*> list;
  for (QByteArray& option : options) list.push_back(option.data());
  list.push_back(nullptr);

  std::function<bool(int)> told = [&](int percent) {
    if (progress) progress(tr("Writing"), percent);
    return !cancel->IsCanced();
  };
  QByteArray const path = target_.workingPath().toUtf8();
  DatasetPtr result(
      driver(format_.driver)->CreateCopy(path.constData(), &pixels, TRUE, list.data(), tellProgress, &told));
  if (!result || qstrcmp(format_.driver, "BMP") != 0) return result != nullptr;
  // To write a band, that driver reads what the file has of the others, and takes what it can't read for black.
  result.reset();
  result.reset(static_cast<GDALDataset*>(GDALOpen(path.constData(), GA_ReadOnly)));
  return result && haveSameRows(pixels, *result);
}
