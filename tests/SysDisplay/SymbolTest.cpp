#include "Pictures.h"
#include "StoredSymbols.h"

#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/LayeredSymbol.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"
#include "host/SysDisplay/TextShaper.h"

#include <SysGeometry/Polygon.h>
#include <SysGeometry/Polyline.h>

#include <cmath>

using namespace SysDisplay;
using namespace SysGeometry;

namespace {

// A canvas of 200 × 200 pixels on which a world unit is a pixel and y runs upwards; its upper left corner is (0, 200).
class Canvas {
public:
  explicit Canvas(double pixelsPerPoint = 1.0)
      : transformation_(Sheet{Envelope(0, 0, 200, 200), QSize(200, 200), pixelsPerPoint * 72 / 96}.transformation()) {}

  Canvas& draw(Symbol const& symbol, _ptr_t<Geometry> const& geometry) {
    QPainter painter(&image_);
    symbol.Draw(painter, transformation_, geometry);
    return *this;
  }

  Transformation const& transformation() const { return transformation_; }
  QImage& image() { return image_; }

  bool isInk(int x, int y) const { return qGray(image_.pixel(x, y)) < 128; }

  QRect covered() const { return ink(image_).where; }

private:
  QImage image_ = canvas({200, 200});
  Transformation transformation_;
};

_ptr_t<Polyline> polyline(QVector<QPointF> points) { return make<Polyline>(std::move(points)); }

QRect aligned(_ptr_t<Envelope> const& e) {  // world rectangle to pixels
  return QRectF(QPointF(e->GetXMin(), 200 - e->GetYMax()), QPointF(e->GetXMax(), 200 - e->GetYMin())).toAlignedRect();
}

}  // namespace

class SymbolTest : public QObject {
  Q_OBJECT

private slots:
  void dashesStandWhereTheirLengthsSay_data() {
    // starts: ink and gap in turn, in pixels from the line's beginning
    Rows<_ptr_t<Symbol>, QVector<int>> row;
    row("dash", pen(4, SimpleLineStyle::Dash, LineCapStyle::Butt), {0, 16, 24, 40, 48, 64});
    row("dot", pen(4, SimpleLineStyle::Dot, LineCapStyle::Butt), {0, 4, 12, 16, 24, 28});
    row("dash and dot", pen(4, SimpleLineStyle::DashDot, LineCapStyle::Butt), {0, 16, 24, 28, 36, 52});
    row("dash and two dots", pen(4, SimpleLineStyle::DashDotDot, LineCapStyle::Butt), {0, 16, 24, 28, 36, 40, 48, 64});
    row("caps leave the rhythm", pen(4, SimpleLineStyle::Dash, LineCapStyle::Square), {-2, 14, 22, 38, 46, 62});
    auto const own = storedSymbol("{'type':'dashLine','pattern':[10,5,3],'start':12,'width':4,'cap':'butt'}");
    row("an odd count of lengths, from within", own, {3, 6, 16, 21, 24, 34, 39, 42});
  }
  void dashesStandWhereTheirLengthsSay() {
    auto const [symbol, starts] = fetched<_ptr_t<Symbol>, QVector<int>>();
    Canvas canvas;
    // With a corner at 50 pixels, over which the pattern goes on.
    auto const line = polyline({{20, 100}, {70, 100}, {70, 20}});
    canvas.draw(*symbol, line);
    for (int i = 0; i + 1 < starts.size(); ++i) {
      int const middle = (starts[i] + starts[i + 1]) / 2;
      QPoint const pixel = middle < 50 ? QPoint(20 + middle, 100) : QPoint(70, 100 + middle - 50);
      QVERIFY2(canvas.isInk(pixel.x(), pixel.y()) == (i % 2 == 0), qPrintable(QString::number(middle)));
    }
  }

  void hatchesRunAsNamed_data() {
    Rows<SimpleFillStyle, QPoint> row;
    row("horizontal", SimpleFillStyle::Horizontal, QPoint(1, 0));
    row("vertical", SimpleFillStyle::Vertical, QPoint(0, 1));
    row("forward diagonal rises to the left", SimpleFillStyle::ForwardDiagonal, QPoint(1, 1));
    row("backward diagonal rises to the right", SimpleFillStyle::BackwardDiagonal, QPoint(1, -1));
  }
  void hatchesRunAsNamed() {
    auto const [style, along] = fetched<SimpleFillStyle, QPoint>();
    SimpleFillSymbol fill;
    fill.SetStyle(style);
    fill.SetColor(Qt::black);
    Canvas canvas(5);  // lines 20 pixels apart, 2 wide
    canvas.draw(fill, make<Envelope>(20, 20, 180, 180));
    QPoint const across(along.y(), -along.x());
    int same = 0, other = 0;
    for (int y = 60; y < 140; ++y)
      for (int x = 60; x < 140; ++x) {
        if (!canvas.isInk(x, y)) continue;
        same += canvas.isInk(x + 5 * along.x(), y + 5 * along.y());
        other += canvas.isInk(x + 5 * across.x(), y + 5 * across.y());
      }
    QVERIFY(same > 300);
    QCOMPARE(other, 0);
    QVERIFY(QRect(18, 18, 164, 164).contains(canvas.covered()));
  }

  void offsetLiesLeftOfTheDirection() {
    auto const symbol = pen(2);
    symbol->SetOffset(10);
    Canvas canvas;
    canvas.draw(*symbol, polyline({{50, 100}, {150, 100}}));  // eastwards, so that left is up
    QCOMPARE(canvas.covered(), QRect(50, 89, 100, 2));
  }

  void sizesFollowThePageScaleAlone() {
    auto const centre = make<Point>(100, 100, 0);
    SimpleMarkerSymbol square;
    square.setStyle(SimpleMarkerStyle::Square);
    square.SetSize(20);
    SvgMarkerSymbol level;
    QByteArray const svg =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 4'><rect width='2' height='4'/></svg>";
    QCOMPARE(level.setSvg(svg), QString());
    level.SetSize(20);
    SvgMarkerSymbol turned(level);
    turned.SetAngle(90);
    for (int pixels : {1, 3}) {  // a point
      QCOMPARE(Canvas(pixels).draw(*pen(8), polyline({{50, 100}, {150, 100}})).covered().height(), 8 * pixels);
      QCOMPARE(Canvas(pixels).draw(square, centre).covered().size(), QSize(20, 20) * pixels);
      QCOMPARE(Canvas(pixels).draw(level, centre).covered().size(), QSize(10, 20) * pixels);
      QCOMPARE(Canvas(pixels).draw(turned, centre).covered().size(), QSize(20, 10) * pixels);
    }
  }

  // What QueryBoundary answers decides which tiles an element is drawn in, so that nothing may lie outside of it.
  void boundaryCoversTheDrawing_data() {
    Rows<_ptr_t<Symbol>, _ptr_t<Geometry>, bool> row;
    auto const corner = polyline({{40, 40}, {160, 60}, {50, 100}});
    auto const moved = pen(8, SimpleLineStyle::Solid, LineCapStyle::Square);
    moved->SetOffset(-7);
    auto const framed = make<SimpleFillSymbol>();
    framed->SetOutlineSymbol(pen(6));
    auto const star = make<SimpleMarkerSymbol>();
    star->setStyle(SimpleMarkerStyle::Star);
    star->SetSize(60);
    star->SetAngle(20);
    star->setOutlineWidth(5);
    row("mitred corner", pen(12), corner, true);
    row("line beside its course", moved, corner, false);
    row("frame", framed, make<Envelope>(20, 30, 120, 140), true);
    row("plain area", make<SimpleFillSymbol>(), make<Envelope>(20, 30, 120, 140), true);
    row("star", star, make<Point>(90, 90, 0), true);
    for (Stored const& stored : storedLines) row(stored.name, symbolOf(stored), corner, false);
    for (Stored const& stored : storedFills)
      row(stored.name, symbolOf(stored), make<Envelope>(20, 30, 120, 140), false);
  }
  void boundaryCoversTheDrawing() {
    auto const [symbol, geometry, isTight] = fetched<_ptr_t<Symbol>, _ptr_t<Geometry>, bool>();
    Canvas canvas;
    QRect const covered = canvas.draw(*symbol, geometry).covered();
    QRect const boundary = aligned(symbol->QueryBoundary(canvas.transformation(), geometry));
    QVERIFY(!covered.isEmpty());
    QVERIFY(boundary.contains(covered));
    if (isTight) QVERIFY(covered.adjusted(-2, -2, 2, 2).contains(boundary));
  }

  void nothingToDrawDrawsNothing() {
    Canvas canvas;
    SimpleLineSymbol none;
    none.SetStyle(SimpleLineStyle::Null);
    SimpleFillSymbol fill;
    double const infinite = std::numeric_limits<double>::infinity();
    for (auto const& symbol : {symbolOf(storedLines[3]), symbolOf(storedFills[1]), symbolOf(storedFills[8])}) {
      canvas.draw(*symbol, nullptr);
      canvas.draw(*symbol, polyline({}));
      canvas.draw(*symbol, make<Envelope>());
      canvas.draw(*symbol, polyline({{infinite, 0}, {std::nan(""), 3}}));
    }
    canvas.draw(LayeredLineSymbol(), polyline({{0, 0}, {100, 100}}));
    canvas.draw(*storedSymbol("{'type':'markerLine','marker':{'type':'simpleMarker','size':0}}"),
                polyline({{0, 0}, {100, 100}}));
    canvas.draw(none, polyline({{0, 0}, {100, 100}}));
    canvas.draw(*pen(0), polyline({{0, 0}, {100, 100}}));
    canvas.draw(*pen(3), nullptr);
    canvas.draw(*pen(3), make<Envelope>());
    canvas.draw(*pen(3), polyline({{infinite, 0}, {std::nan(""), 3}}));
    canvas.draw(*pen(3), make<Point>(50, 50, 0));
    canvas.draw(fill, polyline({{0, 0}, {100, 100}, {0, 100}}));
    QVERIFY(canvas.covered().isEmpty());
    QVERIFY(!none.QueryBoundary(canvas.transformation(), polyline({{0, 0}, {1, 1}})));
    QVERIFY(!fill.QueryBoundary(canvas.transformation(), make<Envelope>()));
  }

  // So far along a line, and so far from where patterns hang, that counting by one changes nothing any more.
  void whatIsFarAwayComesToAnEnd() {
    QVector<QPointF> there;
    for (int i = 0; i < 60000; ++i) there << QPointF(i % 2 ? -1e300 : 1e300, 1e5);
    there << QPointF(-50, 80) << QPointF(300, 90);
    Canvas canvas;
    QPainter painter(&canvas.image());
    for (Stored const& stored : storedLines) {
      symbolOf(stored)->Draw(painter, canvas.transformation(), polyline(there));
      symbolOf(stored)->QueryBoundary(canvas.transformation(), polyline(there));
    }
    for (double place : {1.0, 1e12, 1e300})
      for (Stored const& stored : storedFills) {
        auto const far = make<DisplayTransformation>();
        double const end = place * (1 + 1.6e-15);
        far->SetDeviceFrame(QRect(0, 0, 200, 200));
        far->SetVisibleBounds(make<Envelope>(place, place, end, end));
        symbolOf(stored)->Draw(painter, canvas.transformation(), make<Envelope>(-1e300, -1e300, 1e300, 1e300));
        symbolOf(stored)->Draw(painter, far, make<Envelope>(place * 0.9, place * 0.9, place * 1.1, place * 1.1));
      }
  }

  void whatABudgetDoesNotPayForIsNotDrawn_data() {
    Rows<_ptr_t<Symbol>> row;
    for (Stored const& stored : storedLines) row(stored.name, symbolOf(stored));
    for (Stored const& stored : storedFills) row(stored.name, symbolOf(stored));
  }
  void whatABudgetDoesNotPayForIsNotDrawn() {
    auto const [symbol] = fetched<_ptr_t<Symbol>>();
    bool const isFill = symbol->GetType() == SymbolType::Fill;
    QVector<QPointF> const corners{{20, 20}, {180, 20}, {180, 180}};
    _ptr_t<Geometry> geometry = polyline(corners);
    if (isFill) geometry = make<Polygon>(QVector<QVector<QPointF>>{corners});
    QImage const unbounded = Canvas().draw(*symbol, geometry).image();
    DrawingBudget ample(1e12);
    QCOMPARE(difference(Canvas().draw(*symbol, geometry).image(), unbounded).pixels, 0);
    QVERIFY(!ample.isExceeded());
    DrawingBudget none(-1);
    QCOMPARE(ink(Canvas().draw(*symbol, geometry).image()).pixels, 0);
    QVERIFY(none.isExceeded());
  }

  void cloneIsIndependent() {
    SimpleFillSymbol fill;
    fill.SetOutlineSymbol(pen(3));
    auto const clone = ptr_cast<SimpleFillSymbol>(fill.Clone());
    clone->GetOutlineSymbol()->SetWidth(9);
    clone->SetColor(Qt::red);
    QCOMPARE(fill.GetOutlineSymbol()->GetWidth(), 3.0);
    QVERIFY(fill.GetColor() != QColor(Qt::red));
  }

  // Nested symbols are their own: what is done to a clone must not reach the one that a document holds.
  void cloneOfEveryKindIsEqualAndIndependent() {
    QVector<Stored> all;
    for (Stored const& stored : storedLines) all << stored;
    for (Stored const& stored : storedFills) all << stored;
    for (Stored const& stored : qAsConst(all)) {
      auto const symbol = symbolOf(stored), clone = symbol->Clone();
      QString const before = exportSymbol(*symbol);
      QCOMPARE(exportSymbol(*clone), before);
      if (auto const line = ptr_cast<LineSymbol>(clone)) resize(*line, 2);
      if (auto const fill = ptr_cast<FillSymbol>(clone)) resize(*fill, 2);
      QCOMPARE(exportSymbol(*symbol), before);
      QCOMPARE(exportSymbol(*clone) != before, bool(ptr_cast<LineSymbol>(clone)) || before.contains("outline\":"));
    }
  }

  void markersFollowTheLine() {
    // A flat marker every 40 pixels, from 20 on: along the first leg and the second, which runs down.
    auto const symbol = storedSymbol(
        "{'type':'markerLine','interval':40,'first':20,'marker':{'type':'svgMarker','size':16,'svg':"
        "'<svg xmlns=\\\"http://www.w3.org/2000/svg\\\" viewBox=\\\"0 0 8 1\\\"><rect width=\\\"8\\\" "
        "height=\\\"1\\\"/></svg>'}}");
    Canvas canvas;
    canvas.draw(*symbol, polyline({{20, 150}, {120, 150}, {120, 20}}));
    for (int x : {40, 80}) QVERIFY(canvas.isInk(x + 6, 49) && !canvas.isInk(x, 44) && !canvas.isInk(x + 12, 49));
    for (int y : {90, 130, 170})
      QVERIFY(canvas.isInk(119, y + 6) && !canvas.isInk(114, y) && !canvas.isInk(119, y + 12));
  }

  void layersKeepTheirProportions() {
    auto const symbol = storedSymbol(
        "{'type':'layeredMarker','layers':[{'type':'simpleMarker','style':'square','size':40,'color':'#000000'},"
        "{'type':'simpleMarker','style':'square','size':20,'color':'#ffffff','angle':10}]}");
    auto const marker = ptr_cast<LayeredMarkerSymbol>(symbol);
    QCOMPARE(marker->GetSize(), 40.0);
    marker->SetSize(80);
    marker->SetAngle(90);
    QCOMPARE(marker->layers()[1]->GetSize(), 40.0);
    QCOMPARE(marker->layers()[1]->GetAngle(), 100.0);
    Canvas canvas;
    canvas.draw(*symbol, make<Point>(100, 100, 0));
    QCOMPARE(canvas.covered(), QRect(60, 60, 80, 80));
    QVERIFY(!canvas.isInk(100, 100) && canvas.isInk(65, 100));
    auto const road = ptr_cast<LayeredLineSymbol>(
        storedSymbol("{'type':'layeredLine','layers':[{'type':'simpleLine','width':2,'offset':3},"
                     "{'type':'dashLine','pattern':[6,2],'width':4}]}"));
    QCOMPARE(road->GetWidth(), 8.0);
    road->SetWidth(0);
    road->SetWidth(16);
    QCOMPARE(exportSymbol(*road),
             exportSymbol(*storedSymbol("{'type':'layeredLine','layers':[{'type':'simpleLine','width':4,'offset':6},"
                                        "{'type':'dashLine','pattern':[12,4],'width':8}]}")));
    road->SetWidth(1e-5);
    QVERIFY(storedSymbol(exportSymbol(*road).toUtf8()));  // as small as it is, it is read again
  }

  // What is too fine for the pixels is as dark as it was, and what is seen covers what it should.
  void patternsAreAsDarkAtEveryScale_data() {
    Rows<QByteArray, double> row;
    QByteArray const square = "'marker':{'type':'simpleMarker','style':'square','size':4,'color':'#000000'}";
    row("markers", "{'type':'pointPatternFill','dx':8,'dy':8," + square + "}", 0.25);
    row("markers on a turned grid",
        "{'type':'pointPatternFill','dx':8,'dy':4,'staggered':true,'angle':30," + square + "}", 0.5);
    row("tiles",
        "{'type':'pictureFill','width':8,'angle':15,'svg':'<svg xmlns=\\\"http://www.w3.org/2000/svg\\\" viewBox=\\\"0 "
        "0 4 2\\\">"
        "<rect width=\\\"1\\\" height=\\\"2\\\"/></svg>'}",
        0.25);
    row("a gradient",
        "{'type':'gradientFill','stops':[{'position':0,'color':'#000000'},{'position':100,'color':'#ffffff'}]}", 0.5);
  }
  void patternsAreAsDarkAtEveryScale() {
    auto const [stored, share] = fetched<QByteArray, double>();
    auto const symbol = storedSymbol(stored);
    for (double pixelsPerPoint : {3.3, 1.0, 0.3, 0.1}) {
      Canvas canvas(pixelsPerPoint);
      canvas.draw(*symbol, make<Envelope>(20, 20, 180, 180));
      double dark = 0;
      for (int y = 20; y < 180; ++y)
        for (int x = 20; x < 180; ++x) dark += 1 - qGray(canvas.image().pixel(x, y)) / 255.0;
      QVERIFY2(std::abs(dark / (160 * 160) - share) < 0.04, qPrintable(QString::number(dark / (160 * 160))));
    }
  }

  void gradientsRunAsNamed() {
    QByteArray const stops =
        "'stops':[{'position':0,'color':'#000000'},{'position':50,'color':'#000000'},"
        "{'position':50,'color':'#ffffff'},{'position':100,'color':'#ffffff'}]}";
    auto const right = storedSymbol("{'type':'gradientFill','angle':0," + stops);
    auto const down = storedSymbol("{'type':'gradientFill'," + stops);
    auto const outwards = storedSymbol("{'type':'gradientFill','shape':'radial'," + stops);
    auto const area = make<Envelope>(20, 20, 180, 180);
    auto const inks = [&](_ptr_t<Symbol> const& symbol) {
      Canvas canvas;
      canvas.draw(*symbol, area);
      return QVector<bool>{canvas.isInk(30, 100), canvas.isInk(170, 100), canvas.isInk(100, 30), canvas.isInk(100, 170),
                           canvas.isInk(100, 98)};
    };
    QCOMPARE(inks(right).mid(0, 2), (QVector<bool>{true, false}));
    QCOMPARE(inks(down).mid(2, 2), (QVector<bool>{true, false}));
    QCOMPARE(inks(outwards), (QVector<bool>{false, false, false, false, true}));
  }

  void textHangsOnItsPosition_data() {
    // allowed: where the letters may be, from the position, in points
    Rows<int, int, QRectF> row;
    row("left on the baseline", 0, 2, QRectF(-0.5, -40, 200, 40.5));
    row("right on the baseline", 2, 2, QRectF(-200, -40, 200.5, 40.5));
    row("left below the top", 0, 0, QRectF(-0.5, 0, 200, 40));
    row("right above the bottom", 2, 3, QRectF(-200, -40, 200.5, 40));
  }
  void textHangsOnItsPosition() {
    auto const [horizontal, vertical, allowed] = fetched<int, int, QRectF>();
    TextFormat format = letters(20);
    format.horizontal = static_cast<HorizontalAlignment>(horizontal);
    format.vertical = static_cast<VerticalAlignment>(vertical);
    TextSymbol const symbol(format);
    QRectF const ink = symbol.outline(QStringLiteral("HAMBURG")).boundingRect();
    QVERIFY(allowed.contains(ink));
    QVERIFY(symbol.bounds(QStringLiteral("HAMBURG")).adjusted(-0.01, -0.01, 0.01, 0.01).contains(ink));
  }

  void textIsDrawnWhereItsOutlineIs() {
    TextFormat format = letters(24, 2);
    format.horizontal = HorizontalAlignment::Center;
    format.vertical = VerticalAlignment::Middle;
    TextSymbol const symbol(format);
    QString const text = QStringLiteral("Øre\nfjord");
    Canvas canvas;
    {
      QPainter painter(&canvas.image());
      symbol.drawAt(painter, QPointF(100, 100), 1.5, 90, text);
    }
    // Turned a quarter counterclockwise: what was to the right is above.
    QTransform const placed = QTransform::fromTranslate(100, 100).rotate(-90).scale(1.5, 1.5);
    QRectF const ink = placed.mapRect(symbol.outline(text).boundingRect()).adjusted(-3, -3, 3, 3);
    QVERIFY(ink.toAlignedRect().adjusted(-1, -1, 1, 1).contains(canvas.covered()));
    QVERIFY(canvas.covered().contains(ink.toAlignedRect().adjusted(2, 2, -2, -2)));
    QVERIFY(placed.mapRect(symbol.bounds(text)).toAlignedRect().contains(canvas.covered()));
  }

  // The box ends three points and half its line from the text, whose own rectangle stands in no field of the symbol.
  void aBoxKeepsItsPaddingAboutTheText() {
    TextFormat format = letters(20);
    QRectF const text = TextSymbol(format).bounds("Box");
    format.boxColor = Qt::yellow;
    format.boxLineColor = Qt::blue;
    format.boxLineWidth = 2;
    format.boxPadding = 3;
    TextSymbol const symbol(format);
    QCOMPARE(symbol.bounds("Box"), text.adjusted(-4, -4, 4, 4));
    Canvas canvas;
    {
      QPainter painter(&canvas.image());
      symbol.drawAt(painter, QPointF(20, 100), 2, 0, "Box");
    }
    QRectF const box(QPointF(20, 100) + text.topLeft() * 2, text.size() * 2);
    QCOMPARE(canvas.covered(), box.adjusted(-8, -8, 8, 8).toAlignedRect());
    auto const at = [&](double x, double y) { return canvas.image().pixelColor(QPointF(x, y).toPoint()); };
    QCOMPARE(at(box.center().x(), box.top() - 6), QColor(Qt::blue));
    QCOMPARE(at(box.center().x(), box.top() - 3), QColor(Qt::yellow));
    QCOMPARE(at(box.left() - 5, box.top() - 5), QColor(Qt::blue));  // a corner, which round ends have not
    format.boxShape = BoxShape::Capsule;
    Canvas round;
    {
      QPainter painter(&round.image());
      TextSymbol(format).drawAt(painter, QPointF(20, 100), 2, 0, "Box");
    }
    QCOMPARE(round.covered(), box.adjusted(-8, -8, 8, 8).toAlignedRect());
    QVERIFY(round.image().pixelColor(QPointF(box.left() - 5, box.top() - 5).toPoint()) != QColor(Qt::blue));
    QCOMPARE(round.image().pixelColor(QPointF(box.left() - 6, box.center().y()).toPoint()), QColor(Qt::blue));
  }

  void textShapeIsLinear() {
    auto const width = [](TextFormat const& format, char const* text) {
      return TextSymbol(format).bounds(text).width();
    };
    QVERIFY(std::abs(width(letters(7), "Wide & narrow") * 10 - width(letters(70), "Wide & narrow")) < 1e-6);
    QVERIFY(TextSymbol(letters(7)).bounds(QString()).isNull());
    TextFormat spaced = letters(7);
    spaced.letterSpacing = 2;
    QVERIFY(std::abs(width(spaced, "HHHH") - width(letters(7), "HHHH") - 6) < 0.05);
  }

  // Kerning is always on, so that with it as a feature HarfBuzz alone has to lay out as Qt does.
  void featuresChangeLettersAndNothingElse() {
    bool isMadeBold = false;  // there are no such letters
    auto const outline = [&](QStringList const& features, QString const& text, double spacing = 0) {
      TextFormat format = letters(20);
      format.family = "EB Garamond";
      format.bold = format.italic = isMadeBold;
      format.features = features;
      format.letterSpacing = spacing;
      return TextSymbol(format).outline(text);
    };
    auto const isAlike = [](QPainterPath const& a, QPainterPath const& b) {
      if (a.elementCount() != b.elementCount()) return false;
      for (int i = 0; i < a.elementCount(); ++i)
        if (QLineF(a.elementAt(i), b.elementAt(i)).length() > 0.02) return false;
      return true;
    };
    for (QString const text :
         {"AVATAR Office, T\u0065\u0301: 1920", "\u0633\u0644\u0627\u0645", "Πάτρα 東京", "TaДВ\t(1) To\r"})
      for (double const spacing : {0.0, 1.5})
        for (bool const isBold : {true, false}) {
          isMadeBold = isBold;
          QVERIFY2(isAlike(outline({"kern"}, text, spacing), outline({}, text, spacing)), qPrintable(text));
        }
    QVERIFY(!isAlike(outline({"kern=0"}, "AVATAR"), outline({}, "AVATAR")));
    auto const height = [&](QStringList const& features, char const* text) {
      return outline(features, text).boundingRect().height();
    };
    QVERIFY(height({"smcp"}, "l") < 0.8 * height({}, "l") && height({"smcp"}, "l") > height({}, "x"));
    QVERIFY(height({"onum"}, "1") < 0.8 * height({"lnum"}, "1"));
    QVERIFY(!isAlike(outline({"tnum"}, "1"), outline({}, "1")));
    SysDisplay::takeFontTroubles();
    outline({"smcp", "xxxx", "yyyy=0"}, "a");
    QCOMPARE(SysDisplay::takeFontTroubles().lacking, QStringList{"EB Garamond (xxxx)"});
  }
};

QTEST_MAIN(SymbolTest)
#include "SymbolTest.moc"
