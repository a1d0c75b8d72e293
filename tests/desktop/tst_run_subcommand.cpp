#include "desktop/Executable.h"

#include "host/SysCarto/elements/PictureElement.h"

#include <sys/stat.h>

#include <QLockFile>

class RunSubcommandTest : public QObject {
  Q_OBJECT

private slots:
  // A second element beside the data frame: what follows needs two.
  void initTestCase() {
    SysCarto::MapDocument document;
    QVERIFY(document.Open(folder_.path("page.kdx")));
    auto const frame = madeIn<SysCarto::MapFrameElement>(2.0, 2.0, 3.0, 3.0);
    frame->SetName("Inset");
    document.GetPageLayout()->GetGraphicsContainer()->AddElement(frame);
    auto const picture = madeIn<SysCarto::PictureElement>(6.0, 5.0, 7.0, 6.0);
    QImage(2, 2, QImage::Format_RGB32).save(folder_.path("drawn.png"));
    picture->SetName("Drawn,twice");
    picture->setPath(folder_.path("drawn.png"));
    document.GetPageLayout()->GetGraphicsContainer()->AddElement(picture);
    QCOMPARE(mkfifo(qPrintable(folder_.path("pipe.kdx")), 0600), 0);
    QVERIFY(document.SaveAs(folder_.path("two.kdx"), true, false));
  }

  void stepsWorkOnThePage_data() {
    Rows<QString, double> row;
    row("the first selected is the reference", "select=World,Inset Plotvane_LeftAlignment info", 1);
    row("a command's name may be in any case", "select=World,Inset plotvane_leftalignment info", 1);
    row("undo takes a command back", "select=World,Inset Plotvane_LeftAlignment undo info", 2);
    row("redo makes it again", "select=World,Inset Plotvane_LeftAlignment undo redo info", 1);
    row("a comma may be part of a name", "select=World,Drawn\\,twice Plotvane_TopAlignment info", 2);
    row("handles name elements, too", "select=#1,#2 Plotvane_LeftAlignment info", 1);
    row("a drag moves what lies under it", "drag=2.5,2.5,4.5,2.5 info", 4);
    row("the pan tool moves no element", "Plotvane_Pan drag=2.5,2.5,4.5,2.5 info", 2);
  }
  void stepsWorkOnThePage() {
    auto const [steps, xminOfInset] = fetched<QString, double>();
    Outcome const outcome = run(QStringList{"run", "two.kdx"} + steps.split(' '), folder_.path());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    double const onePixelCm = 0.02;  // the mouse goes from pixel to pixel
    double const xmin = envelopeOf("Inset", outcome.out).at(0).toDouble();
    QVERIFY2(qAbs(xmin - xminOfInset) < onePixelCm, qPrintable(QString::number(xmin)));
  }

  void aSaveKeepsTheEarlierVersionWhereItIsToldTo() {
    QByteArray const before = contentOf(folder_.path("two.kdx"));
    put(folder_.path("own.kdx"), before);
    auto const saved = [&](QStringList const& steps) {
      return run(QStringList{"run", "own.kdx"} + steps + QStringList{"save=own.kdx"}, folder_.path()).status;
    };
    QCOMPARE(saved({"select=Inset", "Host_Delete"}), 0);
    QVERIFY(contentOf(folder_.path("own.kdx")) != before && !QFile::exists(folder_.path("own.kdx~")));
    put(folder_.path("own.kdx"), before);
    QCOMPARE(saved({"Host_KeepEarlier", "select=Inset", "Host_Delete"}), 0);
    QCOMPARE(contentOf(folder_.path("own.kdx~")), before);
  }

  void aStepThatCanNotBeDoneStopsTheRun_data() {
    Rows<QString, int, QString> row;
    row("a disabled command says what it needs", "select=World Plotvane_LeftAlignment", 1,
        "Align Left is disabled; it needs two selected elements");
    row("a tool of the page in the map view", "view=map Plotvane_ZoomIn", 1, "needs the page layout shown");
    row("a click in the map view", "view=map click=1,1", 1, "needs the page layout shown");
    row("a name that is not on the page", "select=Legend", 1, "no element is named \"Legend\"");
    row("a step from before the page was scaled",
        "select=World,Inset Plotvane_LeftAlignment answer=comboBox_PaperType:A3 answer=checkBox_ScaleMapElements:on "
        "Plotvane_PageSetting select=World,Inset Plotvane_TopAlignment undo undo",
        1, "it needs a change to take back");
    row("a name on the page in the map view", "view=map select=World", 1, "view=layout shows the page");
    row("a place without a map", "identify=0.1,0.1", 1, "there is no map at this place");
    row("attributes of a layer that there isn't", "attributes=layer:Countries/Towns", 1,
        "there is no layer \"Countries/Towns\"");
    row("a command of the window", "Host_Save", 2, "save=FILE saves");
    row("a document in an image's place", "save=a.png", 2, "name a .kdx file");
    row("an extent that no map shows", "extent=0,0,1e300,1", 1, "can't show");
    row("an extent without area", "extent=1,1,1,1", 2, "no area");
    row("the scale of a locked map", "Plotvane_LockDataFrame scale=1:5000", 1, "Plotvane_UnlockDataFrame");
    row("a map without layers", "hide=Roads", 1, "no map with layers");
    row("a template that is not there", "info answer=file:none.kdx Plotvane_ChangePageLayout", 1,
        "no file \"none.kdx\"");
    row("an answer for no dialog as a whole", "info cancel Host_SelectAll", 1, "no dialog has taken cancel");
    row("no scale", "scale=1:0", 2, "scale=1:N");
    row("a map that is not on the page", "focus=Moon", 1, "no map is named \"Moon\"");
    row("nothing to undo", "undo", 1, "it needs a change to take back");
    row("an answer that no dialog takes", "answer=lineEdit_DPI:96", 1, "lineEdit_DPI");
    row("an image that is called what it is not", "answer=lineEdit_OutputPath:a.gif Plotvane_Export", 1,
        "a.gif holds a TIFF");
    row("a folder that is not there", "save=none/out.kdx", 1, "none");
    row("a missing folder", "answer=lineEdit_OutputPath:none/a.png Plotvane_Export", 1, "none does not exist");
    row("a page that lies and has no width",
        "answer=comboBox_PaperType:Custom answer=radioButton_H:on answer=lineEdit_PageWidth:0 Plotvane_PageSetting", 1,
        "the page's width is 0 cm; set one of 0.1 to 500 cm");
    row("an image in the document's place", "info answer=lineEdit_OutputPath:two.kdx Plotvane_Export", 1,
        "is the document itself");
    row("an image over data of the page", "info answer=lineEdit_OutputPath:drawn.png Plotvane_Export", 1, "drawn from");
    row("a folder that takes no files", "save=/proc/out.kdx", 1, "the folder /proc can't be written");
    row("a filter that is not understood",
        "add=layer:" PLOTVANE_SOURCE_DIR "/samples/data/world.gpkg|cities set=layer:#0/#0/source/filter:name=", 1,
        "not understood");
    row("a pipe", "save=pipe.kdx", 1, "no ordinary file");
    row("a folder for an image", "answer=lineEdit_OutputPath:. Plotvane_Export", 1, "is a folder");
    row("an unknown method", "classify=layer:Countries/Towns/name:jenks", 2, "the method is one of equal");
    row("an unknown step", "frobnicate", 2, "\"frobnicate\" is neither");
    row("a point without its second number", "click=1", 2, "click=X,Y");
  }
  void aStepThatCanNotBeDoneStopsTheRun() {
    auto const [steps, status, complaint] = fetched<QString, int, QString>();
    auto const before = contents(folder_.path());
    Outcome const outcome =
        run(QStringList{"run", "two.kdx"} + steps.split(' ') + QStringList{"save=out.kdx"}, folder_.path());
    QVERIFY2(outcome.err.contains(complaint), qPrintable(outcome.err));
    QCOMPARE(outcome.status, status);
    bool const isLastStep = steps.startsWith("answer");  // told at the end, since a command may still come
    if (!isLastStep) QVERIFY(contents(folder_.path()) == before);
    QFile::remove(folder_.path("out.kdx"));
  }

  void aFullDiskIsTold() {
    FileSizeLimit const limit(20000);  // the process inherits it
    for (QString const name : {"a.png", "a.jpg", "a.bmp", "a.tif"}) {
      Outcome const outcome =
          run({"run", "two.kdx", "answer=lineEdit_OutputPath:" + name, "Plotvane_Export"}, folder_.path());
      for (QString const& part : {QString("Export complete!"), name + " was not written"})
        QVERIFY2(outcome.err.contains(part), qPrintable(outcome.err));
      QCOMPARE(outcome.status, 1);
    }
  }

  void aLockedDocumentIsSavedByForceAlone() {
    QLockFile lock(folder_.path(".two.kdx.lock"));
    QVERIFY(lock.tryLock(0));
    QStringList const arguments{"run", "two.kdx", "select-all", "Plotvane_TopAlignment", "save=two.kdx"};
    QByteArray const before = contentOf(folder_.path("two.kdx"));
    Outcome const refused = run(arguments, folder_.path());
    QVERIFY2(refused.err.contains(".two.kdx.lock"), qPrintable(refused.err));
    QCOMPARE(refused.status, 1);
    QCOMPARE(contentOf(folder_.path("two.kdx")), before);
    QCOMPARE(run(arguments + QStringList("--force"), folder_.path()).status, 0);
    QVERIFY(contentOf(folder_.path("two.kdx")) != before);
    put(folder_.path("two.kdx"), before);
  }

  void featuresAreToldAsJson() {
    Outcome const outcome = run({"run", PLOTVANE_SOURCE_DIR "/samples/world.kdx", "view=map",
                                 "identify=1000000,5800000", "attributes=layer:World/Capitals:name = 'Berlin'"},
                                folder_.path());
    QCOMPARE(outcome.err, QString());
    QStringList const lines = outcome.out.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    auto const features = json(lines[0].toUtf8()).value("features").toArray();
    QStringList layers;
    for (auto const& feature : features) layers << feature.toObject().value("layer").toString();
    QCOMPARE(layers, QStringList({"Capitals", "Countries", "Shore", "Ocean"}));
    QCOMPARE(features[1].toObject().value("label").toString(), QString("Germany"));
    auto const berlin = json(lines[1].toUtf8());
    QCOMPARE(features[0].toObject().value("id"), berlin.value("id"));
    QCOMPARE(features[0].toObject().value("fields"), berlin.value("fields"));
    QCOMPARE(berlin.value("fields").toObject().value("country").toString(), QString("DE"));
  }

  void theFocusGoesToAMapByName() {
    Outcome const outcome = run({"run", "two.kdx", "focus=Inset", "info"}, folder_.path());
    QCOMPARE(outcome.err, QString());
    auto const maps = QJsonDocument::fromJson(outcome.out.toUtf8()).object()["maps"].toArray();
    QCOMPARE(maps.at(0)["focus"].toBool(), false);
    QCOMPARE(maps.at(1)["focus"].toBool(), true);
  }

  void undoneWorkSavesTheSameFile() {
    QString const steps = "Plotvane_TopAlignment scale=5000 extent=0,0,7,5 undo undo undo save=same.kdx";
    QCOMPARE(run(QStringList{"run", "two.kdx", "select-all"} + steps.split(' '), folder_.path()).status, 0);
    QCOMPARE(contentOf(folder_.path("same.kdx")), contentOf(folder_.path("two.kdx")));
  }

private:
  QJsonArray envelopeOf(QString const& name, QString const& report) const {
    for (QJsonValue const& value : QJsonDocument::fromJson(report.toUtf8()).object()["elements"].toArray())
      if (value.toObject()["name"] == name) return value.toObject()["envelope"].toArray();
    return {};
  }

  DocumentFolder folder_;
};

QTEST_GUILESS_MAIN(RunSubcommandTest)
#include "tst_run_subcommand.moc"
