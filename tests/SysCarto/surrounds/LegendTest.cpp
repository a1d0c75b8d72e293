#include "LayerFixture.h"
#include "SurroundFixture.h"

#include "host/SysDisplay/SimpleMarkerSymbol.h"

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

Sheet const page{whole, QSize(400, 320), 40 * 2.54 / 96};

QColor colorOf(int number) { return QColor(QColor::fromHsv(number * 37 % 360, 90 + number * 4, 200).rgb()); }

// With a class for each value; an empty label is that of all others.
_ptr_t<VectorLayer> classified(QString const& name, QStringList const& labels) {
  RendererSettings settings;
  settings.kind = RendererSettings::Kind::UniqueValues;
  settings.field = "name";
  for (QString const& label : labels) {
    auto const symbol = fill(colorOf(settings.classes.size()), SysDisplay::SimpleFillStyle::Solid, nullptr);
    if (label.isEmpty())
      settings.others.symbol = symbol;
    else
      settings.classes.push_back({label, {label}, 0, symbol});
  }
  auto const layer = make<VectorLayer>(makeRenderer(settings));
  layer->SetName(name);
  return layer;
}

// From below: a plain layer, two with classes, and a plain one.
_ptr_t<Map> townMap() {
  auto const map = mapOf("", 0, 0, 1000);
  addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
  map->AddLayer(classified("Casings", {"Motorway", "Road"}));
  map->AddLayer(classified("Roads", {"Motorway", "Road", "Track", ""}));
  addLayer(*map, "Towns", make<SysDisplay::SimpleMarkerSymbol>());
  return map;
}

QVector<_ptr_t<TextElement>> textElementsOf(MapSurroundFrame const& frame) {
  QVector<_ptr_t<TextElement>> texts;
  for (auto const& element : frame.GetMapSurround()->GetElements())
    if (auto const text = ptr_cast<TextElement>(element)) texts << text;
  return texts;
}

// The width of a text in points, as Qt measures it.
double widthByFont(QString const& text, SysDisplay::TextFormat const& format) {
  QFont font(format.family);
  font.setPixelSize(1000);
  font.setBold(format.bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return QFontMetricsF(font).horizontalAdvance(text) / 1000 * format.size;
}

// Where a picture has each of its colours but white, in centimetres of paper.
QHash<QRgb, QRectF> placesOfColors(QImage const& picture, double pxPerCm) {
  QImage const image = picture.convertToFormat(QImage::Format_RGB32);
  QHash<QRgb, QRect> pixels;
  for (int y = 0; y < image.height(); ++y) {
    auto const* const row = reinterpret_cast<QRgb const*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if (row[x] != qRgb(255, 255, 255)) pixels[row[x]] |= QRect(x, y, 1, 1);
  }
  QHash<QRgb, QRectF> places;
  for (auto one = pixels.cbegin(); one != pixels.cend(); ++one)
    places[one.key()] = QRectF(QPointF(one->topLeft()) / pxPerCm, QSizeF(one->size()) / pxPerCm);
  return places;
}

}  // namespace

class LegendTest : public QObject {
  Q_OBJECT

private slots:
  void aLegendListsWhatTheMapShows() {
    auto const map = mapOf("", 0, 0, 1000);
    addLayer(*map, "Land", make<SysDisplay::SimpleFillSymbol>());
    addLayer(*map, "Rivers", make<SysDisplay::SimpleLineSymbol>(), "Rivers and streams");
    addLayer(*map, "Towns", make<SysDisplay::SimpleMarkerSymbol>());
    auto const frame = framed<Legend>(map, whole);
    QCOMPARE(textsOf(*frame), QStringList({"Legend", "Towns", "Rivers and streams", "Land"}));
    QMap<int, int> counts;
    for (auto const& element : frame->GetMapSurround()->GetElements()) ++counts[element->GetType()];
    QVERIFY2(counts[1] == 1 && counts[2] == 1 && counts[4] == 1, "a marker, a line and a filled box");
    map->GetLayer(2)->SetVisible(false);
    map->GetLayer(0)->SetScaleRange(0, 50000);
    QCOMPARE(textsOf(*frame), QStringList({"Legend", "Rivers and streams"}));
    QCOMPARE(textsOf(*framed<Legend>(map, whole, "{'title':'','omit':['Rivers']}")), QStringList());
  }

  void itListsWhatItsEntriesSay_data() {
    Rows<QByteArray, QStringList> row;
    QStringList const all{"Towns", "Roads",   "Motorway", "Road", "Track",
                          "Other", "Casings", "Motorway", "Road", "Land"};
    row("no entries: from above", "", all);
    row("what entries name comes first", "'entries':[{'layer':'Land'}]", QStringList("Land") + all.mid(0, 9));
    row("only what entries name", "'others':'omit','entries':[{'layer':'Land'},{'layer':'Towns'}]", {"Land", "Towns"});
    row("what is omitted stays so", "'omit':['Land','Roads','Casings'],'entries':[{'layer':'Land'}]", {"Towns"});
    row("a layer that is gone", "'others':'omit','entries':[{'layer':'Rails'},{'layer':'Land'}]", {"Land"});
    row("texts of one's own, and classes in their order",
        "'others':'omit','entries':[{'layer':'Land','text':'Dry'},{'layer':'Roads','text':'Ways','classes':['Track',"
        "'Motorway']},{'layer':'Casings','omit':['Road']}]",
        {"Dry", "Ways", "Track", "Motorway", "Casings", "Motorway"});
    row("a heading without classes", "'others':'omit','entries':[{'layer':'Roads','classes':['Ferry']}]", {});
    row("one layer twice, and one drawn with it",
        "'omit':['Towns','Land'],'entries':[{'layer':'Roads','classes':['Road'],'with':['Casings']},{'layer':'Roads',"
        "'text':'Paths','classes':['Track']}]",
        {"Roads", "Road", "Paths", "Track"});
  }

  void itListsWhatItsEntriesSay() {
    auto const [settings, texts] = fetched<QByteArray, QStringList>();
    QCOMPARE(textsOf(*framed<Legend>(townMap(), whole,
                                     "{'title':''" + QByteArray(settings.isEmpty() ? "" : ",") + settings + '}')),
             texts);
  }

  void layersOfOneRoadShareAPatch() {
    auto const map = mapOf("", 0, 0, 1000);
    auto const line = [](double width, QColor const& color) {
      return pen(width, SysDisplay::SimpleLineStyle::Solid, SysDisplay::LineCapStyle::Butt,
                 SysDisplay::LineJoinStyle::Miter, color);
    };
    addLayer(*map, "Casing", line(8, Qt::red));
    addLayer(*map, "Road", line(4, Qt::blue));
    QImage const image =
        page.drawn(sceneOf(framed<Legend>(map, whole, "{'title':'','entries':[{'layer':'Road','with':['Casing']}]}")));
    auto const places = placesOfColors(image, 40);
    QVERIFY(isAbout(places[qRgb(255, 0, 0)], QRectF(0, 0.03, 0.7, 0.28), 0.05));
    QVERIFY(isAbout(places[qRgb(0, 0, 255)], QRectF(0, 0.1, 0.7, 0.14), 0.05));
  }

  void onlyWhatLiesOnTheMapIsListed() {
    // The map shows from (−5, −4) to (5, 4).
    std::map<QByteArray, QByteArray> const geometries{
        {"a point", R"({"type":"Point","coordinates":[4,3]})"},
        {"a point beside", R"({"type":"Point","coordinates":[5.1,3]})"},
        {"a line across", R"({"type":"LineString","coordinates":[[-20,-20],[20,20]]})"},
        {"a line past the corner", R"({"type":"LineString","coordinates":[[2,8],[10,0]]})"},
        {"around", R"({"type":"Polygon","coordinates":[[[-9,-9],[9,-9],[9,9],[-9,9],[-9,-9]]]})"},
        {"around, with a hole",
         R"({"type":"Polygon","coordinates":[[[-9,-9],[9,-9],[9,9],[-9,9],[-9,-9]],[[-8,-8],[8,-8],[8,8],[-8,8],[-8,-8]]]})"},
        {"a far part and a near one", R"({"type":"MultiPoint","coordinates":[[90,90],[0,0]]})"},
        {"parts on both sides", R"({"type":"MultiPoint","coordinates":[[-90,-90],[90,90]]})"}};
    QByteArrayList features;
    QStringList labels;
    for (auto const& [name, geometry] : geometries) {
      labels << name;
      features << feature(geometry, name);
    }
    QTemporaryDir const folder;
    QString const file = written(folder, "a.geojson", collection(features));
    auto const layer = classified("Things", labels << QString());
    QStringList warnings;
    QCOMPARE(layer->open({file, {}, {}, {}}, QString(), warnings), QString());
    auto const map = mapOf("", 0, 0, 1);
    map->AddLayer(layer);
    auto const frame = framed<Legend>(map, whole, "{'title':'','onMapOnly':true}");
    QCOMPARE(textsOf(*frame),
             QStringList({"Things", "a far part and a near one", "a line across", "a point", "around"}));
    // A turned map shows the point at (4, 3) where it comes to lie at (4.9, −0.7), and not at (0.7, 4.9).
    MapHost::setRotation(*map, -45);
    QVERIFY(textsOf(*frame).contains("a point"));
    MapHost::setRotation(*map, 45);
    QCOMPARE(textsOf(*frame), QStringList({"Things", "a far part and a near one", "a line across", "around"}));
    MapHost::setRotation(*map, 0);
    map->SetExtent(make<Envelope>(85.0, 86.0, 95.0, 94.0));
    QCOMPARE(textsOf(*frame), QStringList({"Things", "a far part and a near one", "parts on both sides"}));
    map->SetExtent(make<Envelope>(885.0, 886.0, 895.0, 894.0));
    QCOMPARE(textsOf(*frame), QStringList());
  }

  // Squares of 72 and 36 points for 16 and 4 people: nested on one line, or one below the other.
  void markersInProportionAreTold_data() {
    Rows<QByteArray, QStringList, double> row;
    row("nested", "", {"Towns", "16", "4", "none"}, 2.54);
    row("one below the other", ",'legendShape':'rows'", {"Towns", "16", "4", "none"}, 2.54 + 1.27 + 3 * 2.54 / 72);
    row("numbers of one's own", ",'legendValues':[4]", {"Towns", "4", "none"}, 1.27);
    row("round numbers below the largest", ",'legendValues':[]", {"Towns", "15", "4", "0.6", "none"}, 2.46);
  }
  void markersInProportionAreTold() {
    auto const [how, texts, heightCm] = fetched<QByteArray, QStringList, double>();
    QByteArray const numbers = how.contains("legendValues") ? "" : ",'legendValues':[4,16]";
    RendererSettings settings;
    QCOMPARE(SysUtility::readJson(json("{'type':'proportional','field':'n','symbol':{'type':'simpleMarker','style':"
                                       "'square','size':72,'color':'#ff0000'},'defaultLabel':'none','defaultSymbol':"
                                       "{'type':'simpleMarker'}" +
                                       how + numbers + "}"),
                                  settings),
             QString());
    QTemporaryDir const folder;
    QByteArray const town =
        R"({"type":"Feature","properties":{"n":16},"geometry":{"type":"Point","coordinates":[0,0]}})";
    auto const layer = make<VectorLayer>(makeRenderer(settings));
    layer->SetName("Towns");
    QStringList warnings;
    QCOMPARE(layer->open({written(folder, "a.geojson", collection({town})), {}, {}, {}}, QString(), warnings),
             QString());
    auto const map = mapOf("", 0, 0, 1);
    map->AddLayer(layer);
    auto const frame = framed<Legend>(map, whole, "{'title':''}");
    QCOMPARE(textsOf(*frame), texts);
    QRectF const squares = placesOfColors(page.drawn(sceneOf(frame)), 40)[qRgb(255, 0, 0)];
    QVERIFY2(std::abs(squares.height() - heightCm) < 0.06, qPrintable(QString::number(squares.height())));
  }

  void rulesAreTold() {
    RendererSettings settings;
    QByteArray const symbol = "'symbol':{'type':'simpleMarker'}";
    QCOMPARE(SysUtility::readJson(json("{'type':'rules','match':'all','rules':[{'label':'all'," + symbol +
                                       "},{'label':'silent','legend':"
                                       "false," +
                                       symbol + "},{'label':'near','maxScale':10," + symbol + "}]}"),
                                  settings),
             QString());
    QTemporaryDir const folder;
    auto const layer = make<VectorLayer>(makeRenderer(settings));
    layer->SetName("Towns");
    QStringList warnings;
    QByteArray const point = geoJson(R"({"type":"Point","coordinates":[0,0]})");
    QCOMPARE(layer->open({written(folder, "a.geojson", point), {}, {}, {}}, QString(), warnings), QString());
    auto const map = mapOf("", 0, 0, 1);  // at a scale of 1:100
    map->AddLayer(layer);
    QCOMPARE(textsOf(*framed<Legend>(map, whole, "{'title':''}")), QStringList({"Towns", "all", "near"}));
    QCOMPARE(textsOf(*framed<Legend>(map, whole, "{'title':'','onMapOnly':true}")), QStringList({"Towns", "all"}));
  }

  void linesAreNoWiderThanAsked() {
    auto const map = mapOf("", 0, 0, 1000);
    QString const text = "A layer with a long name that is broken into lines at Donaudampfschifffahrtsgesellschaft";
    addLayer(*map, text, make<SysDisplay::SimpleFillSymbol>());
    map->AddLayer(classified(text, {text, "B"}));
    for (double const width : {60.0, 95.0})
      for (auto const& element : textElementsOf(
               *framed<Legend>(map, Envelope(0, 0, 30, 30),
                               "{'title':'" + text.toUtf8() + "','wrap':" + QByteArray::number(width) + '}'))) {
        if (element->text() == "B") continue;
        auto const format = element->symbol()->format();
        QStringList const lines = element->text().split('\n');
        QCOMPARE(lines.join(' '), text);
        for (int i = 0; i < lines.size(); ++i) {
          QVERIFY2(!lines[i].contains(' ') || widthByFont(lines[i], format) <= width + 0.1, qPrintable(lines[i]));
          if (i > 0) QVERIFY(widthByFont(lines[i - 1] + ' ' + lines[i].section(' ', 0, 0), format) > width - 0.5);
        }
      }
  }

  void aLegendFitsItsFrame_data() {
    Rows<int, Envelope, QByteArray, int> row;
    row("one column", 5, Envelope(0, 0, 5, 8), "{}", 1);
    row("two where one is too high", 16, Envelope(0, 2, 10, 8), "{}", 2);
    row("many in a flat frame", 24, Envelope(0, 5, 10, 7), "{}", 5);
    row("smaller in a small one", 24, Envelope(4, 4, 6, 5), "{}", 3);
    row("one, though two would be larger", 16, Envelope(0, 2, 10, 8), "{'columns':1}", 1);
    row("three, though fewer would be as high", 4, Envelope(0, 2, 10, 8), "{'columns':3}", 3);
    row("no more than there are entries", 4, Envelope(0, 2, 10, 8), "{'columns':9}", 4);
    row("forty in three, and broken", 40, Envelope(0, 0, 10, 8), "{'columns':3,'wrap':40}", 3);
  }

  void aLegendFitsItsFrame() {
    auto const [layers, rectangle, settings, columns] = fetched<int, Envelope, QByteArray, int>();
    auto const map = mapOf("", 0, 0, 1000);
    for (int i = 0; i < layers; ++i)
      addLayer(*map, QString(i % 3 == 0 && layers == 40 ? "Layer %1 of a longer name" : "Layer %1").arg(i),
               make<SysDisplay::SimpleFillSymbol>());
    QSet<int> lefts;
    QVector<QRectF> boxes;
    for (auto const& element : framed<Legend>(map, rectangle, settings)->GetMapSurround()->GetElements()) {
      QRectF const box = placeOf(*element);
      QVERIFY(isWithin(box.adjusted(0, 0.04, 0, 0), rectOf(rectangle), 0.01));
      for (QRectF const& other : qAsConst(boxes)) QVERIFY(!other.intersects(box.adjusted(0.01, 0.01, -0.01, -0.01)));
      boxes << box;
      if (element->GetType() == 4) lefts << qRound(box.left() * 100);
    }
    QCOMPARE(lefts.size(), columns);
  }

  void aHeadingStaysWithItsFirstClass() {
    auto const map = mapOf("", 0, 0, 1000);
    for (int i = 0; i < 7; ++i) map->AddLayer(classified(QString("H%1").arg(i), {"a", "b"}));
    auto const texts = textElementsOf(*framed<Legend>(map, whole, "{'title':'','columns':4}"));
    for (int i = 0; i + 1 < texts.size(); ++i)
      if (texts[i]->text().startsWith('H'))
        QVERIFY(placeOf(*texts[i]).top() > placeOf(*texts[i + 1]).top());  // y runs upwards
  }

  // However big the symbols of the map are, and however small the frame.
  void symbolsOfALegendKeepTheirPlace() {
    auto const map = mapOf("", 0, 0, 1000);
    auto const marker = make<SysDisplay::SimpleMarkerSymbol>();
    marker->SetSize(60);
    addLayer(*map, "Layer", pen(30));
    addLayer(*map, "Layer", marker);
    addLayer(*map, "Layer", pen(2));
    addLayer(*map, "Layer", fill(Qt::green, SysDisplay::SimpleFillStyle::Solid, pen(3)));
    for (Envelope const& rectangle : {whole, Envelope(4, 4, 6, 5.5)})
      for (char const* settings : {"{}", "{'lineShape':'zigzag','patchShape':'ellipse','patchWidth':30}",
                                   "{'lineShape':'wave','patchShape':'rounded','patchHeight':25}"}) {
        QVector<QRectF> boxes;
        for (auto const& element : framed<Legend>(map, rectangle, settings)->GetMapSurround()->GetElements()) {
          QRectF const covered = rectOf(*element->GetBoundary(page.transformation())->GetEnvelope());
          QVERIFY(isWithin(covered, rectOf(rectangle), 0.05));
          for (QRectF const& other : qAsConst(boxes))
            QVERIFY(!other.intersects(covered.adjusted(0.06, 0.06, -0.06, -0.06)));
          boxes << covered;
        }
        QCOMPARE(boxes.size(), 9);
      }
  }

  void itHasOneLayoutAtEveryResolution() {
    auto const map = mapOf("", 0, 0, 1000);
    QStringList labels;
    for (int i = 0; i < 40; ++i) labels << QString(i % 3 ? "Class %1" : "Class %1 of a longer name").arg(i);
    map->AddLayer(classified("Classes", labels));
    auto const frame = framed<Legend>(map, whole, "{'columns':3,'wrap':60}");
    auto const drawnAt = [&](int dpi) {  // on a sheet of five by four inches
      return Sheet{Envelope(0, 0, 5 * 2.54, 4 * 2.54), QSize(5, 4) * dpi, dpi / 96.0}.drawn(sceneOf(frame));
    };
    QImage const coarse = drawnAt(72), fine = drawnAt(600);
    double const pixelCm = 2.54 / 72;
    auto const coarsePlaces = placesOfColors(coarse, 72 / 2.54), finePlaces = placesOfColors(fine, 600 / 2.54);
    for (int i = 0; i < labels.size(); ++i) {
      QRgb const color = colorOf(i).rgb();
      QVERIFY(!finePlaces[color].isEmpty());
      QVERIFY(isAbout(coarsePlaces[color], finePlaces[color], 1.01 * pixelCm));
    }
    QVERIFY(isAbout(QRectF(ink(coarse).where),
                    QRectF(QPointF(ink(fine).where.topLeft()) * 0.12, QSizeF(ink(fine).where.size()) * 0.12), 1.5));
  }
};

QTEST_MAIN(LegendTest)
#include "LegendTest.moc"
