#pragma once

#include <QString>

namespace SysCarto {

/// Whether what a database of SQLite holds leads to other files: a table of a module that reads one, as those of
/// SpatiaLite do, or a coordinate system of a GeoPackage with a grid by a path. To be asked before GDAL opens it, which
/// has such a file opened when it only describes the table. False for what is no database.
bool leadsElsewhere(QString const& path);

}  // namespace SysCarto
