#include "Pictures.h"
#include "Elements.h"

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/ElementHost.h"

using namespace SysCarto;

namespace {

using ElementPtr = _ptr_t<Element>;
using Restack = void (IElementContainer::*)(QList<ElementPtr> const&);

// Elements are named by letters here.
ElementPtr named(QChar name) {
  auto const element = make<RectangleElement>();
  element->SetName(name);
  return element;
}

void fill(IElementContainer& container, QString const& names) {
  for (QChar name : names) container.AddElement(named(name));
}

QString namesOf(QList<ElementPtr> const& elements) {
  QString names;
  for (auto const& element : elements) names += element->GetName();
  return names;
}

QList<ElementPtr> pick(IElementContainer const& container, QString const& names) {
  QList<ElementPtr> picked;
  for (QChar name : names)
    for (auto const& element : container.GetElements())
      if (element->GetName() == name) picked << element;
  return picked;
}

}  // namespace

class ContainerTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    history_.clear();
    EditorHost::setHistory(&history_);
  }
  void cleanup() { EditorHost::setHistory(nullptr); }

  void restacksAndComesBack_data() {
    Rows<QString, QString, Restack, QString> row;
    Restack const forward = &IElementContainer::BringForward, front = &IElementContainer::BringToFront;
    Restack const backward = &IElementContainer::SendBackward, back = &IElementContainer::SendToBack;
    row("one goes up by one", "ABC", "A", forward, "BAC");
    row("a run goes up as a block", "ABCD", "BC", forward, "ADBC");
    row("each of two runs goes up by one", "ABCDE", "AC", forward, "BADCE");
    row("a run at the end stays, the other closes up", "ABCDE", "BDE", forward, "ACBDE");
    row("a run goes down as a block", "ABCD", "CB", backward, "BCAD");
    row("what lies lowest stays, the other closes up", "ABCD", "AC", backward, "ACBD");
    row("the front keeps the order of drawing, not of the list", "ABCD", "CA", front, "BDAC");
    row("the back keeps it, too", "ABCD", "DB", back, "BDAC");
    row("all of them stay as they are", "ABC", "ABC", front, "ABC");
    row("an element at the end stays", "ABC", "C", forward, "ABC");
  }
  void restacksAndComesBack() {
    auto const [names, chosen, restack, expected] = fetched<QString, QString, Restack, QString>();
    ElementContainer container;
    fill(container, names);
    Editor::Instance()->StartOperation("Restack");
    (container.*restack)(pick(container, chosen));
    Editor::Instance()->StopOperation();
    QCOMPARE(namesOf(container.GetElements()), expected);
    QCOMPARE(history_.count(), 1);  // also where nothing moved
    history_.undo();
    QCOMPARE(namesOf(container.GetElements()), names);
    history_.redo();
    QCOMPARE(namesOf(container.GetElements()), expected);
  }

  void ignoresWhatItDoesNotHold() {
    ElementContainer container, other;
    fill(container, "AB");
    fill(other, "XYZ");
    ElementPtr const foreign = other.GetElements().at(2);  // its handle is unknown here
    Editor::Instance()->StartOperation("Nothing");
    container.BringToFront({});
    container.BringToFront({foreign});
    container.SelectElement(foreign);
    container.DeleteElement(foreign);
    container.ReplaceElement(99, named('C'));
    container.AddElement(container.GetElements().at(0));
    container.AddElement(foreign);
    container.DeleteElement(nullptr);
    Editor::Instance()->StopOperation();
    QCOMPARE(namesOf(container.GetElements()), QString("AB"));
    QCOMPARE(container.GetSelectedElementCount(), 0);
    QCOMPARE(history_.count(), 0);
  }

  void givesEachElementAHandleOfItsOwn() {
    ElementContainer container;
    fill(container, "ABC");
    ElementPtr const last = container.GetElements().at(2);
    container.AddElement(last->Clone());  // carries a handle that is taken
    container.DeleteElement(last);
    container.AddElement(named('D'));
    auto const far = named('E'), endless = named('F');
    ElementHost::setHandle(*far, 500);
    ElementHost::setHandle(*endless, std::numeric_limits<int>::max());
    container.AddElements({far, endless, named('G')});
    QList<int> handles;
    for (auto const& element : container.GetElements()) handles << element->GetHandle();
    QCOMPARE(handles, (QList<int>{1, 2, 4, 5, 500, 501, 502}));
  }

  void replacementKeepsThePlaceInOrderAndSelection() {
    ElementContainer container;
    fill(container, "ABC");
    auto const before = container.GetElements();
    for (auto const& element : {before[2], before[1], before[0]}) container.SelectElement(element);
    auto const substitute = named('X');
    container.ReplaceElement(before[1]->GetHandle(), substitute);
    QCOMPARE(namesOf(container.GetElements()), QString("AXC"));
    QCOMPARE(namesOf(container.GetSelectedElements()), QString("CXA"));
    container.BringToFront({before[1]});  // a list from before still names the element
    QCOMPARE(namesOf(container.GetElements()), QString("ACX"));
    container.UnselectElement(before[1]);
    QCOMPARE(namesOf(container.GetSelectedElements()), QString("CA"));
  }

  void oneOperationIsOneStepAndBringsTheSameObjectsBack() {
    ElementContainer container, other;
    fill(container, "ABCD");
    fill(other, "M");
    auto const before = container.GetElements();
    for (auto const& element : before) container.SelectElement(element);
    Editor::Instance()->StartOperation("Mixed");
    container.ReplaceElement(before[1]->GetHandle(), before[1]->Clone());
    container.DeleteElement(before[2]);
    container.AddElement(named('E'));
    container.SelectElement(container.GetElements().last());
    container.SendToBack({before[3]});
    other.AddElement(named('N'));
    Editor::Instance()->StopOperation();
    auto const after = container.GetElements();
    QCOMPARE(namesOf(after), QString("DABE"));
    QCOMPARE(history_.count(), 1);
    QCOMPARE(history_.undoText(), QString("Mixed"));

    history_.undo();
    QVERIFY(container.GetElements() == before);
    QCOMPARE(namesOf(other.GetElements()), QString("M"));
    QCOMPARE(namesOf(container.GetSelectedElements()), QString("ABD"));  // E has vanished, C was deleted
    QVERIFY(ElementHost::isPlaced(*before[1]) && !ElementHost::isPlaced(*after[3]));
    history_.redo();
    QVERIFY(container.GetElements() == after);
    QCOMPARE(namesOf(other.GetElements()), QString("MN"));
    QVERIFY(!ElementHost::isPlaced(*before[1]) && ElementHost::isPlaced(*after[3]));
  }

  void recordsOnlyOperationsThatHoldAChange() {
    ElementContainer container;
    fill(container, "A");  // outside an operation
    Editor::Instance()->StartOperation("Nothing");
    Editor::Instance()->StopOperation();
    Editor::Instance()->StopOperation();
    QCOMPARE(history_.count(), 0);
    Editor::Instance()->StartOperation({});
    container.AddElement(named('B'));
    Editor::Instance()->StartOperation("Second");  // the first was left open
    container.AddElement(named('C'));
    Editor::Instance()->StopOperation();
    QCOMPARE(history_.count(), 2);
    QCOMPARE(history_.text(0), QString("Edit"));
    history_.undo();
    QCOMPARE(namesOf(container.GetElements()), QString("AB"));
  }

  void historyOutlivesTheContainer() {
    auto container = std::make_unique<ElementContainer>();
    Editor::Instance()->StartOperation("Add");
    auto const element = named('A');
    container->AddElement(element);
    Editor::Instance()->StopOperation();
    container.reset();
    history_.undo();
    history_.redo();
    QVERIFY(!ElementHost::isPlaced(*element));
  }

  void lockBelongsToTheHandle() {
    ElementContainer container;
    auto const frame = make<MapFrameElement>();
    container.AddElement(frame);
    Editor::Instance()->StartOperation("Move");
    auto const moved = ptr_cast<MapFrameElement>(frame->Clone());
    container.ReplaceElement(frame->GetHandle(), moved);
    Editor::Instance()->StopOperation();
    moved->SetLocked(true);
    history_.undo();
    QVERIFY(frame->IsLocked());
    auto const second = ptr_cast<MapFrameElement>(frame->Clone());
    container.AddElement(second);
    second->SetLocked(false);
    QVERIFY(frame->IsLocked());
  }

  void drawsOnlyWhatIsSeenAndStopsWhenCancelled() {
    struct Counted final : SymbolElement<SysGeometry::Envelope, SysDisplay::FillSymbol> {
      explicit Counted(double x, int& draws)
          : SymbolElement(make<SysGeometry::Envelope>(x, 0.0, x + 1, 1.0), nullptr), draws_(draws) {}
      int GetType() const override { return 4; }
      ElementPtr Clone() const override { return {}; }
      void Draw(QPainter&, _ptr_t<SysDisplay::DisplayTransformation> const&,
                _ptr_t<SysUI::TrackerCancel> const& cancel) override {
        ++draws_;
        if (cancel) cancel->Cancel();
      }
      int& draws_;
    };
    int draws = 0;
    ElementContainer container;
    for (double x : {0.0, 5.0, 100.0, -50.0}) container.AddElement(_ptr_t<Element>(new Counted(x, draws)));
    auto const transformation = Sheet{SysGeometry::Envelope(0, 0, 10, 10), QSize(100, 100)}.transformation();
    QImage image = canvas({100, 100});
    QPainter painter(&image);
    container.Draw(painter, transformation, 2, nullptr);
    QCOMPARE(draws, 0);
    container.Draw(painter, transformation, 1, nullptr);
    QCOMPARE(draws, 2);
    container.Draw(painter, transformation, 1, make<SysUI::TrackerCancel>());
    QCOMPARE(draws, 3);
  }

private:
  QUndoStack history_;
};

QTEST_MAIN(ContainerTest)
#include "ContainerTest.moc"
