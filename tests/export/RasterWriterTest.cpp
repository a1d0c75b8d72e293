#include "Test.h"

#include "export/RasterWriter.h"

#include <gdal_priv.h>

#include <memory>

using Plugin::RasterWriter;

namespace {

std::unique_ptr<GDALDataset> open(QString const& path) {
  return std::unique_ptr<GDALDataset>(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_RASTER | GDAL_OF_READONLY));
}

QRgb pixel(GDALDataset& dataset, int x, int y) {
  uchar rgb[3] = {};
  for (int band = 1; band <= 3; ++band)
    if (dataset.GetRasterBand(band)->RasterIO(GF_Read, x, y, 1, 1, rgb + band - 1, 1, 1, GDT_Byte, 0, 0, nullptr))
      return 0;
  return qRgb(rgb[0], rgb[1], rgb[2]);
}

QImage filled(QSize const& size, QColor const& color) {
  QImage image(size, QImage::Format_RGBA8888_Premultiplied);
  image.fill(color);
  return image;
}

int proceed(double, char const*, void*) { return 1; }

}  // namespace

class RasterWriterTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    GDALAllRegister();
    CPLSetErrorHandler(CPLQuietErrorHandler);
  }

  void theSuffixNamesTheFormat_data() {
    Rows<QString, QString> row;
    row("JPG in capitals", "map.JPG", "JPEG");
    row("jpeg is a TIFF", "map.jpeg", "GTiff");
    row("png", "map.png", "PNG");
    row("bmp", "map.bmp", "BMP");
    row("no suffix", "map", "GTiff");
    row("the last suffix counts, and letters beyond Latin stay", "Überblick 地図.v2.png", "PNG");
  }

  // Two tiles of unequal width; the first column of the second must be its own colour, and not the first tile's.
  void theSuffixNamesTheFormat() {
    auto const [name, driver] = fetched<QString, QString>();
    QTemporaryDir folder;
    QString const path = folder.filePath(name);
    {
      RasterWriter writer(path);
      QVERIFY(writer.create(QSize(96, 64)));
      QVERIFY(writer.write(filled(QSize(64, 64), Qt::red), QPoint(0, 0)));
      QVERIFY(writer.write(filled(QSize(32, 64), QColor(1, 2, 250)), QPoint(64, 0)));
      writer.convert(proceed, nullptr);
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(name));
    auto const image = open(path);
    QVERIFY(image);
    QCOMPARE(QString(image->GetDriver()->GetDescription()), driver);
    QCOMPARE(QSize(image->GetRasterXSize(), image->GetRasterYSize()), QSize(96, 64));
    QCOMPARE(image->GetRasterCount(), 3);
    double transform[6];
    QVERIFY(image->GetGeoTransform(transform) != CE_None);
    if (driver == "JPEG") return;
    QCOMPARE(pixel(*image, 63, 63), qRgb(255, 0, 0));
    QCOMPARE(pixel(*image, 64, 0), qRgb(1, 2, 250));
  }

  void theTemporaryFileStandsBesideTheImageUnderABracedName() {
    QTemporaryDir folder;
    {
      RasterWriter writer(folder.filePath("map.png"));
      QVERIFY(writer.create(QSize(8, 8)));
      QStringList const files = QDir(folder.path()).entryList(QDir::Files);
      QCOMPARE(files.size(), 1);
      QRegularExpression const braced("^\\{[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\}\\.tif$");
      QVERIFY2(braced.match(files.first()).hasMatch(), qPrintable(files.first()));
    }
    QVERIFY(QDir(folder.path()).isEmpty());
  }
};

QTEST_GUILESS_MAIN(RasterWriterTest)
#include "RasterWriterTest.moc"
