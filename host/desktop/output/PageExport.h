#pragma once

#include "ExportOptions.h"
#include "ImageTarget.h"

#include "host/desktop/vector/VectorExport.h"

#include <SysUI/TrackerCancel.h>

#include <QCoreApplication>

#include <optional>

class PageImage;
struct ImageFormat;

/// The page of a document, as it is now, on its way to a file: pixels, which the plug-in's export draws, or shapes.
///
/// Every step answers a sentence for people with what is wrong and what to do, or an empty text.
class PageExport {
  Q_DECLARE_TR_FUNCTIONS(PageExport)

public:
  PageExport(QString const& path, ImageFormat const& format, ExportOptions const& options);

  /// Whether the format can be written at all, and a file be put there. The document need not be open for it.
  QString checkPlace() const;

  /// Whether the document has a page to draw.
  static QString checkPage(SysCarto::MapDocument const& document);

  /// Whether a whole file of the page's size is in its place.
  bool isWhole(SysCarto::MapDocument& document) const;

  /// Makes it a file of these.
  void setPages(NextPage next) { next_ = std::move(next); }

  /// The problems of a document's data, as far as they have shown.
  static QStringList problemsOf(SysCarto::MapDocument const& document);

  /// Which of them a file may have: without this, those that had shown before it is written. Others refuse it.
  void setKnown(QStringList const& problems) { known_ = problems; }

  /// Draws and moves the file into its place. What was there before stays where this fails or is cancelled, which is
  /// told, too. The document is borrowed; only its cursor and its screen are those of a page without a window.
  QString write(SysCarto::MapDocument& document, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                ExportProgress const& progress = {});

  /// What is to be said of what was written last, as sentences.
  QStringList const& notes() const { return notes_; }

private:
  QString writePixels(SysCarto::MapDocument& document, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                      ExportProgress const& progress);
  QString newProblem(SysCarto::MapDocument const& document, QStringList const& known) const;
  QString writeShapes(SysCarto::MapDocument const& document, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  QString tooMuch() const;
  QString putBeside(PageImage const& image, SysCarto::MapDocument const& document);

  QString path_;
  ImageFormat const& format_;
  ExportOptions options_;
  ImageTarget target_;
  NextPage next_;
  std::optional<QStringList> known_;
  QStringList notes_;
};
