#pragma once

#include "Connections.h"

#include <SysCarto/Export.h>

#include <QString>

#include <vector>

namespace SysCarto {

/// A table whose fields become those of the features that have a row in it.
struct TableJoin {
  QString file;      ///< absolute
  QString layer;     ///< of the file; empty for the first
  QString key;       ///< the field of the features
  QString tableKey;  ///< the field of the table that holds the same values
  QString prefix;    ///< stands before the names of the table's fields

  SYSCARTO_EXPORT bool operator==(TableJoin const& other) const;
};

/// Where the features of a layer come from.
struct SourceSettings {
  /// A file, or one area that covers the whole globe, in the map's own geographic system: the sea below countries.
  enum class Data { File, Globe };

  QString file;              ///< absolute
  QString layer;             ///< empty for the first of the file
  QString filter;            ///< a condition on the fields, as in OGR SQL ("population > 1000000"); empty for all
  QString coordinateSystem;  ///< stands in for the file's own; empty for that

  // Of a table: the columns that hold coordinates, or geometries as well-known text. Where none is named, the names and
  // values of the columns tell.
  QString xField = {};
  QString yField = {};
  QString geometryField = {};

  std::vector<TableJoin> joins = {};

  Data data = Data::File;  ///< the other members are for a file

  /// Stands in for the file: the name of a connection to a database, of which the layer is a table.
  QString connection = {};

  /// Whether it names a file or what stands in for it.
  bool isGiven() const { return !file.isEmpty() || !connection.isEmpty(); }

  /// The file, or what stands in for it as a command line has it.
  QString origin() const { return connection.isEmpty() ? file : originOf(connection); }
  static SourceSettings of(QString const& origin, QString const& layer) {
    SourceSettings source{origin, layer, {}, {}};
    source.connection = connectionIn(origin);
    if (!source.connection.isEmpty()) source.file.clear();
    return source;
  }

  SYSCARTO_EXPORT bool operator==(SourceSettings const& other) const;
};

}  // namespace SysCarto
