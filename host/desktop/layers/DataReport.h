#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <QJsonObject>
#include <QString>

// What a file of data holds, told to programs and to people. docs/command-line.md lists the keys.

QJsonObject dataJson(SysCarto::DataFile const& file);

/// Without a line for each field.
QString dataText(SysCarto::DataFile const& file);

/// For people, in the language of the program.
QString kindText(SysCarto::GeometryKind kind);

/// The numbers of an extent, with no more digits than a person needs; empty where it is not known.
QString extentText(SysGeometry::Box const& extent);
