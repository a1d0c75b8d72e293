#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/WorkbenchPage.h"
#include "desktop/WorldWindow.h"

#include "host/SysAdapterUI/ContentsTree.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/desktop/MainWindow.h"
#include "host/desktop/RunSteps.h"
#include "host/desktop/layers/LayerActions.h"

#include <QAbstractItemModelTester>

using SysCarto::Layer;
using SysCarto::LayerGroup;
using SysCarto::LayerHost;
using SysCarto::LayerList;
using SysCarto::Map;
using SysCarto::MapDocumentHost;
using SysCarto::MapSteps;

namespace {

QStringList namesOf(Map const& map) {
  QStringList names;
  for (auto const& layer : map.GetLayers()) names << layer->GetName();
  return names;
}

// The rows as they are seen, "Name" or "Group(…)", from above.
QString shownIn(QAbstractItemModel const& rows, QModelIndex const& parent = {}) {
  QStringList parts;
  for (int i = 0; i < rows.rowCount(parent); ++i) {
    QModelIndex const row = rows.index(i, 0, parent);
    QString const inner = rows.hasChildren(row) ? "(" + shownIn(rows, row) + ")" : QString();
    parts << row.data().toString() + inner;
  }
  return parts.join(' ');
}

/// The window with two maps, M of layers C, B and A from above, and N with none.
struct LayersWindow {
  explicit LayersWindow(QString const& file) {
    window.show();
    window.open(file);
    waitForData(window);
    window.activateWindow();
    tree().setFocus();
    new QAbstractItemModelTester(tree().model(), QAbstractItemModelTester::FailureReportingMode::QtTest, &tester);
  }
  void trigger(char const* identifier) { window.actions().find(identifier)->trigger(); }
  bool isEnabled(char const* identifier) { return window.actions().find(identifier)->isEnabled(); }
  SysCarto::MapDocument& document() { return window.bench().session().document(); }
  SysAdapterUI::ContentsTree& tree() { return *window.findChild<SysAdapterUI::ContentsTree*>(); }
  QString shown() { return shownIn(*tree().model()); }
  QByteArray text() { return MapDocumentHost::text(document()); }

  void choose(QStringList const& names) {
    QVector<SysCarto::LayerRow> rows;
    for (QString const& name : names)
      rows += LayerActions::named(document(), name == "M" || name == "N" ? "map:" + name : "layer:M/" + name);
    tree().choose(rows);
  }
  // A shortcut goes its whole way: to the widget, or to the window's actions.
  void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&tree(), static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
  }
  void drop(QStringList const& names, Qt::DropAction action, int row, QModelIndex const& parent) {
    QModelIndexList dragged;
    for (QString const& name : names)
      dragged << tree().rows().indexOf(LayerActions::named(document(), "layer:M/" + name)[0]);
    std::unique_ptr<QMimeData> const data(tree().model()->mimeData(dragged));
    tree().model()->dropMimeData(data.get(), action, row, 0, parent);
    QCoreApplication::processEvents();
  }
  QModelIndex rowOf(QString const& thing) { return tree().rows().indexOf(LayerActions::named(document(), thing)[0]); }

  MainWindow window;
  QObject tester;
};

QImage pictureOf(WorkbenchPage& page) {
  page.view().grab();
  while (!page.view().isComplete()) QCoreApplication::processEvents();
  return page.view().grab().toImage();
}

}  // namespace

/// What is done with the layers of a document, by steps of its history.
class LayersTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareApplication();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    written(folder_, "a.geojson", geoJson(R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,9],[0,0]]]})"));
    WorkbenchPage page;
    mapWith(page, {"A", "B", "C"})->SetName("M");
    mapWith(page, {}, 10)->SetName("N");
    page.add<SysCarto::RectangleElement>(1, 12, 5, 16);
    QVERIFY(page.bench.session().saveAs(folder_.filePath("start.kdx")));
  }

  // The view and the document follow what becomes of lists of layers and their groups, and an undo is exact.
  void layersGoFromMapToMapAndIntoGroupsInOneStep() {
    WorkbenchPage page;
    auto const first = mapWith(page, {"A", "B", "C"}), second = mapWith(page, {}, 10);
    auto& document = page.bench.session().document();
    auto const history = document.GetOperationStack();
    QByteArray const start = MapDocumentHost::text(document);
    QImage const seen = pictureOf(page);
    auto const group = make<LayerGroup>();
    group->setName("G");
    auto const layers = first->GetLayers();
    MapSteps::changeLayers("Move", {{first, {layers[2], layers[0]}, {{group}, {group}}}, {second, {layers[1]}}});
    QCOMPARE(history->GetUndoName(), QString("Move"));
    QCOMPARE(namesOf(*first) + namesOf(*second), QStringList({"C", "A", "B"}));
    QByteArray const moved = MapDocumentHost::text(document);
    QVERIFY(moved.contains(R"("type": "group")"));

    MapSteps::setVisible(*group, false);
    QVERIFY(!layers[0]->IsVisible() && LayerHost::isSwitchedOn(*layers[0]) && layers[1]->IsVisible());
    QImage const hidden = pictureOf(page);
    history->Undo();
    QVERIFY(layers[0]->IsVisible());
    QVERIFY(pictureOf(page) != hidden);
    QVERIFY(MapDocumentHost::text(document) == moved);

    history->Undo();
    QVERIFY(MapDocumentHost::text(document) == start);
    QVERIFY(pictureOf(page) == seen);
    history->Redo();
    QVERIFY(MapDocumentHost::text(document) == moved);
    auto const newcomer =
        opened({folder_.filePath("a.geojson"), {}, {}, {}}, {}, make<SysDisplay::SimpleFillSymbol>()).layer;
    MapSteps::changeLayers("Add", {{first, {layers[2], newcomer, layers[0]}}});
    QVERIFY(LayerHost::groups(*newcomer) == LayerHost::groups(*layers[0]));
    history->Undo();
    MapSteps::changeLayers("Nothing", {{first, first->GetLayers()}});
    QCOMPARE(history->GetUndoName(), QString("Move"));

    QVERIFY(page.bench.session().saveAs(folder_.filePath("groups.kdx")));
    QVERIFY(page.bench.session().open(folder_.filePath("groups.kdx")));
    QVERIFY(MapDocumentHost::text(document) == contentOf(folder_.filePath("groups.kdx")));
    auto const read = document.GetMap(0);
    QCOMPARE(namesOf(*read), QStringList({"C", "A"}));
    QVERIFY(LayerHost::groups(*read->GetLayer(0)) == LayerHost::groups(*read->GetLayer(1)));
    QCOMPARE(LayerHost::groups(*read->GetLayer(0)).size(), 1);
  }

  // Without a mouse. What the page has keys for, too, stays as it is.
  void theContentsAreWorkedInByKeysAlone() {
    LayersWindow sample(folder_.filePath("start.kdx"));
    QByteArray const start = sample.text();
    sample.trigger("Host_SelectAll");
    sample.choose({"A", "C"});
    QCOMPARE(sample.shown(), QString("M(C B A) N"));
    sample.key(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(sample.shown(), QString("M(New group(C A) B) N"));
    sample.key(Qt::Key_F2);
    QTest::keyClicks(sample.window.focusWidget(), "G");
    QTest::keyClick(sample.window.focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(sample.shown(), QString("M(G(C A) B) N"));
    sample.choose({"B"});
    sample.key(Qt::Key_Right, Qt::AltModifier);  // into the group above
    QCOMPARE(sample.shown(), QString("M(G(C A B)) N"));
    sample.key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(sample.shown(), QString("M(G(C B A)) N"));
    sample.key(Qt::Key_Up, Qt::AltModifier);
    sample.key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(sample.shown(), QString("M(B G(C A)) N"));
    sample.key(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(sample.shown(), QString("M(G(C A) B) N"));
    sample.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(sample.shown(), QString("M(G(C A) B (2) B) N"));
    sample.key(Qt::Key_Delete);
    sample.choose({"G"});
    sample.key(Qt::Key_Space);
    QVERIFY(!sample.document().GetMap(0)->GetLayer(2)->IsVisible());
    QModelIndex const group = sample.rowOf("layer:M/G");
    QSet<QModelIndex> told;  // below what rows have others become
    connect(sample.tree().model(), &QAbstractItemModel::dataChanged, &sample.tester,
            [&](QModelIndex const& first) { told << first.parent(); });
    sample.trigger("Host_Undo");
    QVERIFY(told.contains(group) && told.contains(group.parent()));
    sample.trigger("Host_Redo");
    sample.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(sample.shown(), QString("M(B) N"));
    sample.choose({"N"});
    sample.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(sample.shown(), QString("M(B) N(G(C A))"));
    QVERIFY(!sample.document().GetMap(1)->GetLayer(0)->IsVisible());
    sample.key(Qt::Key_G, QFlags({Qt::ControlModifier, Qt::ShiftModifier}));
    QCOMPARE(sample.shown(), QString("M(B) N(C A)"));
    QVERIFY(!sample.document().GetMap(1)->GetLayer(0)->IsVisible());

    QByteArray const end = sample.text();
    while (sample.isEnabled("Host_Undo")) sample.trigger("Host_Undo");
    QVERIFY(sample.text() == start);
    while (sample.isEnabled("Host_Redo")) sample.trigger("Host_Redo");
    QVERIFY(sample.text() == end);
  }

  void whatIsDraggedLiesWhereItWasDropped_data() {
    Rows<QStringList, QString, int, bool, QString> row;
    row("above another", {"A"}, "layer:M/C", -2, false, "M(A C G(B)) N");
    row("into a group", {"C", "A"}, "layer:M/G", -1, false, "M(G(C A B)) N");
    row("out of a group, whose last it was", {"B"}, "map:M", -1, false, "M(B C A) N");
    row("to another map", {"G", "A"}, "map:N", -1, false, "M(C) N(G(B) A)");
    row("with what lies in it already", {"G", "B"}, "map:N", -1, false, "M(C A) N(G(B))");
    row("not into itself", {"G"}, "layer:M/G", -1, false, "M(C G(B) A) N");
    row("as a copy", {"G"}, "map:M", -1, true, "M(G (2)(B (2)) C G(B) A) N");
  }
  void whatIsDraggedLiesWhereItWasDropped() {
    auto const [names, on, place, copies, expected] = fetched<QStringList, QString, int, bool, QString>();
    LayersWindow sample(folder_.filePath("start.kdx"));
    sample.choose({"B"});
    sample.trigger("Host_GroupLayers");
    LayerActions::rename(sample.document(), LayerActions::named(sample.document(), "layer:M/New group")[0], "G");
    QByteArray const start = sample.text();
    QModelIndex const target = sample.rowOf(on);
    bool const isBeside = place == -2;
    sample.drop(names, copies ? Qt::CopyAction : Qt::MoveAction, isBeside ? target.row() : -1,
                isBeside ? target.parent() : target);
    QCOMPARE(sample.shown(), expected);
    if (sample.text() != start) sample.trigger("Host_Undo");
    QVERIFY(sample.text() == start);
  }

  void legendsFollowANewName() {
    WorkbenchPage page;
    auto& document = page.bench.session().document();
    QVERIFY(page.bench.session().open(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
    QByteArray const start = MapDocumentHost::text(document);
    auto const rows = LayerActions::named(document, "layer:World/Cities");
    QCOMPARE(rows.size(), 1);
    auto const outcome = LayerActions::rename(document, rows.first(), "Towns");
    QVERIFY(outcome.problem.isEmpty() && outcome.warnings.isEmpty());
    QByteArray const text = MapDocumentHost::text(document);
    QVERIFY(text.contains(R"("layer": "Towns")") && !text.contains(R"("layer": "Cities")"));
    document.GetOperationStack()->Undo();
    QVERIFY(MapDocumentHost::text(document) == start);
    QVERIFY(!LayerActions::rename(document, rows.first(), "").problem.isEmpty());
    QVERIFY(!document.GetOperationStack()->CanUndo() && document.GetOperationStack()->CanRedo());
  }

  void theSameIsDoneByStepsOfARun() {
    RunSteps steps(false);
    QCOMPARE(steps.open(folder_.filePath("start.kdx")), QString());
    QString const saved = folder_.filePath("run.kdx");
    for (QString const& step :
         QStringList{"group=layer:M/A,layer:M/C@G", "order=layer:M/B@1", "move=layer:M/A@layer:M/B",
                     "copy-layer=layer:M/G@map:N", "duplicate=layer:M/B", "group=layer:M/B@Alone",
                     "set=layer:M/Alone/name:Lone", "hide=layer:M/Lone", "ungroup=layer:M/G", "remove=layer:M/#0",
                     "zoom=layer:M/A", "save=" + saved}) {
      QCOMPARE(steps.check({step}), QString());
      QCOMPARE(steps.run(step), QString());
    }
    LayersWindow sample(saved);
    QCOMPARE(sample.shown(), QString("M(A B (2) Lone(B)) N(G(C))"));
    auto const extent = sample.document().GetMap(0)->GetExtent();
    QVERIFY(qAbs(extent->GetHeight() - 9 * 1.05) < 1e-6 && qAbs(extent->GetYMin() + 9 * 0.025) < 1e-6);
    for (char const* wrong :
         {"remove=C", "order=layer:M/A", "order=layer:M/A@top", "move=layer:M/A@B", "repair=layer:M/A"})
      QVERIFY2(steps.check({wrong}).contains(" is written "), wrong);
    QVERIFY(steps.run("remove=layer:M/X").contains("layer:M/X"));
  }

  // In the metres of the other map's coordinate system.
  void aLayerIsReadAnewForAMapOfAnotherSystem() {
    WorkbenchPage page;
    auto& document = page.bench.session().document();
    QVERIFY(page.bench.session().open(folder_.filePath("start.kdx")));
    document.GetMap(0)->SetCoordinateSystem("EPSG:4326");
    document.GetMap(1)->SetCoordinateSystem("EPSG:3857");
    auto const outcome =
        LayerActions::move(LayerActions::named(document, "layer:M/A"), LayerActions::inside({document.GetMap(1)}));
    QCOMPARE(outcome.problem, QString());
    auto const moved = ptr_cast<SysCarto::VectorLayer>(document.GetMap(1)->GetLayer(0));
    double const radius = 6378137;  // of the sphere; a degree of the equator is a 360th of its circumference
    QVERIFY(qAbs(moved->features().box().xmax - radius * 9 * M_PI / 180) < 0.01);
    QCOMPARE(moved->GetName(), QString("A"));
  }

  void aFileThatIsFoundRepairsTheOthersBesideIt() {
    QDir(folder_.path()).mkpath("lost");
    QDir(folder_.path()).mkpath("moved");
    WorkbenchPage page;
    auto const map = page.add<SysCarto::MapFrameElement>(1, 1, 9, 9)->GetMap();
    map->SetName("M");
    for (QString const name : {"p", "q", "r"}) {
      QByteArray const data = geoJson(R"({"type":"Point","coordinates":[1,2]})");
      if (name != "r") put(folder_.filePath("moved/" + name + ".geojson"), data);
      auto const layer =
          opened({folder_.filePath("lost/" + name + ".geojson"), {}, {}, {}}, {}, make<SysDisplay::SimpleFillSymbol>())
              .layer;
      layer->SetName(name);
      map->AddLayer(layer);
    }
    QVERIFY(page.bench.session().saveAs(folder_.filePath("broken.kdx")));
    Person reader;
    reader.presses("OK");
    LayersWindow sample(folder_.filePath("broken.kdx"));
    sample.choose({"p"});
    QByteArray const start = sample.text();
    Person person;
    person.sets("file", folder_.filePath("moved/p.geojson"));
    sample.trigger("Host_RepairLayer");
    QStringList broken;
    for (auto const& layer : sample.document().GetMap(0)->GetLayers())
      if (!ptr_cast<SysCarto::VectorLayer>(layer)->problem().isEmpty()) broken << layer->GetName();
    QCOMPARE(broken, QStringList("r"));
    sample.trigger("Host_Undo");
    QVERIFY(sample.text() == start);
  }

private:
  _ptr_t<Map> mapWith(WorkbenchPage& page, QStringList const& names, double leftCm = 1) {
    auto const map = page.add<SysCarto::MapFrameElement>(leftCm, 1, leftCm + 8, 9)->GetMap();
    map->SetExtent(make<SysGeometry::Envelope>(-1.0, -1.0, 10.0, 10.0));
    for (QString const& name : names) {
      auto const layer =
          opened({folder_.filePath("a.geojson"), {}, {}, {}}, {}, make<SysDisplay::SimpleFillSymbol>()).layer;
      layer->SetName(name);
      map->AddLayer(layer);
    }
    return map;
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(LayersTest)
#include "tst_layers.moc"
