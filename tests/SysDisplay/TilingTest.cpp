#include "Pictures.h"
#include "StoredSymbols.h"
#include "Symbols.h"

#include "host/SysDisplay/CoverageGrid.h"
#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/PathDrawing.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"

#include <SysGeometry/MultiPolyline.h>
#include <SysGeometry/Polygon.h>

#include <cmath>

using namespace SysDisplay;
using namespace SysGeometry;

namespace {

// A world whose numbers have no short binary form, so that the transformations of two tiles really differ in rounding.
constexpr QSize sizePx(700, 500);
constexpr double left = 512345.678, top = 5400123.456, unitsPerPx = 0.37;

double worldX(double px) { return left + px * unitsPerPx; }
double worldY(double px) { return top - px * unitsPerPx; }
QPointF world(QPointF const& px) { return {worldX(px.x()), worldY(px.y())}; }

QVector<QPointF> worldLine(QVector<QPointF> line) {
  for (QPointF& point : line) point = world(point);
  return line;
}

Sheet sheet(double pageScale) {
  return {Envelope(left, worldY(sizePx.height()), worldX(sizePx.width()), top), sizePx, pageScale};
}

QVector<QPointF> zigzag(double amplitude, int count) {
  QVector<QPointF> line;
  for (int i = 0; i <= count; ++i) line << QPointF(-50 + 800.0 * i / count, 250 + (i % 2 ? amplitude : -amplitude));
  return line;
}

// A jagged coast with a hole, much of it outside of the image.
QVector<QVector<QPointF>> blob(double radius) {
  QVector<QPointF> outer, hole;
  for (int i = 0; i < 720; ++i) {
    double const angle = i * 0.5 * M_PI / 180,
                 r = radius * (1 + 0.15 * std::sin(13 * angle) + 0.02 * std::cos(171 * angle));
    outer << world({350 + r * std::cos(angle), 250 + r * std::sin(angle)});
    if (i % 8 == 0) hole << world({340 + radius / 4 * std::cos(angle), 260 - radius / 4 * std::sin(angle)});
  }
  return {outer, hole};
}

_ptr_t<SimpleLineSymbol> line(SimpleLineStyle style, double width, LineCapStyle cap, LineJoinStyle join) {
  return pen(width, style, cap, join, QColor(200, 30, 30, 150));
}

Scene lines(_ptr_t<SimpleLineSymbol> symbol, QVector<QVector<QPointF>> lines) {
  for (QVector<QPointF>& line : lines) line = worldLine(line);
  auto const geometry = make<MultiPolyline>(lines);
  return [=](QPainter& painter, Transformation const& t) { symbol->Draw(painter, t, geometry); };
}

Scene area(SimpleFillStyle style, QVector<QVector<QPointF>> const& rings, _ptr_t<LineSymbol> const& outline) {
  auto const symbol = fill(QColor(30, 120, 200, 180), style, outline);
  auto const geometry = make<Polygon>(rings);
  return [=](QPainter& painter, Transformation const& t) { symbol->Draw(painter, t, geometry); };
}

Scene drawing(_ptr_t<Symbol> const& symbol, _ptr_t<Geometry> const& geometry) {
  return [=](QPainter& painter, Transformation const& t) { symbol->Draw(painter, t, geometry); };
}

// Up and down between two rows, as evenly as chance would, and back below. On the rasteriser's grid.
QVector<QPointF> noise(int vertices, qint64 step) {
  QVector<QPointF> ring;
  for (int i = 0; i < vertices; ++i)
    ring << QPointF(std::round(64 * (50 + 600.0 * i / vertices)) / 64, 100 + 300 * (i * step % vertices) / vertices);
  return ring << QPointF(650, 450) << QPointF(50, 450);
}

// The coordinates of a ring that waves about a radius, with a tooth of some pixels at each vertex.
std::vector<double> teeth(int vertices, double radius, double height, int waves, int tooth) {
  std::vector<double> xy;
  for (int i = 0; i < vertices; ++i) {
    double const angle = 2 * M_PI * i / vertices, r = radius + height * std::sin(waves * angle) + i * 7 % tooth;
    xy.insert(xy.end(), {worldX(350 + r * std::cos(angle)), worldY(250 + r * std::sin(angle))});
  }
  return xy;
}

// A ring, and a line beside it, of many vertices whose stretches are known.
Scene longRuns(_ptr_t<SimpleLineSymbol> const& symbol) {
  auto const land = make<SimpleFillSymbol>();
  land->SetOutlineSymbol(symbol);
  return [=](QPainter& painter, Transformation const& t) {
    std::vector<double> xy = teeth(5000, 300, 30, 90, 4);
    WorldRun run{xy.data(), 5000};
    auto const stretches = stretchesOf(run);
    run.stretches = stretches.data();
    DrawTarget target(painter, *t);
    auto const area = prepared(target, *land), beside = prepared(target, *symbol);
    area->addRing(run);
    area->draw({});
    for (int i = 0; i < 5000; ++i) xy[2 * i] += 40 * unitsPerPx;
    auto const moved = stretchesOf(run);
    run.stretches = moved.data();
    beside->addLine(run);
    beside->draw({});
  };
}

Scene markers(_ptr_t<MarkerSymbol> const& symbol) {
  return [=](QPainter& painter, Transformation const& t) {
    DrawTarget target(painter, *t);
    MarkerPainter marker(target, *symbol);
    int const step = symbol->GetSize() > 100 ? 9 : 1;
    for (int i = 0; i < 40; i += step) marker.draw(worldX(i * 17.37 - 5), worldY(i * 12.83 + 0.37 * i));
  };
}

Scene texts(TextFormat const& format) {
  TextSymbol const symbol(format);
  return [=](QPainter& painter, Transformation const& t) {
    DrawTarget target(painter, *t);
    for (int i = 0; i < 12; ++i)
      symbol.drawAt(target, t->ToDevice().map(world({i * 61.3 - 20, 30 + i * 41.7})), i * 31.0,
                    QStringLiteral("Ångström %1\nWAVE fjord").arg(i));
  };
}

}  // namespace

class TilingTest : public QObject {
  Q_OBJECT

private slots:
  void tilesEqualTheWhole_data() {
    Rows<Scene> row;
    using S = SimpleLineStyle;
    using C = LineCapStyle;
    using J = LineJoinStyle;
    QVector<QPointF> const far{{-1e7, -6.3e6}, {350, 250}, {2e7, 9.9e6}, {9e6, -1e7}, {-5e6, 8e6}, {-7.7e6, 8.1e6}};
    QVector<QPointF> const flatFar{{-1e7, 200.3}, {1e7, 260.7}};
    QVector<QVector<QPointF>> const farRing{worldLine(far)};

    row("thin line", lines(line(S::Solid, 0.3, C::Round, J::Round), {zigzag(180, 31)}));
    row("wide round joins", lines(line(S::Solid, 17, C::Round, J::Round), {zigzag(180, 13)}));
    row("wide mitred joins", lines(line(S::Solid, 17, C::Square, J::Miter), {zigzag(60, 13)}));
    row("wide bevelled joins", lines(line(S::Solid, 17, C::Butt, J::Bevel), {zigzag(180, 13)}));
    row("dashes", lines(line(S::Dash, 3, C::Butt, J::Miter), {zigzag(180, 31), zigzag(7, 400)}));
    row("dots with round caps", lines(line(S::Dot, 5, C::Round, J::Round), {zigzag(180, 31)}));
    row("dashes and dots", lines(line(S::DashDotDot, 2.2, C::Square, J::Bevel), {zigzag(180, 31)}));
    row("dashes around a coast", area(SimpleFillStyle::Null, blob(280), line(S::DashDot, 2, C::Round, J::Round)));
    row("line from very far", lines(line(S::Solid, 4, C::Round, J::Round), {far, flatFar}));
    row("dashes from very far", lines(line(S::Dash, 2, C::Butt, J::Round), {far, flatFar}));
    auto const moved = line(S::Dash, 2, C::Round, J::Round);
    moved->SetOffset(9);
    row("line beside its course", lines(moved, {zigzag(90, 17), far}));
    row("area and outline", area(SimpleFillStyle::Solid, blob(280), line(S::Solid, 1.3, C::Round, J::Round)));
    row("long runs", longRuns(line(S::Solid, 1.3, C::Round, J::Round)));
    row("long runs with wide joins", longRuns(line(S::Solid, 9, C::Butt, J::Miter)));
    row("long runs with dashes", longRuns(line(S::Dash, 1.3, C::Butt, J::Round)));
    row("area all around the image", area(SimpleFillStyle::Solid, blob(1500), line(S::Solid, 9, C::Round, J::Miter)));
    row("area with very far corners", area(SimpleFillStyle::Solid, farRing, line(S::Solid, 3, C::Butt, J::Miter)));
    char const* const hatches[] = {"level hatch",  "upright hatch", "falling hatch",
                                   "rising hatch", "cross hatch",   "diagonal cross hatch"};
    for (int i = 0; i < 6; ++i) row(hatches[i], area(static_cast<SimpleFillStyle>(2 + i), blob(280), nullptr));
    row("hatch with very far corners", area(SimpleFillStyle::DiagonalCross, farRing, nullptr));
    row("rectangle with a border",
        area(SimpleFillStyle::Solid, {worldLine({{20.3, 9}, {690, 9}, {690, 480}, {20.3, 480}})},
             line(S::Solid, 2, C::Butt, J::Miter)));
    for (auto style : {SimpleMarkerStyle::Circle, SimpleMarkerStyle::X, SimpleMarkerStyle::Star}) {
      auto const marker = make<SimpleMarkerSymbol>();
      marker->setStyle(style);
      marker->SetSize(19);
      marker->SetAngle(17);
      marker->setOutlineWidth(1.1);
      row(QString("marker %1").arg(static_cast<int>(style)), markers(marker));
    }
    for (double size : {24.0, 300.0}) {
      auto const marker = make<SvgMarkerSymbol>();
      QCOMPARE(marker->setSvg(compass), QString());
      marker->SetSize(size);
      marker->SetAngle(33);
      row(QString("SVG marker of %1 points").arg(size), markers(marker));
    }
    for (Stored const& stored : storedLines) {
      auto const symbol = symbolOf(stored);
      row(stored.name, drawing(symbol, make<MultiPolyline>(QVector<QVector<QPointF>>{
                                           worldLine(zigzag(180, 13)), worldLine(zigzag(7, 400)), worldLine(far)})));
      row(QString("%1 around a coast").arg(stored.name), drawing(symbol, make<Polygon>(blob(280))));
    }
    for (Stored const& stored : storedFills) {
      auto const symbol = symbolOf(stored);
      row(stored.name, drawing(symbol, make<Polygon>(blob(280))));
      row(QString("%1 with very far corners").arg(stored.name), drawing(symbol, make<Polygon>(farRing)));
    }
    row("text", texts(letters(13)));
    TextFormat format = letters(13, 1.5);
    format.haloColor = QColor(255, 230, 0, 128);
    format.bold = true;
    format.boxColor = QColor(200, 220, 255, 200);
    format.boxLineWidth = 0.7;
    row("text with a halo on a box", texts(format));
    format.size = 90;
    row("large text", texts(format));
  }
  void tilesEqualTheWhole() {
    auto const [scene] = fetched<Scene>();
    for (auto const& [pageScale, side] : {std::pair{1.0, 100}, {400 / 96.0, 512}}) {
      QImage const whole = sheet(pageScale).drawn(scene);
      QVERIFY2(ink(whole).pixels > 0, "the scene shows nothing");
      Difference const found = difference(whole, sheet(pageScale).drawnInTiles(scene, side));
      QVERIFY2(found.pixels == 0, qPrintable(found.text()));
    }
  }

  // Much of it at once is drawn in bands and by several threads, on a painter that clips nothing. What is added first
  // stays below, pictures included.
  void bandsShowWhatOnePainterShows() {
    auto const land = fill(QColor(30, 120, 200, 90), SimpleFillStyle::Solid,
                           line(SimpleLineStyle::Solid, 3, LineCapStyle::Round, LineJoinStyle::Round));
    auto const dot = make<SimpleMarkerSymbol>();
    dot->setOutlineWidth(1.1);
    auto const picture = make<SvgMarkerSymbol>();
    QCOMPARE(picture->setSvg(compass), QString());
    picture->SetSize(40);
    auto const pattern = ptr_cast<FillSymbol>(symbolOf(storedFills[2]));
    auto const gradient = ptr_cast<FillSymbol>(symbolOf(storedFills[8]));
    std::vector<double> const coast = teeth(20000, 230, 25, 700, 6);
    Scene const crowd = [&](QPainter& painter, Transformation const& t) {
      DrawTarget target(painter, *t);
      auto const area = prepared(target, *land), tiles = prepared(target, *pattern),
                 shades = prepared(target, *gradient);
      MarkerPainter dots(target, *dot), pictures(target, *picture);
      for (int i = 0; i < 2000; ++i) {
        if (i % 500 == 0) {
          for (auto const* one : {&area, &shades, &tiles}) {
            (*one)->addRing({coast.data(), static_cast<int>(coast.size() / 2)});
            (*one)->draw({left, worldY(500), worldX(700), top});
          }
        }
        (i % 400 == 7 ? pictures : dots).draw(worldX(i * 37 % 700 + 0.3), worldY(i * 91 % 500 + 0.7));
      }
    };
    Scene const clipped = [&](QPainter& painter, Transformation const& t) {
      painter.setClipRect(painter.viewport());
      crowd(painter, t);
    };
    QImage const onePainters = sheet(1).drawn(clipped);
    QVERIFY(ink(onePainters).pixels > 100000);
    for (int i = 0; i < 5; ++i) {
      Difference const found = difference(onePainters, sheet(1).drawn(crowd));
      QVERIFY2(found.pixels == 0, qPrintable(found.text()));
    }
  }

  // A long line of tiny steps, as a survey leaves it, with a join that shoots far out where it turns. No two vertices
  // so near to each other may shape one, not even where a stretch begins.
  void tinyStepsMakeNoSpikes() {
    std::vector<double> xy;
    auto noise = [number = 1u]() mutable {
      number = number * 1664525u + 1013904223u;
      return (number >> 8) % 1000 * 0.0002 - 0.1;
    };
    for (int i = 0; i < 12000; ++i) {
      double const x = 50 + i * 0.05 + noise(), y = 250 + noise();
      xy.insert(xy.end(), {worldX(x), worldY(y)});
    }
    auto const symbol = line(SimpleLineStyle::Solid, 9, LineCapStyle::Butt, LineJoinStyle::Miter);
    symbol->SetMiterLimit(10);
    QImage const drawn = sheet(1).drawn([&](QPainter& painter, Transformation const& t) {
      DrawTarget target(painter, *t);
      auto const painted = prepared(target, *symbol);
      painted->addLine({xy.data(), static_cast<int>(xy.size() / 2)});
      painted->draw({});
    });
    QRect const where = ink(drawn).where;
    QVERIFY2(where.top() > 240 && where.bottom() < 260, qPrintable(ink(drawn).text()));
  }

  // As many as Qt's rasteriser gives up at. Midway between the rows, half is within.
  void ringsOfAnyNumberOfVerticesAreFilled() {
    QImage const drawn =
        sheet(1).drawn(area(SimpleFillStyle::Solid, {worldLine(noise(200000, 99991))}, nullptr)).copy(60, 250, 580, 1);
    double red = 0;
    for (int x = 0; x < drawn.width(); ++x) red += qRed(drawn.pixel(x, 0));
    double const expected = 255 - 0.5 * (255 - 30) * 180 / 255;
    QVERIFY2(std::abs(red / drawn.width() - expected) < 2, qPrintable(QString::number(red / drawn.width())));
  }

  void pixelsAreCoveredAsByQt() {
    QVector<QPointF> const ring = noise(3000, 1409);
    QImage byQt(sizePx, QImage::Format_ARGB32_Premultiplied);
    for (Qt::FillRule const rule : {Qt::OddEvenFill, Qt::WindingFill}) {
      byQt.fill(Qt::transparent);
      QPainter painter(&byQt);
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(Qt::NoPen);
      painter.setBrush(Qt::black);
      painter.drawPolygon(ring, rule);
      CoverageGrid grid;
      grid.clear(byQt.rect());
      for (int i = 0; i < ring.size(); ++i) grid.add(ring[i], ring[(i + 1) % ring.size()]);
      Difference const found = difference(byQt, grid.mask(rule));
      QVERIFY2(found.levels < 4, qPrintable(found.text()));
    }
  }

  // A painter that is moved and clipped, as that of a widget, shows the same.
  void movedAndClippedPainterShowsTheSame() {
    Scene const scene = area(SimpleFillStyle::Cross, blob(280),
                             line(SimpleLineStyle::Dash, 5, LineCapStyle::Round, LineJoinStyle::Round));
    QImage const whole = sheet(1).drawn(scene);
    Scene const moved = [&](QPainter& painter, Transformation const& t) {
      painter.translate(-300, -200);
      painter.setClipRect(300, 200, 200, 100);
      scene(painter, t);
      QCOMPARE(painter.transform(), QTransform::fromTranslate(-300, -200));
      QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    };
    QImage const part = sheet(1).drawn(moved);
    QCOMPARE(part.copy(0, 0, 200, 100), whole.copy(300, 200, 200, 100));
  }
};

QTEST_MAIN(TilingTest)
#include "TilingTest.moc"
