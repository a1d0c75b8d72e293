#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/WorkbenchPage.h"

#include "export/LayoutRenderer.h"
#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/ElementFields.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/ElementList.h"
#include "host/desktop/ElementModel.h"
#include "host/desktop/MainWindow.h"

#include <QAbstractItemModelTester>
#include <QUndoView>

#include <random>

using SysCarto::Editable;
using SysCarto::GroupElement;
using SysCarto::MapDocumentHost;
using SysCarto::MapFrameElement;
using SysCarto::MapSurroundFrame;
using SysCarto::PictureElement;
using SysCarto::RectangleElement;
using SysCarto::TextElement;

namespace {

// The fields of an element as a document has them, without what tells it from its copy.
QJsonObject storedWithoutNumbers(WorkbenchPage& page, SysCarto::Element const& element) {
  auto& document = page.bench.session().document();
  auto fields =
      SysUtility::wholeObject(Editable::fields(document, {Editable::element(document, element.GetHandle())}).first());
  for (char const* key : {"handle", "map", "path"}) fields.remove(key);
  QJsonObject surround = fields["surround"].toObject();
  surround.remove("map");
  if (!surround.isEmpty()) fields["surround"] = surround;
  QJsonArray overviews;
  for (QJsonValue const& overview : fields["overviews"].toArray())
    overviews << QJsonObject{{"symbol", overview["symbol"]}};
  if (fields.contains("overviews")) fields["overviews"] = overviews;
  return fields;
}

QMimeData* withText(QString const& text) {
  auto* const data = new QMimeData;
  data->setText(text);
  return data;
}

QMimeData* withUrl(QString const& path) {
  auto* const data = new QMimeData;
  data->setUrls({QUrl::fromLocalFile(path)});
  return data;
}

QMimeData* withOwn(QByteArray const& text) {
  auto* const data = new QMimeData;
  data->setData("application/x-plotvane-elements+json", text);
  return data;
}

}  // namespace

/// The clipboard, groups, and the list of elements.
class DrawingCommandsTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    put(path("start.kdx"), contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
    QVERIFY(canvas({96, 48}).save(path("logo.png")));
  }
  void init() { QApplication::clipboard()->clear(); }

  // In the same document, and in another one by the clipboard alone.
  void allThatAnElementHasIsPasted() {
    QVector<QJsonObject> originals;
    {
      Page page;
      QVERIFY(page.bench.session().open(path("start.kdx")));
      for (auto const& element : page.container().GetElements()) {
        originals << storedWithoutNumbers(page, *element);
        page.container().SelectElement(element);
      }
      QVERIFY(page.run("Host_Copy"));
      QVERIFY(page.run("Host_PasteInPlace"));
      QCOMPARE(page.problem, QString());
      compare(page, originals, originals.size());
      QVERIFY(page.run("Host_Undo"));
      for (auto const& element : page.container().GetElements()) page.container().SelectElement(element);
      QVERIFY(page.run("Host_Duplicate"));
      QCOMPARE(page.container().GetElements().size(), 2 * originals.size());
    }
    Page other;
    QVERIFY(other.run("Host_PasteInPlace"));
    QCOMPARE(other.problem, QString());
    compare(other, originals, 0);
    QVERIFY(other.bench.session().saveAs(path("again.kdx")) && other.bench.session().open(path("again.kdx")));
    compare(other, originals, 0);
  }

  void aSurroundStaysWithItsMap() {
    Page page;
    auto const first = page.add<MapFrameElement>(1, 15, 10, 25), second = page.add<MapFrameElement>(11, 15, 20, 25);
    auto const legend = in(surroundOf<SysCarto::Legend>(second->GetMap()), 1, 1, 5, 5);
    page.container().AddElement(legend);
    auto const pasted = [&page] {
      return ptr_cast<MapSurroundFrame>(page.container().GetElements().last())->GetMapSurround()->GetMap();
    };
    page.layout()->SetFocusMap(first->GetMap());
    page.container().SelectElement(legend);
    QVERIFY(page.run("Host_Copy"));
    page.container().SendToBack({second});  // its number changes
    QVERIFY(page.run("Host_Paste"));
    QCOMPARE(pasted(), second->GetMap());

    page.container().UnselectAllElements();
    page.container().SelectElement(legend);
    page.container().SelectElement(second);
    QVERIFY(page.run("Host_Duplicate"));
    QVERIFY(pasted() != second->GetMap());
    QCOMPARE(pasted(), ptr_cast<MapFrameElement>(page.container().GetElements().at(4))->GetMap());

    page.container().DeleteElement(second);
    QVERIFY(page.run("Host_Paste"));
    QCOMPARE(pasted(), first->GetMap());
  }

  void eachPasteLiesALittleFurtherAndInTheView() {
    Page page;
    auto const box = page.add<RectangleElement>(2, 20, 4, 21);
    page.container().SelectElement(box);
    QVERIFY(page.run("Host_Copy"));
    for (double offset : {0.5, 1.0, 1.5}) {
      QVERIFY(page.run("Host_Paste"));
      QCOMPARE(placeOf(*page.container().GetSelectedElements().first()), QRectF(2 + offset, 20 - offset, 2, 1));
    }
    page.layout()->SetExtent(make<SysGeometry::Envelope>(10.0, 1.0, 14.0, 4.0));
    QVERIFY(page.run("Host_Paste"));
    auto const view = rectOf(*page.layout()->GetExtent());
    QVERIFY(view.contains(placeOf(*page.container().GetSelectedElements().first())));
    QVERIFY(page.run("Host_PasteInPlace"));
    QCOMPARE(placeOf(*page.container().GetSelectedElements().first()), QRectF(2, 20, 2, 1));
    QVERIFY(page.run("Host_Cut"));
    QVERIFY(page.run("Host_PasteInPlace"));
    QCOMPARE(placeOf(*page.container().GetSelectedElements().first()), QRectF(2, 20, 2, 1));
  }

  void whatOtherProgramsCopyBecomesAnElement() {
    Page page;
    auto const pasted = [&page](QMimeData* data) {
      QApplication::clipboard()->setMimeData(data);
      if (!page.run("Host_Paste")) return _ptr_t<SysCarto::Element>();
      if (!page.problem.isEmpty()) qWarning() << page.problem;
      return page.container().GetSelectedElements().value(0);
    };
    auto const text = ptr_cast<TextElement>(pasted(withText("Two\r\nlines {")));
    QCOMPARE(text->text(), QString("Two\nlines {"));
    auto const linked = ptr_cast<PictureElement>(pasted(withUrl(path("logo.png"))));
    QCOMPARE(linked->path(), path("logo.png"));
    QCOMPARE(placeOf(*linked).size(), QSizeF(2.54, 1.27));
    auto* const image = new QMimeData;
    image->setImageData(canvas({30, 40}));
    auto const embedded = ptr_cast<PictureElement>(pasted(image));
    QVERIFY(embedded->path().isEmpty() && embedded->data().startsWith("data:image/png;base64,"));

    // Our own text comes back from a text editor.
    page.container().SelectElement(text);
    QVERIFY(page.run("Host_Copy"));
    QString const own = QApplication::clipboard()->text();
    int const before = page.container().GetElements().size();
    QVERIFY(pasted(withText(own)));
    QCOMPARE(page.container().GetElements().size(), before + 2);
  }

  void whatCantBePastedIsToldAndChangesNothing_data() {
    Rows<QMimeData*, QString> row;
    QByteArray const head = R"({"format":"plotvane-elements","version":1,"elements":[)";
    row("nothing", new QMimeData, "holds nothing");
    row("blanks", withText(" \n "), "blank");
    row("a book", withText(QString(20000, 'x')), "20000 characters");
    row("a file that is no picture", withUrl(path("start.kdx")), "neither PNG");
    row("a file that has gone", withUrl(path("gone.png")), "no such picture");
    row("a broken text", withOwn(head), "can't be read");
    row("a list", withOwn("[]"), "can't be read");
    row("a newer version", withOwn(R"({"format":"plotvane-elements","version":2})"), "newer version");
    row("an element of no kind", withOwn(head + R"({"type":"cube"}]})"), "elements[0].type");
    row("a frame with the document's map",
        withOwn(head + R"({"type":"dataFrame","map":0,"rectangle":[0,0,1,1]}],"otherMaps":1})"), "map");
    row("our text, broken in an editor", withText(head + "x"), "can't be read");
    row("100 MB", withOwn(QByteArray(100 * 1024 * 1024, ' ')), "101 MB");
  }
  void whatCantBePastedIsToldAndChangesNothing() {
    auto const [data, says] = fetched<QMimeData*, QString>();
    Page page;
    page.container().SelectElement(page.add<RectangleElement>(1, 1, 2, 2));
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    QApplication::clipboard()->setMimeData(data);
    for (char const* command : {"Host_Paste", "Host_PasteInPlace"}) {
      page.problem.clear();
      QVERIFY(page.run(command));
      QVERIFY2(page.problem.contains(says) || says.isEmpty(), qPrintable(page.problem));
      QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
      QVERIFY(!page.bench.session().document().GetOperationStack()->CanUndo());
    }
  }

  void aTextFieldKeepsItsClipboardKeys() {
    MainWindow window;
    window.show();
    WorkbenchPage page(window.bench());
    QVERIFY(QTest::qWaitForWindowActive(&window));
    page.container().SelectElement(page.add<RectangleElement>(1, 1, 2, 2));
    auto& scale = *window.findChild<QLineEdit*>("lineEdit_MapScale");
    scale.setEnabled(true);
    scale.setFocus();
    scale.setText("1:250");
    scale.selectAll();
    QTest::keyClick(&scale, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("1:250"));
    page.view().setFocus();
    window.actions().refresh();
    QTest::keyClick(&page.view(), Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QApplication::clipboard()->text().contains("plotvane-elements"));
  }

  void aGroupLiesWhereItsTopmostMemberLay() {
    Page page;
    auto const a = page.add<RectangleElement>(1, 1, 2, 2), between = page.add<RectangleElement>(3, 1, 4, 2),
               b = page.add<RectangleElement>(5, 1, 6, 2), top = page.add<RectangleElement>(7, 1, 8, 2);
    QByteArray const before = MapDocumentHost::text(page.bench.session().document());
    page.container().SelectElement(b);
    page.container().SelectElement(a);
    QVERIFY(page.run("Host_Group"));
    auto const elements = page.container().GetElements();
    QCOMPARE(elements.size(), 3);
    QVERIFY(elements[0] == between && elements[2] == top);
    auto const group = ptr_cast<GroupElement>(elements[1]);
    QCOMPARE(placeOf(*group->GetElements().first()), placeOf(*a));
    QCOMPARE(page.container().GetSelectedElements(), (QList<_ptr_t<SysCarto::Element>>{group}));

    QVERIFY(page.run("Host_Ungroup"));
    QStringList places;
    for (auto const& element : page.container().GetElements()) places << QString::number(placeOf(*element).left());
    QCOMPARE(places.join(' '), QString("3 1 5 7"));
    QCOMPARE(page.container().GetSelectedElementCount(), 2);
    auto const history = page.bench.session().document().GetOperationStack();
    QCOMPARE(history->GetUndoName(), QString("Ungroup the selected elements"));
    history->Undo();
    history->Undo();
    QVERIFY(MapDocumentHost::text(page.bench.session().document()) == before);
  }

  void aGroupHoldsNoFramesAndIsNotTooDeep() {
    Page page;
    page.add<RectangleElement>(1, 1, 2, 2);
    auto const frame = page.add<MapFrameElement>(3, 1, 4, 2);
    page.run("Host_SelectAll");
    QVERIFY(!page.run("Host_Group"));
    page.container().DeleteElement(frame);
    for (int depth = 1; depth <= 17; ++depth) {
      page.add<RectangleElement>(1, 1, 2, 2);
      page.run("Host_SelectAll");
      QVERIFY(page.problem.isEmpty());
      QVERIFY(page.run("Host_Group"));
      QCOMPARE(page.container().GetElements().size(), depth <= 16 ? 1 : 2);
    }
    QVERIFY2(page.problem.contains("16 deep"), qPrintable(page.problem));
    QVERIFY(page.bench.session().saveAs(path("deep.kdx")) && page.bench.session().open(path("deep.kdx")));
  }

  void whatIsHiddenIsNeitherDrawnNorHit() {
    Page page;
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
    set(page, QStringLiteral("#%1").arg(box->GetHandle()), {"hidden"}, true);
    set(page, QStringLiteral("#%1").arg(group->GetHandle()), {"members", "0", "hidden"}, true);
    QCOMPARE(isDrawn(4, 4), none);
    QCOMPARE(isDrawn(10, 4), none);
    QVERIFY(page.bench.session().saveAs(path("hidden.kdx")) && page.bench.session().open(path("hidden.kdx")));
    QCOMPARE(isDrawn(4, 4), none);
    page.run("Host_SelectAll");
    QCOMPARE(page.container().GetSelectedElementCount(), 1);  // the group
  }

  void whatIsLockedIsLeftAlone() {
    Page page;
    auto const box = page.add<RectangleElement>(2, 2, 6, 6);
    QString const name = QStringLiteral("#%1").arg(box->GetHandle());
    set(page, name, {"locked"}, true);
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
    Page page;
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
    Page page;
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
  struct Page : WorkbenchPage {
    Page() {
      QObject::connect(&bench.commands(), &CommandSet::failed, [this](QString const& text) { problem = text; });
    }
    QString problem;
  };

  static void set(WorkbenchPage& page, QString const& what, QStringList const& field, QJsonValue const& value) {
    auto const& document = page.bench.session().document();
    QStringList warnings;
    QCOMPARE(Editable::set(
                 document, Editable::named(document, what), field, [&](QJsonValue const&) { return value; }, warnings),
             QString());
  }

  // The elements from the given one on.
  static void compare(WorkbenchPage& page, QVector<QJsonObject> const& originals, int from) {
    auto const elements = page.container().GetElements();
    QCOMPARE(elements.size(), from + originals.size());
    for (int i = 0; i < originals.size(); ++i) {
      QJsonObject wanted = originals[i];
      wanted["locked"] = false;
      QCOMPARE(SysUtility::jsonLine(storedWithoutNumbers(page, *elements[from + i])), SysUtility::jsonLine(wanted));
    }
  }

  QString path(QString const& name) const { return folder_.filePath(name); }
  QTemporaryDir folder_;
};

QTEST_MAIN(DrawingCommandsTest)
#include "tst_drawing_commands.moc"
