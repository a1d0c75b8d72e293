#include "Files.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/WatchedWork.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/layers/AddLayersDialog.h"
#include "host/desktop/layers/LayerAdding.h"
#include "host/desktop/layers/NewLayers.h"
#include "host/desktop/newmap/NewMapDialog.h"

#include <SysCarto/Map.h>
#include <SysCarto/PageLayout.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>

#include <future>

using namespace SysCarto;

class AddingLayersTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    put(path("points.csv"), "name;x;y\nA;500000,5;5000000\nB;501000;5002000\n");
    QByteArray features;
    for (char const* geometry : {R"("Point","coordinates":[1,2])", R"("LineString","coordinates":[[1,2],[3,4]])",
                                 R"("Polygon","coordinates":[[[5,5],[9,5],[9,9],[5,5]]])"})
      features += QByteArray(features.isEmpty() ? "" : ",") +
                  R"({"type":"Feature","properties":{},"geometry":{"type":)" + geometry + "}}";
    put(path("mixed.geojson"), R"({"type":"FeatureCollection","features":[)" + features + "]}");
    put(path("table.csv"), "id;value\n1;2\n");
    put(path("broken.gpkg"), "nothing");
    put(path("half.gpkg"), contentOf(world()).left(200000));
    QVERIFY(session_.create());
    before_ = saved();
  }

  void theFirstLayerBringsFrameSystemAndExtent() {
    QStringList warnings;
    QCOMPARE(NewLayers::addNamed(session_.document(), world() + "|countries", warnings), QString());
    auto const map = layout().GetFocusMap();
    QVERIFY(map);
    QCOMPARE(map->GetCoordinateSystem(), QString("EPSG:8857"));
    QVERIFY(map->GetExtent()->GetXMin() < -1.6e7 && map->GetExtent()->GetXMin() > -2.5e7);
    auto const frame = layout().GetFocusMapFrameElement()->GetEnvelope();
    QCOMPARE(frame->GetXMin(), 1.0);
    QCOMPARE(frame->GetYMin(), 1.0);
    QByteArray const after = saved();
    session_.document().GetOperationStack()->Undo();
    QCOMPARE(saved(), before_);
    session_.document().GetOperationStack()->Redo();
    QCOMPARE(saved(), after);
  }

  void pointsComeAboveLinesAboveAreas() {
    QStringList warnings;
    QCOMPARE(NewLayers::addNamed(session_.document(), path("points.csv"), warnings), QString());
    auto const map = layout().GetFocusMap();
    QCOMPARE(map->GetCoordinateSystem(), QString());
    QVERIFY(map->GetExtent()->GetYMin() > 4990000);
    QCOMPARE(NewLayers::addNamed(session_.document(), path("mixed.geojson"), warnings), QString());
    QCOMPARE(namesOf(*map), QString("Mixed (areas), Mixed (lines), Points, Mixed (points)"));
    QVector<int> counts;
    for (auto const& layer : map->GetLayers()) counts << ptr_cast<VectorLayer>(layer)->features().size();
    QCOMPARE(counts, (QVector<int>{1, 1, 2, 1}));
    auto const below = map->GetLayer(0);
    QDir(folder_.path()).mkdir("north");
    QFile::copy(path("points.csv"), path("north/points.csv"));
    auto const wanted = NewLayers::of(describeFile(path("north/points.csv")));
    QCOMPARE(NewLayers::add(session_.document(), wanted, below, {}, warnings), QString());
    QCOMPARE(namesOf(*map), QString("Mixed (areas), Points (north), Mixed (lines), Points, Mixed (points)"));
  }

  // Whatever comes first: the land under its countries, these under the cities, each in its own look and with names.
  void layersLieAndLookAsInANewMap() {
    QStringList warnings;
    for (char const* name : {"|countries", "|cities", "|land"})
      QCOMPARE(NewLayers::addNamed(session_.document(), world() + name, warnings), QString());
    auto const map = layout().GetFocusMap();
    QCOMPARE(namesOf(*map), QString("Land, Countries, Cities"));
    auto const countries = ptr_cast<VectorLayer>(map->GetLayer(1)), cities = ptr_cast<VectorLayer>(map->GetLayer(2));
    QCOMPARE(countries->renderer().classes().size(), size_t(6));
    QCOMPARE(countries->labelSettings().field, QString("name"));
    QCOMPARE(cities->renderer().field(), QString("population"));
    QCOMPARE(map->GetCoordinateSystem(), QString("EPSG:8857"));
  }

  void whatCanNotBeAddedChangesNothing_data() {
    Rows<QString, QString> row;
    row("no file", "missing.gpkg", "does not exist");
    row("no data", "broken.gpkg", "none of those that are known");
    row("half of a file", "half.gpkg", "the format GeoPackage does, and is not whole");
    row("no places", "table.csv", "join it as a table");
    row("no such layer", "points.csv|rivers", "has no layer “rivers”; it has: points");
  }
  void whatCanNotBeAddedChangesNothing() {
    auto const [name, says] = fetched<QString, QString>();
    QStringList warnings;
    QString const problem = NewLayers::addNamed(session_.document(), path(name), warnings);
    QVERIFY2(problem.contains(says), qPrintable(problem));
    QCOMPARE(saved(), before_);
    QVERIFY(!session_.isModified());
  }

  void readingCanBeStopped() {
    QByteArray many = "x,y\n";
    for (int i = 0; i < 200000; ++i) many += QByteArray::number(i) + ",1\n";
    auto const wanted = NewLayers::of(describeFile(put(path("many.csv"), many)));
    QStringList warnings;
    int questions = 0;
    auto const stop = [&](qint64 read, qint64) { return ++questions < 1 && read < 200000; };
    QCOMPARE(NewLayers::add(session_.document(), wanted, nullptr, stop, warnings), QString());
    QVERIFY(questions > 0);
    QCOMPARE(saved(), before_);
    QVERIFY(!session_.isModified());
  }

  // As files of a server that does not answer.
  void whatIsGivenUpKeepsNothingElseWaiting() {
    std::promise<void> answer;
    std::shared_future<void> const answered = answer.get_future().share();
    int questions = 0;
    auto const never = [answered] {
      answered.wait();
      return true;
    };
    for (int i = 0; i < 4; ++i) QVERIFY(!watched(never, [&](qint64, qint64) { return ++questions % 2 != 0; }));
    QCOMPARE(questions, 8);  // once before it begins, and once meanwhile
    AddLayersDialog dialog({world()}, nullptr);
    QCOMPARE(watched([] { return 7; }, [&](qint64, qint64) { return ++questions < 100; }).value_or(0), 7);
    QTRY_COMPARE(dialog.chosen().size(), size_t(3));
    QVERIFY(isReading());
    answer.set_value();
    QTRY_VERIFY(!isReading());
  }

  void aNewMapWaitsForAllItsFiles() {
    NewMapDialog dialog({world()}, nullptr);
    auto const* const make = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QTRY_VERIFY(make->isEnabled());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path("points.csv")), QUrl::fromLocalFile(path("broken.gpkg"))});
    QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &enter);
    QDropEvent drop(QPointF(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &drop);
    QVERIFY(!make->isEnabled());
    QTRY_VERIFY(make->isEnabled());
    QCOMPARE(dialog.request().data.size(), 4);
  }

  void filesAndFoldersOfDataCanBeDropped() {
    auto const accepted = [&](QStringList const& names) {
      QMimeData data;
      QList<QUrl> urls;
      for (QString const& name : names) urls << QUrl::fromLocalFile(path(name));
      data.setUrls(urls);
      return LayerAdding::filesIn(data).size();
    };
    put(path("letter.txt"), "Hello");
    put(path("map.kdx"), "{}");
    QCOMPARE(accepted({"points.csv", "mixed.geojson"}), 2);
    QCOMPARE(accepted({""}), 1);
    QCOMPARE(accepted({"map.kdx"}), 0);
    QCOMPARE(accepted({"points.csv", "letter.txt"}), 0);
  }

  void theDialogListsWhatFilesHold() {
    AddLayersDialog dialog({path("table.csv"), path("broken.gpkg"), world()}, nullptr);
    auto* const rows = dialog.findChild<QTreeWidget*>("treeWidget_Layers");
    QTRY_COMPARE(rows->topLevelItemCount(), 3);
    QVERIFY(rows->topLevelItem(1)->child(0)->text(0).contains("broken.gpkg"));
    QCOMPARE(rows->topLevelItem(2)->childCount(), 3);
    QCOMPARE(dialog.chosen().size(), size_t(3));
    rows->topLevelItem(2)->child(1)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(dialog.chosen().size(), size_t(2));
    // A table gets places by its columns.
    QCOMPARE(rows->currentItem(), rows->topLevelItem(0)->child(0));
    choose(dialog, "comboBox_X", "id");
    choose(dialog, "comboBox_Y", "value");
    QTRY_COMPARE(dialog.chosen().size(), size_t(3));
    SourceSettings const source = dialog.chosen().front().source;
    QCOMPARE(source.xField + source.yField + source.coordinateSystem, QString("idvalueEPSG:4326"));
  }

private:
  QString path(QString const& name) const { return folder_.filePath(name); }
  static QString world() { return QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/data/world.gpkg"); }
  PageLayout& layout() { return *session_.document().GetPageLayout(); }

  QByteArray saved() { return MapDocumentHost::text(session_.document()); }

  static QString namesOf(Map const& map) {
    QStringList names;
    for (auto const& layer : map.GetLayers()) names << layer->GetName();
    return names.join(", ");
  }

  static void choose(QDialog& dialog, char const* box, QString const& value) {
    auto* const combo = dialog.findChild<QComboBox*>(box);
    combo->setCurrentText(value);
    emit combo->activated(combo->currentIndex());
  }

  QTemporaryDir folder_;
  DocumentSession session_;
  QByteArray before_;
};

QTEST_MAIN(AddingLayersTest)
#include "tst_adding_layers.moc"
