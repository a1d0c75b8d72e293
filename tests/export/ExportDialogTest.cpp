#include "Dialogs.h"
#include "LayoutHook.h"
#include "export/ExportCommand.h"
#include "export/ExportParaDlg.h"
#include "export/LayoutRenderer.h"
#include "export/PreView.h"

#include <SysCarto/MapDocument.h>

#include <cpl_error.h>

using namespace SysCarto;
using Plugin::ExportCommand;
using Plugin::LayoutRenderer;
using SysUI::TrackerCancel;

namespace {

QLineEdit* edit(QWidget& dialog, char const* name) { return dialog.findChild<QLineEdit*>(QLatin1String(name)); }

void press(QWidget& dialog, char const* name) {
  QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
}

QImage shown(PreView& preview) { return preview.findChild<QLabel*>("label")->pixmap(Qt::ReturnByValue).toImage(); }

}  // namespace

class ExportDialogTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    CPLSetErrorHandler(CPLQuietErrorHandler);
  }

  void resolutionWidthAndHeightAreKeptInStep_data() {
    // shown: DPI, width, height
    Rows<QString, QString, QStringList, QSizeF> row;
    QSizeF const a4(21.0, 29.7);
    row("a resolution", "lineEdit_DPI", "300", {"300", "2480", "3507"}, a4);
    row("none is 1 at once", "lineEdit_DPI", "", {"1", "8", "11"}, a4);
    row("letters are not taken", "lineEdit_DPI", "x300", {"300", "2480", "3507"}, a4);
    row("but no fifth digit", "lineEdit_DPI", "30010", {"3001", "24811", "35090"}, a4);
    row("a width", "lineEdit_Width", "2480", {"300", "2480", "3507"}, a4);
    row("a width that gives no resolution", "lineEdit_Width", "1", {"1", "1", "1"}, a4);
    row("a width of 0", "lineEdit_Width", "0", {"1", "0", "0"}, a4);
    row("a height", "lineEdit_Height", "3508", {"300", "2480", "3508"}, a4);
    row("a width on a page that has none", "lineEdit_Width", "500", {"1", "500", "0"}, {0.0, 10.0});
    row("a width without a page", "lineEdit_Width", "500", {"96", "500", "0"}, {0.0, 0.0});
  }

  void resolutionWidthAndHeightAreKeptInStep() {
    auto const [field, typed, shown, pageCm] = fetched<QString, QString, QStringList, QSizeF>();
    auto const hook =
        make<LayoutHook>(pageCm.isNull() ? make<PageLayout>() : emptyLayout(pageCm.width(), pageCm.height()));
    ExportParaDlg dialog(hook->layout, hook, nullptr);
    auto* const line = edit(dialog, qPrintable(field));
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Backspace);
    line->selectAll();
    QTest::keyClicks(line, typed);
    QCOMPARE((QStringList{edit(dialog, "lineEdit_DPI")->text(), edit(dialog, "lineEdit_Width")->text(),
                          edit(dialog, "lineEdit_Height")->text()}),
             shown);
  }

  void onlyAChosenFileReplacesThePath() {
    QTemporaryDir folder;
    Person person;
    auto const hook = make<LayoutHook>(emptyLayout(5.0, 5.0));
    ExportParaDlg dialog(hook->layout, hook, nullptr);
    dialog.show();
    person.sets("file", folder.filePath("map"));
    press(dialog, "pushButton_OutputPath");
    QCOMPARE(dialog.outputPath(), folder.filePath("map"));
    person.cancels();
    press(dialog, "pushButton_OutputPath");
    QCOMPARE(dialog.outputPath(), folder.filePath("map"));
  }

  void anExportSaysHowItEnded_data() {
    // said: in a message box that nobody answers
    Rows<QString, QString, QString, bool> row;
    row("a picture", "map.PNG", "pushButton", "", true);
    row("no path", "", "pushButton", "\"Warning\" (\"Invalid path!\")", false);
    row("a missing folder", "nowhere/map.png", "pushButton", "", false);
    row("cancelled", "map.png", "pushButton_2", "", false);
  }

  void anExportSaysHowItEnded() {
    auto const [name, button, said, written] = fetched<QString, QString, QString, bool>();
    QTemporaryDir folder;
    Person person;
    if (!name.isEmpty()) person.sets("lineEdit_OutputPath", folder.filePath(name));
    person.sets(button, "click");
    if (written) person.presses("OK");  // of "Export complete!"
    auto const hook = make<LayoutHook>(emptyLayout(5.0, 5.0));
    auto const command = hook->bound<ExportCommand>();
    QProgressDialog* const progress = command->GetProgressBar();
    command->OnClick();
    QString const problem = person.problem();
    QVERIFY2(said.isEmpty() ? problem.isEmpty() : problem.contains(said), qPrintable(problem));
    QCOMPARE(command->GetProgressBar(), progress);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), written ? QStringList(name) : QStringList());
    if (written) QCOMPARE(progress->width(), 400);
  }

  void thePreviewIsScaledFromTheDrawnPicture_data() {
    Rows<QVector<int>, QSize> row;
    row("as drawn", {}, QSize(250, 355));
    row("cut down to whole pixels", {33}, QSize(82, 117));
    row("beyond the slider", {19}, QSize(50, 71));
    row("back to the start", {20, 100}, QSize(250, 355));
  }

  void thePreviewIsScaledFromTheDrawnPicture() {
    auto const [percents, size] = fetched<QVector<int>, QSize>();
    auto const hook = make<LayoutHook>(emptyLayout(21.0, 29.7));
    PreView preview(nullptr);
    preview.RenderPreview(96, nullptr, hook->layout, hook);
    QImage const drawn = shown(preview);
    for (int percent : percents) preview.findChild<QSlider*>("horizontalSlider")->setValue(percent);
    QCOMPARE(shown(preview).size(), size);
    if (size == drawn.size()) QCOMPARE(shown(preview), drawn);
  }

  void thePreviewDrawsWhatTheExportDraws() {
    MapDocument sample;
    QVERIFY(sample.Open(PLOTVANE_SOURCE_DIR "/samples/world.kdx"));
    auto const hook = make<LayoutHook>(sample.GetPageLayout());
    int const graphics = sample.GetMap(0)->GetGraphicsContainer()->GetElements().size();
    QImage expected;
    {
      QSize const canvas(250, 355);
      LayoutRenderer const renderer(hook->layout, canvas, 150);
      Plugin::PlacedLabels const labels(*hook, renderer.pageTransform());
      expected = renderer.tileImage(QRect(QPoint(0, 0), canvas), nullptr);
    }

    Person person;
    ExportParaDlg dialog(hook->layout, hook, nullptr);
    edit(dialog, "lineEdit_DPI")->setText("150");
    for (int i = 0; i < 2; ++i) {
      person.cancels();
      press(dialog, "pushButton_3");
    }
    QImage const picture = shown(*dialog.findChild<PreView*>());
    QCOMPARE(picture.convertToFormat(QImage::Format_RGB32), expected.convertToFormat(QImage::Format_RGB32));
    // The page lies, so the canvas is empty below it.
    QCOMPARE(picture.pixelColor(125, 300), QColor(Qt::white));
    QVERIFY(picture.pixelColor(125, 90) != QColor(Qt::white));
    QCOMPARE(dialog.findChildren<PreView*>().size(), 2);
    QCOMPARE(sample.GetMap(0)->GetGraphicsContainer()->GetElements().size(), graphics);
  }

  void aPictureThatWasNotDrawnIsNotScaled() {
    auto const cancel = make<TrackerCancel>();
    cancel->Cancel();
    for (auto const& layout : {emptyLayout(5.0, 5.0), make<PageLayout>()}) {
      PreView preview(nullptr);
      preview.RenderPreview(96, layout->GetPage() ? cancel : nullptr, layout, make<LayoutHook>(layout));
      preview.findChild<QSlider*>("horizontalSlider")->setValue(50);
      QVERIFY(shown(preview).isNull());
    }
  }
};

QTEST_MAIN(ExportDialogTest)
#include "ExportDialogTest.moc"
