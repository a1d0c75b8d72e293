#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QtGlobal>

#include <cstddef>

class OGRFeature;

namespace SysCarto {

/// About how much of memory a feature takes: its geometry and its values.
std::size_t bytesOf(OGRFeature const& feature);

/// How large a file of data is with those of its name beside it, in which some formats have their features.
SYSCARTO_EXPORT qint64 dataSizeOf(QString const& file);

/// Holds what is read of a file against the file's size: a view of a database, an index that names one record a million
/// times, or blocks of a drawing can give without end what takes a few bytes.
class SourceBounds {
public:
  /// Whether a file of so many bytes may give so many features.
  static bool allows(double features, qint64 fileSize);

  /// Whether an archive of so many bytes may hold so many, of which a driver reads one feature after the other or has
  /// all of them in memory at once.
  enum class Reading { ByFeature, Whole };
  static bool allowsUnpacked(double bytes, qint64 fileSize, Reading reading);

  /// No file, no size.
  explicit SourceBounds(QString const& file);

  /// Of a server, which has no size that could be asked for: a person of trust has named it, and what bounds it is the
  /// memory of this computer.
  static SourceBounds ofServer();

  /// False once it is too much; the error handler of GDAL is then told why.
  bool admits(OGRFeature const& feature);

private:
  SourceBounds(std::size_t features, std::size_t bytes)
      : featuresLeft_(features), bytesLeft_(bytes), isOfFile_(false) {}

  std::size_t featuresLeft_, bytesLeft_;
  bool isOfFile_ = true;
};

}  // namespace SysCarto
