#pragma once

#include <QStringList>

/// A format in which a page is written as an image.
struct ImageFormat {
  char const* name;         ///< as a command line has it
  char const* suffixes;     ///< separated by blanks, without dots; the first one makes the plug-in write the format
  char const* driver;       ///< GDAL's name; of a vector format just a name
  bool isOfPlugin = true;   ///< known to the plug-in's export command, too
  bool isVector = false;    ///< of shapes
  bool hasAlpha = false;    ///< can be transparent
  bool hasPages = false;    ///< several in one file
  bool hasQuality = false;  ///< gives up some likeness for size

  /// A way in which the pixels of some format are packed.
  struct Compression {
    char const* name;     ///< as a command line has it
    char const* driver;   ///< of the format
    char const* options;  ///< GDAL's creation options, separated by blanks
  };

  QStringList suffixList() const;
  QString shownName() const;  ///< to people: PNG, WebP

  // Without regard to case; null where there is no such format. A suffix is a name, too.
  static ImageFormat const* named(QString const& name);
  static ImageFormat const* withSuffix(QString const& suffix);

  /// What the plug-in writes at a path: a TIFF where it does not know the suffix.
  static ImageFormat const& writtenAt(QString const& path);

  /// Null where the format has no such way.
  Compression const* compression(QString const& name) const;
  QString compressions() const;      ///< their names, "none, lzw, …"
  static QString allCompressions();  ///< "none, lzw (tiff), lossless (webp)"

  static QString names();        ///< "png, jpeg, …"
  static QString allSuffixes();  ///< ".png, .jpg, …"

  /// Those by which the plug-in writes each format.
  static QString writtenSuffixes();
};
