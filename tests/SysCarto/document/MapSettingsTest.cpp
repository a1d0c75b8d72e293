#include "Elements.h"
#include "LayerFixture.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/MapOverview.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/projection/GlobeBox.h"

using namespace SysCarto;

// What a document says of maps and what they refer to.
class MapSettingsTest : public QObject {
  Q_OBJECT

private slots:
  void init() { put(path("everything.kdx"), contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx")); }

  void anOverviewKeepsTheMapOfADeletedFrameAndDrawsItNoMore() {
    MapDocument document;
    QVERIFY(document.Open(path("everything.kdx")));
    auto const frameOf = [&](int index) {
      return ptr_cast<MapFrameElement>(document.GetPageLayout()->GetGraphicsContainer()->GetElements().value(index));
    };
    auto const overview = make<MapOverview>();
    overview->setMap(frameOf(1)->GetMap());
    frameOf(0)->AddMapGrid(overview);
    auto* const elements = document.GetPageLayout()->GetGraphicsContainer();
    for (auto const& element : elements->GetElements().mid(1)) elements->DeleteElement(element);
    QVERIFY2(document.SaveAs(path("orphan.kdx"), true, false), qPrintable(document.GetErrors().join('\n')));
    QVERIFY(document.Open(path("orphan.kdx")));
    QVERIFY(!document.GetWarnings().join(' ').contains("maps[1]"));
    auto const read = ptr_cast<MapOverview>(frameOf(0)->GetMapGrid(0));
    QCOMPARE(read->map()->GetName(), QString("Plan"));
    QVERIFY(!MapHost::isFramed(*read->map()));

    overview->setMap(frameOf(0)->GetMap());  // as when a template's maps are shared out anew
    frameOf(0)->AddMapGrid(overview);
    QVERIFY2(document.SaveAs(path("orphan.kdx"), true, false), qPrintable(document.GetErrors().join('\n')));
    QVERIFY2(document.Open(path("orphan.kdx")), qPrintable(document.GetErrors().join('\n')));
  }

  void aScaleIsSetThroughTheBoundsAndKeptWhereItIsLocked() {
    MapDocument document;
    QVERIFY(document.Open(path("everything.kdx")));
    EditorHost::setHistory(MapDocumentHost::history(document));
    auto const set = [&](QString const& thing, QString const& key, QJsonValue const& value) {
      QStringList warnings;
      auto const to = [value](QJsonValue const&) { return value; };
      return Editable::set(document, Editable::named(document, thing), {key}, to, warnings);
    };
    auto const map = document.GetMap(0);
    auto const scale = [&] { return map->GetDisplayTransformation()->GetMapScale(); };
    auto const stored = [&](char const* key) -> QJsonValue {
      return json(MapDocumentHost::text(document)).value("maps").toArray().at(0).toObject().value(key);
    };
    QString const before = QString::fromUtf8(MapDocumentHost::text(document));
    auto const centre = map->GetExtent()->GetAnchorPoint();
    auto const isThere = [&] {
      auto const now = map->GetExtent()->GetAnchorPoint();
      return std::hypot(now->GetX() - centre->GetX(), now->GetY() - centre->GetY()) < 1e-6;
    };
    QCOMPARE(set("map:#0", "scale", 25e6), QString());
    QVERIFY(std::abs(scale() / 25e6 - 1) < 1e-8 && isThere());
    QVERIFY(stored("scale").isUndefined());

    QCOMPARE(set("map:#0", "scaleLocked", true), QString());
    QCOMPARE(set("map:#0", "scale", 30e6), QString());
    QCOMPARE(scale(), 30e6);
    QCOMPARE(stored("scale"), QJsonValue(30e6));
    auto const wide = map->GetExtent();
    QCOMPARE(set("#1", "rectangle", QJsonArray{1, 9, 11, 20}), QString());
    QCOMPARE(scale(), 30e6);
    QVERIFY(isThere() && map->GetExtent()->GetWidth() < wide->GetWidth() * 0.6);
    auto const shown = map->GetExtent();
    QCOMPARE(set("map:#0", "scaleLocked", false), QString());
    QVERIFY(std::abs(scale() / 30e6 - 1) < 1e-8);
    QVERIFY(std::abs(map->GetExtent()->GetWidth() / shown->GetWidth() - 1) < 1e-9 && isThere());
    QVERIFY(set("map:#0", "scale", 0).contains("must be more than 0"));

    while (document.GetOperationStack()->CanUndo()) document.GetOperationStack()->Undo();
    QCOMPARE(QString::fromUtf8(MapDocumentHost::text(document)), before);
    // What can't be shown changes nothing, and what could be redone still can.
    QCOMPARE(set("map:#0", "scale", 1e-15), QString());
    QVERIFY(!document.GetOperationStack()->CanUndo() && document.GetOperationStack()->CanRedo());
    QCOMPARE(QString::fromUtf8(MapDocumentHost::text(document)), before);
    EditorHost::setHistory(nullptr);
  }

  void theEffortForLabelsReachesEachLayer() {
    MapDocument document;
    QVERIFY(document.Open(path("everything.kdx")));
    EditorHost::setHistory(MapDocumentHost::history(document));
    auto const map = document.GetMap(0);
    auto const efforts = [&] {
      QSet<int> efforts;
      for (auto const& layer : map->GetLayers()) efforts << LayerHost::labelEffort(*layer);
      return efforts;
    };
    QCOMPARE(efforts(), QSet<int>{3});
    QStringList warnings;
    auto const to = [](QJsonValue const&) -> QJsonValue { return QJsonObject{{"effort", 7}}; };
    QCOMPARE(Editable::set(document, Editable::named(document, "map:#0"), {"labels"}, to, warnings), QString());
    QCOMPARE(efforts(), QSet<int>{7});
    document.GetOperationStack()->Undo();
    QCOMPARE(efforts(), QSet<int>{3});
    document.GetMap(1)->AddLayer(map->GetLayer(0));  // a map of which nobody said any
    QCOMPARE(LayerHost::labelEffort(*map->GetLayer(0)), 0);
    EditorHost::setHistory(nullptr);
  }

  void anotherSystemShowsTheSamePlaceOrAllLayers_data() {
    Rows<QString, bool> row;
    row("a system of the place", "EPSG:3034", true);
    row("a system of all the world", "EPSG:8857", true);
    row("a system that does not reach there", "+proj=gnom +lat_0=0 +lon_0=-90", false);
  }
  void anotherSystemShowsTheSamePlaceOrAllLayers() {
    auto const [system, isKept] = fetched<QString, bool>();
    MapDocument const document;
    EditorHost::setHistory(MapDocumentHost::history(document));
    auto const map = make<Map>();
    map->SetCoordinateSystem("EPSG:4326");
    QString const file = put(path("a.geojson"), geoJson(R"({"type":"Polygon",
        "coordinates":[[[-60,45],[20,45],[20,55],[-60,55],[-60,45]]]})"));
    auto const layer = opened({file, {}, {}, {}}, "EPSG:4326", make<SysDisplay::SimpleFillSymbol>()).layer;
    map->AddLayer(layer);
    map->SetExtent(make<SysGeometry::Envelope>(8.0, 48.0, 12.0, 51.0));
    auto const bounds = [&] {
      auto const shown = MapHost::storedBounds(*map);
      return SysGeometry::Box{shown.GetXMin(), shown.GetYMin(), shown.GetXMax(), shown.GetYMax()};
    };
    QStringList warnings;
    auto const to = [name = system](QJsonValue const&) { return name; };
    QCOMPARE(Editable::set(document, {Editable::map(map)}, {"coordinateSystem"}, to, warnings), QString());
    GlobeBox const now = globeBoxOf(bounds(), system);
    QCOMPARE(now.contains({8.1, 48.1, 11.9, 50.9}) && now.width() < 8, isKept);
    if (!isKept) QVERIFY(!layer->features().box().isEmpty() && bounds().contains(layer->features().box()));
    while (document.GetOperationStack()->CanUndo()) document.GetOperationStack()->Undo();
    QCOMPARE(map->GetCoordinateSystem(), QString("EPSG:4326"));
    QVERIFY(bounds().contains({8, 48, 12, 51}) && SysGeometry::Box({8, 48, 12, 51}).contains(bounds()));
    EditorHost::setHistory(nullptr);
  }

private:
  QString path(QString const& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
};

QTEST_MAIN(MapSettingsTest)
#include "MapSettingsTest.moc"
