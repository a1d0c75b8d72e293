#pragma once

#include "SourceSettings.h"

#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <chrono>
#include <utility>
#include <vector>

namespace SysCarto {

/// What the geometries of a layer are; a raster is one by itself.
enum class GeometryKind { None, Points, Lines, Areas, Mixed, Raster };

struct FieldDescription {
  enum class Kind { Text, Integer, Real, DateTime, Other };

  QString name;
  Kind kind;
};

/// What a format says of a file or a layer beside what all have: the encoding of texts, a title. By the names that the
/// format has for it.
using Metadata = std::vector<std::pair<QString, QString>>;

struct LayerDescription {
  QString name;
  GeometryKind kind = GeometryKind::None;
  qint64 count = -1;         ///< of features; −1 where it would cost a reading of all
  QString coordinateSystem;  ///< a code where one is known, else WKT; empty where it is not known
  QString coordinateSystemName;
  SysGeometry::Box extent;  ///< in that system; of nothing where it is empty or would cost a reading of all
  std::vector<FieldDescription> fields;   ///< of a raster, its bands
  QString xField, yField, geometryField;  ///< as in `SourceSettings`: the columns that place the rows of a table
  Metadata metadata = {};
};

/// What a file or a connection holds. Layers without features of formats that always have the same layers are left out.
struct DataFile {
  QString path;    ///< of a connection, as `SourceSettings::origin`
  QString format;  ///< for people
  std::vector<LayerDescription> layers;
  QString error;  ///< a sentence that names the file, where it can't be read
  Metadata metadata = {};
};

/// A layer of it, with the columns that place the rows of a table.
SYSCARTO_EXPORT SourceSettings sourceOf(DataFile const& file, LayerDescription const& layer);

/// Describes a local file (an absolute path), or the tables of a connection, without reading all of it, as far as its
/// format lets one. Where that does not say what the geometries are, features are looked at for a second; what is not
/// known then may be mixed.
SYSCARTO_EXPORT DataFile describeFile(QString const& path);

/// Describes one layer of a file by reading its features, until all are read or the time is over: its count and extent,
/// where the file does not say, and the kind of its geometries. With the columns of places that the source names.
SYSCARTO_EXPORT LayerDescription describeLayer(SourceSettings const& source, std::chrono::milliseconds limit,
                                               QString& error);

/// The fields that the features of a source have, those of joined tables, too. None, with a sentence in `error`, where
/// it can't be read.
SYSCARTO_EXPORT std::vector<FieldDescription> fieldsOf(SourceSettings const& source, QString& error);

/// The first different values of a field, as texts, at most `limit`; of a very long file, of its beginning.
SYSCARTO_EXPORT QStringList sampleValues(SourceSettings const& source, QString const& field, int limit);

/// A local file (an absolute path) and those that belong to it, whether they are there or not: attributes and the index
/// of a Shapefile, the log of a database.
SYSCARTO_EXPORT QStringList filesOf(QString const& path);

/// The files of a folder whose names are those of data, by name, without the companions of others; absolute.
SYSCARTO_EXPORT QVector<QString> dataFilesIn(QString const& folder);

}  // namespace SysCarto
