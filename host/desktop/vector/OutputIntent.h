#pragma once

#include <QByteArray>
#include <QString>

/// For which device a file's colours are meant: an ICC profile of red, green and blue.
struct OutputIntent {
  QString name;
  QByteArray profile;

  static OutputIntent sRgb();

  /// Reads it from a file. Empty, or what is wrong with that, as a clause.
  static QString read(QString const& path, OutputIntent& intent);
};
