#include "PrintCommands.h"

#include "PagePrinter.h"
#include "PrintOptions.h"

#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/Workbench.h"
#include "host/desktop/output/DrawingProgress.h"
#include "host/desktop/output/ImageFormat.h"
#include "host/desktop/output/ImageTarget.h"
#include "host/desktop/output/OutputCommands.h"
#include "host/desktop/output/SeriesRun.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTabWidget>

#include <memory>
#include <optional>

using SysCarto::PageLayoutHost;

namespace {

constexpr int toldMs = 8000;

// The dialog begins with its tabs folded away, and with them how the page comes to paper.
void openTab(QPrintDialog& dialog, QWidget* tab) {
  for (auto* const box : dialog.findChildren<QDialogButtonBox*>())
    for (QAbstractButton* const button : box->buttons())
      if (box->buttonRole(button) == QDialogButtonBox::ResetRole) button->click();
  for (auto* const tabs : dialog.findChildren<QTabWidget*>())
    if (tabs->indexOf(tab) >= 0) tabs->setCurrentWidget(tab);
}

// Refuses what the document is drawn from before the file's being there is told, and stays.
class PagePrintDialog final : public QPrintDialog {
public:
  PagePrintDialog(QPrinter& printer, SysCarto::MapDocument& document, QWidget& parent)
      : QPrintDialog(&printer, &parent), document_(document) {}

  void accept() override {
    auto const* const file = findChild<QLineEdit*>(QStringLiteral("filename"));
    QString const path = file && file->isEnabled() ? QFileInfo(file->text()).absoluteFilePath() : QString();
    QString const problem = path.isEmpty()
                                ? QString()
                                : ImageTarget(path, *ImageFormat::named(QStringLiteral("pdf"))).checkAgainst(document_);
    if (problem.isEmpty()) return QPrintDialog::accept();
    QMessageBox box(QMessageBox::Warning, PrintCommands::tr("Plotvane"), problem, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
  }

private:
  SysCarto::MapDocument& document_;
};

// The page of a series that is shown, or all where none is.
QString printShown(Workbench& bench, PagePrinter& page, std::function<QString()> const& print,
                   SeriesRun::Tell const& tell) {
  if (bench.series().pages() && bench.series().pages()->shown() > 0) return print();
  if (!bench.series().problem().isEmpty()) return bench.series().problem();
  SeriesRun pages(bench.series(), tell);
  page.setPages(pages.next());
  return pages.withProblems(print());
}

}  // namespace

void PrintCommands::addTo(HostCommands& host) {
  auto const hasPage = [this] {
    auto const layout = bench_.views().GetPageLayout();
    return layout && layout->GetPage();
  };
  for (auto const& [identifier, run] :
       {std::make_pair("Host_Print", &PrintCommands::print), {"Host_PrintPreview", &PrintCommands::preview}}) {
    auto const problem = std::make_shared<QString>();
    host.add(QLatin1String(identifier),
             {[this, run = run, problem] { *problem = (this->*run)(); }, hasPage, {}, [problem] { return *problem; }});
  }
}

QString PrintCommands::print() {
  auto& document = bench_.session().document();
  auto const layout = bench_.views().GetPageLayout();
  PagePrinter page(document);
  QPrinter printer(QPrinter::HighResolution);
  page.prepare(printer);
  PagePrintDialog dialog(printer, document, window_);
  dialog.setWindowTitle(tr("Print"));
  if (bench_.series().pages() && bench_.series().pages()->shown() > 0) {  // all the others can be had, too
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setPrintRange(QAbstractPrintDialog::CurrentPage);
  }
  double width, height;
  layout->GetPage()->QuerySize(width, height);
  auto* const options =
      new PrintOptions({PageLayoutHost::output(*layout).paper}, {width, height}, document.Thumbnail(), &dialog);
  dialog.setOptionTabs({options});
  openTab(dialog, options);
  if (dialog.exec() != QDialog::Accepted) return QString();
  QString problem =
      OutputCommands::keep(document, {QStringLiteral("output"), QStringLiteral("print")}, options->taken().json());
  if (!problem.isEmpty()) return problem;
  bool const isFile = printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
  QString const file = isFile ? printer.outputFileName() : QString();
  page.prepare(printer);
  auto const progress = SysUtility::make<DrawingProgress>(tr("Printing the page…"), bench_.views(), window_);
  std::optional<SeriesRun> pages;
  if (printer.printRange() != QPrinter::CurrentPage) {
    pages.emplace(bench_.series(), [&](QString const& what) { progress->tell(what); });
    page.setPages(pages->next());
  }
  problem = isFile ? page.printToFile(printer, file, progress) : page.print(printer, progress);
  if (pages) problem = pages->withProblems(problem);
  window_.statusBar()->showMessage(progress->wasStopped() ? tr("Cancelled; nothing was printed.")
                                   : isFile               ? tr("%1 was written.").arg(file)
                                                          : tr("The page was sent to %1.").arg(printer.printerName()),
                                   problem.isEmpty() ? toldMs : 1);
  return problem;
}

QString PrintCommands::preview() {
  PagePrinter page(bench_.session().document());
  QPrinter printer(QPrinter::HighResolution);
  page.prepare(printer);
  QPrintPreviewDialog dialog(&printer, &window_);
  dialog.setWindowTitle(tr("Print Preview"));
  dialog.resize(window_.size() * 9 / 10);
  QString problem;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* shown) {
    dialog.setEnabled(false);         // it could ask for another drawing meanwhile
    dialog.setUpdatesEnabled(false);  // and what it shows, the pages from before, is gone already
    {
      auto const progress = SysUtility::make<DrawingProgress>(tr("Drawing the page…"), bench_.views(), dialog);
      problem = printShown(
          bench_, page, [&] { return page.print(*shown, progress, PagePrinter::Cancelled::Kept); },
          [&](QString const& what) { progress->tell(what); });
    }
    dialog.setUpdatesEnabled(true);
    dialog.setEnabled(true);
  });
  dialog.exec();
  return problem;
}

QString printPage(Workbench& bench, QString const& target) {
  QString const problem = OutputCommands::checkWhole(bench.session().document());
  if (!problem.isEmpty()) return problem;
  PagePrinter page(bench.session().document());
  return printShown(bench, page, [&] { return page.printTo(target, SysUtility::make<SysUI::TrackerCancel>()); }, {});
}
