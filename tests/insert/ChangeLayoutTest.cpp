#include "Files.h"
#include "InsertDesktop.h"
#include "insert/ChangePageLayout.h"

#include <SysCarto/MapDocument.h>

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

using namespace SysCarto;

class ChangeLayoutTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void init() {
    desktop_ = nullptr;  // it lets go of the history that the next one takes
    old_ = emptyLayout(20, 30);
    old_->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 640, 480));
    for (char const* name : {"Alpha", "Beta"}) old_->GetGraphicsContainer()->AddElement(frameNamed(name));
    desktop_ = make<InsertDesktop>(old_);
  }

  void theLayoutComesFromTheTemplateAndTheMapsStay() {
    choose(writeTemplate());
    click();
    QCOMPARE(desktop_->calls,
             QStringList({"document", "contents", "clear", "set layout", "site", "table of contents", "refresh 255"}));
    auto const layout = desktop_->contents->layout;
    QVERIFY(layout != old_);
    double width = 0, height = 0;
    layout->GetPage()->QuerySize(width, height);
    QCOMPARE(width, 40.0);
    QList<_ptr_t<Map>> before, after;
    old_->GetMaps(before);
    layout->GetMaps(after);
    QCOMPARE(after, before);
    QCOMPARE(layout->GetDisplayTransformation()->GetDeviceFrame(), QRect(0, 0, 640, 480));
    auto const elements = layout->GetGraphicsContainer()->GetElements();
    QCOMPARE(elements.size(), 3);
    QVERIFY(ptr_cast<MapSurroundFrame>(elements[2])->GetMapSurround()->GetMap() == before[0]);
    auto* const tree = desktop_->table->findChild<QTreeWidget*>();
    QCOMPARE(tree->topLevelItemCount(), 2);
    QCOMPARE(tree->topLevelItem(0)->text(0), QString("Alpha"));
  }

  void theShippedTemplatesExplainTheFirstMap_data() {
    Rows<QString> row;
    row("report", "a4-report.kdx");
    row("poster", "a3-poster.kdx");
  }

  void theShippedTemplatesExplainTheFirstMap() {
    auto const [file] = fetched<QString>();
    QList<_ptr_t<Map>> maps;
    old_->GetMaps(maps);
    choose(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/templates/") + file);
    click();
    QVERIFY(desktop_->contents->layout != old_);
    QSet<int> kinds;
    for (auto const& element : desktop_->contents->layout->GetGraphicsContainer()->GetElements()) {
      auto const frame = ptr_cast<MapSurroundFrame>(element);
      if (!frame) continue;
      QVERIFY(frame->GetMapSurround()->GetMap() == maps[0]);
      kinds << frame->GetMapSurround()->kind;
    }
    QCOMPARE(kinds, QSet<int>({1, 2, 3, 6}));
  }

  void aCancelledChoiceLeavesEverything() {
    answerDialog([](QWidget& dialog) { static_cast<QDialog&>(dialog).reject(); });
    click();
    // Deactivated before anybody was asked.
    QCOMPARE(desktop_->calls, QStringList({"document", "contents", "clear"}));
    QVERIFY(desktop_->contents->layout == old_);
  }

  void aBadTemplateIsRefusedAndNothingChanges_data() {
    Rows<QByteArray, QString> row;
    row("not even JSON", "page", "this is not JSON");
    row("without a page", "{\"format\":\"plotvane-document\",\"version\":1}", "has no page");
  }

  void aBadTemplateIsRefusedAndNothingChanges() {
    auto const [content, reason] = fetched<QByteArray, QString>();
    QString const file = put(folder_.filePath("bad.kdx"), content);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(file) + ".*" + reason + ".*"));
    choose(file, [] {
      answerDialog([](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        QCOMPARE(box.windowTitle(), QString("Error"));
        QCOMPARE(box.text(), QString("Open File Failed!"));
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(box.defaultButton() == box.button(QMessageBox::Ok));
        box.accept();
      });
    });
    click();
    QCOMPARE(desktop_->calls, QStringList({"document", "contents", "clear"}));
    QVERIFY(desktop_->contents->layout == old_);
    QCOMPARE(old_->GetGraphicsContainer()->GetElements().size(), 2);
  }

private:
  void click() { desktop_->bound<Plugin::ChangePageLayout>()->OnClick(); }

  void choose(QString const& file, std::function<void()> const& then = {}) {
    answerDialog([=](QWidget& dialog) {
      auto& chooser = dynamic_cast<QFileDialog&>(dialog);
      QCOMPARE(chooser.windowTitle(), QString("Open"));
      QCOMPARE(chooser.nameFilters(), QStringList("kdx File(*.kdx)"));
      chooser.setDirectory(QFileInfo(file).absolutePath());
      chooser.selectFile(file);
      if (then) then();
      // Done as the button does it; the chooser's own check would wait for its file model.
      QMetaObject::invokeMethod(&chooser, "accept");
    });
  }

  // Its own data need not be there.
  QString writeTemplate() {
    return put(folder_.filePath("template.kdx"), R"({"format":"plotvane-document","version":1,
      "page":{"form":"Custom","width":40,"height":50},
      "maps":[{"name":"One","bounds":[0,0,1,1],"layers":[{"type":"feature","name":"L","source":{"file":"absent.gpkg"},
      "renderer":{"type":"simple","symbol":{"type":"simpleLine"}}}]},{"name":"Two","bounds":[0,0,1,1]}],
      "elements":[{"type":"dataFrame","map":0,"rectangle":[1,1,20,20]},
      {"type":"dataFrame","map":1,"rectangle":[21,1,30,20]},
      {"type":"surround","rectangle":[1,21,5,25],"surround":{"kind":"legend","map":0}}]})");
  }

  QTemporaryDir folder_;
  _ptr_t<PageLayout> old_;
  _ptr_t<InsertDesktop> desktop_;
};

QTEST_MAIN(ChangeLayoutTest)
#include "ChangeLayoutTest.moc"
