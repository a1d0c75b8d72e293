#include "Boxes.h"
#include "LayerFixture.h"
#include "Symbols.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <SysGeometry/Point.h>

#include <cmath>

using namespace SysCarto;
using namespace SysDisplay;
using SysGeometry::Polygon;

namespace {

using Obstacles = QMap<int, QList<_ptr_t<Polygon>>>;

LabelSettings settings(double sizePt, QString const& priorityField = QString()) {
  LabelSettings result;
  result.visible = true;
  result.field = QStringLiteral("name");
  result.priorityField = priorityField;
  result.symbol = make<TextSymbol>(letters(sizePt));
  return result;
}

struct Placed {
  Obstacles areas;
  QList<_ptr_t<Element>> labels;

  QList<QPolygonF> shapes() const {
    QList<QPolygonF> result;
    for (auto const& list : areas)
      for (auto const& area : list) result << QPolygonF(area->GetRings()[0]);
    return result;
  }
  QStringList texts() const {
    QStringList result;
    for (auto const& label : labels) result << ptr_cast<TextElement>(label)->text();
    return result;
  }
};

Placed placed(VectorLayer& layer, _ptr_t<DisplayTransformation> const& transformation, Obstacles const& before = {}) {
  Placed result{before, {}};
  layer.GetAnnotationElements(result.areas, result.labels, transformation, nullptr);
  return result;
}

double areaOf(QPolygonF const& ring) { return std::abs(SysGeometry::signedArea(ring)); }

// Places that touch do not.
bool overlap(QPolygonF const& a, QPolygonF const& b, double tolerance) {
  QRectF const common = a.intersected(b).boundingRect();
  return std::min(common.width(), common.height()) > tolerance;
}

}  // namespace

class LabelTest : public QObject {
  Q_OBJECT

private slots:
  void labelsKeepTheirPromises_data() {
    Rows<QString, QString, QString, double, int> row;
    row("beside points", "world.gpkg", "cities", "population", 0, 60);
    row("in polygons", "world.gpkg", "countries", "", 0, 10);
    row("beside many points", "aegean.gpkg", "places", "population", 0, 60);
    row("on a map that is turned", "aegean.gpkg", "places", "population", 37, 60);
    row("in polygons that are turned", "world.gpkg", "countries", "", 250, 10);
  }
  void labelsKeepTheirPromises() {
    auto const [file, layer, priorityField, rotation, fewest] = fetched<QString, QString, QString, double, int>();
    auto const data =
        opened({sample(file), layer, {}, {}}, "EPSG:8857", make<SimpleMarkerSymbol>(), settings(6, priorityField));
    QCOMPARE(data.warnings, QStringList());
    auto const transformation = shown(data.features().box(), QSize(900, 500)).transformation();
    auto const middle = transformation->GetFittedBounds()->GetAnchorPoint();
    DisplayTransformationHost::setTurn(*transformation, rotation, {middle->GetX(), middle->GetY()});
    Placed const result = placed(*data.layer, transformation);
    QVERIFY2(result.labels.size() >= fewest, qPrintable(QString::number(result.labels.size())));
    QCOMPARE(result.shapes().size(), result.labels.size());

    QRectF const inside = rectOf(*transformation->GetFittedBounds());
    double const pixel = inside.width() / 900;
    auto const shapes = result.shapes();
    QList<QPolygonF> onPage;
    for (QPolygonF const& shape : shapes) onPage << DisplayTransformationHost::turn(*transformation).map(shape);
    for (int i = 0; i < shapes.size(); ++i) {
      QVERIFY2(inside.contains(onPage[i].boundingRect()), qPrintable(result.texts()[i]));
      for (int j = 0; j < i; ++j) QVERIFY2(!overlap(shapes[i], shapes[j], pixel / 100), qPrintable(result.texts()[i]));
      QVERIFY(areaOf(onPage[i]) > 0.999 * areaOf(onPage[i].boundingRect()));  // upright letters
      QRectF const drawn = rectOf(*result.labels[i]->GetBoundary(transformation)->GetEnvelope());
      QVERIFY(isAbout(shapes[i].boundingRect(), drawn, 2 * pixel));
    }

    Placed const again = placed(*data.layer, transformation);
    QCOMPARE(again.texts(), result.texts());
    QVERIFY(again.shapes() == shapes);
    QCOMPARE(placed(*data.layer, transformation, result.areas).labels.size() < result.labels.size() / 2, true);
  }

  void aLabelLiesWithinItsPolygonOrIsLeftOut_data() {
    Rows<QByteArray, QByteArray, QString> row;
    row("in a square", "[0,0],[90,0],[90,90],[0,90],[0,0]", "Peru", "Peru");
    row("in the wide arm of an L", "[0,0],[90,0],[90,25],[12,25],[12,90],[0,90],[0,0]", "Peru", "Peru");
    row("a name too long for a line", "[0,0],[52,0],[52,90],[0,90],[0,0]", "Papua Guinea", "Papua\nGuinea");
    row("a name that does not fit is left out", "[0,0],[20,0],[20,90],[0,90],[0,0]", "Mauritania", "");
    row("a part that is out of sight does not count", "[-900,20],[80,20],[80,60],[-900,60],[-900,20]", "Peru", "Peru");
  }
  void aLabelLiesWithinItsPolygonOrIsLeftOut() {
    auto const [ring, name, expected] = fetched<QByteArray, QByteArray, QString>();
    QByteArray const polygonJson = R"({"type":"Polygon","coordinates":[[)" + ring + "]]}";
    auto const layer = openedJson(geoJson(polygonJson, name), "", nullptr, settings(9));
    // A pixel is a map unit, and 0.75 points.
    Placed const result = placed(*layer.layer, shown({-5, -5, 95, 95}, QSize(100, 100)).transformation());
    QCOMPARE(result.texts().join('|'), expected);
    QPolygonF polygon;
    for (SysCarto::Part const& part : layer.features().parts)
      for (int i = 0; i < part.count; ++i) polygon << QPointF(part.xy[2 * i], part.xy[2 * i + 1]);
    for (QPolygonF const& shape : result.shapes())
      QVERIFY(qFuzzyIsNull(shape.subtracted(polygon).boundingRect().width()));
  }

  void theMoreImportantPlaceIsNamed() {
    QByteArray const places = R"({"type":"FeatureCollection","features":[
      {"type":"Feature","properties":{"name":"Small","size":1},"geometry":{"type":"Point","coordinates":[50,51]}},
      {"type":"Feature","properties":{"name":"Nameless","size":null},"geometry":{"type":"Point","coordinates":[50,50]}},
      {"type":"Feature","properties":{"name":"Large","size":1000},"geometry":{"type":"Point","coordinates":[50,50]}},
      {"type":"Feature","properties":{"name":null,"size":2000},"geometry":{"type":"Point","coordinates":[50,50]}}]})";
    auto labels = settings(9, "size");
    labels.classes.push_back({500, make<TextSymbol>(letters(14))});
    auto const layer = openedJson(places, "", make<SimpleMarkerSymbol>(), labels);
    Placed const result = placed(*layer.layer, shown({0, 0, 200, 100}, QSize(200, 100)).transformation());
    QCOMPARE(result.texts().value(0), QStringLiteral("Large"));
    QVERIFY(!result.texts().contains("Nameless"));
    auto const label = ptr_cast<TextElement>(result.labels[0]);
    QCOMPARE(label->symbol()->format().size, 14.0);
    QRectF const box = result.shapes()[0].boundingRect();
    QVERIFY2(box.left() > 50 && box.center().y() > 53, "the first choice is at the upper right");
  }

  void aLabelAlongALineStandsUpright_data() {
    Rows<QByteArray, double> row;
    row("rising", "[10,10],[90,90]", 45.0);
    row("drawn from right to left", "[90,90],[10,10]", 45.0);
    row("falling", "[10,90],[90,10]", -45.0);
    row("its straight stretch, not its zigzag",
        "[5,50],[75,50],[77,54],[79,46],[81,54],[83,46],[85,54],[87,46],[89,54],[91,46]", 0.0);
  }
  void aLabelAlongALineStandsUpright() {
    auto const [line, angle] = fetched<QByteArray, double>();
    QByteArray const json = geoJson(R"({"type":"LineString","coordinates":[)" + line + "]}", "Danube");
    auto const layer = openedJson(json, "", make<SimpleLineSymbol>(), settings(8));
    Placed const result = placed(*layer.layer, shown({0, 0, 100, 100}, QSize(100, 100)).transformation());
    QCOMPARE(result.texts(), QStringList{"Danube"});
    QVERIFY(std::abs(ptr_cast<TextElement>(result.labels[0])->angle() - angle) < 1e-6);
  }
};

QTEST_MAIN(LabelTest)
#include "LabelTest.moc"
