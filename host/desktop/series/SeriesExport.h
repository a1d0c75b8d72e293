#pragma once

#include "PageRanges.h"
#include "SeriesPages.h"

#include "host/desktop/output/PageExport.h"

#include <QDateTime>

class QCommandLineOption;
class QCommandLineParser;

/// Which pages of a series become files, and how.
struct SeriesOptions {
  Q_DECLARE_TR_FUNCTIONS(SeriesOptions)

public:
  std::optional<PageRanges> pages;  ///< all without
  int part = 1, parts = 1;          ///< of these every so many, from the first one on
  int jobs = 1;                     ///< processes
  bool resumes = false;             ///< passes over pages that are there

  static constexpr int maxJobs = 64;
  static constexpr int maxParts = 1000000;

  static QList<QCommandLineOption> all();

  /// A sentence where an option is wrong.
  QString read(QCommandLineParser const& parser);

  bool isAny() const { return pages || parts > 1 || jobs > 1 || resumes; }

  /// The chosen ones of so many pages, ascending.
  std::vector<int> chosenOf(int count) const;
};

/// The pages of a document's series on their way to files: each to one of its own, whose path has placeholders, or all
/// to one PDF. A page that fails is told, and the others go on.
class SeriesExport {
  Q_DECLARE_TR_FUNCTIONS(SeriesExport)

public:
  struct Request {
    QString document;  ///< the path of the file, for other processes
    QString path;
    ImageFormat const& format;
    ExportOptions options;
    SeriesOptions series;
    QStringList arguments;  ///< those that other processes are given behind theirs
    bool isQuiet = false;
  };

  /// Whether this is about a series, and not about the page as the document stores it.
  static bool isWanted(Request const& request, SysCarto::MapDocument const& document);

  /// The document is borrowed.
  SeriesExport(Request const& request, SysCarto::MapDocument& document,
               SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);
  ~SeriesExport();

  /// An empty text, or a sentence on what went wrong; single pages are told as they fail.
  QString run();

private:
  QString check();
  QString writeFiles();
  QString writeBook();
  QString writeInJobs();
  QString writePage(int page, QString const& path);
  QString summary() const;
  std::optional<QString> nextOfBook();
  QString interrupted() const;
  bool isDone(PageExport const& page, QString const& path) const;
  void tell(QString const& path);
  void showProgress(int done, QString const& name) const;

  Request const request_;
  SysCarto::MapDocument& document_;
  SysUtility::_ptr_t<SysUI::TrackerCancel> const cancel_;
  std::unique_ptr<SeriesPages> pages_;
  std::vector<int> chosen_;
  QStringList paths_;
  QStringList known_;     // problems of the data, before the first page
  int passed_ = 0;        // that were there
  QDateTime lastChange_;  // of what pages are drawn from
  QList<int> failed_;
  size_t next_ = 0;  // of a book, among the chosen ones
};
