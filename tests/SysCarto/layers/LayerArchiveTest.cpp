#include "LayerFixture.h"

#include "host/SysCarto/layers/LayerArchive.h"

#include <QJsonDocument>

using namespace SysCarto;
using SysUtility::Archive;

namespace {

QJsonObject parsed(QByteArray const& json) { return QJsonDocument::fromJson(json).object(); }

QByteArray layerJson(QByteArray const& source, QByteArray const& renderer, QByteArray const& more = QByteArray()) {
  return R"({"name":"Places","renderer":)" + renderer + R"(,"source":)" + source + R"(,"type":"feature")" + more + "}";
}

QByteArray const cities = R"({"file":"world.gpkg","filter":"population > 5000000","layer":"cities"})";
QByteArray const simple = R"({"symbol":{"type":"simpleMarker"},"type":"simple"})";

struct Read {
  _ptr_t<Layer> layer;
  DocumentContext context;
  QString error;
  QStringList unknown;
};

Read read(QByteArray const& json) {
  Read result;
  result.context.folder = sample("");
  auto const map = make<Map>();
  map->SetCoordinateSystem("EPSG:8857");
  Archive archive(parsed(json));
  describeLayer(archive, result.layer, *map, result.context);
  result.error = archive.error();
  result.unknown = archive.warnings();
  return result;
}

QJsonObject stored(Read& read) {
  Archive archive;
  auto const map = make<Map>();
  describeLayer(archive, read.layer, *map, read.context);
  return archive.json();
}

}  // namespace

class LayerArchiveTest : public QObject {
  Q_OBJECT

private slots:
  void aLayerComesBackAsItWas_data() {
    Rows<QByteArray, int> row;
    row("one symbol", layerJson(cities, simple), 0);
    row("limits on one side", layerJson(cities, simple, R"(,"maxScale":50000000,"visible":false)"), 0);
    row("unique values",
        layerJson(
            cities,
            R"({"classes":[{"symbol":{"type":"simpleMarker"},"values":["FR","DE"]},)"
            R"({"label":"Italy","symbol":{"size":9,"type":"simpleMarker"},"values":["IT"]}],)"
            R"("defaultLabel":"Others","defaultSymbol":{"type":"simpleMarker"},"field":"country","type":"uniqueValues"})"),
        0);
    row("graduated",
        layerJson(cities, R"({"classes":[{"label":"small","minimum":0,"symbol":{"type":"simpleMarker"}},)"
                          R"({"label":"large","minimum":10000000,"symbol":{"size":9,"type":"simpleMarker"}}],)"
                          R"("field":"population","type":"graduated"})"),
        0);
    row("labels",
        layerJson(
            cities, simple,
            R"(,"labels":{"classes":[{"minimum":1000000,"symbol":{"size":12,"type":"text"}}],"field":"name","gap":3,)"
            R"("minScale":1000,"priority":5,"priorityField":"population","symbol":{"type":"text"}})"),
        0);
    row("a file that is gone", layerJson(R"({"file":"gone/world.gpkg","layer":"cities"})", simple), 1);
    row("an address", layerJson(R"({"file":"http:\/\/127.0.0.1:1/a.gpkg"})", simple), 1);
    row("a filter that is wrong", layerJson(R"({"file":"world.gpkg","filter":"a >","layer":"cities"})", simple), 1);
  }
  void aLayerComesBackAsItWas() {
    auto const [json, unreadable] = fetched<QByteArray, int>();
    Read result = read(json);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.unknown, QStringList());
    QVERIFY(result.layer);
    QCOMPARE(stored(result), parsed(json));
    QCOMPARE(result.context.unreadableSources, unreadable);
    QCOMPARE(result.context.warnings.size(), unreadable);
    if (unreadable) QVERIFY(result.context.warnings[0].contains("Places"));
    auto const layer = ptr_cast<VectorLayer>(result.layer);
    QCOMPARE(layer->features().size() > 0, unreadable == 0);
  }

  void aWrongFieldIsNamed_data() {
    Rows<QByteArray, QString> row;
    row("another kind of layer", layerJson(cities, simple).replace("\"feature\"", "\"tiles\""), "type");
    row("no source", R"({"name":"a","type":"feature","renderer":)" + simple + "}", "source");
    row("no symbol", layerJson(cities, R"({"type":"simple"})"), "renderer.symbol");
    row("classes that do not ascend",
        layerJson(cities,
                  R"({"type":"graduated","field":"a","classes":[{"minimum":5,"symbol":{"type":"simpleMarker"}},)"
                  R"({"minimum":5,"symbol":{"type":"simpleMarker"}}]})"),
        "renderer.classes[1].minimum");
    row("a value in two classes",
        layerJson(cities,
                  R"({"type":"uniqueValues","field":"a","classes":[{"values":["x"],"symbol":{"type":"simpleMarker"}},)"
                  R"({"values":["x"],"symbol":{"type":"simpleMarker"}}]})"),
        "renderer.classes[1].values");
    row("limits the wrong way round", layerJson(cities, simple, R"(,"minScale":500,"maxScale":100)"), "minScale");
  }
  void aWrongFieldIsNamed() {
    auto const [json, says] = fetched<QByteArray, QString>();
    Read const result = read(json);
    QVERIFY2(result.error.contains(says), qPrintable(result.error));
    QVERIFY(!result.layer);
  }

  void aFieldThatTheDataLackIsReported() {
    Read const result = read(layerJson(
        cities, R"({"classes":[],"defaultSymbol":{"type":"simpleMarker"},"field":"colour","type":"uniqueValues"})"));
    QCOMPARE(result.context.warnings.size(), 1);
    QVERIFY(result.context.warnings[0].contains("“colour”") && result.context.warnings[0].contains("population"));
    QCOMPARE(result.context.unreadableSources, 0);
  }

  void classesDivideTheFeatures() {
    Read const result = read(layerJson(
        R"({"file":"world.gpkg","layer":"cities"})",
        R"({"classes":[{"minimum":1000000,"symbol":{"type":"simpleMarker"}},{"minimum":10000000,"symbol":{"type":"simpleMarker"}}],"field":"population","type":"graduated"})"));
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
    auto const [min, max, limited, storedMin, storedMax] = fetched<double, double, bool, double, double>();
    VectorLayer layer(makeSimpleRenderer(make<SysDisplay::SimpleFillSymbol>()));
    auto const check = [min = min, max = max, limited = limited, storedMin = storedMin,
                        storedMax = storedMax](auto& limits) {
      limits.SetScaleRange(min, max);
      QCOMPARE(limits.GetMinScale() > 0 && limits.GetMaxScale() > 0, limited);
      QCOMPARE(limits.GetMinScale() > 0 || limits.GetMaxScale() > 0, limited);
      QCOMPARE(limits.storedMinScale(), storedMin);
      QCOMPARE(limits.storedMaxScale(), storedMax);
      if (limited) QVERIFY(limits.GetMinScale() < 2000 && limits.GetMaxScale() > 2000);
    };
    check(static_cast<Layer&>(layer));
    check(*layer.GetAnnotationProperties());
  }
};

QTEST_MAIN(LayerArchiveTest)
#include "LayerArchiveTest.moc"
