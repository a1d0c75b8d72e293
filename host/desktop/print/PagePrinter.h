#pragma once

#include "PosterPlan.h"

#include "host/desktop/vector/VectorExport.h"

#include <SysCarto/MapDocument.h>
#include <SysUI/TrackerCancel.h>

#include <QCoreApplication>

class QPainter;
class QPrinter;

/// The page of a document on its way to paper, by the document's choices. It is borrowed, and has a page.
class PagePrinter {
  Q_DECLARE_TR_FUNCTIONS(PagePrinter)

public:
  explicit PagePrinter(SysCarto::MapDocument& document);

  /// Prints these, and counts sheets through all of them, in place of the page as it is. They are asked for once.
  void setPages(NextPage next) { next_ = std::move(next); }

  /// Gives a printer the paper and the name of what is printed; of papers that lie upright or across, that on which
  /// fewer sheets are needed.
  void prepare(QPrinter& printer) const;

  /// How the page lies on the paper that the printer has.
  PosterPlan planFor(QPrinter const& printer) const;

  /// Of what is cancelled, a printer forgets all, and a preview shows what there is.
  enum class Cancelled { Forgotten, Kept };

  /// Empty, or a sentence that says why nothing or not all was printed; nothing is said of what was cancelled.
  QString print(QPrinter& printer, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                Cancelled cancelled = Cancelled::Forgotten) const;

  /// As a file, which is moved into place when it is whole.
  QString printToFile(QPrinter& printer, QString const& path,
                      SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  /// Prints to the printer of that name or, with the suffix of a PDF, into a file.
  QString printTo(QString const& target, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  /// The paper that was chosen for a page of that size, upright.
  static QSizeF paperCm(QSizeF const& pageCm, SysCarto::PrintChoices const& choices);

  /// The better way for that paper to lie: its size then.
  static QSizeF turned(QSizeF const& paperCm, QSizeF const& pageCm, SysCarto::PrintChoices const& choices);

private:
  QSizeF pageCm() const;
  SysCarto::PrintChoices const& choices() const;
  void drawSheet(QPainter& painter, PosterPlan const& plan, int row, int column, double pxPerCm,
                 SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;
  void drawMarks(QPainter& painter, PosterPlan const& plan, int row, int column) const;
  void drawNumber(QPainter& painter, PosterPlan const& plan, int row, int column, double pxPerCm) const;

  SysCarto::MapDocument& document_;
  NextPage next_;
};
