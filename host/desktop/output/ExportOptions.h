#pragma once

#include "host/SysCarto/layout/OutputChoices.h"

#include <QString>

#include <functional>

/// Told what is being done, and how far it is, in percent.
using ExportProgress = std::function<void(QString const& what, int percent)>;

/// What a person chooses for a page that becomes a file.
struct ExportOptions {
  static constexpr int defaultDpi = 300;
  static constexpr int maxDpi = 100000;
  static constexpr int maxVectorDpi = 2400;  ///< of pictures in place of what can't be shapes
  static constexpr int maxWidthPx = 10000000;
  static constexpr int defaultQuality = 75;  ///< as GDAL has it

  int dpi = defaultDpi;  ///< pixels per inch of paper

  bool allowMissing = false;  ///< goes on where data can't be read to their end

  // Of vector formats alone.
  bool textAsShapes = false;  ///< letters are outlines

  // Of a PDF alone.
  bool layers = true;  ///< can be hidden
  double bleedCm = 0;  ///< how far what lies over the page's edges is drawn beyond them
  bool cropMarks = false;
  QString outputIntent{};  ///< the file of an ICC profile; sRGB where it is empty

  // Of images alone.
  int widthPx = 0;               ///< in place of a resolution; 0 for none
  QString compression;           ///< one of `ImageFormat::compression`; empty for what the format usually has
  int quality = defaultQuality;  ///< 1 to 100, of formats that have one
  bool transparent = false;      ///< without the page's background
  bool crop = false;             ///< to the elements
  QString georeference;          ///< the data frame, by its own or its map's name, whose place on the Earth it tells

  static ExportOptions of(SysCarto::ExportChoices const& choices);
};
