#include "PrintCommands.h"

#include "PagePrinter.h"
#include "PrintOptions.h"

#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/Workbench.h"
#include "host/desktop/output/DrawingProgress.h"
#include "host/desktop/output/OutputCommands.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTabWidget>

#include <memory>

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
  PagePrinter const page(document);
  QPrinter printer(QPrinter::HighResolution);
  page.prepare(printer);
  QPrintDialog dialog(&printer, &window_);
  dialog.setWindowTitle(tr("Print"));
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
  problem = isFile ? page.printToFile(printer, file, progress) : page.print(printer, progress);
  window_.statusBar()->showMessage(progress->wasStopped() ? tr("Cancelled; nothing was printed.")
                                   : isFile               ? tr("%1 was written.").arg(file)
                                                          : tr("The page was sent to %1.").arg(printer.printerName()),
                                   problem.isEmpty() ? toldMs : 1);
  return problem;
}

QString PrintCommands::preview() {
  PagePrinter const page(bench_.session().document());
  QPrinter printer(QPrinter::HighResolution);
  page.prepare(printer);
  QPrintPreviewDialog dialog(&printer, &window_);
  dialog.setWindowTitle(tr("Print Preview"));
  dialog.resize(window_.size() * 9 / 10);
  QString problem;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* shown) {
    auto const progress = SysUtility::make<DrawingProgress>(tr("Drawing the page…"), bench_.views(), window_);
    problem = page.print(*shown, progress);
  });
  dialog.exec();
  return problem;
}

QString printPage(Workbench& bench, QString const& target) {
  return PagePrinter(bench.session().document()).printTo(target, SysUtility::make<SysUI::TrackerCancel>());
}
