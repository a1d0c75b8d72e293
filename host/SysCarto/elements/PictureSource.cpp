#include "PictureSource.h"

#include "EmbeddedPicture.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/SvgCheck.h"
#include "host/SysUtility/FileReach.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr int maxSidePx = 16384;
constexpr qint64 maxPixels = 100000000;
constexpr qint64 maxSvgBytes = 2 * 1024 * 1024;
constexpr qint64 maxJpegBytes = 200 * 1000 * 1000;  // that are taken over into a PDF as they are
constexpr int cellPx = 256;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PictureElement)
};

qint64 areaOf(QSize const& size) { return qint64(size.width()) * size.height(); }

}  // namespace

PictureSource::PictureSource(QString path, QString data) : path_(std::move(path)), data_(std::move(data)) {}
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
  if (!data_.isEmpty()) {
    QBuffer bytes;
    bytes.setData(embeddedBytes(data_).value_or(QByteArray()));
    bytes.open(QIODevice::ReadOnly);
    return load(bytes, Texts::tr("The embedded picture"));
  }
  if (path_.isEmpty()) return Texts::tr("The picture has no file; choose one.");
  QString const refused = SysUtility::FileReach::refusal(path_);
  if (!refused.isEmpty()) return Texts::tr("%1: the picture can't be opened: %2.").arg(path_, refused);
  if (!QFileInfo(path_).isFile()) return Texts::tr("%1: there is no such picture file; put it there.").arg(path_);
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) return Texts::tr("%1: the picture can't be opened.").arg(path_);
  return load(file, path_);
}

QString PictureSource::load(QIODevice& file, QString const& name) {
  QByteArray const format = pictureFormat(file);
  if (format == "svg") return loadSvg(file, name);
  if (!format.isEmpty()) return loadImage(file, name);
  return Texts::tr("%1: the picture is neither PNG nor JPEG, TIFF, WebP or SVG; save it as one of these.").arg(name);
}

QString PictureSource::loadImage(QIODevice& file, QString const& name) {
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  QSize const size = reader.size();
  if (size.isEmpty()) return Texts::tr("%1: the picture's size can't be read; save it anew.").arg(name);
  if (std::max(size.width(), size.height()) > maxSidePx || areaOf(size) > maxPixels)
    return Texts::tr("%1: the picture has %2 × %3 pixels; make it smaller than %4 pixels a side and %5 pixels in all.")
        .arg(name, QString::number(size.width()), QString::number(size.height()), QString::number(maxSidePx),
             QString::number(maxPixels));
  reader.setAutoTransform(true);
  QImage const image = reader.read();
  if (image.isNull()) return Texts::tr("%1: the picture can't be read: %2.").arg(name, reader.errorString());
  image_ = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  isPlainJpeg_ = reader.format() == "jpeg" && reader.transformation() == QImageIOHandler::TransformationNone;
  return {};
}

QString PictureSource::loadSvg(QIODevice& file, QString const& name) {
  QByteArray const content = file.read(maxSvgBytes + 1);
  QString const refused = SysDisplay::svgProblem(content);
  if (!refused.isEmpty()) return QStringLiteral("%1: %2.").arg(name, refused);
  svg_ = std::make_unique<QSvgRenderer>(content);
  if (svg_->isValid() && !svg_->viewBoxF().isEmpty()) return {};
  svg_.reset();
  return Texts::tr("%1: the SVG can't be drawn; save it with a size.").arg(name);
}

void PictureSource::draw(QPainter& painter, QRect const& targetPx, double angleDegrees) {
  if (!problem().isEmpty() || targetPx.isEmpty()) return;
  QPointF const middle(targetPx.width() / 2.0, targetPx.height() / 2.0);
  QTransform turn;
  if (std::fmod(angleDegrees, 360) != 0)  // pixels go down, so that the painter turns the other way
    turn.translate(middle.x(), middle.y()).rotate(-angleDegrees).translate(-middle.x(), -middle.y());
  if (auto* const canvas = SysDisplay::VectorCanvas::of(painter)) return drawOn(*canvas, painter, targetPx, turn);
  if (turn.isIdentity() && reduces(targetPx.size()))
    painter.drawImage(targetPx.topLeft(), reducedTo(targetPx.size()));
  else
    drawCells(painter, targetPx, turn);
}

QByteArray PictureSource::jpeg() const {
  if (!isPlainJpeg_) return {};
  if (!data_.isEmpty()) return embeddedBytes(data_).value_or(QByteArray());
  QFile file(path_);
  return file.open(QIODevice::ReadOnly) && file.size() <= maxJpegBytes ? file.readAll() : QByteArray();
}

// In its own pixels, however large it is drawn.
void PictureSource::drawOn(SysDisplay::VectorCanvas& canvas, QPainter& painter, QRect const& targetPx,
                           QTransform const& turn) {
  QTransform const toPage = turn * QTransform::fromTranslate(targetPx.x(), targetPx.y());
  QSize const size = targetPx.size();
  if (!svg_) return canvas.picture({image_, jpeg()}, QTransform::fromScale(size.width(), size.height()) * toPage);
  painter.save();
  painter.setTransform(toPage, true);
  svg_->render(&painter, QRectF(QPointF(0, 0), size));
  painter.restore();
}

bool PictureSource::reduces(QSize const& targetSize) const {
  return !svg_ && areaOf(targetSize) <= areaOf(image_.size());
}

QImage const& PictureSource::reducedTo(QSize const& targetSize) {
  if (reduced_.size() != targetSize)
    reduced_ = image_.scaled(targetSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                   .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  return reduced_;
}

// A picture that is larger than its source could be of any size. It is made in cells that hang on its corner, and no
// tile draws a part of a cell: what Qt makes of an enlarged or turned picture depends on where it begins to draw.
void PictureSource::drawCells(QPainter& painter, QRect const& targetPx, QTransform const& turn) {
  QRect const whole = turn.mapRect(QRectF(QPointF(0, 0), targetPx.size())).toAlignedRect();
  QRect const seen = whole & SysDisplay::reachableArea(painter).toAlignedRect().translated(-targetPx.topLeft());
  if (seen.isEmpty()) return;
  auto const firstCell = [](int from, int origin) { return from - (from - origin) % cellPx; };
  for (int y = firstCell(seen.top(), whole.top()); y <= seen.bottom(); y += cellPx)
    for (int x = firstCell(seen.left(), whole.left()); x <= seen.right(); x += cellPx) {
      QRect const part = QRect(x, y, cellPx, cellPx) & whole;
      painter.drawImage(targetPx.topLeft() + part.topLeft(), cell(part, targetPx.size(), turn));
    }
}

QImage PictureSource::cell(QRect const& part, QSize const& targetSize, QTransform const& turn) {
  QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.translate(-part.topLeft());
  painter.setTransform(turn, true);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (svg_)
    svg_->render(&painter, QRectF(QPointF(0, 0), targetSize));
  else
    painter.drawImage(QRectF(QPointF(0, 0), targetSize), reduces(targetSize) ? reducedTo(targetSize) : image_);
  return image;
}

}  // namespace SysCarto
