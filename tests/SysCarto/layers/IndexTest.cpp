#include "LayerFixture.h"

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/layers/indexed/SourceIndexes.h"

#include <limits>

using namespace SysCarto;

namespace {

// What a person can learn of a source: its attributes in their order, and what is where.
struct Told {
  QStringList rows, places, warnings;
  QString error;
};

QString textOf(TableRow const& row) {
  QStringList texts;
  for (QVariant const& value : row)
    texts << (value.isValid() ? QString::fromLatin1(value.typeName()) + ':' + value.toString()
                              : QStringLiteral("null"));
  return texts.join(';');
}

QString textOf(FeatureStore const& store, size_t i) {
  QStringList texts{QString::number(store.ids[i]), store.labels[i], store.keys[i]};
  Feature const& feature = store.features[i];
  for (int p = feature.firstPart; p < feature.firstPart + feature.partCount; ++p) {
    Part const& part = store.parts[static_cast<size_t>(p)];
    texts << QString::number(int(part.kind));
    for (int v = 0; v < 2 * part.count; ++v) texts << QString::number(part.xy[v], 'g', 17);
  }
  return texts.join(' ');
}

Told told(SourceSettings const& source, QString const& labelField) {
  Told result;
  LabelSettings labels;
  labels.field = labelField;
  auto const layer = opened(source, "EPSG:3857", {}, labels);
  result.error = layer.error;
  result.warnings = layer.layer->warnings() + layer.layer->notes();
  auto const store = layer.layer->featuresIn(Box{-1e9, -1e9, 1e9, 1e9});
  for (size_t i = 0; i < store->ids.size(); ++i) result.places << textOf(*store, i);
  result.places.sort();
  auto const table = FeatureTable::open(source, result.error);
  QStringList fields;
  for (TableField const& field : table->fields()) fields << field.name + (field.isNumber ? "#" : "");
  result.rows << fields.join(';');
  auto const scan = FeatureScan::open(source, {{}, -1, true}, result.error);
  std::vector<qint64> ids;
  scan->advance(std::numeric_limits<int>::max(), [&](qint64 id, TableRow const& row) {
    result.rows << QString::number(id) + ' ' + textOf(row);
    if (ids.size() < 20 || id % 1000 == 0) ids.push_back(id);
  });
  auto const single = table->rows(ids);
  for (qint64 const id : ids) result.rows << textOf(single[id]);
  return result;
}

}  // namespace

// Sources that have no index of their own and get one.
class IndexTest : public QObject {
  Q_OBJECT

private slots:
  void init() {
    cache_ = std::make_unique<QTemporaryDir>();
    threshold_ = setWindowThreshold({0, 0});
    SourceIndexes::use(indexes());
  }
  void cleanup() {
    setWindowThreshold(threshold_);
    SourceIndexes::use({});
  }

  void anIndexGivesBackWhatTheSourceHas_data() {
    Rows<QString, QByteArray, bool> row;
    row("features of many kinds, without a place, with heights, numbered with gaps", "a.geojson",
        collection({numbered(3, "'name':'Zürich','n':1,'x':0.1", "{'type':'Point','coordinates':[8.5,47.4]}"),
                    numbered(4, "'name':'','n':null,'x':1e300", "null"),
                    numbered(9, "'name':null,'n':9007199254740993,'x':-0.0",
                             "{'type':'LineString','coordinates':[[1,2,3],[3,4,5]]}"),
                    numbered(12, "'name':'a\\nb','n':-1",
                             "{'type':'GeometryCollection','geometries':[{'type':'Point','coordinates':[1,1]},{'type':"
                             "'Polygon','coordinates':[[[0,0],[9,0],[9,9],[0,0]],[[5,1],[6,1],[6,2],[5,1]]]}]}"),
                    numbered(13, "'name':'empty','n':5", "{'type':'MultiPolygon','coordinates':[]}")}),
        true);
    row("a table with moments", "a.csv",
        "name,lon,lat,day,at,moment,n\nA,1.5,2.5,2020-02-29,10:11:12,2021-03-04 05:06:07,007\n"
        "\"B, b\",-170,60,,,2021-03-04T05:06:07Z,\nÄ,,,1999-12-31,23:59:59,,1e3\n",
        true);
    row("a track", "a.gpx",
        "<?xml version='1.0'?><gpx version='1.1' xmlns='http://www.topografix.com/GPX/1/1'><wpt lat='1' lon='2'><ele>"
        "5.5</ele><time>2020-01-02T03:04:05Z</time><name>A</name></wpt><wpt lat='3' lon='4'><name>B</name></wpt></gpx>",
        true);
    row("a drawing in KML with styles", "a.kml",
        "<kml xmlns='http://www.opengis.net/kml/2.2'><Document><Placemark><name>A</name><Style><LineStyle><color>"
        "ff0000ff</color></LineStyle></Style><LineString><coordinates>1,2,0 "
        "3,4,0</coordinates></LineString></Placemark>"
        "<Placemark><name>B</name><Point><coordinates>5,6</coordinates></Point></Placemark></Document></kml>",
        true);
    QByteArray const place = "{'type':'Point','coordinates':[1,1]}";
    row("numbers that do not ascend", "a.geojson",
        collection({numbered(7, "'name':'A'", place), numbered(2, "'name':'B'", place)}), false);
    row("lists", "a.geojson", collection({numbered(1, "'name':'A','l':['a','b']", place)}), false);
  }
  void anIndexGivesBackWhatTheSourceHas() {
    auto const [name, content, isIndexed] = fetched<QString, QByteArray, bool>();
    QTemporaryDir const folder;
    SourceSettings const source{written(folder, name, content), {}, {}, {}};
    SourceIndexes::use({});
    Told const whole = told(source, "name");
    SourceIndexes::use(indexes());
    Told const first = told(source, "name"), second = told(source, "name");
    QCOMPARE(first.warnings.size() - whole.warnings.size(), isIndexed ? 1 : 0);
    QVERIFY(!isIndexed || first.warnings.first().contains(indexes()));
    QCOMPARE(second.warnings, whole.warnings);
    QCOMPARE(opened(source, "EPSG:3857").layer->hasWindows(), isIndexed);
    for (Told const& one : {first, second}) {
      QCOMPARE(one.error, whole.error);
      QCOMPARE(one.rows, whole.rows);
      QCOMPARE(one.places, whole.places);
    }
    QVERIFY(first.rows.size() > 2);
  }

  // Parts, and the order that they have together. Layers of one file that are read side by side make one index.
  void manyFeaturesStayInTheirOrder() {
    QTemporaryDir const folder;
    QByteArray table = "name,lon,lat\n";
    for (int i = 0; i < 66000; ++i)
      table += QByteArray::number(i) + ',' + QByteArray::number((i * 7919LL) % 360 - 180) + ',' +
               QByteArray::number((i * 104729LL) % 160 - 80) + '\n';
    SourceSettings const source{written(folder, "a.csv", table), {}, {}, {}};
    SourceIndexes::use({});
    Told const whole = told(source, "name");
    SourceIndexes::use(indexes());
    std::vector<OpenedLayer> layers;
    for (int i = 0; i < 3; ++i) layers.push_back(opened(source, "EPSG:3857", {}, {}, ReadDepth::Later));
    QStringList notes;
    for (OpenedLayer const& one : layers) {
      QVERIFY(one.layer->isBeingRead() && one.layer->hasWindows());
      notes += one.layer->notes();
    }
    QCOMPARE(notes.size(), 1);
    Told const indexed = told(source, "name");
    QVERIFY(indexed.rows == whole.rows);
    QVERIFY(indexed.places == whole.places);
  }

  void whatChangesIsIndexedAnew() {
    QTemporaryDir const folder;
    QString const file = written(folder, "a.csv", "name,lon,lat\nA,1,2\n");
    opened({file, {}, {}, {}}, "EPSG:3857");
    QByteArray const changed = "name,lon,lat\nB,1,2\nC,3,4\n";
    written(folder, "a.csv", changed);
    QCOMPARE(opened({file, {}, {}, {}}, "EPSG:3857").layer->count(), qint64(2));
    QCOMPARE(QDir(indexes()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
  }

  void whatCanNotBeKeptIsReadWholeAndTold_data() {
    Rows<bool> row;
    row("no folder can be made", false);
    row("no room", true);
  }
  void whatCanNotBeKeptIsReadWholeAndTold() {
    auto const [isFull] = fetched<bool>();
    QTemporaryDir const folder;
    QByteArray table = "name,lon,lat\n";
    for (int i = 0; i < 2000; ++i) table += "A,1," + QByteArray::number(i % 80) + '\n';
    SourceSettings const source{written(folder, "a.csv", table), {}, {}, {}};
    if (!isFull) put(indexes(), "a file is in the way");
    OpenedLayer layer;
    {
      FileSizeLimit const limit(isFull ? 20000 : RLIM_INFINITY);
      layer = opened(source, "EPSG:3857");
    }
    QCOMPARE(layer.error, QString());
    QVERIFY(!layer.layer->hasWindows());
    QCOMPARE(layer.features().size(), 2000);
    QCOMPARE(layer.warnings, QStringList());
    QString const told = layer.layer->notes().join(' ');
    QVERIFY2(told.contains("a.csv") && told.contains(indexes()), qPrintable(told));
    if (isFull) QCOMPARE(contents(indexes()).size(), 0);
  }

private:
  QString indexes() const { return cache_->filePath("indexes"); }

  // With single quotes.
  static QByteArray numbered(int id, QByteArray const& properties, QByteArray const& geometry) {
    QByteArray text = "{'type':'Feature','id':" + QByteArray::number(id) + ",'properties':{" + properties +
                      "},'geometry':" + geometry + "}";
    return text.replace('\'', '"');
  }

  std::unique_ptr<QTemporaryDir> cache_;
  WindowThreshold threshold_;
};

QTEST_MAIN(IndexTest)
#include "IndexTest.moc"
