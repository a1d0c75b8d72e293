#include "PictureSource.h"

#include "EmbeddedPicture.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/SvgCheck.h"
#include "host/SysDisplay/SvgPicture.h"
#include "host/SysUtility/FileReach.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <list>
#include <utility>

namespace SysCarto {

namespace {

constexpr int maxSidePx = 16384;
constexpr qint64 maxPixels = 100000000;
constexpr qint64 maxSvgBytes = 2 * 1024 * 1024;
constexpr qint64 maxJpegBytes = 200 * 1000 * 1000;  // that are taken over into a PDF as they are
constexpr int cellPx = 256;

// Larger pictures stay in the format of their files, which may take a thirtieth of the room, and are let go of where
// they take more than that once they were reduced.
constexpr qint64 largePixels = 25000000;
constexpr qint64 keptBytes = 64000000;
constexpr qint64 reducedBytes = 128000000;  // of all reduced pictures together
constexpr double pixelCost = 20;            // of one that is made larger or turned

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PictureElement)
};

qint64 areaOf(QSize const& size) { return qint64(size.width()) * size.height(); }

QImage drawable(QImage const& image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

// Each pixel the mean of four, made in strips, so that the whole is never there in the format that is drawn.
QImage halved(QImage const& image) {
  constexpr int stripRows = 128;
  QImage half(image.width() / 2, image.height() / 2, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < half.height(); y += stripRows) {
    int const rows = std::min(stripRows, half.height() - y);
    QImage const strip = drawable(drawable(image.copy(0, 2 * y, 2 * half.width(), 2 * rows))
                                      .scaled(half.width(), rows, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    if (strip.isNull() || half.isNull()) return {};
    for (int row = 0; row < rows; ++row)
      std::memcpy(half.scanLine(y + row), strip.constScanLine(row), static_cast<size_t>(half.width()) * 4);
  }
  return half;
}

// Pictures that are used several times are read once.
std::weak_ptr<QImage const>& known(QString const& key) {
  static QHash<QString, std::weak_ptr<QImage const>> images;
  for (auto image = images.begin(); image != images.end();)
    image = image->expired() ? images.erase(image) : std::next(image);
  return images[key];
}

// Pictures reduced to the sizes in which they are drawn, for the next tile and for other elements that show the same.
// The last one stays whatever its size.
class ReducedPictures {
public:
  static ReducedPictures& instance() {
    static ReducedPictures pictures;
    return pictures;
  }

  // Null where it is not there.
  QImage find(QString const& key, QSize const& size) {
    auto const found = std::find_if(pictures_.begin(), pictures_.end(), [&](auto const& picture) {
      return picture.second.size() == size && picture.first == key;
    });
    if (found == pictures_.end()) return {};
    pictures_.splice(pictures_.begin(), pictures_, found);
    return found->second;
  }

  void add(QString const& key, QImage const& image) {
    pictures_.emplace_front(key, image);
    bytes_ += image.sizeInBytes();
    while (bytes_ > reducedBytes && pictures_.size() > 1) {
      bytes_ -= pictures_.back().second.sizeInBytes();
      pictures_.pop_back();
    }
  }

private:
  std::list<std::pair<QString, QImage>> pictures_;  // by key; those used last come first
  qint64 bytes_ = 0;
};

QString noMemoryFor(QString const& name) {
  return Texts::tr("%1: the picture can't be read: %2.").arg(name, qt_error_string(ENOMEM));
}

}  // namespace

PictureSource::PictureSource(QString path, QString data) : path_(std::move(path)), data_(std::move(data)) {}
PictureSource::~PictureSource() = default;

void PictureSource::forget() {
  isLoaded_ = false;
  image_.reset();
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

// What tells the picture's content from others.
QString PictureSource::key() const {
  if (!data_.isEmpty())
    return QString::fromLatin1(QCryptographicHash::hash(data_.toLatin1(), QCryptographicHash::Sha256).toHex());
  QFileInfo const file(path_);
  return QStringLiteral("%1 %2 %3").arg(path_).arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
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
  isPlainJpeg_ = reader.format() == "jpeg" && reader.transformation() == QImageIOHandler::TransformationNone;
  key_ = key();
  image_ = known(key_).lock();
  if (!image_) {
    QImage const image = reader.read();
    if (image.isNull()) return Texts::tr("%1: the picture can't be read: %2.").arg(name, reader.errorString());
    QImage const kept = areaOf(size) > largePixels ? image : drawable(image);
    if (kept.isNull()) return noMemoryFor(name);
    image_ = std::make_shared<QImage const>(kept);
    known(key_) = image_;
  }
  size_ = image_->size();
  return {};
}

QString PictureSource::loadSvg(QIODevice& file, QString const& name) {
  QByteArray const content = file.read(maxSvgBytes + 1);
  QString const refused = SysDisplay::svgProblem(content);
  if (!refused.isEmpty()) return QStringLiteral("%1: %2.").arg(name, refused);
  svg_ = std::make_unique<QSvgRenderer>(content);
  svgBytes_ = content.size();
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
  if (!turn.isIdentity() || !reduces(targetPx.size())) return drawCells(painter, targetPx, turn);
  if (SysDisplay::reachableArea(painter).intersects(targetPx))
    painter.drawImage(targetPx.topLeft(), reducedTo(targetPx.size()));
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
  if (SysDisplay::DrawingBudget::isSpent()) return;
  if (!svg_) return canvas.picture({image(), jpeg()}, QTransform::fromScale(size.width(), size.height()) * toPage);
  SysDisplay::spendOnSvg(svgBytes_, painter);
  painter.save();
  painter.setTransform(toPage, true);
  svg_->render(&painter, QRectF(QPointF(0, 0), size));
  painter.restore();
}

bool PictureSource::reduces(QSize const& targetSize) const { return !svg_ && areaOf(targetSize) <= areaOf(size_); }

QImage PictureSource::reducedTo(QSize const& targetSize) {
  QImage const known = ReducedPictures::instance().find(key_, targetSize);
  if (!known.isNull()) return known;
  QImage image = this->image();
  while (areaOf(image.size()) > largePixels && image.width() / 2 >= targetSize.width() &&
         image.height() / 2 >= targetSize.height())
    image = halved(image);
  image = drawable(image.scaled(targetSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  if (image.isNull())
    problem_ = noMemoryFor(path_);
  else
    ReducedPictures::instance().add(key_, image);
  if (image_ && image_->sizeInBytes() > keptBytes) image_.reset();
  return image;
}

// The picture itself, which is read again where it was let go of.
QImage PictureSource::image() {
  if (!image_) load();
  return image_ ? *image_ : QImage();
}

// Of a large picture, only what the part shows is made drawable.
void PictureSource::drawPart(QPainter& painter, QRectF const& part, QSize const& targetSize) {
  if (reduces(targetSize)) return painter.drawImage(QRectF(QPointF(0, 0), targetSize), reducedTo(targetSize));
  QImage const whole = image();
  if (areaOf(size_) <= largePixels) return painter.drawImage(QRectF(QPointF(0, 0), targetSize), whole);
  double const x = double(targetSize.width()) / size_.width(), y = double(targetSize.height()) / size_.height();
  QRectF const shown(part.x() / x, part.y() / y, part.width() / x, part.height() / y);
  QRect const pixels = shown.toAlignedRect().adjusted(-2, -2, 2, 2) & whole.rect();
  if (pixels.isEmpty()) return;
  painter.drawImage(QRectF(pixels.x() * x, pixels.y() * y, pixels.width() * x, pixels.height() * y),
                    drawable(whole.copy(pixels)));
}

// A picture that is larger than its source could be of any size. It is made in cells that hang on its corner, and no
// tile draws a part of a cell: what Qt makes of an enlarged or turned picture depends on where it begins to draw.
void PictureSource::drawCells(QPainter& painter, QRect const& targetPx, QTransform const& turn) {
  QRect const whole = turn.mapRect(QRectF(QPointF(0, 0), targetPx.size())).toAlignedRect();
  QRect const seen = whole & SysDisplay::reachableArea(painter).toAlignedRect().translated(-targetPx.topLeft());
  if (seen.isEmpty() || SysDisplay::DrawingBudget::isSpent()) return;
  SysDisplay::DrawingBudget::spend(pixelCost * seen.width() * seen.height());
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
  if (!svg_) {
    drawPart(painter, turn.inverted().mapRect(QRectF(part)), targetSize);
    return image;
  }
  SysDisplay::spendOnSvg(svgBytes_, painter);
  if (!SysDisplay::DrawingBudget::isSpent()) svg_->render(&painter, QRectF(QPointF(0, 0), targetSize));
  return image;
}

}  // namespace SysCarto
