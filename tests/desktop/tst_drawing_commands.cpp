#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/DrawingPage.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/layout/MapOverview.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/MainWindow.h"

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

/// The clipboard, and groups.
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
      DrawingPage page;
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
    DrawingPage other;
    QVERIFY(other.run("Host_PasteInPlace"));
    QCOMPARE(other.problem, QString());
    compare(other, originals, 0);
    QVERIFY(other.bench.session().saveAs(path("again.kdx")) && other.bench.session().open(path("again.kdx")));
    compare(other, originals, 0);
  }

  void aSurroundStaysWithItsMap() {
    DrawingPage page;
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

    auto const frame = page.add<MapFrameElement>(1, 1, 5, 5);
    auto const overview = make<SysCarto::MapOverview>();
    overview->setMap(first->GetMap());
    frame->AddMapGrid(overview);
    page.container().UnselectAllElements();
    page.container().SelectElement(frame);
    QVERIFY(page.run("Host_Copy") && page.run("Host_Paste"));
    auto const copy = ptr_cast<MapFrameElement>(page.container().GetElements().last());
    QVERIFY(copy->GetMap() != frame->GetMap());
    QCOMPARE(ptr_cast<SysCarto::MapOverview>(copy->GetMapGrid(0))->map(), first->GetMap());
  }

  void eachPasteLiesALittleFurtherAndInTheView() {
    DrawingPage page;
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
    DrawingPage page;
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
    DrawingPage page;
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
    DrawingPage page;
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
    DrawingPage page;
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

  // As page settings do, that scale the elements along.
  void anOpenGroupFollowsWhatIsChangedInPlace() {
    DrawingPage page;
    auto const group = make<SysCarto::GroupElement>();
    group->AddElement(madeIn<SysCarto::RectangleElement>(2, 2, 4, 4));
    page.container().AddElement(group);
    SysCarto::PageLayoutHost::openGroup(*page.layout(), group->GetHandle());
    group->Move(10, 0);
    page.bench.views().redraw();
    auto& members = SysCarto::PageLayoutHost::workplace(*page.layout());
    members.SelectElement(members.GetElements().first());
    page.key(Qt::Key_Up);
    QRectF const place = page.place(*group);
    QVERIFY2(isAbout(place, QRectF(12, 2.1, 2, 2), 1e-9),
             qPrintable(QString("%1 %2").arg(place.left()).arg(place.top())));
  }

  void aDoubleClickOpensAGroup() {
    DrawingPage page;
    auto const group = make<GroupElement>();
    group->AddElement(madeIn<RectangleElement>(2, 2, 6, 6));
    auto const inner = make<GroupElement>();
    for (double x : {8, 14}) inner->AddElement(madeIn<RectangleElement>(x, 2, x + 4, 6));
    group->AddElement(inner);
    page.container().AddElement(group);
    auto& document = page.bench.session().document();
    QByteArray const before = MapDocumentHost::text(document);
    auto const lefts = [&] {
      QStringList all;
      std::function<void(SysCarto::Element const&)> const add = [&](SysCarto::Element const& element) {
        auto const* const whole = dynamic_cast<GroupElement const*>(&element);
        if (!whole) all << QString::number(qRound(placeOf(element).left()));
        for (auto const& member : whole ? whole->GetElements() : QList<_ptr_t<SysCarto::Element>>()) add(*member);
      };
      for (auto const& element : page.container().GetElements()) add(*element);
      return all.join(' ');
    };
    auto const doubleClick = [&page](double x, double y) {
      page.click(page.pixel(x, y));
      page.mouse(QEvent::MouseButtonDblClick, page.pixel(x, y));
      page.mouse(QEvent::MouseButtonRelease, page.pixel(x, y));
    };
    auto const history = document.GetOperationStack();

    doubleClick(4, 4);
    QVERIFY(!history->CanUndo() && MapDocumentHost::text(document) == before);
    page.drag(page.pixel(4, 4), page.pixel(5, 5));
    QCOMPARE(lefts(), QString("3 8 14"));
    QCOMPARE(history->GetUndoName(), QString("Move the selected elements"));
    setField(page, "selection", {"name"}, "Roof");
    QCOMPARE(ptr_cast<GroupElement>(page.container().GetElements().first())->GetElements().first()->GetName(),
             QString("Roof"));
    history->Undo();
    history->Undo();
    QVERIFY(!history->CanUndo() && MapDocumentHost::text(document) == before);
    QCOMPARE(Editable::named(document, "selection").size(), 1);
    page.drag(page.pixel(4, 4), page.pixel(6, 4));  // the group is open still
    doubleClick(10, 4);                             // and the one in it is opened, too
    page.drag(page.pixel(10, 4), page.pixel(9, 4));
    QVERIFY(page.run("Host_Duplicate"));
    QCOMPARE(lefts(), QString("4 7 14 8"));
    QByteArray const after = MapDocumentHost::text(document);

    page.key(Qt::Key_Escape);
    page.key(Qt::Key_Escape);
    QCOMPARE(page.container().GetSelectedElements(), page.container().GetElements());
    for (int i = 0; i < 3; ++i) history->Undo();
    QVERIFY(MapDocumentHost::text(document) == before);
    for (int i = 0; i < 3; ++i) history->Redo();
    QVERIFY(MapDocumentHost::text(document) == after);

    doubleClick(6, 4);
    page.container().AddElement(madeIn<MapFrameElement>(2, 12, 6, 18));
    page.click(page.pixel(4, 15));  // beside the group
    QCOMPARE(page.container().GetSelectedElements().value(0), page.container().GetElements().last());
    page.run("Host_Copy");
    doubleClick(6, 4);
    QVERIFY(page.run("Host_Paste"));
    QVERIFY2(page.problem.contains("can't lie in a group"), qPrintable(page.problem));
    page.run("Host_SelectAll");
    QVERIFY(page.run("Host_Delete"));
    QCOMPARE(page.container().GetElements().size(), 1);
    page.run("Host_SelectAll");
    QCOMPARE(page.container().GetSelectedElements(), page.container().GetElements());
    history->Undo();
    QCOMPARE(page.container().GetElements().size(), 2);
  }

private:
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
