#pragma once

#include <QStringList>

/// A format in which a page is written as an image.
struct ImageFormat {
  char const* name;      ///< as a command line has it
  char const* suffixes;  ///< separated by blanks, without dots; the first one makes the plug-in write the format
  char const* driver;    ///< GDAL's name

  QStringList suffixList() const;

  // Without regard to case; null where there is no such format.
  static ImageFormat const* named(QString const& name);
  static ImageFormat const* withSuffix(QString const& suffix);

  /// What the plug-in writes at a path: a TIFF where the suffix names nothing.
  static ImageFormat const& writtenAt(QString const& path);

  static QString names();        ///< "png, jpeg, …"
  static QString allSuffixes();  ///< ".png, .jpg, …"
};
