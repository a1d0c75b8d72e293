#pragma once

#include "Coverage.h"

#include <SysCarto/MapDocument.h>

namespace SysCarto {
struct SeriesFrame;
}

/// The pages of a document's series. One at a time is shown in the views of the document, which itself stays as it is:
/// a save writes the same with a page shown as without.
class SeriesPages {
  Q_DECLARE_TR_FUNCTIONS(SeriesPages)

public:
  /// Whether the document says that it has any.
  static bool areIn(SysCarto::MapDocument const& document);

  /// Reads which there are. On a failure an empty pointer, and `problem` is a sentence. What elements say of pages and
  /// is not understood is told in `warnings`.
  static std::unique_ptr<SeriesPages> read(SysCarto::MapDocument const& document, QString& problem,
                                           QStringList& warnings);

  /// Shows what the document stores.
  ~SeriesPages();
  SeriesPages(SeriesPages const&) = delete;
  SeriesPages& operator=(SeriesPages const&) = delete;

  bool isOf(SysCarto::PageLayout const* layout) const { return layout == layout_.get(); }
  Coverage const& coverage() const { return *coverage_; }
  int count() const { return coverage_->count(); }
  QString const& name(int page) const { return coverage_->name(page); }

  /// The page of that number, or else of that name; 0 for none.
  int find(QString const& text) const;

  /// Shows a page, from 1. Answers a sentence where its feature has no place that a map could show: then the maps stay
  /// where they are in the document.
  QString show(int page);

  /// Shows what the document stores.
  void leave();

  /// 0 for none.
  int shown() const { return shown_; }

  /// Whether a map that showed the page shows its own portion again, as it does when that is changed. `Moved` where
  /// only its bounds are others, as when a person moves it.
  enum class State { Shown, Moved, Changed };
  State state() const;

private:
  explicit SeriesPages(SysUtility::_ptr_t<SysCarto::PageLayout> layout);
  void check(QStringList& warnings);
  bool isAmong(QString const& pages);
  std::optional<QSet<int>> const& conditionFor(QString const& pages, QString& problem);
  std::optional<QString> text(QString const& name, QString const& argument) const;
  bool place(SysCarto::SeriesFrame const& frame);

  SysUtility::_ptr_t<SysCarto::PageLayout> const layout_;
  std::unique_ptr<Coverage> coverage_;
  QHash<QString, std::optional<QSet<int>>> conditions_;  // of elements, by their text; none for what is no condition
  // A map that shows the page, with what else it had then.
  struct Placed {
    SysUtility::_ptr_t<SysCarto::Map> map;
    QString coordinateSystem;
    double rotation, lockedScale;
  };
  std::vector<Placed> placed_;
  SysCarto::TableRow row_;  // of the page that is shown
  int shown_ = 0;
};
