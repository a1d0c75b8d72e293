#include "ImageTags.h"

#include "ImageFormat.h"
#include "XmpPacket.h"

#include <QColorSpace>
#include <QFile>
#include <QSaveFile>
#include <QSize>
#include <QtEndian>

#include <boost/crc.hpp>
#include <gdal_priv.h>

#include <cmath>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace {

constexpr double metresPerInch = 0.0254;

QByteArray sRgb() { return QColorSpace(QColorSpace::SRgb).iccProfile(); }

template <class Number>
QByteArray bigEndian(Number number) {
  QByteArray bytes(sizeof(Number), '\0');
  qToBigEndian(number, bytes.data());
  return bytes;
}
template <class Number>
QByteArray littleEndian(Number number) {
  QByteArray bytes(sizeof(Number), '\0');
  qToLittleEndian(number, bytes.data());
  return bytes;
}

quint32 dotsPerMetre(double dpi) { return static_cast<quint32>(std::lround(dpi / metresPerInch)); }

// A file anew: a head of its own length in place of the first bytes, what follows them, and a tail.
bool rewrite(QString const& path, QByteArray const& head, int replacedBytes, QByteArray const& tail = {}) {
  constexpr qint64 blockBytes = 1 << 20;
  QFile before(path);
  QSaveFile after(path);
  if (!before.open(QIODevice::ReadOnly) || !after.open(QIODevice::WriteOnly) || !before.seek(replacedBytes))
    return false;
  bool isWhole = after.write(head) == head.size();
  while (isWhole && !before.atEnd()) {
    QByteArray const block = before.read(blockBytes);
    isWhole = !block.isEmpty() && after.write(block) == block.size();
  }
  return isWhole && after.write(tail) == tail.size() && after.commit();
}

QByteArray firstBytes(QString const& path, int count) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.read(count) : QByteArray();
}

// As ISO/IEC 15948 has it: the length of the data, a type, the data, and a check of both.
QByteArray pngChunk(char const* type, QByteArray const& data) {
  QByteArray const checked = type + data;
  boost::crc_32_type check;
  check.process_bytes(checked.constData(), static_cast<std::size_t>(checked.size()));
  return bigEndian(quint32(data.size())) + checked + bigEndian(quint32(check.checksum()));
}

// Behind the signature and the header, which GDAL writes first.
bool addToPng(QString const& path, double dpi, QByteArray const& xmp) {
  constexpr int headBytes = 8 + 12 + 13;
  QByteArray const head = firstBytes(path, headBytes);
  if (head.size() < headBytes || head.mid(12, 4) != "IHDR") return false;
  QByteArray const perMetre = bigEndian(dotsPerMetre(dpi));
  return rewrite(path,
                 head + pngChunk("pHYs", perMetre + perMetre + '\x01') +
                     pngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + xmp),
                 headBytes);
}

// The first segment of a JFIF file has the resolution; the others may follow in any order.
bool addToJpeg(QString const& path, double dpi, QByteArray const& xmp) {
  constexpr int headBytes = 20, unitPlace = 13;
  QByteArray head = firstBytes(path, headBytes);
  if (head.size() < headBytes || head.mid(6, 5) != QByteArray("JFIF\0", 5)) return false;
  QByteArray const perInch = bigEndian(static_cast<quint16>(qBound(1L, std::lround(dpi), 65535L)));
  head.replace(unitPlace, 5, '\x01' + perInch + perInch);
  QByteArray const name("http://ns.adobe.com/xap/1.0/\0", 29);
  QByteArray const segment = name + xmp;
  constexpr int maxSegmentBytes = 65533;
  if (segment.size() > maxSegmentBytes) return rewrite(path, head, headBytes);
  return rewrite(path, head + "\xff\xe1" + bigEndian(static_cast<quint16>(segment.size() + 2)) + segment, headBytes);
}

// The headers of 24 bits a pixel: GDAL writes them without a look at whether the disk took them.
bool addToBmp(QString const& path, QSize const& size, double dpi) {
  constexpr quint32 fileHeadBytes = 14, infoBytes = 40, headBytes = fileHeadBytes + infoBytes;
  quint32 const rowBytes = (quint32(size.width()) * 3 + 3) / 4 * 4, pixelBytes = rowBytes * quint32(size.height());
  QByteArray const perMetre = littleEndian(dotsPerMetre(dpi)), none(8, '\0');
  QByteArray const head = "BM" + littleEndian(headBytes + pixelBytes) + littleEndian(quint32(0)) +
                          littleEndian(headBytes) + littleEndian(infoBytes) + littleEndian(quint32(size.width())) +
                          littleEndian(quint32(size.height())) + littleEndian(quint16(1)) + littleEndian(quint16(24)) +
                          littleEndian(quint32(0)) + littleEndian(pixelBytes) + perMetre + perMetre + none;
  QFile file(path);
  return file.open(QIODevice::ReadWrite) && file.write(head) == head.size() && file.flush();
}

QByteArray riffChunk(char const* type, QByteArray const& data) {
  return type + littleEndian(quint32(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

// GDAL writes the simple form, one chunk; what can say more is the extended one, which starts with the image's size.
bool addToWebp(QString const& path, QSize const& size, bool hasAlpha, QByteArray const& xmp) {
  constexpr int headBytes = 12;
  constexpr char hasColors = 0x20, isTransparent = 0x10, hasXmp = 0x04;
  QByteArray const before = firstBytes(path, headBytes + 4);
  if (before.size() < headBytes + 4 || before.mid(8, 4) != "WEBP" || before.mid(headBytes, 3) != "VP8") return false;
  if (before.mid(headBytes) == "VP8X") return true;
  char const flags = static_cast<char>(hasColors | hasXmp | (hasAlpha ? isTransparent : 0));
  auto const side = [](int pixels) { return littleEndian(quint32(pixels - 1)).left(3); };
  QByteArray const own =
      riffChunk("VP8X", QByteArray(1, flags) + QByteArray(3, '\0') + side(size.width()) + side(size.height())) +
      riffChunk("ICCP", sRgb());
  QByteArray const tail = riffChunk("XMP ", xmp);
  qint64 const bytes = QFile(path).size() - 8 + own.size() + tail.size();
  return rewrite(path, "RIFF" + littleEndian(quint32(bytes)) + "WEBP" + own, headBytes, tail);
}

}  // namespace

void ImageTags::describe(GDALDataset& dataset) const {
  std::initializer_list<std::pair<char const*, QString>> const tags = {
      {"TIFFTAG_XRESOLUTION", QString::number(dpi, 'g', 10)},
      {"TIFFTAG_YRESOLUTION", QString::number(dpi, 'g', 10)},
      {"TIFFTAG_RESOLUTIONUNIT", QStringLiteral("2")},  // the inch
      {"TIFFTAG_DOCUMENTNAME", information.title},
      {"TIFFTAG_ARTIST", information.author},
      {"TIFFTAG_IMAGEDESCRIPTION", information.subject},
      {"TIFFTAG_COPYRIGHT", information.credits},
      {"TIFFTAG_SOFTWARE", QStringLiteral("Plotvane")}};
  for (auto const& [name, value] : tags)
    if (!value.isEmpty()) dataset.SetMetadataItem(name, value.toUtf8().constData());
  QByteArray const packet = xmpPacket(information, {});
  char const* const packets[] = {packet.constData(), nullptr};
  dataset.SetMetadata(const_cast<char**>(packets), "xml:XMP");
}

QByteArray ImageTags::colorOption(ImageFormat const& format) {
  bool const hasPlace = std::strcmp(format.driver, "BMP") != 0 && std::strcmp(format.driver, "WEBP") != 0;
  return hasPlace ? "SOURCE_ICC_PROFILE=" + sRgb().toBase64() : QByteArray();
}

bool ImageTags::addTo(QString const& path, ImageFormat const& format, QSize const& size, bool hasAlpha) const {
  QByteArray const xmp = xmpPacket(information, {});
  auto const is = [&](char const* driver) { return std::strcmp(format.driver, driver) == 0; };
  if (is("PNG")) return addToPng(path, dpi, xmp);
  if (is("JPEG")) return addToJpeg(path, dpi, xmp);
  if (is("BMP")) return addToBmp(path, size, dpi);
  if (is("WEBP")) return addToWebp(path, size, hasAlpha, xmp);
  return true;
}
