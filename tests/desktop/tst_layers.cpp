#include "Dialogs.h"
#include "LayerFixture.h"
#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/LayerTree.h"

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
    written(folder_, "a.geojson", geoJson(R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,9],[0,0]]]})"));
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

private:
  _ptr_t<Map> mapWith(WorkbenchPage& page, QStringList const& names, double leftCm = 1) {
    auto const map = page.add<SysCarto::MapFrameElement>(leftCm, 1, leftCm + 8, 9)->GetMap();
    map->SetExtent(make<SysGeometry::Envelope>(-1.0, -1.0, 10.0, 10.0));
    for (QString const& name : names) {
      auto const layer = opened({folder_.filePath("a.geojson"), {}, {}, {}}, {}).layer;
      layer->SetName(name);
      map->AddLayer(layer);
    }
    return map;
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(LayersTest)
#include "tst_layers.moc"
