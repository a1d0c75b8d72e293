#include "Files.h"
#include "Pictures.h"

#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/Session.h"
#include "host/desktop/output/ImageFormat.h"
#include "host/desktop/output/PageExport.h"
#include "host/desktop/print/PagePrinter.h"

using SysCarto::PrintChoices;

namespace {

constexpr double pxPerCm = 50;

// By a program that knows nothing of ours: a page as a picture.
QImage drawn(QString const& pdf, int page) {
  QString const png = pdf.chopped(4) + QString::number(page);
  QProcess::execute("pdftocairo", {"-png", "-singlefile", "-r", QString::number(pxPerCm * 2.54), "-f",
                                   QString::number(page), "-l", QString::number(page), pdf, png});
  return QImage(png + ".png").convertToFormat(QImage::Format_RGB32);
}

double meanDifference(QImage const& a, QImage const& b) {
  QSize const size = a.size().boundedTo(b.size());
  double sum = 0;
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  return sum / size.width() / size.height();
}

QRect pixels(QRectF const& cm) {
  return {(cm.topLeft() * pxPerCm).toPoint(), (cm.bottomRight() * pxPerCm).toPoint() - QPoint(1, 1)};
}

// Has enough when it has been asked so often.
class Impatient final : public SysUI::TrackerCancel {
public:
  explicit Impatient(int patience) : patience_(patience) {}
  bool IsCanced() const override { return --patience_ < 0; }

private:
  mutable int patience_;
};

}  // namespace

class PrintTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { prepareApplication(); }

  void sheetsTogetherAreThePage_data() {
    Rows<QSizeF, QSizeF, double, QSize> row;
    row("a page of the paper's size", {21, 29.7}, {21, 29.7}, 1, {1, 1});
    row("paper that says a little less", {21, 29.7}, {20.99, 29.69}, 1, {1, 1});
    row("twice as large", {29.7, 42}, {21, 29.7}, 1, {2, 2});
    row("a row of sheets", {90, 10}, {21, 29.7}, 2, {6, 1});
    row("edge at edge", {38, 27.7}, {21, 29.7}, 0, {2, 1});
    row("an overlap as wide as the paper", {60, 20}, {21, 29.7}, 30, {6, 1});
  }
  void sheetsTogetherAreThePage() {
    auto const [page, paper, overlap, count] = fetched<QSizeF, QSizeF, double, QSize>();
    PrintChoices choices;
    choices.overlapCm = overlap;
    auto const plan = PosterPlan::of(page, paper, {}, choices);
    QCOMPARE(QSize(plan.columns, plan.rows), count);
    QRectF whole;
    for (int row = 0; row < plan.rows; ++row)
      for (int column = 0; column < plan.columns; ++column) {
        QRectF const part = plan.part(row, column), place = plan.place(row, column);
        QVERIFY(!part.isEmpty() && plan.contentCm.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(place));
        if (column > 0) QVERIFY(std::abs(plan.part(row, column - 1).right() - part.left() - plan.overlapCm) < 1e-9);
        if (row > 0) QVERIFY(std::abs(plan.part(row - 1, column).bottom() - part.top() - plan.overlapCm) < 1e-9);
        whole |= part;
      }
    QCOMPARE(whole, QRectF({0, 0}, page));
  }

  void aPosterPutTogetherShowsWhatTheImageShows() {
    SysCarto::MapDocument document;
    QVERIFY(document.Open(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx"));
    PagePrinter const printer(document);
    auto const layout = document.GetPageLayout();
    QString const image = folder_.filePath("page.png");
    ExportOptions options;
    options.dpi = 127;
    QCOMPARE(PageExport(image, *ImageFormat::named("png"), options)
                 .write(document, SysUtility::make<SysUI::TrackerCancel>()),
             QString());
    QImage const expected = QImage(image).convertToFormat(QImage::Format_RGB32);

    QString const whole = folder_.filePath("whole.pdf"), sheets = folder_.filePath("sheets.pdf");
    QCOMPARE(printer.printTo(whole, nullptr), QString());
    double const off = meanDifference(drawn(whole, 1), expected);
    QVERIFY2(off < 3, qPrintable(QString::number(off)));

    SysCarto::OutputChoices choices;
    SysCarto::FormInfo form;
    for (choices.paper.paper = 0; SysCarto::Paper::GetFormInfo(choices.paper.paper, form) && form.key != "A5";)
      ++choices.paper.paper;
    SysCarto::PageLayoutHost::setOutput(*layout, choices);
    QCOMPARE(printer.printTo(sheets, nullptr), QString());
    auto const plan = PosterPlan::of({21, 29.7}, {14.8, 21}, {}, choices.paper);
    QCOMPARE(plan.sheets(), 4);
    QImage together(expected.size(), QImage::Format_RGB32);
    together.fill(Qt::magenta);
    for (int sheet = 0; sheet < plan.sheets(); ++sheet) {
      int const row = sheet / plan.columns, column = sheet % plan.columns;
      QImage const printed = drawn(sheets, sheet + 1);
      QVERIFY(!printed.isNull());
      QPainter(&together).drawImage(pixels(plan.part(row, column)).topLeft(),
                                    printed.copy(pixels(plan.place(row, column))));
    }
    double const mounted = meanDifference(together, expected);
    QVERIFY2(mounted < off + 1, qPrintable(QString::number(mounted)));
  }

  void whatIsCancelledLeavesNothing_data() {
    Rows<int> row;
    for (int patience : {0, 1, 5, 20}) row(qPrintable(QString::number(patience)), patience);
  }
  void whatIsCancelledLeavesNothing() {
    auto const [patience] = fetched<int>();
    SysCarto::MapDocument document;
    QVERIFY(document.Open(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx"));
    QTemporaryDir const folder;
    QString const file = folder.filePath("page.pdf");
    QCOMPARE(PagePrinter(document).printTo(file, SysUtility::make<Impatient>(patience)), QString());
    PageExport(file, *ImageFormat::named("pdf"), {}).write(document, SysUtility::make<Impatient>(patience));
    QVERIFY(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden).isEmpty());
  }

  void whereNothingCanBePrintedIsTold() {
    SysCarto::MapDocument document;
    QVERIFY(document.Open(PLOTVANE_SOURCE_DIR "/samples/aegean.kdx"));
    QVERIFY(PagePrinter(document).printTo("No Printer", nullptr).contains(".pdf"));
    QVERIFY(PagePrinter(document).printTo("/nowhere/page.pdf", nullptr).contains("/nowhere"));
  }

private:
  QTemporaryDir folder_;
};

QTEST_MAIN(PrintTest)
#include "tst_print.moc"
