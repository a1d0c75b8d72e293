#include "LayerFixture.h"

#include "host/SysUtility/JsonFields.h"

#include <cmath>

using namespace SysCarto;

namespace {

// Three towns side by side, ten units apart, and one without numbers between the first two, higher up.
QByteArray towns() {
  auto const town = [](QByteArray const& at, QByteArray const& fields) {
    return R"({"type":"Feature","properties":{)" + fields + R"(},"geometry":{"type":"Point","coordinates":[)" + at +
           "]}}";
  };
  return collection({town("10,5", R"("n":1,"paint":"#00ff00","size":"6","turn":0)"),
                     town("20,5", R"("n":4,"paint":"#ff00ff","size":"9","turn":45)"),
                     town("30,5", R"("n":16,"paint":"lilac","size":"12","turn":90)"),
                     town("15,15", R"("n":null,"paint":null,"size":null,"turn":null)")});
}

QByteArray marker(QByteArray const& color, QByteArray const& size, QByteArray const& style = "circle") {
  return "{'type':'simpleMarker','style':'" + style + "','color':'" + color + "','size':" + size + "}";
}

struct Shown {
  _ptr_t<VectorLayer> layer;
  QStringList warnings;
  QImage image;
  bool tilesDiffer;
};

Sheet const sheet{{0, 0, 40, 20}, QSize(400, 200), 1};

Shown shownBy(QByteArray const& renderer, double scale = 0) {
  RendererSettings settings;
  QString const problem = SysUtility::readJson(json(renderer), settings);
  if (!problem.isEmpty()) qFatal("%s", qPrintable(problem));
  QTemporaryDir const folder;
  Shown shown{make<VectorLayer>(makeRenderer(settings)), {}, {}, false};
  QString const error = shown.layer->open({written(folder, "a.geojson", towns()), {}, {}, {}}, {}, shown.warnings);
  if (!error.isEmpty()) qFatal("%s", qPrintable(error));
  Scene const scene = [&](QPainter& painter, Transformation const& transformation) {
    SysDisplay::DisplayTransformationHost::setMapScale(*transformation, scale);
    shown.layer->Draw(painter, transformation, 1, nullptr);
  };
  shown.image = sheet.drawn(scene);
  shown.tilesDiffer = difference(shown.image, sheet.drawnInTiles(scene, 37)).pixels > 0;
  return shown;
}

// The colour of each town, and how wide it is in pixels; a dash for one that is not drawn.
QString seen(QImage const& image) {
  QStringList towns;
  for (QPoint const& at : {QPoint(100, 150), QPoint(200, 150), QPoint(300, 150), QPoint(150, 50)}) {
    double width = 0;  // with parts of pixels
    for (int x = at.x() - 40; x < at.x() + 40; ++x) {
      QColor const color = image.pixelColor(x, at.y());
      width += 1 - std::min({color.red(), color.green(), color.blue()}) / 255.0;
    }
    towns << (width == 0 ? QString("-") : image.pixelColor(at).name() + ' ' + QString::number(std::round(width)));
  }
  return towns.join(", ");
}

}  // namespace

class RendererTest : public QObject {
  Q_OBJECT

private slots:
  void featuresAreDrawnByTheirRules_data() {
    Rows<QByteArray, double, QString> row;
    QByteArray const blue = marker("#0000ff", "15"), red = marker("#ff0000", "7.5");
    QByteArray const first = "{'type':'rules','rules':[", all = "{'type':'rules','match':'all','rules':[";
    QByteArray const large = "{'filter':'n >= 4','symbol':" + red, any = "{'symbol':" + blue + "}";
    row("the first that fits", first + large + "}," + any + "]}", 0, "#0000ff 20, #ff0000 10, #ff0000 10, #0000ff 20");
    row("all that fit, the later ones above", all + any + "," + large + "}]}", 0,
        "#0000ff 20, #ff0000 20, #ff0000 20, #0000ff 20");
    row("the next one where the first does not draw at the scale", first + large + ",'maxScale':5000}," + any + "]}",
        10000, "#0000ff 20, #0000ff 20, #0000ff 20, #0000ff 20");
    row("and the first where it does", first + large + ",'maxScale':5000}," + any + "]}", 1000,
        "#0000ff 20, #ff0000 10, #ff0000 10, #0000ff 20");
    row("none draws at the scale", all + large + ",'minScale':5000}]}", 1000, "-, -, -, -");
    row("what fits no rule", first + large + "}],'defaultSymbol':" + marker("#00ff00", "15") + "}", 0,
        "#00ff00 20, #ff0000 10, #ff0000 10, #00ff00 20");
    row("a condition that is not understood", first + "{'filter':'n >','symbol':" + red + "}," + any + "]}", 0,
        "#0000ff 20, #0000ff 20, #0000ff 20, #0000ff 20");
  }
  void featuresAreDrawnByTheirRules() {
    auto const [renderer, scale, expected] = fetched<QByteArray, double, QString>();
    Shown const shown = shownBy(renderer, scale);
    QCOMPARE(seen(shown.image), expected);
    QVERIFY(!shown.tilesDiffer);
    bool const isWrong = renderer.contains("'n >'");
    QCOMPARE(shown.warnings.size(), isWrong ? 1 : 0);
    if (isWrong) QVERIFY(shown.warnings[0].contains("“n >”") && shown.warnings[0].contains("rule 1"));
  }

  // Of 1, 4 and 16 people; 15 points are 20 pixels.
  void markersGrowInProportion_data() {
    Rows<QByteArray, QString> row;
    QByteArray const start = "{'type':'proportional','field':'n','symbol':" + marker("#0000ff", "30", "square");
    row("by area, to the largest", start + "}", "#0000ff 10, #0000ff 20, #0000ff 40, -");
    row("by diameter, from a reference", start + ",'scaling':'diameter','reference':32}",
        "#8b8bff 1, #0000ff 5, #0000ff 20, -");
    row("by area as it is seen", start + ",'scaling':'flannery'}", "#0000ff 8, #0000ff 18, #0000ff 40, -");
    row("none below the smallest", start + ",'smallest':15}", "#0000ff 20, #0000ff 20, #0000ff 40, -");
    row("with a symbol for what has no number", start + ",'defaultSymbol':" + marker("#ff0000", "15") + "}",
        "#0000ff 10, #0000ff 20, #0000ff 40, #ff0000 20");
  }
  void markersGrowInProportion() {
    auto const [renderer, expected] = fetched<QByteArray, QString>();
    Shown const shown = shownBy(renderer);
    QCOMPARE(seen(shown.image), expected);
    QVERIFY(!shown.tilesDiffer);
  }

  // Markers so large that they overlap: the small ones lie above.
  void smallMarkersLieAboveLargeOnes() {
    Shown const shown = shownBy(
        "{'type':'proportional','field':'n','symbol':{'type':'simpleMarker','size':150,'color':'#0000ff',"
        "'outlineColor':'#ff0000','outlineWidth':1}}");
    QColor const top = shown.image.pixelColor(200, 150 - 50);
    QVERIFY(top.red() > 120);
    QVERIFY(!shown.tilesDiffer);
  }

  // In the larger part of an area with a hole, and on a line.
  void areasAndLinesAreMarkedOnce() {
    auto const thing = [](QByteArray const& n, QByteArray const& geometry) {
      return R"({"type":"Feature","properties":{"n":)" + n + R"(},"geometry":)" + geometry + "}";
    };
    QByteArray const area = R"({"type":"MultiPolygon","coordinates":[[[[0,0],[1,0],[1,1],[0,1],[0,0]]],)"
                            R"([[[10,2],[18,2],[18,8],[10,8],[10,2]],[[13,3],[15,3],[15,7],[13,7],[13,3]]]]})";
    QByteArray const line = R"({"type":"LineString","coordinates":[[22,5],[30,5],[38,5]]})";
    RendererSettings settings;
    QCOMPARE(SysUtility::readJson(json("{'type':'proportional','field':'n','symbol':" + marker("#0000ff", "9") + "}"),
                                  settings),
             QString());
    QTemporaryDir const folder;
    VectorLayer layer(makeRenderer(settings));
    QStringList warnings;
    QByteArray const file = collection({thing("1", area), thing("1", line)});
    QCOMPARE(layer.open({written(folder, "a.geojson", file), {}, {}, {}}, {}, warnings), QString());
    auto const& store = layer.features();
    QCOMPARE(store.parts.size(), size_t(2));
    Box const inArea = store.parts[0].box, onLine = store.parts[1].box;
    bool const isInside = inArea.xmin > 10 && inArea.xmin < 18 && inArea.ymin > 2 && inArea.ymin < 8;
    bool const isInHole = inArea.xmin > 13 && inArea.xmin < 15 && inArea.ymin > 3 && inArea.ymin < 7;
    QVERIFY(isInside && !isInHole);
    QVERIFY(onLine.xmin == 30 && onLine.ymin == 5 && store.parts[1].kind == PartKind::Point);
  }

  void symbolsFollowTheAttributes_data() {
    Rows<QByteArray, QString, QString> row;
    auto const by = [](QByteArray const& fields, QByteArray const& style = "square") {
      return "{'type':'simple','symbol':" + marker("#0000ff", "15", style) + "," + fields + "}";
    };
    row("a size from a field of texts", by("'sizeBy':'size'"), "#0000ff 8, #0000ff 12, #0000ff 16, #0000ff 20", "");
    row("a size from an expression", by("'sizeBy':'3 + n * 1.5'"), "#0000ff 6, #0000ff 12, #0000ff 36, #0000ff 20", "");
    row("a colour that is one", by("'colorBy':'paint'"), "#00ff00 20, #ff00ff 20, #0000ff 20, #0000ff 20", "");
    row("a colour for all", by("'colorBy':'\\'#ff0000\\''"), "#ff0000 20, #ff0000 20, #ff0000 20, #ff0000 20", "");
    row("an angle", by("'angleBy':'turn'"), "#0000ff 20, #0000ff 27, #0000ff 20, #0000ff 20", "");
    row("a field that is not there", by("'sizeBy':'people * 2'"), "#0000ff 20, #0000ff 20, #0000ff 20, #0000ff 20",
        "people");
    row("a function of a database", by("'sizeBy':'sqlite_version()'"), "#0000ff 20, #0000ff 20, #0000ff 20, #0000ff 20",
        "sqlite_version");
    row("a query", by("'sizeBy':'(SELECT 3)'"), "#0000ff 20, #0000ff 20, #0000ff 20, #0000ff 20", "SELECT");
  }
  void symbolsFollowTheAttributes() {
    auto const [renderer, expected, says] = fetched<QByteArray, QString, QString>();
    Shown const shown = shownBy(QByteArray(renderer).replace("\\'", "\\u0027"));
    QCOMPARE(seen(shown.image), expected);
    QVERIFY(!shown.tilesDiffer);
    QCOMPARE(shown.warnings.size(), says.isEmpty() ? 0 : 1);
    if (!says.isEmpty()) QVERIFY2(shown.warnings[0].contains(says), qPrintable(shown.warnings[0]));
  }

  // Reading on several threads puts sets of rules and values together; each feature keeps its own.
  void manyFeaturesKeepTheirRulesAndValues() {
    QByteArrayList features;
    for (int i = 0; i < 20000; ++i)
      features << R"({"type":"Feature","properties":{"n":)" + QByteArray::number(i) +
                      R"(},"geometry":{"type":"Point","coordinates":[)" + QByteArray::number(i) + ",0]}}";
    RendererSettings settings;
    QString const problem = SysUtility::readJson(
        json("{'type':'rules','match':'all','rules':[{'filter':'n < 15000','symbol':" + marker("#0000ff", "3") +
             ",'sizeBy':'n / 1000'},{'filter':'n > 10000','symbol':" + marker("#ff0000", "3") + "}]}"),
        settings);
    QCOMPARE(problem, QString());
    QTemporaryDir const folder;
    VectorLayer layer(makeRenderer(settings));
    QStringList warnings;
    QCOMPARE(layer.open({written(folder, "a.geojson", collection(features)), {}, {}, {}}, {}, warnings), QString());
    auto const& store = layer.features();
    QCOMPARE(store.size(), 20000);
    QCOMPARE(store.classSets.size(), size_t(3));
    for (int i = 0; i < store.size(); ++i) {
      double const n = store.features[i].box.xmin;
      std::vector<int> const fitting = n <= 10000  ? std::vector<int>{0}
                                       : n < 15000 ? std::vector<int>{0, 1}
                                                   : std::vector<int>{1};
      QCOMPARE(store.classSets[store.features[i].symbolClass], fitting);
      QVERIFY(std::abs(store.value(i, 0) - std::floor(n / 1000)) < 1.0);
    }
  }
};

QTEST_MAIN(RendererTest)
#include "RendererTest.moc"
