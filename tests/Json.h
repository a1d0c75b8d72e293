#pragma once

#include <QJsonDocument>
#include <QJsonObject>

/// JSON with single quotes, which reads better in a test.
inline QJsonObject json(QByteArray text) {
  QJsonParseError error;
  QJsonDocument const document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
  if (error.error != QJsonParseError::NoError) qFatal("%s in %s", qPrintable(error.errorString()), text.data());
  return document.object();
}
