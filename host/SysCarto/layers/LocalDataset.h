#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class GDALDataset;

namespace SysCarto {

/// A kind of file that holds vector data or a table itself, and names no other file but its companions.
struct DataFormat {
  char const* driver;    ///< GDAL's name of it
  char const* name;      ///< for people
  char const* suffixes;  ///< without a dot, with spaces between them; of the file that is named, not of its companions
};

/// Those that may be opened, whether this GDAL has them or not.
SYSCARTO_EXPORT QVector<DataFormat> const& dataFormats();

/// Whether the name of a file is that of a format.
SYSCARTO_EXPORT bool isDataFileName(QString const& path);

struct CloseDataset {
  void operator()(GDALDataset* dataset) const;
};
using DatasetPointer = std::unique_ptr<GDALDataset, CloseDataset>;

/// Opens a local file for reading; `path` is absolute and passes `DataSource::refusal`. On a failure an empty pointer,
/// and `error` is a sentence that names the file. `complaint` takes what GDAL says of a file that it opens all the
/// same.
DatasetPointer openLocalDataset(QString const& path, QString& error, QString* complaint = nullptr);

/// Whether nothing says truly how the texts of a Shapefile are encoded, and UTF-8 it is not; then it is opened as one
/// of Windows-1252. Of an archive: of the first in it. False for other files.
SYSCARTO_EXPORT bool hasGuessedEncoding(QString const& path);

/// The name of the table that belongs to a Shapefile, where it is missing; empty for other files.
QString missingTableOf(QString const& path);

/// The name of a dataset's format for people.
QString formatOf(GDALDataset& dataset);

/// Whether it is a table of texts, whose columns may hold coordinates.
bool isTextTable(GDALDataset& dataset);

}  // namespace SysCarto
