#include "Boxes.h"
#include "LayerFixture.h"
#include "Symbols.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <SysCarto/Map.h>
#include <SysGeometry/Point.h>

#include <algorithm>
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

// As a view asks, that waits for nothing.
Placed placedInMoments(VectorLayer& layer, _ptr_t<DisplayTransformation> const& transformation) {
  for (;;) {
    WithoutWaiting const meanwhile;
    Placed const result = placed(layer, transformation);
    if (!meanwhile.hasMoreToDo) return result;
  }
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
    _ptr_t<SysDisplay::Symbol> symbol = make<SimpleMarkerSymbol>();
    if (layer == "countries") symbol = make<SimpleFillSymbol>();
    auto const data = opened({sample(file), layer, {}, {}}, "EPSG:8857", symbol, settings(6, priorityField));
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

    Placed const again = placedInMoments(*data.layer, transformation);
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
    auto const layer = openedJson(geoJson(polygonJson, name), "", make<SimpleFillSymbol>(), settings(9));
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

  void aNameMayReachAcrossTheBorderOfItsArea_data() {
    Rows<QByteArray, QString> row;
    row("where much of it lies within", "[30,0],[60,0],[60,90],[30,90],[30,0]", "Bolivia");
    row("not where most of it would lie outside", "[40,0],[48,0],[48,90],[40,90],[40,0]", "");
  }
  void aNameMayReachAcrossTheBorderOfItsArea() {
    auto const [ring, expected] = fetched<QByteArray, QString>();
    QByteArray const polygonJson = R"({"type":"Polygon","coordinates":[[)" + ring + "]]}";
    auto labels = settings(9);
    labels.areaPlace = AreaPlace::Across;
    auto const layer = openedJson(geoJson(polygonJson, "Bolivia"), "", make<SimpleFillSymbol>(), labels);
    auto const page = shown({-5, -5, 95, 95}, QSize(100, 100)).transformation();
    QCOMPARE(placed(*layer.layer, page).texts().join('|'), expected);
    layer.layer->setLabelSettings(settings(9));
    QCOMPARE(placed(*layer.layer, page).texts(), QStringList());
  }

  // An area that bends: its lower left end is at (0, 0), its upper right one at (200, 100), and it bulges upwards.
  void aNameFollowsItsArea_data() {
    Rows<AreaText, double, double> row;
    row("level, where it is not told otherwise", AreaText::Level, 0, 0);
    row("along it", AreaText::Curved, 10, 30);
    row("spread over it", AreaText::Spread, 60, 200);
  }
  void aNameFollowsItsArea() {
    auto const [text, leastApart, mostApart] = fetched<AreaText, double, double>();
    QStringList upper, lower;
    for (int i = 0; i <= 20; ++i) {
      double const x = 10 * i, y = x / 2 + 30 * (1 - (x - 100) * (x - 100) / 10000);
      upper << QStringLiteral("[%1,%2]").arg(x).arg(y + 14);
      lower.prepend(QStringLiteral("[%1,%2]").arg(x).arg(y - 14));
    }
    QByteArray const ring = (upper + lower + upper.mid(0, 1)).join(',').toUtf8();
    auto labels = settings(9);
    labels.areaText = text;
    auto const layer = openedJson(geoJson(R"({"type":"Polygon","coordinates":[[)" + ring + "]]}", "P ru"), "",
                                  make<SimpleFillSymbol>(), labels);
    Placed const result = placed(*layer.layer, shown({-20, -40, 220, 160}, QSize(240, 200)).transformation());
    if (mostApart == 0) {
      QVERIFY(result.texts().isEmpty() || result.texts() == QStringList{"P ru"});
      return;
    }
    QCOMPARE(result.texts(), (QStringList{"P", "r", "u"}));
    QPolygonF polygon;
    for (SysCarto::Part const& part : layer.features().parts)
      for (int i = 0; i < part.count; ++i) polygon << QPointF(part.xy[2 * i], part.xy[2 * i + 1]);
    for (PlacedLabel const& piece : layer.layer->placedLabels())
      QVERIFY(piece.name == "P ru" && piece.label == layer.layer->placedLabels()[0].label);
    double last = 90;
    for (int i = 0; i < result.labels.size(); ++i) {
      QVERIFY(qFuzzyIsNull(result.shapes()[i].subtracted(polygon).boundingRect().width()));
      double const angle = ptr_cast<TextElement>(result.labels[i])->angle();
      QVERIFY2(angle < last && angle > 0, qPrintable(QString::number(angle)));
      last = angle;
    }
    auto const middle = [&](int letter) { return result.shapes()[letter].boundingRect().center(); };
    double const apart = QLineF(middle(0), middle(2)).length();
    QVERIFY2(apart > leastApart && apart < mostApart, qPrintable(QString::number(apart)));
    // A blank takes part.
    if (text == AreaText::Spread)
      QVERIFY(QLineF(middle(0), middle(1)).length() > 1.6 * QLineF(middle(1), middle(2)).length());
  }

  void aLessImportantLabelMakesRoom() {
    auto labels = settings(9);
    labels.places = QStringList{"left"};
    auto const upper = openedJson(geoJson(R"({"type":"Point","coordinates":[150,50]})", "Upper"), "",
                                  make<SimpleMarkerSymbol>(), labels);
    labels.places = QStringList{"right", "left"};
    auto const lower = openedJson(geoJson(R"({"type":"Point","coordinates":[100,50]})", "Lower"), "",
                                  make<SimpleMarkerSymbol>(), labels);
    auto const map = make<Map>();
    map->AddLayer(upper.layer);
    map->AddLayer(lower.layer);
    auto const page = shown({0, 0, 200, 100}, QSize(200, 100)).transformation();
    auto const isRight = [&](Placed const& result) { return result.shapes().last().boundingRect().left() > 100; };
    Placed const first = placed(*upper.layer, page);
    Placed const both = placed(*lower.layer, page, first.areas);
    QCOMPARE(first.texts() + both.texts(), (QStringList{"Upper", "Lower"}));
    QVERIFY(!isRight(both) && !overlap(both.shapes()[0], both.shapes()[1], 0.01));

    Placed none;
    auto const cancel = make<SysUI::TrackerCancel>();
    cancel->Cancel();
    upper.layer->GetAnnotationElements(none.areas, none.labels, page, cancel);
    QVERIFY(none.labels.isEmpty());
    QVERIFY(placed(*lower.layer, page, placed(*upper.layer, page).areas).shapes() == both.shapes());

    placed(*upper.layer, page);
    QVERIFY(isRight(placed(*lower.layer, page)));  // asked alone, with nothing in its way
    placed(*upper.layer, page);
    labels.places = QStringList{"right"};
    lower.layer->setLabelSettings(labels);
    QVERIFY(placed(*lower.layer, page, first.areas).labels.isEmpty());  // what was planned before is not so any more
  }

  void aTextIsMadeOfWhatAFeatureHas_data() {
    Rows<QString, QString, bool, QString, QString> row;
    row("the attribute", "", "", false, "Rhine|Elbe", "");
    row("in a language, where there is a name in it", "", "de", false, "Rhein|Elbe", "");
    row("in another way of naming such attributes", "", "fr", false, "Rhin|Elbe", "");
    row("an expression, where it has a value", "concat(name, ' ', note)", "", false, "Rhine big|Elbe ", "");
    row("an expression that is a number", "length * 2", "", false, "2467|Elbe", "");
    row("a number as it is read", "length * 1000", "", true, "1,233,500|Elbe", "");
    row("an expression that is none", "name +", "", false, "Rhine|Elbe", "name +");
  }
  void aTextIsMadeOfWhatAFeatureHas() {
    auto const [expression, language, groups, expected, told] = fetched<QString, QString, bool, QString, QString>();
    QByteArray const json = collection(
        {R"({"type":"Feature","properties":{"name":"Rhine","name:de":"Rhein","name_fr":"Rhin","note":"big","length":1233.5},
             "geometry":{"type":"Point","coordinates":[50,25]}})",
         R"({"type":"Feature","properties":{"name":"Elbe","name:de":null,"note":"","length":null},
             "geometry":{"type":"Point","coordinates":[50,75]}})"});
    auto labels = settings(8);
    labels.expression = expression;
    labels.language = language;
    labels.groupsNumbers = groups;
    auto const layer = openedJson(json, "", make<SimpleMarkerSymbol>(), labels);
    QCOMPARE(placed(*layer.layer, shown({0, 0, 300, 100}, QSize(300, 100)).transformation()).texts().join('|'),
             expected);
    QVERIFY(told.isEmpty() ? layer.warnings.isEmpty() : layer.warnings.value(0).contains(told));
  }

  void aLabelStandsWhereItIsAskedTo() {
    QByteArray const json = geoJson(R"({"type":"Point","coordinates":[100,50]})", "Long Name");
    auto labels = settings(9);
    QStringList names;
    for (PointPlace const& place : pointPlaces) {
      labels.places = QStringList{place.name};
      labels.offsetPt = 6;  // 8 map units
      auto const layer = openedJson(json, "", make<SimpleMarkerSymbol>(), labels);
      Placed const result = placed(*layer.layer, shown({0, 0, 200, 100}, QSize(200, 100)).transformation());
      QCOMPARE(result.labels.size(), 1);
      QRectF const box = result.shapes()[0].boundingRect();
      auto const side = [](double low, double high, double at) { return low > at + 8 ? 1 : high < at - 8 ? -1 : 0; };
      QCOMPARE(side(box.left(), box.right(), 100), place.across);
      if (place.across == 0) QCOMPARE(side(box.top(), box.bottom(), 50), place.up);
    }
    labels.places = QStringList{"right"};
    labels.wrapPt = 30;
    auto const layer = openedJson(json, "", make<SimpleMarkerSymbol>(), labels);
    QCOMPARE(placed(*layer.layer, shown({0, 0, 200, 100}, QSize(200, 100)).transformation()).texts(),
             QStringList{"Long\nName"});
    QVERIFY(placed(*layer.layer, shown({0, 0, 120, 100}, QSize(120, 100)).transformation()).labels.isEmpty());
    QCOMPARE(layer.layer->labelCount().wanted, 1);
    QCOMPARE(ptr_cast<TextElement>(layer.layer->unplacedLabels().value(0))->text(), QStringLiteral("Long Name"));
  }

  void aLineIsLabelledAsItIsAskedTo_data() {
    Rows<LinePlace, double, double, int> row;
    row("above", LinePlace::Above, 0, 0, 1);
    row("on the line", LinePlace::On, 0, 0, 1);
    row("curved, letter by letter", LinePlace::Curved, 0, 0, 6);
    row("again and again", LinePlace::Above, 3, 0, 5);
    row("level, again and again", LinePlace::Level, 3, 0, 5);
    row("not where it is shorter than asked", LinePlace::Above, 0, 20, 0);
  }
  void aLineIsLabelledAsItIsAskedTo() {
    auto const [place, repeatCm, minSizeCm, count] = fetched<LinePlace, double, double, int>();
    // Half a circle of 200 units, 5.3 cm, from right to left; 16.6 cm are drawn.
    QByteArray points;
    for (int i = 0; i <= 90; ++i)
      points += (i ? ",[" : "[") + QByteArray::number(210 + 200 * std::cos(i * M_PI / 90)) + "," +
                QByteArray::number(10 + 200 * std::sin(i * M_PI / 90)) + "]";
    auto labels = settings(12);
    labels.linePlace = place;
    labels.repeatCm = repeatCm;
    labels.minSizeCm = minSizeCm;
    auto const layer = openedJson(geoJson(R"({"type":"LineString","coordinates":[)" + points + "]}", "Danube"), "",
                                  make<SimpleLineSymbol>(), labels);
    Placed const result = placed(*layer.layer, shown({-40, 0, 460, 260}, QSize(500, 260)).transformation());
    QCOMPARE(result.labels.size(), count);
    QCOMPARE(layer.layer->labelCount().wanted, count > 0 ? 1 : 0);
    QPointF before;
    for (auto const& label : result.labels) {
      auto const text = ptr_cast<TextElement>(label);
      QPointF const at = QPointF(rectOf(*text->GetGeometry()->GetEnvelope()).topLeft()) - QPointF(210, 10);
      double const across = std::hypot(at.x(), at.y());
      bool const isOn = place == LinePlace::On || place == LinePlace::Level;
      QVERIFY2(isOn ? std::abs(across - 200) < 4 : across > 206 && across < 225, qPrintable(QString::number(across)));
      double const turned = place == LinePlace::Level ? 0 : std::atan2(at.y(), at.x()) * 180 / M_PI - 90;
      QVERIFY(std::abs(std::remainder(text->angle() - turned, 360)) < 2);
      if (repeatCm > 0 && !before.isNull()) QVERIFY(std::hypot(at.x() - before.x(), at.y() - before.y()) > 113);
      QVERIFY(place != LinePlace::Curved || before.isNull() || at.x() > before.x());
      before = at;
    }
  }

  void aNameThatDoesNotFitStandsBesideItsArea() {
    QByteArray const json =
        geoJson(R"({"type":"Polygon","coordinates":[[[90,40],[104,40],[104,54],[90,54],[90,40]]]})", "Liechtenstein");
    auto labels = settings(9);
    labels.areaPlace = AreaPlace::Outside;
    auto const layer = openedJson(json, "", make<SimpleFillSymbol>(), labels);
    Placed const result = placed(*layer.layer, shown({0, 0, 200, 100}, QSize(200, 100)).transformation());
    QCOMPARE(result.labels.size(), 2);
    QCOMPARE(result.labels[0]->GetType(), int(ElementType::Line));
    QRectF const area(90, 40, 14, 14), text = result.shapes()[1].boundingRect();
    QRectF const leader = rectOf(*result.labels[0]->GetEnvelope());
    QVERIFY(!text.intersects(area));
    QVERIFY(leader.intersects(area) && text.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).intersects(leader));
    QCOMPARE(layer.layer->labelCount().placed, 1);
  }

  void aPinnedLabelStandsWhereItWasPut() {
    QByteArray const json = collection({feature(R"({"type":"Point","coordinates":[30,30]})", "Far"),
                                        feature(R"({"type":"Point","coordinates":[100,50]})", "Near"),
                                        feature(R"({"type":"Point","coordinates":[160,80]})", "None"),
                                        feature(R"({"type":"Point","coordinates":[70,62]})", "Other")});
    auto labels = settings(9);
    labels.keyField = "name";
    labels.pinned = {{"Near", 105, 62, 30, false}, {"None", 0, 0, 0, true}, {"Far", 30, 90, 0, false}};
    auto const layer = openedJson(json, "", make<SimpleMarkerSymbol>(), labels);
    Placed const result = placed(*layer.layer, shown({0, 0, 200, 100}, QSize(200, 100)).transformation());
    QCOMPARE(result.labels.size(), 4);  // a leader among them
    QCOMPARE(result.labels[0]->GetType(), int(ElementType::Line));
    QVERIFY(rectOf(*result.labels[0]->GetEnvelope()).adjusted(-1, 0, 1, 0).contains(QPointF(30, 50)));
    QStringList texts;
    for (auto const& placedLabel : layer.layer->placedLabels()) {
      texts << placedLabel.text;
      QPointF const middle = QPolygonF(placedLabel.area).boundingRect().center();
      if (placedLabel.key == "Near") QVERIFY(QLineF(middle, {105, 62}).length() < 1e-6 && placedLabel.angle == 30);
    }
    QCOMPARE(texts, (QStringList{"Far", "Near", "Other"}));
    auto const shapes = result.shapes();
    QVERIFY(!overlap(shapes[2], shapes[3], 0.01));  // what is placed keeps off what is pinned
  }

  void labelsKeepOffOtherLayers_data() {
    Rows<LabelObstacle, int> row;
    row("which they cover otherwise", LabelObstacle::None, 1);
    row("that are a wall around the point", LabelObstacle::Marks, 1);
    row("that are an area around the point", LabelObstacle::Areas, 0);
  }
  void labelsKeepOffOtherLayers() {
    auto const [obstacle, count] = fetched<LabelObstacle, int>();
    auto labels = settings(9);
    labels.places = QStringList{"right", "left"};
    auto const points = openedJson(geoJson(R"({"type":"Point","coordinates":[100,50]})", "Peru"), "",
                                   make<SimpleMarkerSymbol>(), labels);
    auto const wall =
        openedJson(geoJson(R"({"type":"Polygon","coordinates":[[[10,10],[120,10],[120,90],[10,90],[10,10]]]})"), "",
                   make<SimpleFillSymbol>());
    wall.layer->setObstacle(obstacle);
    auto map = make<Map>();
    map->AddLayer(wall.layer);
    map->AddLayer(points.layer);
    auto const page = shown({0, 0, 200, 100}, QSize(200, 100)).transformation();
    Placed const result = placed(*points.layer, page);
    QCOMPARE(result.labels.size(), count);
    if (count > 0) QCOMPARE(result.shapes()[0].boundingRect().left() > 100, obstacle == LabelObstacle::None);
    map = nullptr;  // what is in no map has nothing to keep off
    QCOMPARE(placed(*points.layer, page).labels.size(), 1);
  }
};

QTEST_MAIN(LabelTest)
#include "LabelTest.moc"
