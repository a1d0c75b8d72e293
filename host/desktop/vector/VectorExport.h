#pragma once

#include <SysCarto/MapDocument.h>
#include <SysUI/TrackerCancel.h>

#include <QString>

#include <functional>
#include <optional>

/// How a page becomes shapes.
struct VectorOptions {
  int dpi;                    ///< of the image whose pixels the page's shapes lie on, and of what has to be pixels
  bool textAsShapes = false;  ///< letters are outlines in place of text

  // Of a PDF alone.
  bool layers = true;  ///< can be hidden by who reads it
  double bleedCm = 0;  ///< how far what lies over the page's edges is drawn beyond them
  bool cropMarks = false;
  QString outputIntent{};  ///< the file of an ICC profile; sRGB where it is empty
};

/// Shows the next of several pages in the document and answers its name, or nothing after the last.
using NextPage = std::function<std::optional<QString>()>;

/// Writes the page of a document, which has one, as a PDF or SVG. Empty, or why it was not written, as a clause;
/// nothing is said of what was cancelled. What is half written stays where it is.
///
/// With `next`, a PDF has all pages that it shows, each with a bookmark.
QString writePdf(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel, NextPage const& next = {});
QString writeSvg(SysCarto::MapDocument const& document, QString const& path, VectorOptions const& options,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
