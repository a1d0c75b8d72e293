#include "InsertDesktop.h"
#include "insert/AddGridCommand.h"
#include "insert/AddMapFrameElementTool.h"
#include "insert/AddNorthArrowCommand.h"
#include "insert/ConvertToGraphics.h"
#include "insert/SurroundInsertion.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/StyleLibrary.h"

#include <SysCarto/Graticule.h>
#include <SysUI/EnvironmentSetting.h>

using Place = _ptr_t<SysGeometry::Envelope> (SysCarto::PageLayout::*)() const;

using namespace Plugin;
using namespace SysCarto;

using SysUI::EnvironmentSetting;

namespace {

// A surround of another kind, which answers nothing, one or several elements.
class ForeignSurround final : public MapSurround {
public:
  ForeignSurround(int kind, int count) : MapSurround(kind), count_(count) {}
  QList<_ptr_t<Element>> GetElements() override {
    QList<_ptr_t<Element>> elements;
    for (int i = 0; i < count_; ++i) elements << make<MarkerElement>();
    return elements;
  }
  _ptr_t<MapSurround> Clone() const override { return make<ForeignSurround>(*this); }

private:
  int count_;
};

class OtherGrid final : public IMapGrid {
public:
  QString GetName() const override { return QStringLiteral("Other"); }
  void SetName(QString const&) override {}
  void Draw(QPainter&, _ptr_t<SysUI::TrackerCancel> const&, _ptr_t<SysDisplay::DisplayTransformation> const&,
            _ptr_t<MapFrameElement> const&) override {}
  _ptr_t<SysGeometry::Geometry> GetBoundary(_ptr_t<SysDisplay::DisplayTransformation> const&,
                                            MapFrameElement const&) const override {
    return make<SysGeometry::Envelope>();
  }
  _ptr_t<IMapGrid> Clone() const override { return make<OtherGrid>(*this); }
};

QStringList gridNames(MapFrameElement const& frame) {
  QStringList names;
  for (int i = 0; i < frame.GetMapGridCount(); ++i) names << frame.GetMapGrid(i)->GetName();
  return names;
}

}  // namespace

class InsertTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    hook_ = nullptr;  // it lets go of the history that the next one takes
    hook_ = make<InsertDesktop>(emptyLayout(20, 30));
    stepsAtRefresh_ = -1;
    hook_->surface.onRefresh = [this] { stepsAtRefresh_ = hook_->history.count(); };
    qputenv("PLOTVANE_SETTINGS", folder_.filePath("settings.ini").toUtf8());
    qputenv("PLOTVANE_STYLE_DIR", folder_.path().toUtf8());
    QFile::remove(folder_.filePath("settings.ini"));
    QFile::remove(folder_.filePath("ORV.style"));
  }

  // First of all tests that add data frames: the offset belongs to the process.
  void framesCascadeByTwoUpToThirty() {
    auto const command = hook_->bound<AddMapFrameElementTool>();
    for (int click = 1; click <= 17; ++click) {
      AddMapFrameElementTool other;  // another instance goes on where this one stopped
      other.OnCreate(hook_->pointer());
      (click % 2 ? *command : other).OnClick();
      int const offset = click == 16 ? 0 : click == 17 ? 2 : 2 * click;
      auto const shifted = layout()->GetDefaultDataFrameEnvelope();
      shifted->Offset(offset, offset);
      QCOMPARE(placeOf(*elements().last()), rectOf(*shifted));
    }
  }

  void aNewMapTakesTheFirstFreeName_data() {
    Rows<QStringList, QString> row;
    row("the first", QStringList(), "Map1");
    row("a gap", {"Map1", "Map3"}, "Map2");
    row("no leading zeros", {"Map01"}, "Map1");
    QStringList all;
    for (int i = 1; i <= 999; ++i) all << QString("Map%1").arg(i);
    row("none is free", all, "Map999");
  }

  void aNewMapTakesTheFirstFreeName() {
    auto const [present, name] = fetched<QStringList, QString>();
    for (QString const& one : present) container()->AddElement(frameNamed(one));
    click<AddMapFrameElementTool>();
    QCOMPARE(ptr_cast<MapFrameElement>(elements().last())->GetMap()->GetName(), name);
  }

  void aNewFrameHasNameAndFocusBeforeTheCompanionHearsOfIt() {
    auto const other = frameNamed("Map1");
    container()->AddElement(other);
    container()->SelectElement(other);
    hook_->contents->onCompanion = [this] {
      QCOMPARE(hook_->history.count(), 1);
      QCOMPARE(layout()->GetFocusMap()->GetName(), QString("Map2"));
    };
    click<AddMapFrameElementTool>();
    QCOMPARE(hook_->calls, QStringList({"companion", "refresh 255"}));
    QCOMPARE(hook_->history.undoText(), QString("Add Data Frame"));
    QCOMPARE(container()->GetSelectedElements(), QList<_ptr_t<Element>>{other});
    hook_->history.undo();
    QCOMPARE(elements(), QList<_ptr_t<Element>>{other});
  }

  void aSurroundIsAddedAtItsPlaceAndSelectedAlone_data() {
    Rows<MakeCommand, int, Place, QString> row;
    row("legend", made<AddLegendCommand>, 1, Place(&PageLayout::GetDefaultLegendEnvelope), "Add a legend");
    row("scale bar", made<AddScaleBarCommand>, 2, Place(&PageLayout::GetDefaultScaleBarEnvelope), "Add a scale bar");
    row("scale text", made<AddScaleTextCommand>, 3, Place(&PageLayout::GetDefaultScaleTextEnvelope),
        "Add a text of description of the scale");
    row("north arrow", made<AddNorthArrowCommand>, 6, Place(&PageLayout::GetDefaultNorthArrowEnvelope), "Edit");
  }

  void aSurroundIsAddedAtItsPlaceAndSelectedAlone() {
    auto const [create, kind, place, name] = fetched<MakeCommand, int, Place, QString>();
    auto const command = create();
    command->OnCreate(hook_->pointer());
    auto const first = frameNamed("First"), focus = frameNamed("Focus");
    container()->AddElements({first, focus});
    container()->SelectElement(first);
    layout()->SetFocusMap(focus->GetMap());
    Person person;
    if (kind == 6) person.accepts();
    command->OnClick();
    QCOMPARE(elements().size(), 3);
    auto const frame = ptr_cast<MapSurroundFrame>(elements().last());
    QVERIFY(frame && frame->GetMapSurround());
    QCOMPARE(frame->GetMapSurround()->kind, kind);
    QVERIFY(frame->GetMapSurround()->GetMap() == focus->GetMap());
    QCOMPARE(placeOf(*frame), rectOf(*(layout().get()->*place)()));
    QCOMPARE(container()->GetSelectedElements(), QList<_ptr_t<Element>>{frame});
    QCOMPARE(hook_->history.undoText(), name);
    QCOMPARE(hook_->calls, QStringList{"refresh 8"});
    QCOMPARE(stepsAtRefresh_, 1);  // drawn after the operation is closed
    hook_->history.undo();
    QCOMPARE(elements().size(), 2);
  }

  void aSurroundOfNoMapIsAddedUnbound() {
    click<AddLegendCommand>();
    click<AddScaleTextCommand>();
    QCOMPARE(elements().size(), 2);
    for (auto const& element : elements()) QVERIFY(!ptr_cast<MapSurroundFrame>(element)->GetMapSurround()->GetMap());
  }

  void withoutAViewNothingIsInserted() {
    hook_->view = nullptr;
    click<AddLegendCommand>();
    click<AddNorthArrowCommand>();
    click<AddGridCommand>();
    QCOMPARE(elements().size(), 0);
    QCOMPARE(hook_->history.count(), 0);
  }

  void theLibrariesAreSearchedInTheirOrder_data() {
    // size: of the arrow that is inserted; 0 for a new one's own
    Rows<QString, QString, double> row;
    row("one that exists among empty parts and missing files", "@/a.style,,@/b.style", "@/a.style,,@/b.style", 22.0);
    row("the first that has an arrow", "@/none.style,@/c.style,@/b.style", "@/none.style,@/c.style,@/b.style", 33.0);
    row("an empty setting is replaced", "", "@/ORV.style", 11.0);
    row("blanks are part of a name", " @/b.style", "@/ORV.style", 11.0);
  }

  void theLibrariesAreSearchedInTheirOrder() {
    auto [setting, after, size] = fetched<QString, QString, double>();
    writeLibrary("ORV.style", "NorthArrows", 11);
    writeLibrary("b.style", "NorthArrows", 22);
    writeLibrary("c.style", "NorthArrows", 33);
    writeLibrary("none.style", "Markers", 44);
    setPaths(setting);
    Person person;
    person.accepts();
    click<AddNorthArrowCommand>();
    QCOMPARE(paths(), after.replace('@', folder_.path()));
    auto const arrow = ptr_cast<MarkerNorthArrow>(ptr_cast<MapSurroundFrame>(elements().last())->GetMapSurround());
    QVERIFY(arrow);
    QCOMPARE(arrow->GetMarkerSymbol()->GetSize(), size);
  }

  void aCancelledChoiceInsertsNothingButKeepsTheRepair() {
    setPaths("/missing.style");
    Person person;
    click<AddNorthArrowCommand>();
    QVERIFY(person.problem().contains("North Arrow Properties"));
    QCOMPARE(paths(), folder_.filePath("ORV.style"));
    QCOMPARE(elements().size(), 0);
    QCOMPARE(hook_->history.count(), 0);
    QCOMPARE(hook_->calls, QStringList());
  }

  void withoutALibraryAnArrowKeepsItsOwnSymbol() {
    Person person;
    person.accepts();
    click<AddNorthArrowCommand>();
    QCOMPARE(elements().size(), 1);
    auto const surround = ptr_cast<MapSurroundFrame>(elements().last())->GetMapSurround();
    QVERIFY(ptr_cast<MarkerNorthArrow>(surround)->GetMarkerSymbol());
  }

  void aGridGoesIntoTheFirstDataFrame() {
    auto const first = frameNamed("First"), focus = frameNamed("Focus");
    container()->AddElements({make<MarkerElement>(), first, focus});
    layout()->SetFocusMap(focus->GetMap());
    first->AddMapGrid(make<OtherGrid>());  // gets no question
    click<AddGridCommand>();
    QCOMPARE(gridNames(*ptr_cast<MapFrameElement>(elements()[1])), QStringList({"Other", "Graticule"}));
    QCOMPARE(gridNames(*focus), QStringList());
    QCOMPARE(gridNames(*first), QStringList("Other"));
    QCOMPARE(hook_->history.undoText(), QString("Add a grid"));
    QCOMPARE(hook_->calls, QStringList{"refresh 255"});
    QCOMPARE(stepsAtRefresh_, 1);
    hook_->history.undo();
    QVERIFY(elements()[1] == first);
  }

  void aGridIsNamedAfterTheLastGraticule_data() {
    Rows<QStringList, QString> row;
    row("the first of the series", {"Graticule"}, "Graticule1");
    row("the last one counts", {"Graticule7", "Graticule1"}, "Graticule2");
    row("nine letters, whatever they are", {"MyGrid---12"}, "Graticule13");
    row("minus one begins again", {"Graticule-1"}, "Graticule");
    row("the highest number", {"Graticule2147483647"}, "Graticule2147483648");
    row("minus five goes up", {"Graticule-5"}, "Graticule-4");
  }

  void aGridIsNamedAfterTheLastGraticule() {
    auto const [present, name] = fetched<QStringList, QString>();
    addFrameWithGraticules(present);
    Person person;
    person.presses("Yes");
    click<AddGridCommand>();
    QCOMPARE(gridNames(*ptr_cast<MapFrameElement>(elements()[0])).last(), name);
  }

  void aNoChangesNothingAndDrawsNothing() {
    addFrameWithGraticules({"Graticule"});
    Person person;
    person.presses("No");
    click<AddGridCommand>();
    click<AddGridCommand>();  // nobody answers
    QVERIFY(person.problem().contains("\"Grid\" (\"Grid already exists, continue to add new grid?\")"));
    QCOMPARE(gridNames(*ptr_cast<MapFrameElement>(elements()[0])), QStringList{"Graticule"});
    QCOMPARE(hook_->history.count(), 0);
    QCOMPARE(hook_->calls, QStringList());
  }

  void withoutADataFrameTheViewIsDrawnAllTheSame() {
    click<AddGridCommand>();
    QCOMPARE(hook_->calls, QStringList{"refresh 255"});
    QCOMPARE(hook_->history.count(), 0);
  }

  void selectedSurroundsBecomeGraphics() {
    auto const text = make<TextElement>();
    auto const several = surround(1, 5), one = surround(9, 1), unknown = surround(4, 3);
    container()->AddElements({text, several, one, unknown});
    for (auto const& element : elements()) container()->SelectElement(element);
    click<ConvertToGraphics>();
    auto const now = elements();
    QCOMPARE(now.size(), 4);
    QVERIFY(now[0] == text && now[1] == unknown);
    QCOMPARE(ptr_cast<GroupElement>(now[2])->GetElements().size(), 5);
    QCOMPARE(now[3]->GetType(), 1);
    QCOMPARE(container()->GetSelectedElements(), QList<_ptr_t<Element>>({text, unknown, now[2], now[3]}));
    QCOMPARE(hook_->history.undoText(), QString("ConvertToGraphics"));
    QCOMPARE(hook_->calls, QStringList({"clear", "refresh 255"}));
    QCOMPARE(stepsAtRefresh_, 1);
    hook_->history.undo();
    QCOMPARE(elements(), QList<_ptr_t<Element>>({text, several, one, unknown}));
  }

  void anEmptyAnswerEndsTheConversion() {
    auto const before = surround(1, 2), empty = surround(2, 0), after = surround(3, 2);
    container()->AddElements({before, empty, after});
    for (auto const& element : elements()) container()->SelectElement(element);
    click<ConvertToGraphics>();
    QCOMPARE(elements().size(), 3);
    QVERIFY(elements()[0] == empty && elements()[1] == after);
    QCOMPARE(hook_->calls, QStringList({"clear", "refresh 255"}));
    container()->AddElement(make<MarkerElement>());
    QCOMPARE(hook_->history.count(), 1);  // the operation is closed
  }

  void conversionIsForConvertibleKinds() {
    auto const command = hook_->bound<ConvertToGraphics>();
    QVERIFY(!command->IsEnable());
    command->OnClick();
    QCOMPARE(hook_->calls, QStringList());
    container()->AddElement(make<TextElement>());
    for (int kind = 0; kind <= 11; ++kind) container()->AddElement(surround(kind, 1));
    QVector<int> convertible;
    for (int i = 0; i < elements().size(); ++i) {
      container()->UnselectAllElements();
      container()->SelectElement(elements()[i]);
      if (command->IsEnable()) convertible << i - 1;
    }
    QCOMPARE(convertible, QVector<int>({1, 2, 3, 6, 7, 8, 9}));
  }

private:
  _ptr_t<PageLayout> layout() const { return hook_->layout; }
  IElementContainer* container() const { return layout()->GetGraphicsContainer(); }
  QList<_ptr_t<Element>> elements() const { return container()->GetElements(); }

  template <class Command>
  void click() {
    hook_->bound<Command>()->OnClick();
  }

  static _ptr_t<MapSurroundFrame> surround(int kind, int elements) {
    auto const frame = make<MapSurroundFrame>();
    frame->SetMapSurround(make<ForeignSurround>(kind, elements));
    return frame;
  }

  void addFrameWithGraticules(QStringList const& names) {
    auto const frame = frameNamed("Map1");
    for (QString const& name : names) {
      auto const grid = make<Graticule>();
      grid->SetName(name);
      frame->AddMapGrid(grid);
    }
    container()->AddElement(frame);
  }

  void writeLibrary(QString const& name, QString const& category, double size) {
    SysDisplay::StyleLibrary library;
    auto const marker = make<SysDisplay::SimpleMarkerSymbol>();
    marker->SetSize(size);
    library.categories << SysDisplay::StyleCategory{category, {{QStringLiteral("Arrow"), marker}}};
    QCOMPARE(SysDisplay::writeStyleLibrary(folder_.filePath(name), library), QString());
  }

  void setPaths(QString value) {
    EnvironmentSetting::Instance()->SetPropertyValue("PATH", "StyleFilePaths", value.replace('@', folder_.path()));
  }
  static QString paths() { return EnvironmentSetting::Instance()->GetPropertyValue("PATH", "StyleFilePaths"); }

  QTemporaryDir folder_;
  _ptr_t<InsertDesktop> hook_;
  int stepsAtRefresh_ = -1;
};

QTEST_MAIN(InsertTest)
#include "InsertTest.moc"
