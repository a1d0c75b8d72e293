#include "EmbeddedPicture.h"

#include <QBuffer>
#include <QImageReader>

namespace SysCarto {

namespace {

struct Format {
  char const* ofQt;
  char const* name;
  char const* mediaType;
};
constexpr Format formats[] = {{"png", "png", "image/png"},    {"jpeg", "jpeg", "image/jpeg"},
                              {"jpg", "jpeg", "image/jpeg"},  {"tiff", "tiff", "image/tiff"},
                              {"tif", "tiff", "image/tiff"},  {"webp", "webp", "image/webp"},
                              {"svg", "svg", "image/svg+xml"}};

QString prefixOf(Format const& format) {
  return QStringLiteral("data:%1;base64,").arg(QLatin1String(format.mediaType));
}

}  // namespace

QByteArray pictureFormat(QIODevice& file) {
  file.seek(0);
  QByteArray const found = QImageReader::imageFormat(&file);
  file.seek(0);
  for (Format const& format : formats)
    if (found == format.ofQt) return format.name;
  return {};
}

QString embeddedPicture(QByteArray const& fileContent) {
  QBuffer file;
  file.setData(fileContent);
  file.open(QIODevice::ReadOnly);
  QByteArray const found = pictureFormat(file);
  for (Format const& format : formats)
    if (found == format.name) return prefixOf(format) + QLatin1String(fileContent.toBase64());
  return {};
}

std::optional<QByteArray> embeddedBytes(QString const& text) {
  for (Format const& format : formats) {
    QString const prefix = prefixOf(format);
    if (!text.startsWith(prefix)) continue;
    auto const decoded =
        QByteArray::fromBase64Encoding(text.midRef(prefix.size()).toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (decoded && !decoded.decoded.isEmpty()) return decoded.decoded;
  }
  return std::nullopt;
}

}  // namespace SysCarto
