#include "LayerFixture.h"

#include "host/SysCarto/document/LayerSettings.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysUtility/JsonFields.h"

using namespace SysCarto;

namespace {

QByteArray layerJson(QByteArray const& source, QByteArray const& renderer, QByteArray const& more = QByteArray()) {
  return "{'type':'feature','name':'Places','source':{" + source + "},'renderer':{" + renderer + "}" + more + "}";
}

// The fields of a source and of renderers; the classes go between.
QByteArray const cities = "'file':'world.gpkg','layer':'cities'";
QByteArray const large = cities + ",'filter':'population > 5000000'";
QByteArray const marker = "'symbol':{'type':'simpleMarker'}";
QByteArray const simple = "'type':'simple'," + marker;

QByteArray renderer(QByteArray const& type, QByteArray const& field, QByteArray const& classes) {
  return "'type':'" + type + "','field':'" + field + "','classes':[" + classes + "]";
}

struct Read {
  _ptr_t<Layer> layer;
  DocumentContext context;
  QString error;
};

Read read(QByteArray const& stored) {
  Read result;
  result.context.folder = sample("");
  auto const map = make<Map>();
  map->SetCoordinateSystem("EPSG:8857");
  SysUtility::JsonReader reader(json(stored));
  LayerEntry entry;
  listLayerEntry(reader, entry, *map, result.context);
  result.layer = entry.layer;
  result.error = reader.error();
  return result;
}

QJsonObject stored(Read& read) {
  SysUtility::JsonWriter writer;
  auto const map = make<Map>();
  LayerEntry entry{read.layer, nullptr, {}};
  listLayerEntry(writer, entry, *map, read.context);
  return writer.json();
}

}  // namespace

class LayerSettingsTest : public QObject {
  Q_OBJECT

private slots:
  void unreadableDataKeepTheirLayer_data() {
    Rows<QByteArray, int> row;
    row("a file", layerJson(large, simple), 0);
    row("a file that is gone", layerJson("'file':'gone/world.gpkg','layer':'cities'", simple), 1);
    row("a filter that is wrong", layerJson(cities + ",'filter':'a >'", simple), 1);
  }
  void unreadableDataKeepTheirLayer() {
    auto const [given, unreadable] = fetched<QByteArray, int>();
    Read result = read(given);
    QCOMPARE(result.error, QString());
    QVERIFY(result.layer);
    QCOMPARE(stored(result), json(given));
    QCOMPARE(result.context.unreadableSources, unreadable);
    QCOMPARE(result.context.warnings.size(), unreadable);
    if (unreadable) QVERIFY(result.context.warnings[0].contains("Places"));
    QCOMPARE(ptr_cast<VectorLayer>(result.layer)->features().size() > 0, unreadable == 0);
  }

  void aWrongFieldIsNamed_data() {
    Rows<QByteArray, QString> row;
    QByteArray const five = "{'minimum':5," + marker + "}", x = "{'values':['x']," + marker + "}";
    row("no ascent", layerJson(cities, renderer("graduated", "a", five + "," + five)), "renderer.classes[1].minimum");
    row("a value twice", layerJson(cities, renderer("uniqueValues", "a", x + "," + x)), "renderer.classes[1].values");
    row("limits the wrong way round", layerJson(cities, simple, ",'minScale':500,'maxScale':100"), "minScale");
  }
  void aWrongFieldIsNamed() {
    auto const [given, says] = fetched<QByteArray, QString>();
    Read const result = read(given);
    QVERIFY2(result.error.contains(says), qPrintable(result.error));
    QVERIFY(!result.layer);
  }

  void aFieldThatTheDataLackIsReported() {
    QByteArray const others = ",'defaultSymbol':{'type':'simpleMarker'}";
    Read const result = read(layerJson(large, renderer("uniqueValues", "colour", "") + others));
    QCOMPARE(result.context.warnings.size(), 1);
    QVERIFY(result.context.warnings[0].contains("“colour”") && result.context.warnings[0].contains("population"));
    QCOMPARE(result.context.unreadableSources, 0);
  }

  void classesDivideTheFeatures() {
    QByteArray const sizes = "{'minimum':1000000," + marker + "},{'minimum':10000000," + marker + "}";
    Read const result = read(layerJson(cities, renderer("graduated", "population", sizes)));
    auto const layer = ptr_cast<VectorLayer>(result.layer);
    QVERIFY(layer);
    int counts[3] = {0};
    for (Feature const& feature : layer->features().features) ++counts[feature.symbolClass + 1];
    QVERIFY(counts[0] > 50 && counts[1] > 300 && counts[2] > 5);
    QCOMPARE(counts[0] + counts[1] + counts[2], 521);
  }

  void scaleLimitsAreBothSetOrNeither_data() {
    Rows<double, double, bool, double, double> row;
    row("none", 0.0, 0.0, false, 0.0, 0.0);
    row("the smallest alone", 1000.0, 0.0, true, 1000.0, 0.0);
    row("the largest alone", 0.0, 5000.0, true, 0.0, 5000.0);
    row("both, exchanged", 5000.0, 1000.0, true, 1000.0, 5000.0);
    row("no numbers", -3.0, qQNaN(), false, 0.0, 0.0);
  }
  void scaleLimitsAreBothSetOrNeither() {
    VectorLayer layer(makeSimpleRenderer(make<SysDisplay::SimpleFillSymbol>()));
    auto const check = [row = fetched<double, double, bool, double, double>()](auto& limits) {
      auto const [min, max, limited, storedMin, storedMax] = row;
      limits.SetScaleRange(min, max);
      QCOMPARE(limits.GetMinScale() > 0 && limits.GetMaxScale() > 0, limited);
      QCOMPARE(limits.GetMinScale() > 0 || limits.GetMaxScale() > 0, limited);
      QCOMPARE(LayerHost::scales(limits).min, storedMin);
      QCOMPARE(LayerHost::scales(limits).max, storedMax);
      if (limited) QVERIFY(limits.GetMinScale() < 2000 && limits.GetMaxScale() > 2000);
    };
    check(static_cast<Layer&>(layer));
    check(*layer.GetAnnotationProperties());
  }
};

QTEST_MAIN(LayerSettingsTest)
#include "LayerSettingsTest.moc"
