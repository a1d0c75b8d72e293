#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/MapSteps.h"
#include "host/desktop/drawing/TurnGesture.h"
#include "host/desktop/layers/LayerActions.h"

#include <random>

using SysCarto::MapDocumentHost;
using SysCarto::MapFrameElement;
using SysCarto::MapHost;

namespace {

constexpr int sequences = 300;
constexpr int stepsOfASequence = 12;

// All that changes elements; which of them is enabled depends on the selection of the moment.
QStringList const commands =
    QString(
        "Plotvane_LeftAlignment Plotvane_RightAlignment Plotvane_TopAlignment Plotvane_BottomAlignment "
        "Plotvane_CenterAlignment Plotvane_VerticalCenterAlignment Plotvane_AlignToMargins "
        "Plotvane_BringToFrontElements Plotvane_BringForwardElements Plotvane_SendToBackElements "
        "Plotvane_SendBackwardElements Plotvane_DistributeHorizontallyElements "
        "Plotvane_DistributeVerticallyElements Plotvane_MakeSameSizeElements "
        "Plotvane_MakeSameWidthElements Plotvane_MakeSameHeightElements Plotvane_FittoMarginsElements "
        "Plotvane_FitWidthtoMarginsElements Plotvane_FitHeighttoMarginsElements Plotvane_LockDataFrame "
        "Plotvane_UnlockDataFrame Host_SelectAll Host_Unselect Host_Delete Host_Cut Host_Copy Host_Paste "
        "Host_PasteInPlace "
        "Host_Duplicate Host_Group Host_Ungroup Host_Undo Host_Redo")
        .split(' ');

}  // namespace

class ExactUndoTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    WorkbenchPage page;
    fill(page);
    QVERIFY(page.bench.session().saveAs(folder_.filePath("start.kdx")));
  }

  void undoingEverythingGivesTheStartAndRedoingTheEnd() {
    int steps = 0, fresh = 0;
    for (int i = 0; i < sequences; ++i) {
      WorkbenchPage page;
      QCOMPARE(page.bench.plugin().state(), PluginLibrary::State::Loaded);
      auto& document = page.bench.session().document();
      QVERIFY(page.bench.session().open(folder_.filePath("start.kdx")));
      QByteArray const saved = MapDocumentHost::text(document);
      QByteArray start = saved;
      Apart apartAtStart = apart(page);
      for (int step = 0; step < stepsOfASequence; ++step) {
        int const known = MapDocumentHost::history(document)->count();
        doSomething(page);
        if (MapDocumentHost::history(document)->count() > 0) continue;
        start = MapDocumentHost::text(document);  // what the history can take back begins here
        apartAtStart = apart(page);
        fresh += known > 0;
      }
      auto const history = document.GetOperationStack();
      while (history->CanRedo()) history->Redo();
      QByteArray const end = MapDocumentHost::text(document);
      Apart const apartAtEnd = apart(page);

      for (; history->CanUndo(); ++steps) history->Undo();
      if (!document.isModified()) QVERIFY(MapDocumentHost::text(document) == saved);
      QCOMPARE(apart(page).alignsToMargins, apartAtEnd.alignsToMargins);
      put(page, apartAtStart);
      QVERIFY2(MapDocumentHost::text(document) == start, qPrintable(QString("sequence %1").arg(i)));

      while (history->CanRedo()) history->Redo();
      put(page, apartAtEnd);
      QVERIFY2(MapDocumentHost::text(document) == end, qPrintable(QString("sequence %1").arg(i)));
    }
    QVERIFY2(steps > sequences * 2, qPrintable(QString::number(steps)));  // or the steps did nothing
    QVERIFY2(fresh > sequences / 10, qPrintable(QString::number(fresh)));
  }

  void eachGestureIsOneNamedStep() {
    WorkbenchPage page;
    auto const box = page.add<SysCarto::RectangleElement>(4.0, 4.0, 8.0, 7.0);
    auto const history = page.bench.session().document().GetOperationStack();
    auto const lastStep = [&] { return history->GetUndoName(); };

    page.drag(page.pixel(6, 5), page.pixel(7, 6));
    QCOMPARE(lastStep(), QString("Move the selected elements"));
    QVERIFY(page.place(*box).left() > 4.9);
    page.drag(page.pixel(9, 8), page.pixel(10, 8));
    QCOMPARE(lastStep(), QString("Resize the selected elements"));
    page.key(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(lastStep(), QString("Nudge the selected elements"));
    page.key(Qt::Key_Delete);  // a shortcut of the window, nothing in the view itself
    QVERIFY(page.run("Host_Delete"));
    QCOMPARE(lastStep(), QString("Delete the selected elements"));
    QVERIFY(!page.now(*box));

    auto const map = page.add<MapFrameElement>(1.0, 9.0, 9.0, 17.0)->GetMap();
    map->SetExtent(make<SysGeometry::Envelope>(0.1, 0.2, 1000.0 / 3, 5.0));
    auto const composed = MapHost::storedBounds(*map);
    QVERIFY(page.run("Host_MapView"));
    page.shown().grab();
    for (int turn : {120, 120, -120}) page.wheel({0, turn});
    QCOMPARE(lastStep(), QString("Zoom the map"));
    page.drag({400, 300}, {420, 330});
    QCOMPARE(lastStep(), QString("Move the map in its frame"));
    history->Undo();
    auto const zoomed = MapHost::storedBounds(*map);
    page.wheel({0, 120});  // a step of its own after one that was gone back to
    history->Undo();
    QVERIFY(SysCarto::haveSameCorners(MapHost::storedBounds(*map), zoomed));
    history->Undo();
    QCOMPARE(lastStep(), QString("Delete the selected elements"));
    QVERIFY(SysCarto::haveSameCorners(MapHost::storedBounds(*map), composed));

    for (int i = 0; i < 4; ++i) history->Undo();
    QVERIFY(!history->CanUndo());
    QCOMPARE(page.place(*box), QRectF(4, 4, 4, 3));
  }

private:
  // What the history leaves alone.
  struct Apart {
    bool alignsToMargins;
    int paper;
    short orientation;
    _ptr_t<SysCarto::Map> focus;
    QMap<int, bool> locks;
  };

  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  void fill(WorkbenchPage& page) {
    auto const map = page.add<MapFrameElement>(1.13, 14.7, 11.9, 27.03)->GetMap();
    map->SetExtent(make<SysGeometry::Envelope>(1.0 / 3, 0.1, 7.7, 5.2));
    for (QString const name : {"A", "B", "C"}) {
      map->AddLayer(
          opened({written(folder_, "a.geojson", geoJson(R"({"type":"Point","coordinates":[1,2]})")), {}, {}, {}}, {},
                 make<SysDisplay::SimpleFillSymbol>())
              .layer);
      map->GetLayers().last()->SetName(name);
    }
    page.add<MapFrameElement>(12.4, 15.1, 19.77, 22.6);
    page.add<SysCarto::RectangleElement>(2.1, 2.3, 6.6, 5.9);
    page.add<SysCarto::RectangleElement>(8.0 / 3, 7.0, 9.1, 11.0 / 3);
    page.add<SysCarto::EllipseElement>(12.2, 3.7, 17.3, 8.1);
    page.add<SysCarto::MarkerElement>(15.0, 11.0, 15.0, 11.0);
    auto const text = page.add<SysCarto::TextElement>(5.0, 9.5, 5.0, 9.5);
    text->setText("A title");
    auto const group = make<SysCarto::GroupElement>();
    for (double x : {10.0, 11.1}) {
      auto const member = madeIn<SysCarto::RectangleElement>(x, 9.0, x + 0.7, 10.3);
      group->AddElement(member);
    }
    page.container().AddElement(group);
  }

  void doSomething(WorkbenchPage& page) {
    switch (upTo(11)) {
      case 10:
      case 11: return arrangeLayers(page);
      case 9: return draw(page);
      case 0:
      case 1: return useTheMouse(page);
      case 4: return changeTheMap(page);
      case 5: return showOrHideLayers(page);
      case 6:
        if (upTo(2) == 0) return upTo(3) == 0 ? takeATemplate(page) : setThePageUp(page);
        break;
      case 2:
        return page.key(static_cast<Qt::Key>(Qt::Key_Left + upTo(3)), upTo(1) ? Qt::ShiftModifier : Qt::NoModifier);
      case 3: page.run("Host_SelectAll"); break;
      default: break;
    }
    page.run(commands.at(upTo(commands.size() - 1)));
  }

  void useTheMouse(WorkbenchPage& page) {
    QPoint const from(upTo(799), upTo(599)), to(upTo(799), upTo(599));
    auto const shift = upTo(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
    auto const elements = page.container().GetElements();
    if (upTo(3) == 0 || elements.isEmpty()) return page.drag(from, to, shift);
    auto const element = elements.at(upTo(elements.size() - 1));
    QRectF const place = page.place(*element);
    QPoint const grip = upTo(1) == 0 ? page.pixel(place.center().x(), place.center().y())
                                     : page.pixel(place.right(), place.bottom());  // the upper right handle
    if (element->GetType() == SysCarto::ElementType::Group && upTo(1) == 0) return doubleClick(page, grip);
    if (upTo(1) == 0)
      page.click(grip, shift);
    else
      page.drag(grip, grip + QPoint(upTo(80) - 40, upTo(80) - 40), shift);
  }

  static void doubleClick(WorkbenchPage& page, QPoint const& at) {
    page.click(at);
    page.mouse(QEvent::MouseButtonDblClick, at);
    page.mouse(QEvent::MouseButtonRelease, at);
  }

  // A new element, vertices, a turn, or a guide.
  void draw(WorkbenchPage& page) {
    QPoint const from(upTo(799), upTo(599)), to(upTo(799), upTo(599));
    switch (upTo(3)) {
      case 0:
        page.run("Host_InsertArrow");
        page.drag(from, to);
        page.run("Host_Edit");
        for (int i = upTo(2); i >= 0; --i) page.key(Qt::Key_Tab);
        for (Qt::Key const key : {Qt::Key_Insert, Qt::Key_Right, Qt::Key_Delete}) page.key(key);
        return page.key(Qt::Key_Escape);
      case 1:
        page.run("Host_InsertEllipse");
        return upTo(1) ? page.drag(from, to, Qt::ShiftModifier) : page.key(Qt::Key_Return);
      case 2: turnSelection(*page.layout(), upTo(359) + 1.0 / 3); return;
      default: break;
    }
    QStringList warnings;
    auto const& document = page.bench.session().document();
    SysCarto::Editable::set(
        document, {SysCarto::Editable::page(document)}, {"verticalGuides"},
        [&](QJsonValue const& value) {
          QJsonArray guides = value.toArray();
          guides.append(upTo(210) / 10.0);
          return QJsonValue(guides);
        },
        warnings);
  }

  void changeTheMap(WorkbenchPage& page) {
    if (upTo(2) == 0) {
      auto const map = page.layout()->GetFocusMap();
      if (map) SysCarto::MapSteps::setScale(*map, 1000 + upTo(9999));
      return;
    }
    page.run("Host_MapView");
    page.shown().grab();
    if (upTo(1) == 0)
      for (int turns = upTo(2); turns >= 0; --turns) page.wheel({0, 240 * upTo(1) - 120});
    else
      page.drag({400, 300}, {upTo(799), upTo(599)});
    page.run("Host_LayoutView");
  }

  static void showOrHideLayers(WorkbenchPage& page) {
    QList<_ptr_t<SysCarto::Map>> maps;
    page.layout()->GetMaps(maps);
    for (auto const& map : qAsConst(maps))
      for (auto const& layer : map->GetLayers()) SysCarto::MapSteps::setVisible(*layer, !layer->IsVisible());
  }

  void arrangeLayers(WorkbenchPage& page) {
    auto const& document = page.bench.session().document();
    QList<_ptr_t<SysCarto::Map>> maps;
    document.GetMaps(maps);
    LayerActions::Rows all;
    for (auto const& map : qAsConst(maps)) {
      all.append({map});
      for (auto const& layer : map->GetLayers()) all.append({map, nullptr, layer});
      for (auto const& group : groupsOf(*map)) all.append({map, group});
    }
    if (all.isEmpty()) return;
    auto const any = [&] { return all[upTo(all.size() - 1)]; };
    LayerActions::Rows rows;
    for (int i = upTo(2); i >= 0; --i)
      if (auto const row = any(); row.layer || row.group) rows << row;
    if (rows.isEmpty()) return;
    switch (upTo(12)) {
      case 0: LayerActions::move(rows, LayerActions::inside(any())); break;
      case 1: LayerActions::copy(rows, LayerActions::above(any())); break;
      case 2: LayerActions::remove(rows); break;
      case 3: LayerActions::duplicate(rows); break;
      case 4: LayerActions::setOrder(rows.first(), 1 + upTo(3)); break;
      case 5: LayerActions::raise(rows); break;
      case 6: LayerActions::lower(rows); break;
      case 7: LayerActions::enterGroup(rows); break;
      case 8: LayerActions::leaveGroup(rows); break;
      case 9: LayerActions::toggleVisible(rows); break;
      case 10: LayerActions::rename(document, any(), QString::number(upTo(99))); break;
      case 11: LayerActions::ungroup(rows); break;
      default: LayerActions::group(rows); break;
    }
  }

  void setThePageUp(WorkbenchPage& page) {
    Person person;
    person.sets("comboBox_PaperType", upTo(1) ? "A4" : "A3");
    person.sets("radioButton_H", upTo(1) ? "on" : "off");
    person.sets("checkBox_ScaleMapElements", upTo(1) ? "on" : "off");
    page.run("Plotvane_PageSetting");
  }

  void takeATemplate(WorkbenchPage& page) {
    Person person;
    person.sets("file", QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/templates/a4-report.kdx"));
    page.run("Plotvane_ChangePageLayout");
  }

  static Apart apart(WorkbenchPage& page) {
    auto const* const sheet = page.layout()->GetPage();
    Apart values{page.layout()->GetAlignToMargins(),
                 sheet->GetFormID(),
                 sheet->GetOrientation(),
                 page.layout()->GetFocusMap(),
                 {}};
    for (auto const& element : page.container().GetElements())
      if (auto const frame = ptr_cast<MapFrameElement>(element)) values.locks[frame->GetHandle()] = frame->IsLocked();
    return values;
  }

  static void put(WorkbenchPage& page, Apart const& values) {
    page.layout()->SetAlignToMargins(values.alignsToMargins);
    page.layout()->GetPage()->SetFormID(values.paper);
    page.layout()->GetPage()->SetOrientation(values.orientation);
    page.layout()->SetFocusMap(values.focus);
    for (auto const& element : page.container().GetElements())
      if (auto const frame = ptr_cast<MapFrameElement>(element))
        frame->SetLocked(values.locks.value(frame->GetHandle(), frame->IsLocked()));
  }

  std::mt19937 random_{20261125};
  QTemporaryDir folder_;
};

QTEST_MAIN(ExactUndoTest)
#include "tst_exact_undo.moc"
