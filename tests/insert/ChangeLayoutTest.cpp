#include "Files.h"
#include "InsertDesktop.h"
#include "insert/ChangePageLayout.h"

#include <SysCarto/MapDocument.h>

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
    person_.emplace();
  }

  void theLayoutComesFromTheTemplateAndTheMapsStay() {
    person_->sets("file", writeTemplate());
    click();
    QCOMPARE(desktop_->calls,
             QStringList({"document", "contents", "clear", "set layout", "site", "table of contents", "refresh 255"}));
    auto const layout = desktop_->contents->layout;
    QVERIFY(layout != old_);
    QCOMPARE(sizeOf(*layout->GetPage()), QSizeF(40, 50));
    QList<_ptr_t<Map>> before, after;
    old_->GetMaps(before);
    layout->GetMaps(after);
    QCOMPARE(after, before);
    QCOMPARE(layout->GetDisplayTransformation()->GetDeviceFrame(), QRect(0, 0, 640, 480));
    auto const elements = layout->GetGraphicsContainer()->GetElements();
    QCOMPARE(elements.size(), 3);
    QVERIFY(ptr_cast<MapSurroundFrame>(elements[2])->GetMapSurround()->GetMap() == before[0]);
    auto* const tree = desktop_->table->findChild<QTreeView*>();
    QCOMPARE(tree->model()->rowCount(), 2);
    QCOMPARE(tree->model()->index(0, 0).data().toString(), QString("Alpha"));
  }

  void cleanup() { person_.reset(); }

  void theShippedTemplatesExplainTheFirstMap() {
    QList<_ptr_t<Map>> maps;
    old_->GetMaps(maps);
    for (char const* file : {"a4-report.kdx", "a3-poster.kdx"}) {
      person_->sets("file", QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/templates/") + file);
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
  }

  void aCancelledChoiceLeavesEverything() {
    click();
    QVERIFY(person_->problem().contains("\"Open\""));
    // Deactivated before anybody was asked.
    QCOMPARE(desktop_->calls, QStringList({"document", "contents", "clear"}));
    QVERIFY(desktop_->contents->layout == old_);
  }

  void aBadTemplateIsRefusedAndNothingChanges() {
    person_->sets("file", put(folder_.filePath("bad.kdx"), "not even JSON"));
    click();
    QVERIFY(person_->problem().contains("\"Error\" (\"Open File Failed!\")"));
    QCOMPARE(desktop_->calls, QStringList({"document", "contents", "clear"}));
    QVERIFY(desktop_->contents->layout == old_);
    QCOMPARE(old_->GetGraphicsContainer()->GetElements().size(), 2);
  }

private:
  void click() { desktop_->bound<Plugin::ChangePageLayout>()->OnClick(); }

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
  std::optional<Person> person_;
};

QTEST_MAIN(ChangeLayoutTest)
#include "ChangeLayoutTest.moc"
