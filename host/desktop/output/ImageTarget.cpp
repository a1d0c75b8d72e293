#include "ImageTarget.h"

#include "Dataset.h"
#include "ImageFormat.h"
#include "WorkFolder.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysUtility/FileSaver.h"
#include "host/desktop/FileStamp.h"

#include <SysCarto/MapDocument.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>
#include <QVector>
#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <limits>

namespace {

constexpr qint64 bmpHeaderBytes = 54;

struct SideLimit {
  char const* driver;
  int pixels;
};
// What the libraries behind the formats take, below what the formats could hold.
constexpr SideLimit sideLimits[] = {{"JPEG", 65500}, {"PNG", 1000000}, {"WEBP", 16383}};

QString const sidePrefix = QStringLiteral("beside-");

QString systemReason(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

QString gigabytes(double bytes, int decimals) { return QString::number(bytes / 1e9, 'f', decimals); }

QString resolved(QString const& path) {
  QFileInfo const info(path);
  QString const canonical = info.canonicalFilePath();
  return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

qint64 bmpBytes(QSize const& size) {
  qint64 const rowBytes = (qint64{size.width()} * 3 + 3) / 4 * 4;
  return bmpHeaderBytes + rowBytes * size.height();
}

// How a whole file of a format that is written from the first byte to the last ends.
struct Ending {
  char const* driver;
  QByteArray bytes;
};
Ending const endings[] = {
    {"JPEG", QByteArray("\xff\xd9", 2)},
    {"PNG", QByteArray("\0\0\0\0IEND\xae\x42\x60\x82", 12)},
    {"PDF", QByteArray("%%EOF\n")},
    {"SVG", QByteArray("</svg>\n")},
};

bool endsWith(QString const& path, QByteArray const& bytes) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.seek(file.size() - bytes.size()) && file.readAll() == bytes;
}

// Such a file says its length at its start.
bool isWholeRiff(QString const& path) {
  QFile file(path);
  QByteArray const head = file.open(QIODevice::ReadOnly) ? file.read(8) : QByteArray();
  return head.size() == 8 && file.size() == qint64{qFromLittleEndian<quint32>(head.constData() + 4)} + 8;
}

bool readLastRows(GDALDataset& dataset, QSize const& size, int bandCount) {
  constexpr int maxPixels = 1 << 22;
  int const rows = std::min(std::clamp(maxPixels / size.width(), 1, 64), size.height());
  QVector<uchar> bytes(size.width() * rows * bandCount);
  return dataset.RasterIO(GF_Read, 0, size.height() - rows, size.width(), rows, bytes.data(), size.width(), rows,
                          GDT_Byte, bandCount, nullptr, 0, 0, 0, nullptr) == CE_None;
}

// 0, or the system's error.
int moved(QString const& from, QString const& to) {
  return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ? 0 : errno;
}

int syncToDisk(QString const& path) {
  int const file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return errno;
  int const error = fsync(file) == 0 || errno == EINVAL ? 0 : errno;  // which says that there is nothing to do
  close(file);
  return error;
}

}  // namespace

ImageTarget::ImageTarget(QString const& path, ImageFormat const& format)
    : name_(QDir::toNativeSeparators(path)), path_(resolved(path)), format_(format) {}

ImageTarget::~ImageTarget() = default;

bool ImageTarget::is(char const* driver) const { return std::strcmp(format_.driver, driver) == 0; }

QString ImageTarget::checkPlace() const { return SysUtility::FileSaver::checkFolder(name_); }

QString ImageTarget::checkAgainst(SysCarto::MapDocument const& document) const { return checkAgainst(path_, document); }

QString ImageTarget::checkAgainst(QString const& path, SysCarto::MapDocument const& document) const {
  FileStamp const there = FileStamp::of(path);
  if (!there.exists()) return QString();
  QString const name = path == path_ ? name_ : QDir::toNativeSeparators(path);
  if (there == FileStamp::of(document.GetPath())) return tr("%1 is the document itself; name another file.").arg(name);
  auto const layout = document.GetPageLayout();
  for (auto const& source : layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>())
    if (there == FileStamp::of(source.file))
      return tr("%1 is a file that the page is drawn from; name another file.").arg(name);
  return QString();
}

QString ImageTarget::checkSize(QSize const& size, int bands) const {
  if (size.isEmpty()) return tr("%1: the image would have no pixels; give more DPI.").arg(name_);
  if (format_.isVector) return QString();
  QString problem = checkFormatLimits(size);
  if (problem.isEmpty()) problem = checkFreeSpace(size, bands);
  if (problem.isEmpty()) problem = checkFreeMemory(size, bands);
  return problem;
}

QString ImageTarget::checkFormatLimits(QSize const& size) const {
  for (SideLimit const& limit : sideLimits)
    if (is(limit.driver) && std::max(size.width(), size.height()) > limit.pixels)
      return tr("%1: the image would be %2 × %3 pixels, and a %4 has at most %5 on a side; give less DPI, or write a "
                "TIFF.")
          .arg(name_, QString::number(size.width()), QString::number(size.height()), format_.shownName(),
               QString::number(limit.pixels));
  if (is("BMP") && bmpBytes(size) > std::numeric_limits<quint32>::max())
    return tr("%1: the image would be %2 × %3 pixels, and a BMP holds at most 4 GB; give less DPI, or write a TIFF.")
        .arg(name_, QString::number(size.width()), QString::number(size.height()));
  return QString();
}

QString ImageTarget::checkFreeSpace(QSize const& size, int bands) const {
  QStorageInfo const storage(QFileInfo(path_).absolutePath());
  if (storage.bytesTotal() <= 0) return QString();  // not told
  qint64 const free = storage.bytesAvailable();
  double const needed = double(bands) * size.width() * size.height();
  if (needed <= static_cast<double>(free)) return QString();
  return tr("%1: drawing %2 × %3 pixels takes %4 GB on the disk, and %5 GB are free; give less DPI, or make room.")
      .arg(name_, QString::number(size.width()), QString::number(size.height()), gigabytes(needed, 3),
           gigabytes(static_cast<double>(free), 3));
}

// GDAL's JPEG driver chooses its code when it has seen the whole image, and so keeps it in memory: 16 bits for each of
// the 1.5 values to which it reduces a pixel. That of WebP reads the whole image, and its encoder makes a copy.
QString ImageTarget::checkFreeMemory(QSize const& size, int bands) const {
  double const bytesPerPixel = is("JPEG") ? 3 : is("WEBP") ? bands + 4 : 0;
  double const needed = bytesPerPixel * size.width() * size.height();
  double const memory = static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
  if (needed <= memory) return QString();
  return tr("%1: a %2 of %3 × %4 pixels takes %5 GB of memory, and this machine has %6 GB; give less DPI, or write a "
            "PNG or TIFF.")
      .arg(name_, format_.shownName(), QString::number(size.width()), QString::number(size.height()),
           gigabytes(needed, 1), gigabytes(memory, 1));
}

QString ImageTarget::prepare() {
  folder_ = std::make_unique<WorkFolder>(path_, name_);
  if (folder_->problem().isEmpty()) return QString();
  return tr("%1: no working folder can be made in %2: %3.")
      .arg(name_, QFileInfo(path_).absolutePath(), folder_->problem());
}

QString ImageTarget::workingPath() const {
  return folder_->filePath(QStringLiteral("image.") + format_.suffixList().first());
}

QString ImageTarget::besidePath(QString const& name) const { return folder_->filePath(name); }

QString ImageTarget::putBeside(QString const& name, QByteArray const& content, SysCarto::MapDocument const& document) {
  if (content.isEmpty()) return QString();
  beside_ << name;
  QString const problem = checkAgainst(besideImage(name), document);
  return problem.isEmpty() ? SysUtility::FileSaver::save(besidePath(sidePrefix + name), content) : problem;
}

QString ImageTarget::besideImage(QString const& name) const { return QFileInfo(path_).dir().filePath(name); }

QString ImageTarget::failure(SysCarto::GdalErrors const& errors) const {
  QString const reason = errors.hasFailure() ? errors.reason() : tr("the image file could not be created");
  return tr("%1 was not written: %2. Is the disk full?").arg(name_, reason);
}

QString ImageTarget::checkResult(QSize size, int bands) const {
  if (format_.isVector)
    return hasEnding() ? QString() : tr("%1 was not written: its end is missing; is the disk full?").arg(name_);
  SysCarto::GdalErrors const errors;
  char const* const drivers[] = {format_.driver, nullptr};
  DatasetPtr const image(static_cast<GDALDataset*>(
      GDALOpenEx(writtenPath().toUtf8().constData(), GDAL_OF_RASTER | GDAL_OF_READONLY, drivers, nullptr, nullptr)));
  if (!image) return tr("%1 was not written: the image can't be read again.").arg(name_);
  if (size.isEmpty()) size = {image->GetRasterXSize(), image->GetRasterYSize()};
  if (image->GetRasterXSize() != size.width() || image->GetRasterYSize() != size.height() ||
      image->GetRasterCount() != bands)
    return tr("%1 was not written: the image has not the size that it should have.").arg(name_);
  if (!hasItsEnd(*image, size, bands) || errors.hasFailure())
    return tr("%1 was not written: the end of the image is missing; is the disk full?").arg(name_);
  return QString();
}

bool ImageTarget::hasEnding() const {
  return std::any_of(std::begin(endings), std::end(endings),
                     [&](Ending const& ending) { return is(ending.driver) && endsWith(writtenPath(), ending.bytes); });
}

// Reading the last rows of a format that is written in one go would take as long as writing them all.
bool ImageTarget::hasItsEnd(GDALDataset& image, QSize const& size, int bands) const {
  if (is("JPEG") || is("PNG")) return hasEnding();
  if (is("WEBP")) return isWholeRiff(writtenPath());
  bool const whole = !is("BMP") || QFileInfo(writtenPath()).size() >= bmpBytes(size);
  return whole && readLastRows(image, size, bands);
}

QString ImageTarget::commit() {
  int error = syncToDisk(workingPath());
  if (error == 0) error = moved(workingPath(), path_);
  if (error != 0) return tr("%1 was not written: %2.").arg(name_, systemReason(error));
  folder_->setWritten();
  for (QString const& name : beside_)
    if (error == 0 && (error = moved(besidePath(sidePrefix + name), besideImage(name))) != 0)
      return tr("%1 was written, but not %2, which says where it lies: %3.").arg(name_, name, systemReason(error));
  return QString();
}
