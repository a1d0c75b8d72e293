#include "SeriesExport.h"

#include "FileNames.h"
#include "PageJobs.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/desktop/Console.h"
#include "host/desktop/output/ImageFormat.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

constexpr int maxNamed = 20;  // pages in a sentence

QString const pagesOption = QStringLiteral("pages"), partOption = QStringLiteral("part"),
              jobsOption = QStringLiteral("jobs"), resumeOption = QStringLiteral("resume"),
              jobOption = QStringLiteral("job");  // of a process of several: its part, whatever else is said

// When the last of the files was written that a page is drawn from.
QDateTime lastChange(SysCarto::MapDocument const& document) {
  QDateTime last = QFileInfo(document.GetPath()).lastModified();
  QSet<QString> seen;
  for (auto const& source : SysCarto::sourcesOf(*document.GetPageLayout())) {
    if (source.file.isEmpty() || seen.contains(source.file)) continue;
    seen << source.file;
    for (QString const& file : SysCarto::filesOf(source.file))
      if (QFileInfo const there(file); there.exists()) last = std::max(last, there.lastModified());
  }
  return last;
}

}  // namespace

QList<QCommandLineOption> SeriesOptions::all() {
  QCommandLineOption job(jobOption, QString(), QStringLiteral("K/N"));
  job.setFlags(QCommandLineOption::HiddenFromHelp);
  return {job,
          {pagesOption, tr("Of a series, these pages: \"1-20,45\", \"odd\", \"last\"."), QStringLiteral("PAGES")},
          {partOption, tr("Of the pages, every Nth from the Kth on: each page is in one of the N parts."),
           QStringLiteral("K/N")},
          {jobsOption, tr("Draw pages in N processes at once."), QStringLiteral("N"), QStringLiteral("1")},
          {resumeOption, tr("Pass over pages whose files are whole and newer than the document and its data.")}};
}

QString SeriesOptions::read(QCommandLineParser const& parser) {
  if (parser.isSet(pagesOption)) {
    pages = PageRanges::of(parser.value(pagesOption));
    if (!pages)
      return tr("export: --pages takes numbers and ranges such as 1-20,45, or first, last, odd, even, not \"%1\".")
          .arg(parser.value(pagesOption));
  }
  bool const isJob = parser.isSet(jobOption);
  if (isJob || parser.isSet(partOption)) {
    QString const text = parser.value(isJob ? jobOption : partOption);
    static QRegularExpression const form(QStringLiteral("^([0-9]{1,7})/([0-9]{1,7})$"));
    auto const match = form.match(text);
    part = match.captured(1).toInt();
    parts = match.captured(2).toInt();
    if (!match.hasMatch() || part < 1 || part > parts || parts > maxParts)
      return tr("export: --part takes K/N with K from 1 to N, as in 3/10, not \"%1\".").arg(text);
  }
  bool isNumber = false;
  jobs = parser.value(jobsOption).toInt(&isNumber);
  resumes = parser.isSet(resumeOption);
  if (!isNumber || jobs < 1 || jobs > maxJobs)
    return tr("export: --jobs takes a whole number from 1 to %1, not \"%2\".")
        .arg(QString::number(maxJobs), parser.value(jobsOption));
  if (isJob) jobs = 1;
  return QString();
}

std::vector<int> SeriesOptions::chosenOf(int count) const {
  std::vector<int> chosen;
  int place = 0;
  for (int page = 1; page <= count; ++page) {
    if (pages && !pages->contains(page, count)) continue;
    if (place++ % parts == part - 1) chosen.push_back(page);
  }
  return chosen;
}

bool SeriesExport::isWanted(Request const& request, SysCarto::MapDocument const& document) {
  return FileNames::isPattern(request.path) || request.series.isAny() || SeriesPages::areIn(document);
}

SeriesExport::SeriesExport(Request const& request, SysCarto::MapDocument& document,
                           SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel)
    : request_(request), document_(document), cancel_(cancel) {}
SeriesExport::~SeriesExport() = default;

QString SeriesExport::run() {
  QString const problem = check();
  if (!problem.isEmpty()) return problem;
  if (request_.series.resumes) lastChange_ = lastChange(document_);
  bool const isBook = paths_.isEmpty() && chosen_.size() > 1;
  if (isBook && request_.series.resumes)
    return tr("export: --resume passes over files of single pages; give the path a placeholder such as “[page]”.");
  if (isBook) return writeBook();
  return request_.series.jobs > 1 && chosen_.size() > 1 ? writeInJobs() : writeFiles();
}

// Before anything is drawn.
QString SeriesExport::check() {
  bool const isPattern = FileNames::isPattern(request_.path);
  if (!SeriesPages::areIn(document_))
    return isPattern
               ? tr("%1 has a placeholder, which stands for something else on each page of a series, and the "
                    "document has no series; name one file, or give the document a series.")
                     .arg(request_.path)
               : tr("export: --pages, --part, --jobs and --resume are for a series of pages, and the document has "
                    "none; leave them out.");
  QString problem;
  QStringList warnings;
  pages_ = SeriesPages::read(document_, problem, warnings);
  for (QString const& warning : qAsConst(warnings)) Console::complain(warning);
  if (!pages_) return problem;
  chosen_ = request_.series.chosenOf(pages_->count());
  if (chosen_.empty())
    return request_.series.parts > 1 ? QString()
                                     : tr("There is no such page; the series has %1 pages.").arg(pages_->count());
  SeriesOptions whole = request_.series;
  whole.part = whole.parts = 1;  // other parts must not write to the same files either
  auto const ofAllParts = whole.chosenOf(pages_->count());
  if (!isPattern) {
    bool const isBook = request_.format.hasPages && request_.series.jobs == 1;
    if (ofAllParts.size() == 1 || isBook) return QString();
    return request_.format.hasPages
               ? tr("export: --jobs draws pages into files of their own; give the path a placeholder such as “[page]”, "
                    "or leave --jobs out for one file.")
               : tr("%1 would be the file of %2 pages; give the path a placeholder such as “[page]” or “[field:name]”, "
                    "or choose one page with --pages.")
                     .arg(request_.path, QString::number(ofAllParts.size()));
  }
  paths_ = FileNames::of(pages_->coverage(), request_.path, ofAllParts, problem);
  QSet<QString> folders;
  for (int const page : chosen_) {
    if (!problem.isEmpty()) break;
    QString const folder = QFileInfo(paths_.at(page - 1)).path();
    if (folders.contains(folder)) continue;
    folders << folder;
    problem = PageExport(paths_.at(page - 1), request_.format, request_.options).checkPlace();
  }
  return problem;
}

QString SeriesExport::writeFiles() {
  known_ = PageExport::problemsOf(document_);  // what shows on one page is missing on the next, too
  int done = 0;
  for (int const page : chosen_) {
    if (cancel_->IsCanced()) return interrupted();
    showProgress(done++, pages_->name(page));
    QString const problem = writePage(page, paths_.isEmpty() ? request_.path : paths_.at(page - 1));
    showProgress(-1, {});
    if (problem.isEmpty()) continue;
    if (cancel_->IsCanced()) return problem;
    Console::complain(problem);
    failed_ << page;
  }
  if (passed_ > 0 && !request_.isQuiet)
    Console::complain(tr("%1 pages were whole already and were passed over.").arg(passed_));
  return summary();
}

QString SeriesExport::writePage(int page, QString const& path) {
  PageExport file(path, request_.format, request_.options);
  QString problem = file.checkPlace();
  if (problem.isEmpty()) problem = pages_->show(page);
  if (problem.isEmpty() && request_.series.resumes && isDone(file, path)) {
    ++passed_;
    return QString();
  }
  file.setKnown(known_);
  if (problem.isEmpty()) problem = file.write(document_, cancel_);
  for (QString const& note : file.notes()) Console::remark(note);
  if (problem.isEmpty()) tell(path);
  return problem;
}

bool SeriesExport::isDone(PageExport const& page, QString const& path) const {
  QFileInfo const there(path);
  return there.exists() && there.lastModified() > lastChange_ && page.isWhole(document_);
}

QString SeriesExport::writeBook() {
  PageExport file(request_.path, request_.format, request_.options);
  QString problem = file.checkPlace();
  if (!problem.isEmpty()) return problem;
  file.setPages([this] { return nextOfBook(); });
  problem = file.write(document_, cancel_);
  showProgress(-1, {});
  for (QString const& note : file.notes()) Console::remark(note);
  if (!problem.isEmpty()) return problem;
  tell(request_.path);
  return summary();
}

// A page that can't be shown is told, and left out.
std::optional<QString> SeriesExport::nextOfBook() {
  while (next_ < chosen_.size()) {
    int const page = chosen_[next_++];
    showProgress(static_cast<int>(next_) - 1, pages_->name(page));
    QString const unplaced = pages_->show(page);
    if (unplaced.isEmpty()) return pages_->name(page);
    showProgress(-1, {});
    Console::complain(unplaced);
    failed_ << page;
  }
  return std::nullopt;
}

QString SeriesExport::writeInJobs() {
  int const jobs = std::min(request_.series.jobs, static_cast<int>(chosen_.size()));
  SeriesOptions const& own = request_.series;
  QList<QStringList> all;
  for (int job = 0; job < jobs; ++job)
    all << QStringList{QStringLiteral("export"), QStringLiteral("--job"),
                       QStringLiteral("%1/%2").arg(own.part + job * own.parts).arg(own.parts * jobs)} +
               request_.arguments;
  int done = 0;
  PageJobs processes(cancel_);
  processes.onWritten = [&](QString const& path) {
    showProgress(-1, {});
    tell(path);
    showProgress(++done, {});
  };
  processes.onProblem = [&](QString const& line) {
    showProgress(-1, {});
    Console::remark(line);  // each may tell the same of a font
  };
  bool const areWhole = processes.run(all);
  showProgress(-1, {});
  if (cancel_->IsCanced()) return interrupted();
  if (areWhole) return QString();
  return tr("Not all pages of %1 were written; the sentences before say which, and why.").arg(request_.document);
}

void SeriesExport::tell(QString const& path) {
  if (request_.isQuiet) return;
  Console::print(path);
  Console::finish();  // whoever reads along sees it at once
}

void SeriesExport::showProgress(int done, QString const& name) const {
  if (request_.isQuiet || !Console::hasTerminal()) return;
  Console::showStatus(done < 0 ? QString() : tr("Page %1 of %2 %3").arg(done).arg(chosen_.size()).arg(name));
}

QString SeriesExport::interrupted() const { return tr("Not all pages were written: interrupted."); }

QString SeriesExport::summary() const {
  if (failed_.isEmpty()) return QString();
  QStringList numbers;
  for (int const page : failed_.mid(0, maxNamed)) numbers << QString::number(page);
  if (failed_.size() > maxNamed) numbers << QStringLiteral("…");
  return tr("%1 of %2 pages were not written: %3.")
      .arg(QString::number(failed_.size()), QString::number(chosen_.size()), numbers.join(QStringLiteral(", ")));
}
