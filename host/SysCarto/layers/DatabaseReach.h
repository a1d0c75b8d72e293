#pragma once

#include <QString>

namespace SysCarto {

/// Why a file that is a database of SQLite is not opened, to go on after "it can't be opened: ", where what it holds
/// leads to other files: a table of a module that reads one, as those of SpatiaLite do, or a coordinate system of a
/// GeoPackage with a grid by a path. To be asked before GDAL opens it, which has such a file opened when it only
/// describes the table. So it is where a log or a journal lies beside it that SQLite would work into the file. Empty
/// for what leads nowhere, or is no database.
QString problemOfDatabase(QString const& path);

/// Whether a write-ahead log beside a database holds what other programs have written; without it, the database can be
/// opened as if nobody ever wrote into it.
bool hasLog(QString const& path);

}  // namespace SysCarto
