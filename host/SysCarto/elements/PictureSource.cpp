#include "PictureSource.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/SvgCheck.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace SysCarto {

namespace {

constexpr int maxSidePx = 16384;
constexpr qint64 maxPixels = 100000000;
constexpr qint64 maxSvgBytes = 2 * 1024 * 1024;
constexpr int cellPx = 256;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PictureElement)
};

bool isPixelFormat(QByteArray const& format) { return format == "png" || format == "jpeg" || format == "jpg"; }

qint64 areaOf(QSize const& size) { return qint64(size.width()) * size.height(); }

}  // namespace

PictureSource::PictureSource(QString path) : path_(std::move(path)) {}
PictureSource::~PictureSource() = default;

void PictureSource::forget() {
  isLoaded_ = false;
  image_ = reduced_ = QImage();
  svg_.reset();
}

QString const& PictureSource::problem() {
  if (!isLoaded_) problem_ = load();
  isLoaded_ = true;
  return problem_;
}

QString PictureSource::load() {
  if (path_.isEmpty()) return Texts::tr("The picture has no file; choose one.");
  if (!QFileInfo(path_).isFile()) return Texts::tr("%1: there is no such picture file; put it there.").arg(path_);
  QImageReader reader(path_);
  reader.setDecideFormatFromContent(true);
  QByteArray const format = reader.format();
  if (isPixelFormat(format)) return loadImage(reader);
  if (format == "svg") return loadSvg();
  return Texts::tr("%1: the picture is neither PNG nor JPEG nor SVG; save it as one of these.").arg(path_);
}

QString PictureSource::loadImage(QImageReader& reader) {
  QSize const size = reader.size();
  if (size.isEmpty()) return Texts::tr("%1: the picture's size can't be read; save it anew.").arg(path_);
  if (std::max(size.width(), size.height()) > maxSidePx || areaOf(size) > maxPixels)
    return Texts::tr("%1: the picture has %2 × %3 pixels; make it smaller than %4 pixels a side and %5 pixels in all.")
        .arg(path_, QString::number(size.width()), QString::number(size.height()), QString::number(maxSidePx),
             QString::number(maxPixels));
  reader.setAutoTransform(true);
  QImage const image = reader.read();
  if (image.isNull()) return Texts::tr("%1: the picture can't be read: %2.").arg(path_, reader.errorString());
  image_ = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  return {};
}

QString PictureSource::loadSvg() {
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) return Texts::tr("%1: the picture can't be opened.").arg(path_);
  QByteArray const content = file.read(maxSvgBytes + 1);
  QString const refused = SysDisplay::svgProblem(content);
  if (!refused.isEmpty()) return QStringLiteral("%1: %2.").arg(path_, refused);
  svg_ = std::make_unique<QSvgRenderer>(content);
  if (svg_->isValid() && !svg_->viewBoxF().isEmpty()) return {};
  svg_.reset();
  return Texts::tr("%1: the SVG can't be drawn; save it with a size.").arg(path_);
}

void PictureSource::draw(QPainter& painter, QRect const& targetPx) {
  if (!problem().isEmpty() || targetPx.isEmpty()) return;
  if (svg_ || areaOf(targetPx.size()) > areaOf(image_.size())) return drawCells(painter, targetPx);
  if (reduced_.size() != targetPx.size())
    reduced_ = image_.scaled(targetPx.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                   .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  painter.drawImage(targetPx.topLeft(), reduced_);
}

// A picture that is larger than its source could be of any size. It is made in cells that hang on its corner, and no
// tile draws a part of a cell: what Qt makes of an enlarged picture depends on where it begins to draw.
void PictureSource::drawCells(QPainter& painter, QRect const& targetPx) {
  QRect const seen = (targetPx & SysDisplay::reachableArea(painter).toAlignedRect()).translated(-targetPx.topLeft());
  if (seen.isEmpty()) return;
  QRect const whole(QPoint(0, 0), targetPx.size());
  for (int y = seen.top() / cellPx * cellPx; y <= seen.bottom(); y += cellPx)
    for (int x = seen.left() / cellPx * cellPx; x <= seen.right(); x += cellPx) {
      QRect const part = QRect(x, y, cellPx, cellPx) & whole;
      painter.drawImage(targetPx.topLeft() + part.topLeft(), cell(part, whole.size()));
    }
}

QImage PictureSource::cell(QRect const& part, QSize const& targetSize) {
  QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.translate(-part.topLeft());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (svg_)
    svg_->render(&painter, QRectF(QPointF(0, 0), targetSize));
  else
    painter.drawImage(QRectF(QPointF(0, 0), targetSize), image_);
  return image;
}

}  // namespace SysCarto
