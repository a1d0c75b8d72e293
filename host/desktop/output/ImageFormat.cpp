#include "ImageFormat.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

// clang-format off
constexpr ImageFormat formats[] = {
    // name  suffixes    driver   plug-in vector alpha  pages  quality
    {"png",  "png",      "PNG",   true,   false, true,  false, false},
    {"jpeg", "jpg jpeg", "JPEG",  true,   false, false, false, true},
    {"bmp",  "bmp",      "BMP",   true,   false, false, false, false},
    {"tiff", "tif tiff", "GTiff", true,   false, true,  false, false},
    {"webp", "webp",     "WEBP",  false,  false, true,  false, true},
    {"pdf",  "pdf",      "PDF",   false,  true,  false, true,  false},
    {"svg",  "svg",      "SVG",   false,  true,  false, false, false},
};

constexpr ImageFormat::Compression ways[] = {
    {"none",     "GTiff", ""},
    {"lzw",      "GTiff", "COMPRESS=LZW PREDICTOR=2"},
    {"deflate",  "GTiff", "COMPRESS=DEFLATE PREDICTOR=2"},
    {"zstd",     "GTiff", "COMPRESS=ZSTD PREDICTOR=2"},
    {"lossless", "WEBP",  "LOSSLESS=YES"},
};
// clang-format on

template <class Predicate>
ImageFormat const* first(Predicate isWanted) {
  auto const found = std::find_if(std::begin(formats), std::end(formats), isWanted);
  return found == std::end(formats) ? nullptr : found;
}

}  // namespace

QStringList ImageFormat::suffixList() const { return QString::fromLatin1(suffixes).split(QLatin1Char(' ')); }

QString ImageFormat::shownName() const {
  QString const upper = QString::fromLatin1(name).toUpper();
  return upper == QLatin1String("WEBP") ? QStringLiteral("WebP") : upper;
}

ImageFormat const* ImageFormat::named(QString const& name) {
  auto const* const found =
      first([&](ImageFormat const& one) { return name.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0; });
  return found ? found : withSuffix(name);
}

ImageFormat const* ImageFormat::withSuffix(QString const& suffix) {
  return first([&](ImageFormat const& one) { return one.suffixList().contains(suffix, Qt::CaseInsensitive); });
}

ImageFormat const& ImageFormat::writtenAt(QString const& path) {
  QString const suffix = QFileInfo(path).suffix();
  ImageFormat const* const found =
      first([&](ImageFormat const& one) { return suffix.compare(one.suffixList().first(), Qt::CaseInsensitive) == 0; });
  return found && found->isOfPlugin ? *found : *named(QStringLiteral("tiff"));
}

ImageFormat::Compression const* ImageFormat::compression(QString const& wanted) const {
  auto const* const found = std::find_if(std::begin(ways), std::end(ways), [&](Compression const& way) {
    return std::strcmp(way.driver, driver) == 0 && wanted.compare(QLatin1String(way.name), Qt::CaseInsensitive) == 0;
  });
  return found == std::end(ways) ? nullptr : found;
}

QString ImageFormat::compressions() const {
  QStringList all;
  for (Compression const& way : ways)
    if (std::strcmp(way.driver, driver) == 0) all << QLatin1String(way.name);
  return all.join(QStringLiteral(", "));
}

QString ImageFormat::allCompressions() {
  QStringList all;
  for (ImageFormat const& one : formats)
    if (QString const own = one.compressions(); !own.isEmpty())
      all << QStringLiteral("%1 (%2)").arg(own, QLatin1String(one.name));
  return all.join(QStringLiteral("; "));
}

QString ImageFormat::names() {
  QStringList all;
  for (ImageFormat const& one : formats) all << QLatin1String(one.name);
  return all.join(QStringLiteral(", "));
}

QString ImageFormat::allSuffixes() {
  QStringList all;
  for (ImageFormat const& one : formats)
    for (QString const& suffix : one.suffixList()) all << QLatin1Char('.') + suffix;
  return all.join(QStringLiteral(", "));
}

QString ImageFormat::writtenSuffixes() {
  QStringList all;
  for (ImageFormat const& one : formats)
    if (one.isOfPlugin) all << QLatin1Char('.') + one.suffixList().first();
  return all.join(QStringLiteral(", "));
}
