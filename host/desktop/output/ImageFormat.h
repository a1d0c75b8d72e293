#pragma once

#include <QStringList>

/// A format in which a page is written as an image.
struct ImageFormat {
  char const* name;       ///< as a command line has it
  char const* suffixes;   ///< separated by blanks, without dots; the first one makes the plug-in write the format
  char const* driver;     ///< GDAL's name; of a vector format just a name
  bool isVector = false;  ///< of shapes, written by the host

  QStringList suffixList() const;

  // Without regard to case; null where there is no such format. A suffix is a name, too.
  static ImageFormat const* named(QString const& name);
  static ImageFormat const* withSuffix(QString const& suffix);

  /// What the plug-in writes at a path: a TIFF where it does not know the suffix.
  static ImageFormat const& writtenAt(QString const& path);

  static QString names();        ///< "png, jpeg, …"
  static QString allSuffixes();  ///< ".png, .jpg, …"

  /// Those by which the plug-in writes each format.
  static QString writtenSuffixes();
};
