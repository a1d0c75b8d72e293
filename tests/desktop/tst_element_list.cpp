#include "Dialogs.h"
#include "Files.h"
#include "Pictures.h"
#include "desktop/DrawingPage.h"

#include "export/LayoutRenderer.h"
#include "host/SysCarto/document/ElementFields.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/desktop/ElementList.h"
#include "host/desktop/ElementModel.h"
#include "host/desktop/MainWindow.h"

#include <QAbstractItemModelTester>
#include <QUndoView>

#include <random>

using SysCarto::GroupElement;
using SysCarto::MapDocumentHost;
using SysCarto::RectangleElement;

/// The list of elements, what is hidden or locked, and the keys and the history that go through them.
class ElementListTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    put(path("start.kdx"), contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
  }

  void whatIsHiddenIsNeitherDrawnNorHit() {
    DrawingPage page;
    auto const box = page.add<RectangleElement>(2, 2, 6, 6);
    auto const group = make<GroupElement>();
    auto const member = madeIn<RectangleElement>(8, 2, 12, 6);
    group->AddElement(member);
    page.container().AddElement(group);
    auto const isDrawn = [&page](double x, double y) {
      QSize const size(210, 297);
      Plugin::LayoutRenderer const renderer(page.layout(), size, 25);
      QImage const exported = renderer.tileImage(QRect(QPoint(), size), nullptr);
      QImage const seen = page.view().grab().toImage();
      bool const isExported = exported.pixelColor(qRound(10 * x), 297 - qRound(10 * y)) != Qt::white;
      bool const isSeen = seen.pixelColor(page.pixel(x, y)) != Qt::white;
      page.click(page.pixel(x, y));
      bool const isHit = page.container().GetSelectedElementCount() > 0;
      page.click(page.pixel(18, 28));
      return QVector<bool>{isExported, isSeen, isHit};
    };
    QVector<bool> const all(3, true), none(3, false);
    QCOMPARE(isDrawn(4, 4), all);
    QCOMPARE(isDrawn(10, 4), all);
    setField(page, QStringLiteral("#%1").arg(box->GetHandle()), {"hidden"}, true);
    setField(page, QStringLiteral("#%1").arg(group->GetHandle()), {"members", "0", "hidden"}, true);
    QCOMPARE(isDrawn(4, 4), none);
    QCOMPARE(isDrawn(10, 4), none);
    QVERIFY(page.bench.session().saveAs(path("hidden.kdx")) && page.bench.session().open(path("hidden.kdx")));
    QCOMPARE(isDrawn(4, 4), none);
    page.run("Host_SelectAll");
    QCOMPARE(page.container().GetSelectedElementCount(), 1);  // the group
  }

  void whatIsLockedIsLeftAlone() {
    DrawingPage page;
    auto const box = page.add<RectangleElement>(2, 2, 6, 6);
    QString const name = QStringLiteral("#%1").arg(box->GetHandle());
    setField(page, name, {"locked"}, true);
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    page.click(page.pixel(4, 4));
    page.drag(page.pixel(1, 1), page.pixel(7, 7));
    page.run("Host_SelectAll");
    QCOMPARE(page.container().GetSelectedElementCount(), 0);
    page.container().SelectElement(page.now(*box));  // as the list does
    page.drag(page.pixel(4, 4), page.pixel(5, 5));
    page.container().SelectElement(page.now(*box));
    page.key(Qt::Key_Left);
    QVERIFY(!page.run("Host_Delete") && !page.run("Host_Cut"));
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
    page.bench.session().document().GetOperationStack()->Undo();
    page.click(page.pixel(4, 4));
    QCOMPARE(page.container().GetSelectedElementCount(), 1);
  }

  void theListShowsTheTopmostFirstAndChangesIt() {
    DrawingPage page;
    auto const low = page.add<RectangleElement>(2, 2, 6, 6), high = page.add<RectangleElement>(3, 2, 7, 6);
    auto const group = make<GroupElement>();
    for (char const* name : {"below", "above"}) {
      auto const member = madeIn<RectangleElement>(8, 2, 12, 6);
      member->SetName(name);
      group->AddElement(member);
    }
    page.container().AddElement(group);
    ElementModel model(page.bench.session().document(), nullptr);
    QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.follow();
    auto const history = page.bench.session().document().GetOperationStack();
    auto const row = [&](int number) { return model.index(number, 0); };
    QCOMPARE(model.handleOf(row(0)), group->GetHandle());
    QCOMPARE(model.index(0, 0, row(0)).data().toString(), QString("above"));

    QVERIFY(model.setData(row(1), "Roof", Qt::EditRole));
    QCOMPARE(page.now(*high)->GetName(), QString("Roof"));
    QVERIFY(history->GetUndoName().contains("name"));
    model.follow();
    QVERIFY(model.setData(model.index(1, 0, row(0)), "deep", Qt::EditRole));
    QCOMPARE(ptr_cast<GroupElement>(page.now(*group))->GetElements().first()->GetName(), QString("deep"));
    model.follow();
    model.toggle(model.index(0, ElementModel::HiddenColumn, row(0)));
    QVERIFY(!ptr_cast<GroupElement>(page.now(*group))->GetElements().last()->IsVisible());

    std::unique_ptr<QMimeData> const dragged(model.mimeData({row(0)}));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 2, 0, {});
    model.follow();
    QCOMPARE(model.handleOf(row(1)), group->GetHandle());
    QCOMPARE(model.handleOf(row(2)), low->GetHandle());
    for (int i = 0; i < 4; ++i) history->Undo();
    QVERIFY(!history->CanUndo());
    model.follow();
    QCOMPARE(model.handleOf(row(0)), group->GetHandle());
    QCOMPARE(model.index(1, 0, row(0)).data().toString(), QString("below"));
  }

  void theListFollowsWhateverHappens() {
    DrawingPage page;
    QVERIFY(page.bench.session().open(path("start.kdx")));
    ElementModel model(page.bench.session().document(), nullptr);
    QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList const commands = QString(
                                     "Host_Group Host_Ungroup Host_Duplicate Host_Delete Host_Undo Host_Redo "
                                     "Plotvane_BringToFrontElements Plotvane_SendBackwardElements Host_Undo")
                                     .split(' ');
    std::mt19937 random{7};
    for (int step = 0; step < 300; ++step) {
      page.container().UnselectAllElements();
      for (auto const& element : page.container().GetElements())
        if (random() % 4 == 0) page.container().SelectElement(element);
      page.run(commands.at(random() % commands.size()));
      model.follow();
      auto const elements = page.container().GetElements();
      QCOMPARE(model.rowCount(), elements.size());
      for (int i = 0; i < elements.size(); ++i) {
        QModelIndex const row = model.index(elements.size() - 1 - i, 0);
        QCOMPARE(model.handleOf(row), elements[i]->GetHandle());
        auto const group = ptr_cast<GroupElement>(elements[i]);
        QCOMPARE(model.rowCount(row), group ? group->GetElements().size() : 0);
      }
    }
  }

  void theListAndThePageHaveOneSelection() {
    MainWindow window;
    window.show();
    WorkbenchPage page(window.bench());
    QList<_ptr_t<SysCarto::Element>> many;
    for (int i = 0; i < 10000; ++i)
      many << madeIn<RectangleElement>(i % 100 * 0.2, i / 100 * 0.2, i % 100 * 0.2 + 0.1, i / 100 * 0.2 + 0.1);
    page.container().AddElements(many);
    auto& list = *window.findChild<ElementList*>();
    QElapsedTimer clock;
    clock.start();
    list.follow();
    qint64 const filled = clock.restart();
    page.run("Host_SelectAll");
    clock.restart();
    list.follow();
    qint64 const selected = clock.restart();
    QCOMPARE(list.selectionModel()->selectedRows().size(), 10000);
    clock.restart();
    list.follow();
    qint64 const same = clock.elapsed();
    qInfo("10,000 elements: %lld ms to fill, %lld ms to select all, %lld ms when nothing has changed", filled, selected,
          same);
    QVERIFY(filled + selected + same < 3000);

    list.setCurrentIndex(list.model()->index(3, 0));
    QCOMPARE(page.container().GetSelectedElements(), (QList<_ptr_t<SysCarto::Element>>{many[9996]}));
    page.container().UnselectAllElements();
    list.follow();
    QVERIFY(!list.selectionModel()->hasSelection());
    page.container().SelectElement(many[9996]);
    list.follow();
    QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(page.container().GetElements().at(9995), many[9996]);
    list.follow();
    QCOMPARE(list.currentIndex().row(), 4);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_F2);  // a name, though the page has the key, too
    auto* const name = list.findChild<QLineEdit*>();
    QVERIFY(name && name->isVisible());
    QTest::keyClick(name, Qt::Key_Escape);

    auto const group = make<GroupElement>();
    for (double x : {1, 3, 5}) group->AddElement(madeIn<RectangleElement>(x, 1, x + 1, 2));
    page.container().AddElement(group);
    list.follow();
    list.expand(list.model()->index(0, 0));
    list.setCurrentIndex(list.model()->index(2, 0, list.model()->index(0, 0)));  // the lowest member
    QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
    list.follow();
    QCOMPARE(list.selectionModel()->selectedRows(), {list.model()->index(1, 0, list.model()->index(0, 0))});
    QCOMPARE(placeOf(*ptr_cast<GroupElement>(page.now(*group))->GetElements().at(1)).left(), 1.0);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);  // out of the group
    list.follow();
    QCOMPARE(list.selectionModel()->selectedRows(), {list.model()->index(1, 0)});
    QCOMPARE(page.container().GetSelectedElementCount(), 1);
  }

  void tabGoesThroughTheElementsAndOn() {
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    WorkbenchPage page(window.bench());
    auto const a = page.add<RectangleElement>(1, 1, 2, 2), hidden = page.add<RectangleElement>(1, 1, 2, 2),
               locked = page.add<RectangleElement>(1, 1, 2, 2), b = page.add<RectangleElement>(5, 25, 6, 26);
    SysCarto::setLocked(*locked, true);
    hidden->SetVisible(false);
    page.layout()->SetExtent(make<SysGeometry::Envelope>(0.0, 0.0, 4.0, 3.0));
    page.view().setFocus();
    auto const selected = [&page] { return page.container().GetSelectedElements().value(0); };
    page.key(Qt::Key_Tab);
    QCOMPARE(selected(), _ptr_t<SysCarto::Element>(a));
    page.key(Qt::Key_Tab);
    QCOMPARE(selected(), _ptr_t<SysCarto::Element>(b));
    QVERIFY(page.layout()->GetExtent()->Contains(b->GetEnvelope()));
    page.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(selected(), _ptr_t<SysCarto::Element>(a));
    QVERIFY(page.view().hasFocus());
    page.key(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(!page.view().hasFocus());
    page.view().setFocus();
    page.key(Qt::Key_Tab);
    page.key(Qt::Key_Tab);
    QVERIFY(!page.view().hasFocus());
    QCOMPARE(selected(), _ptr_t<SysCarto::Element>(b));
  }

  void aClickInTheHistoryGoesThere() {
    MainWindow window;
    window.show();
    WorkbenchPage page(window.bench());
    auto const box = page.add<RectangleElement>(4, 4, 8, 7);
    page.container().SelectElement(box);
    for (int i = 0; i < 3; ++i) page.key(Qt::Key_Right);
    QVERIFY(page.run("Host_History"));
    auto& steps = *window.findChild<QUndoView*>();
    QCOMPARE(steps.model()->rowCount(), 4);
    steps.setCurrentIndex(steps.model()->index(1, 0));
    QVERIFY(std::abs(page.place(*box).left() - 4.1) < 1e-9);
    steps.setCurrentIndex(steps.model()->index(3, 0));
    QVERIFY(std::abs(page.place(*box).left() - 4.3) < 1e-9);
  }

private:
  QString path(QString const& name) const { return folder_.filePath(name); }
  QTemporaryDir folder_;
};

QTEST_MAIN(ElementListTest)
#include "tst_element_list.moc"
