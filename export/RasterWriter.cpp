#include "RasterWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <gdal_priv.h>

#include <utility>

namespace Plugin {

namespace {

constexpr char temporaryDriver[] = "GTiff";
constexpr int bandCount = 3;
constexpr int bytesPerPixel = 4;

struct Format {
  char const* suffix;
  char const* driver;
};
constexpr Format formats[] = {{"jpg", "JPEG"}, {"png", "PNG"}, {"bmp", "BMP"}};

GDALDriver* driver(char const* name) { return GetGDALDriverManager()->GetDriverByName(name); }

}  // namespace

char const* RasterWriter::driverName(QString const& path) {
  QString const suffix = QFileInfo(path).suffix();
  for (Format const& format : formats)
    if (suffix.compare(QLatin1String(format.suffix), Qt::CaseInsensitive) == 0) return format.driver;
  return "GTiff";
}

RasterWriter::RasterWriter(QString const& path)
    : path_(path),
      temporaryPath_(QFileInfo(path).absolutePath() + QStringLiteral("//") + QUuid::createUuid().toString() +
                     QStringLiteral(".tif")) {}

RasterWriter::~RasterWriter() { removeTemporary(); }

bool RasterWriter::create(QSize const& size) {
  GDALAllRegister();
  if (!driver(temporaryDriver) || !driver(driverName(path_))) return false;
  temporary_ =
      driver(temporaryDriver)
          ->Create(temporaryPath_.toUtf8().constData(), size.width(), size.height(), bandCount, GDT_Byte, nullptr);
  return temporary_ != nullptr;
}

bool RasterWriter::write(QImage const& tile, QPoint const& position) {
  // GDAL takes the bytes it only reads by a pointer to non-const.
  auto* const bytes = const_cast<uchar*>(tile.constBits());
  int const width = tile.width();
  int const height = tile.height();
  for (int band = 1; band <= bandCount; ++band)
    if (temporary_->GetRasterBand(band)->RasterIO(GF_Write, position.x(), position.y(), width, height,
                                                  bytes + (band - 1), width, height, GDT_Byte, bytesPerPixel,
                                                  GSpacing{bytesPerPixel} * width, nullptr) != CE_None)
      return false;
  return true;
}

void RasterWriter::convert(Progress progress, void* data) {
  GDALDataset* const result =
      driver(driverName(path_))->CreateCopy(path_.toUtf8().constData(), temporary_, TRUE, nullptr, progress, data);
  GDALClose(std::exchange(temporary_, nullptr));
  if (result) GDALClose(result);
  QFile::remove(temporaryPath_);
}

void RasterWriter::removeTemporary() {
  if (!temporary_) return;
  GDALClose(std::exchange(temporary_, nullptr));
  QFile::remove(temporaryPath_);
}

}  // namespace Plugin
