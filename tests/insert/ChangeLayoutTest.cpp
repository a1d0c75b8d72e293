#include "Files.h"
#include "InsertDesktop.h"
#include "insert/ChangePageLayout.h"

#include <SysAdapterUI/TOCControl.h>
#include <SysCarto/MapDocument.h>

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

using namespace SysCarto;

namespace {

// A desktop that notes what it is asked.
class LoggedDesktop final : public LayoutHook, public IDesktop, public IContentsSite {
public:
  LoggedDesktop(_ptr_t<PageLayout> const& layout, LoggedContents& contents, CallLog& log)
      : LayoutHook(layout), table(new SysAdapterUI::TOCControl(&contents)), contents_(contents), log_(log) {
    contents.layout = layout;
  }
  IKdxContents* GetContents() override { return &contents_; }
  MapDocument* GetMapDocument() override {
    log_ << QStringLiteral("document");
    return nullptr;
  }
  IKdxContents* GetActiveContents() override {
    log_ << QStringLiteral("contents");
    return &contents_;
  }
  SysAdapterUI::TOCControl* GetTOCControl() override {
    log_ << QStringLiteral("table of contents");
    return table;
  }
  _ptr_t<IContentsSite> GetContentsSite() override { return SysUtility::retain<IContentsSite>(this); }
  void SetContents(IKdxContents* contents) override {
    log_ << (contents == &contents_ ? QStringLiteral("site") : QStringLiteral("site of another"));
  }

  SysAdapterUI::TOCControl* table;

private:
  LoggedContents& contents_;
  CallLog& log_;
};

}  // namespace

class ChangeLayoutTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void init() {
    log_.clear();
    surface_ = std::make_unique<RecordingSurface>(log_);
    contents_ = new LoggedContents(log_);
    contents_->surface = surface_.get();
    old_ = emptyLayout(20, 30);
    old_->setSurface(surface_.get());
    old_->GetDisplayTransformation()->SetDeviceFrame(QRect(0, 0, 640, 480));
    for (char const* name : {"Alpha", "Beta"}) old_->GetGraphicsContainer()->AddElement(frameNamed(name));
    desktop_ = make<LoggedDesktop>(old_, *contents_, log_);
  }

  void cleanup() {
    old_->setSurface(nullptr);
    if (contents_->layout) contents_->layout->setSurface(nullptr);
    contents_->layout = nullptr;
    desktop_ = nullptr;
    contents_->Release();
  }

  void theLayoutComesFromTheTemplateAndTheMapsStay() {
    choose(writeTemplate());
    click();
    QCOMPARE(log_,
             CallLog({"document", "contents", "clear", "set layout", "site", "table of contents", "refresh 255"}));
    auto const layout = contents_->layout;
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
    QVERIFY(contents_->layout != old_);
    QSet<int> kinds;
    for (auto const& element : contents_->layout->GetGraphicsContainer()->GetElements()) {
      auto const frame = ptr_cast<MapSurroundFrame>(element);
      if (!frame) continue;
      QVERIFY(frame->GetMapSurround()->GetMap() == maps[0]);
      kinds << frame->GetMapSurround()->kind;
    }
    QCOMPARE(kinds, QSet<int>({1, 2, 3, 6}));
  }

  void theTemplatesOwnDataNeedNotBeThere() {
    choose(put(folder_.filePath("lost.kdx"),
               R"({"format":"plotvane-document","version":1,"page":{"form":"A4"},"maps":[{"name":"M",
      "bounds":[0,0,1,1],"layers":[{"type":"feature","name":"L","source":{"file":"absent.gpkg"},
      "renderer":{"type":"simple","symbol":{"type":"simpleLine"}}}]}],
      "elements":[{"type":"dataFrame","map":0,"rectangle":[1,1,5,5]}]})"));
    click();
    QVERIFY(log_.contains("set layout"));
  }

  void aCancelledChoiceLeavesEverything() {
    answerDialog([](QWidget& dialog) { static_cast<QDialog&>(dialog).reject(); });
    click();
    // Deactivated before anybody was asked.
    QCOMPARE(log_, CallLog({"document", "contents", "clear"}));
    QVERIFY(contents_->layout == old_);
  }

  void aBadTemplateIsRefusedAndNothingChanges_data() {
    Rows<QByteArray, QString> row;
    row("no document", "{\"format\":\"plotvane-style\"}", "format: is not");
    row("not even JSON", "page", "this is not JSON");
    row("a newer version", "{\"format\":\"plotvane-document\",\"version\":99}", "newer version");
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
    QCOMPARE(log_, CallLog({"document", "contents", "clear"}));
    QVERIFY(contents_->layout == old_);
    QCOMPARE(old_->GetGraphicsContainer()->GetElements().size(), 2);
  }

  void itIsForTheLayoutView() {
    Plugin::ChangePageLayout command;
    command.OnCreate(desktop_->pointer());
    QVERIFY(command.IsEnable());
    desktop_->view = make<Map>();
    QVERIFY(!command.IsEnable());
    command.OnClick();
    QCOMPARE(log_, CallLog());
  }

private:
  void click() {
    Plugin::ChangePageLayout command;
    command.OnCreate(desktop_->pointer());
    command.OnClick();
  }

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

  QString writeTemplate() {
    return put(folder_.filePath("template.kdx"), R"({"format":"plotvane-document","version":1,
      "page":{"form":"Custom","width":40,"height":50},
      "maps":[{"name":"One","bounds":[0,0,1,1]},{"name":"Two","bounds":[0,0,1,1]}],
      "elements":[{"type":"dataFrame","map":0,"rectangle":[1,1,20,20]},{"type":"dataFrame","map":1,"rectangle":[21,1,30,20]},
      {"type":"surround","rectangle":[1,21,5,25],"surround":{"kind":"legend","map":0}}]})");
  }

  QTemporaryDir folder_;
  CallLog log_;
  _ptr_t<PageLayout> old_;
  LoggedContents* contents_ = nullptr;
  _ptr_t<LoggedDesktop> desktop_;
  std::unique_ptr<RecordingSurface> surface_;
};

QTEST_MAIN(ChangeLayoutTest)
#include "ChangeLayoutTest.moc"
