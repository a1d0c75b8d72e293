#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace SysCarto {

/// Reads the JSON object in a file. Nothing, with a sentence in `error` that names the file and the fix, where there is
/// no such file, it is too large to be a document, or it holds no JSON object.
std::optional<QJsonObject> readDocumentFile(QString const& path, QString& error);

/// The text of a document file: equal objects give equal bytes.
QByteArray documentText(QJsonObject const& document);

/// A sentence about a file: “FILE: problem”.
QString aboutFile(QString const& path, QString const& problem);

}  // namespace SysCarto
