#include "ImageFormat.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

constexpr ImageFormat formats[] = {{"png", "png", "PNG"},
                                   {"jpeg", "jpg jpeg", "JPEG"},
                                   {"bmp", "bmp", "BMP"},
                                   {"tiff", "tif tiff", "GTiff"},
                                   {"pdf", "pdf", "PDF", true}};

template <class Predicate>
ImageFormat const* first(Predicate isWanted) {
  auto const found = std::find_if(std::begin(formats), std::end(formats), isWanted);
  return found == std::end(formats) ? nullptr : found;
}

}  // namespace

QStringList ImageFormat::suffixList() const { return QString::fromLatin1(suffixes).split(QLatin1Char(' ')); }

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
  return found && !found->isVector ? *found : *named(QStringLiteral("tiff"));
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
    if (!one.isVector) all << QLatin1Char('.') + one.suffixList().first();
  return all.join(QStringLiteral(", "));
}
