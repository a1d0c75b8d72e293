#include "PagePrinter.h"

#include "host/SysCarto/document/PageTexts.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/output/ImageFormat.h"
#include "host/desktop/output/ImageTarget.h"
#include "host/desktop/vector/PainterCanvas.h"
#include "host/desktop/vector/VectorPage.h"

#include <SysCarto/PageLayout.h>
#include <SysDisplay/Units.h>

#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <climits>

using SysCarto::PageLayoutHost;
using SysCarto::PrintChoices;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr double mmPerCm = 10, pointsPerInch = 72;
constexpr double markGapCm = 0.1, markCm = 0.4, markWidthCm = 0.01;
constexpr double numberPt = 7;

double cmOf(double points) { return points / pointsPerInch * SysDisplay::cmPerInch; }

QMarginsF marginsOf(QPrinter const& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  QMarginsF const points = layout.minimumMargins();
  return {cmOf(points.left()), cmOf(points.top()), cmOf(points.right()), cmOf(points.bottom())};
}

bool isAcross(QSizeF const& size) { return size.width() > size.height(); }

}  // namespace

PagePrinter::PagePrinter(SysCarto::MapDocument& document) : document_(document) {}

QSizeF PagePrinter::pageCm() const {
  double width, height;
  document_.GetPageLayout()->GetPage()->QuerySize(width, height);
  return {width, height};
}

PrintChoices const& PagePrinter::choices() const { return PageLayoutHost::output(*document_.GetPageLayout()).paper; }

QSizeF PagePrinter::paperCm(QSizeF const& pageCm, PrintChoices const& choices) {
  SysCarto::FormInfo form;
  bool const isForm = choices.paper >= 0 && SysCarto::Paper::GetFormInfo(choices.paper, form);
  QSizeF const paper = isForm ? QSizeF(form.width, form.height) : pageCm;
  return isAcross(paper) ? paper.transposed() : paper;
}

// What lies as the page does wins where both ways need as many sheets.
QSizeF PagePrinter::turned(QSizeF const& paperCm, QSizeF const& pageCm, PrintChoices const& choices) {
  QSizeF const alike = isAcross(paperCm) == isAcross(pageCm) ? paperCm : paperCm.transposed();
  auto const sheets = [&](QSizeF const& paper) { return PosterPlan::of(pageCm, paper, {}, choices).sheets(); };
  return sheets(alike.transposed()) < sheets(alike) ? alike.transposed() : alike;
}

void PagePrinter::prepare(QPrinter& printer) const {
  QSizeF const upright = paperCm(pageCm(), choices()), lying = turned(upright, pageCm(), choices());
  QPageSize const size(upright * mmPerCm, QPageSize::Millimeter, QString(), QPageSize::FuzzyOrientationMatch);
  printer.setFullPage(true);
  printer.setPageSize(size);
  printer.setPageOrientation(isAcross(lying) ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer.setPageMargins({}, QPageLayout::Point);
  printer.setDocName(SysCarto::FileInformation::of(document_).title);
  printer.setCreator(QStringLiteral("Plotvane"));
}

PosterPlan PagePrinter::planFor(QPrinter const& printer) const {
  QSizeF const paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size() / mmPerCm;
  return PosterPlan::of(pageCm(), paper, marginsOf(printer), choices());
}

QString PagePrinter::print(QPrinter& printer, _ptr_t<TrackerCancel> const& cancel, Cancelled cancelled) const {
  QString const refused =
      printer.outputFormat() == QPrinter::PdfFormat
          ? tr("The page was not printed: the file could not be written; is the disk full?")
          : tr("The printer %1 does not take the page; look whether it is switched on and ready, or "
               "choose another one.")
                .arg(printer.printerName());
  PosterPlan const plan = planFor(printer);
  double const pxPerCm = printer.resolution() / SysDisplay::cmPerInch;
  QPainter painter;
  if (!printer.isValid() || !painter.begin(&printer)) return refused;
  bool const isRange = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
  int const first = isRange ? printer.fromPage() : 1, last = isRange ? printer.toPage() : INT_MAX;
  int number = 0, printed = 0;
  for (bool isThere = !next_ || next_(); isThere && number < last; isThere = next_ && next_())
    for (int sheet = 0; sheet < plan.sheets(); ++sheet) {
      if (++number < first || number > last) continue;
      if (printed++ > 0 && !printer.newPage()) return refused;
      drawSheet(painter, plan, sheet / plan.columns, sheet % plan.columns, pxPerCm, cancel);
      if (!cancel || !cancel->IsCanced()) continue;
      if (cancelled == Cancelled::Forgotten) printer.abort();
      return QString();
    }
  if (printed == 0) {
    printer.abort();
    return tr("Nothing was printed: sheet %1 was asked for, and there are %2.").arg(first).arg(number);
  }
  bool const isWhole = painter.end() && printer.printerState() != QPrinter::Error;
  return isWhole ? QString() : refused;
}

void PagePrinter::drawSheet(QPainter& painter, PosterPlan const& plan, int row, int column, double pxPerCm,
                            _ptr_t<TrackerCancel> const& cancel) const {
  auto const layout = document_.GetPageLayout();
  VectorPage const page(layout, PageLayoutHost::output(*layout).file.dpi, plan.part(row, column));
  PainterCanvas canvas(page.size(), page.dpi());
  page.draw(canvas, cancel);
  QRectF const place = plan.place(row, column);
  painter.save();
  painter.scale(pxPerCm, pxPerCm);
  painter.setClipRect(place);
  painter.translate(place.topLeft());
  painter.scale(place.width() / canvas.size().width(), place.width() / canvas.size().width());
  canvas.paint(painter, cancel);
  painter.restore();
  if (plan.sheets() == 1) return;
  painter.save();
  painter.scale(pxPerCm, pxPerCm);
  if (choices().marks) drawMarks(painter, plan, row, column);
  painter.restore();
  if (choices().numbers) drawNumber(painter, plan, row, column, pxPerCm);
}

// Cut at the corners; the next sheet is laid to the dashes, which are in the margins, too.
void PagePrinter::drawMarks(QPainter& painter, PosterPlan const& plan, int row, int column) const {
  QRectF const place = plan.place(row, column);
  QPen const cut(Qt::black, markWidthCm);
  QPen glue = cut;
  glue.setDashPattern({8, 8});
  auto const across = [&](double x, QPen const& pen) {
    painter.setPen(pen);
    painter.drawLine(QLineF(x, place.top() - markGapCm, x, place.top() - markGapCm - markCm));
    painter.drawLine(QLineF(x, place.bottom() + markGapCm, x, place.bottom() + markGapCm + markCm));
  };
  auto const down = [&](double y, QPen const& pen) {
    painter.setPen(pen);
    painter.drawLine(QLineF(place.left() - markGapCm, y, place.left() - markGapCm - markCm, y));
    painter.drawLine(QLineF(place.right() + markGapCm, y, place.right() + markGapCm + markCm, y));
  };
  for (double const x : {place.left(), place.right()}) across(x, cut);
  for (double const y : {place.top(), place.bottom()}) down(y, cut);
  if (plan.overlapCm <= 0) return;
  if (column + 1 < plan.columns) across(place.right() - plan.overlapCm, glue);
  if (row + 1 < plan.rows) down(place.bottom() - plan.overlapCm, glue);
}

void PagePrinter::drawNumber(QPainter& painter, PosterPlan const& plan, int row, int column, double pxPerCm) const {
  QRectF const place = plan.place(row, column);
  QString const text = tr("Row %1 of %2, column %3 of %4")
                           .arg(QString::number(row + 1), QString::number(plan.rows), QString::number(column + 1),
                                QString::number(plan.columns)) +
                       QStringLiteral(" · ") + SysCarto::FileInformation::of(document_).title;
  QFont font = painter.font();
  font.setPixelSize(std::max(1, qRound(cmOf(numberPt) * pxPerCm)));
  painter.save();
  painter.setFont(font);
  painter.setPen(Qt::black);
  QRectF const line(place.left() + markCm, place.bottom() + markGapCm, place.width() - 2 * markCm, markCm);
  painter.drawText(QRectF(line.topLeft() * pxPerCm, line.size() * pxPerCm), Qt::AlignCenter | Qt::TextSingleLine, text);
  painter.restore();
}

QString PagePrinter::printToFile(QPrinter& printer, QString const& path, _ptr_t<TrackerCancel> const& cancel) const {
  ImageTarget target(path, *ImageFormat::named(QStringLiteral("pdf")));
  QString problem = target.checkPlace();
  if (problem.isEmpty()) problem = target.checkAgainst(document_);
  if (problem.isEmpty()) problem = target.prepare();
  if (!problem.isEmpty()) return problem;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(target.workingPath());
  problem = print(printer, cancel);
  if (!problem.isEmpty() || (cancel && cancel->IsCanced())) return problem;
  problem = target.checkResult({});
  return problem.isEmpty() ? target.commit() : problem;
}

QString PagePrinter::printTo(QString const& name, _ptr_t<TrackerCancel> const& cancel) const {
  QPrinter printer(QPrinter::HighResolution);
  if (name.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    prepare(printer);
    return printToFile(printer, name, cancel);
  }
  QStringList const names = QPrinterInfo::availablePrinterNames();
  if (names.isEmpty()) return tr("There is no printer; name a .pdf file to print into, or set up a printer.");
  if (!names.contains(name))
    return tr("There is no printer %1; there are: %2. A .pdf file can be named, too.")
        .arg(name, names.join(QStringLiteral(", ")));
  printer.setPrinterName(name);
  prepare(printer);
  return print(printer, cancel);
}
