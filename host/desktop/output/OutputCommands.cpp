#include "OutputCommands.h"

#include "DrawingProgress.h"
#include "ExportDialog.h"
#include "ImageFormat.h"
#include "PageExport.h"
#include "SeriesRun.h"

#include "host/SysCarto/document/DocumentSettings.h"
#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/SettingsSource.h"
#include "host/desktop/Workbench.h"
#include "host/desktop/series/SeriesCommands.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QStandardPaths>
#include <QStatusBar>
#include <QUrl>

#include <memory>

using SysCarto::DocumentSettings;
using SysCarto::Editable;
using SysCarto::PageLayoutHost;

namespace {

constexpr int toldMs = 8000;

struct ExportCommand {
  char const* identifier;
  char const* format;
};
constexpr ExportCommand exportCommands[] = {{"Host_ExportPdf", "pdf"}, {"Host_ExportSvg", "svg"}};

// A PDF has all pages of a series, unless one of them is shown.
int pagesOf(Workbench& bench, ImageFormat const& format) {
  auto const* const pages = format.hasPages ? bench.series().pages() : nullptr;
  return pages && pages->shown() == 0 ? pages->count() : 1;
}

// What could not be on it is told although it is written.
QString writeWithPages(Workbench& bench, PageExport& file, ImageFormat const& format,
                       SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel, SeriesRun::Tell const& tell) {
  if (format.hasPages && !bench.series().pages() && !bench.series().problem().isEmpty())
    return bench.series().problem();
  if (pagesOf(bench, format) == 1) return file.write(bench.session().document(), cancel);
  SeriesRun run(bench.series(), tell);
  file.setPages(run.next());
  return run.withProblems(file.write(bench.session().document(), cancel));
}

}  // namespace

void OutputCommands::addTo(HostCommands& host) {
  auto const hasPage = [this] {
    auto const layout = bench_.views().GetPageLayout();
    return layout && layout->GetPage();
  };
  auto const add = [&](char const* identifier, std::function<QString()> const& run) {
    auto const problem = std::make_shared<QString>();
    host.add(QLatin1String(identifier),
             {[run, problem] { *problem = run(); }, hasPage, {}, [problem] { return *problem; }});
  };
  addSeriesDialog(host, bench_, window_);
  add("Host_DocumentProperties", [this] { return showProperties(); });
  for (ExportCommand const& command : exportCommands)
    if (ImageFormat const* const format = ImageFormat::named(QLatin1String(command.format)))
      add(command.identifier, [this, format] { return exportAs(*format); });
}

bool OutputCommands::draws(QString const& identifier) {
  for (ExportCommand const& command : exportCommands)
    if (identifier == QLatin1String(command.identifier)) return true;
  return identifier == QLatin1String("Plotvane_Export") || identifier.startsWith(QLatin1String("Host_Print"));
}

QString OutputCommands::checkWhole(SysCarto::MapDocument const& document) {
  QString const problem = PageExport::checkPage(document);
  if (!problem.isEmpty()) return problem;
  for (auto const& source : SysCarto::sourcesOf(*document.GetPageLayout()))
    if (!source.problem.isEmpty())
      return tr("the page would not be whole; mend the data source or remove what draws it. %1").arg(source.problem);
  return QString();
}

void OutputCommands::tell(QString const& sentence) { window_.statusBar()->showMessage(sentence, toldMs); }

// One step of the history, and none where nothing is other than it was.
QString OutputCommands::keep(SysCarto::MapDocument const& document, QStringList const& path,
                             QJsonObject const& settings) {
  auto const now = Editable::fields(document, {Editable::document(document)}).first();
  auto const* const field = SysUtility::fieldAt(now, path);
  auto const kept = field && field->isPresent ? SysUtility::wholeValue(*field).toObject() : QJsonObject();
  if (settings.isEmpty() && kept.isEmpty()) return QString();
  QStringList warnings;
  return Editable::set(
      document, {Editable::document(document)}, path,
      [&](QJsonValue const&) { return settings.isEmpty() ? QJsonValue() : QJsonValue(settings); }, warnings);
}

QString OutputCommands::showProperties() {
  SettingsSource source(DocumentSettings::of(*bench_.views().GetPageLayout()).information);
  if (SettingsDialog(tr("Document Properties"), source, {}, &window_).exec() != QDialog::Accepted) return QString();
  QString const problem = keep(bench_.session().document(), {QStringLiteral("information")}, source.json());
  bench_.views().redraw();  // a text of the page may hold the title
  return problem;
}

QString OutputCommands::proposedPath(ImageFormat const& format) const {
  QString const document = bench_.session().path();
  QString const last = lastPaths_.value(document + QLatin1String(format.name));
  if (!last.isEmpty()) return last;
  QString const folder = document.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                            : QFileInfo(document).absolutePath();
  return QStringLiteral("%1/%2.%3")
      .arg(folder, document.isEmpty() ? bench_.session().title() : QFileInfo(document).completeBaseName(),
           format.suffixList().first());
}

QString OutputCommands::exportAs(ImageFormat const& format) {
  auto& session = bench_.session();
  SettingsSource source(SysCarto::ExportSettings{PageLayoutHost::output(*bench_.views().GetPageLayout()).file},
                        format.hasPages ? QStringList() : SysCarto::ExportSettings::ofPdf());
  ExportDialog dialog(format, proposedPath(format), source, &window_);
  if (auto const* const pages = bench_.series().pages())
    dialog.tell(pages->shown() > 0 ? tr("The page that is shown: %1").arg(pages->name(pages->shown()))
                : pagesOf(bench_, format) > 1
                    ? tr("All %1 pages of the series").arg(pages->count())
                    : tr("The page without its series; show one of the series' pages first to export that."));
  if (dialog.exec() != QDialog::Accepted) return QString();
  QString const path = QFileInfo(dialog.path()).absoluteFilePath();
  QString problem = keep(session.document(), {QStringLiteral("output"), QStringLiteral("export")}, source.json());
  auto const& choices = source.settings().choices;
  PageExport page(path, format, ExportOptions::of(choices));
  if (problem.isEmpty()) problem = page.checkPlace();
  if (!problem.isEmpty()) return problem;
  {
    auto const progress = SysUtility::make<DrawingProgress>(tr("Exporting the page…"), bench_.views(), window_);
    problem = writeWithPages(bench_, page, format, progress, [&](QString const& what) { progress->tell(what); });
    if (progress->wasStopped()) return tell(tr("Cancelled; no file was written.")), QString();
  }
  if (!problem.isEmpty()) return problem;
  lastPaths_[session.path() + QLatin1String(format.name)] = path;
  tell((QStringList{tr("%1 was written.").arg(QDir::toNativeSeparators(path))} + page.notes()).join(QLatin1Char(' ')));
  if (choices.isOpened && !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
    return tr("%1 was written, but no program is known that opens it.").arg(QDir::toNativeSeparators(path));
  return QString();
}

QString exportPage(Workbench& bench, QString const& path, QStringList& notes) {
  auto& document = bench.session().document();
  QString problem = OutputCommands::checkWhole(document);
  if (!problem.isEmpty()) return problem;
  QString const suffix = QFileInfo(path).suffix();
  ImageFormat const* const format = suffix.isEmpty() ? &ImageFormat::writtenAt(path) : ImageFormat::withSuffix(suffix);
  if (!format)
    return OutputCommands::tr("the suffix of %1 names no format; use one of %2.").arg(path, ImageFormat::allSuffixes());
  auto const layout = document.GetPageLayout();
  PageExport page(path, *format, ExportOptions::of(PageLayoutHost::output(*layout).file));
  problem = page.checkPlace();
  if (problem.isEmpty()) problem = writeWithPages(bench, page, *format, SysUtility::make<SysUI::TrackerCancel>(), {});
  notes = page.notes();
  SysCarto::EditorHost::setHistory(SysCarto::MapDocumentHost::history(document));  // an image's drawing lets go of it
  return problem;
}
