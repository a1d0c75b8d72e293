#include "SourceBounds.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFileInfo>

#include <cpl_error.h>
#include <ogr_feature.h>
#include <ogr_geometry.h>

#include <cstring>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SourceBounds)
};

// No format has features of less than a byte, not even a compressed one; what is honest is far from both.
constexpr std::size_t freeFeatures = 200000;
constexpr std::size_t freeBytes = 64000000;
constexpr std::size_t bytesPerByte = 32;
constexpr double freeBytesParsed = 8e6;  // of what a driver takes many times as much memory for

// What a value takes beyond the room that each field of a feature has.
std::size_t bytesOf(OGRField const& value, OGRFieldType type) {
  auto const of = [](auto const& list) { return static_cast<std::size_t>(list.nCount) * sizeof(*list.paList); };
  switch (type) {
    case OFTString: return std::strlen(value.String);
    case OFTBinary: return static_cast<std::size_t>(value.Binary.nCount);
    case OFTIntegerList: return of(value.IntegerList);
    case OFTInteger64List: return of(value.Integer64List);
    case OFTRealList: return of(value.RealList);
    case OFTStringList: {
      std::size_t bytes = of(value.StringList);
      for (int i = 0; i < value.StringList.nCount; ++i) bytes += std::strlen(value.StringList.paList[i]);
      return bytes;
    }
    default: return 0;  // numbers and times; no driver makes wide strings any more
  }
}

constexpr std::size_t featuresOfServer = 5000000;
constexpr std::size_t bytesOfServer = 2000000000;

}  // namespace

std::size_t bytesOf(OGRFeature const& feature) {
  OGRGeometry const* const geometry = feature.GetGeometryRef();
  std::size_t bytes = geometry ? geometry->WkbSize() : 0;
  for (int i = 0; i < feature.GetFieldCount(); ++i)
    if (feature.IsFieldSetAndNotNull(i))
      bytes += bytesOf(*feature.GetRawFieldRef(i), feature.GetFieldDefnRef(i)->GetType());
  return bytes;
}

qint64 dataSizeOf(QString const& file) {
  QFileInfo const own(file);
  qint64 bytes = 0;
  QDirIterator files(own.absolutePath(), {own.completeBaseName() + QStringLiteral(".*")}, QDir::Files);
  while (files.hasNext()) {
    files.next();
    if (files.fileInfo().completeBaseName() == own.completeBaseName()) bytes += files.fileInfo().size();
  }
  return bytes;
}

bool SourceBounds::allows(double features, qint64 fileSize) {
  return features <= static_cast<double>(freeFeatures) + static_cast<double>(fileSize);
}

bool SourceBounds::allowsUnpacked(double bytes, qint64 fileSize, Reading reading) {
  double const free = reading == Reading::Whole ? freeBytesParsed : static_cast<double>(freeBytes);
  return bytes <= free + static_cast<double>(bytesPerByte) * static_cast<double>(fileSize);
}

SourceBounds::SourceBounds(QString const& file) {
  auto const size = static_cast<std::size_t>(file.isEmpty() ? 0 : dataSizeOf(file));
  featuresLeft_ = freeFeatures + size;
  bytesLeft_ = freeBytes + bytesPerByte * size;
}

SourceBounds SourceBounds::ofServer() { return {featuresOfServer, bytesOfServer}; }

bool SourceBounds::admits(OGRFeature const& feature) {
  std::size_t const bytes = bytesOf(feature);
  bool const isFew = featuresLeft_ > 0;
  if (isFew && bytes <= bytesLeft_) {
    --featuresLeft_;
    bytesLeft_ -= bytes;
    return true;
  }
  QString const ofServer =
      Texts::tr("it gives more than 5 million features or 2 GB; let the layer show a view of it that has fewer");
  QString const reason = !isOfFile_ ? ofServer
                         : isFew    ? Texts::tr("it gives longer values than a file of its size can hold")
                                    : Texts::tr("it gives more features than a file of its size can hold");
  CPLError(CE_Failure, CPLE_AppDefined, "%s", reason.toUtf8().constData());
  return false;
}

}  // namespace SysCarto
