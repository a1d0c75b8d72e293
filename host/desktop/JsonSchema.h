#pragma once

#include <QJsonObject>

struct StoredFormat;

/// The format as a JSON Schema (2020-12). Each type of object is described once, in `$defs`. What a schema can't say is
/// said in `$comment` at its head.
QJsonObject jsonSchema(StoredFormat const& format);
