#pragma once

#include <QByteArray>
#include <QString>

namespace SysCarto {

/// Whether a text, with characters of JSON written in any way, gives a coordinate system a grid or a parameter file by
/// a path of its own: "nadgrids=/tmp/a". PROJ opens such a file as soon as it reads the text, so that whoever reads
/// data of strangers has to look first.
bool namesGridByPath(QByteArray const& text);

/// The same of what tells the coordinate system of a local file of data, or of a folder of GDAL's in an archive
/// (`name`, as GDAL opens it). A database is not looked into.
bool isPlacedByPath(QString const& path, QByteArray const& name);

}  // namespace SysCarto
