#pragma once

#include "host/SysUtility/Fields.h"

#include <SysUtility/Export.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace SysUtility {

/// What a kind of file is called where something is wrong with one, and how large it may be.
struct JsonFileKind {
  QString noun;    ///< "map document"
  QString suffix;  ///< ".kdx"
  int maxMebibytes;
};

/// Reads the JSON object in a file. Nothing, with a sentence in `error` that names the file and the fix, where there is
/// no such file, it is too large for its kind, or it holds no JSON object.
SYSUTILITY_EXPORT std::optional<QJsonObject> readJsonFile(QString const& path, JsonFileKind const& kind,
                                                          QString& error);

/// What a file says of itself. The sentences tell of a file of another format than %1, and of one of the newer version
/// %1.
struct JsonFormat {
  char const* name;
  char const* caption;  ///< as in `Choice`
  int version;
  QString otherSentence, newerSentence;
};

/// The fields "format" and "version". Other fields make sense only where the visitor is `ok` afterwards.
SYSUTILITY_EXPORT void listFormat(Fields& fields, JsonFormat const& format);

/// The text of a file: equal objects give equal bytes.
SYSUTILITY_EXPORT QByteArray jsonText(QJsonObject const& object);

/// Any value on one line.
SYSUTILITY_EXPORT QString jsonLine(QJsonValue const& value);

/// A sentence about a file: “FILE: problem”.
SYSUTILITY_EXPORT QString aboutFile(QString const& path, QString const& problem);

}  // namespace SysUtility
