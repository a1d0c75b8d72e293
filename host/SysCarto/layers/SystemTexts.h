#pragma once

#include <QByteArray>
#include <QString>

namespace SysCarto {

/// Whether a text, with characters of JSON written in any way, gives a coordinate system a grid or a parameter file by
/// a path of its own: "nadgrids=/tmp/a". PROJ opens such a file as soon as it reads the text, so that whoever reads
/// data of strangers has to look first.
bool namesGridByPath(QByteArray const& text);

/// Why a file of data is not opened, to go on after "it can't be opened: ", where its coordinate system does that, or
/// one that lies beside it or in a folder of an archive (`name`, as GDAL opens it). Empty for any other, and for a
/// database. Of a large raster only the ends are looked at.
QString problemOfSystem(QString const& path, QByteArray const& name);

}  // namespace SysCarto
