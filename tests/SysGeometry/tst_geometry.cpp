#include "Boxes.h"

#include "host/SysGeometry/OgrBridge.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <SysGeometry/Envelope.h>
#include <SysGeometry/MultiPolyline.h>
#include <SysGeometry/Point.h>
#include <SysGeometry/Polygon.h>
#include <SysGeometry/Polyline.h>

#include <cpl_error.h>
#include <ogr_geometry.h>

#include <cmath>
#include <limits>
#include <utility>

using namespace SysGeometry;

using GeometryPtr = _ptr_t<Geometry>;

namespace {

double const noNumber = std::numeric_limits<double>::quiet_NaN();

GeometryPtr point(double x, double y) { return make<Point>(x, y, 0.0); }
GeometryPtr line(QVector<QPointF> points) { return make<Polyline>(points); }
GeometryPtr area(QVector<QVector<QPointF>> rings) { return make<Polygon>(rings); }
GeometryPtr rectangle(double xmin, double ymin, double xmax, double ymax) {
  return make<Envelope>(xmin, ymin, xmax, ymax);
}
QVector<QPointF> square(double from, double to) { return {{from, from}, {to, from}, {to, to}, {from, to}}; }

int errorsPrinted = 0;
void countError(CPLErr, CPLErrorNum, char const*) { ++errorsPrinted; }

}  // namespace

class GeometryTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { CPLSetErrorHandler(countError); }
  void cleanup() { QCOMPARE(std::exchange(errorsPrinted, 0), 0); }

  void anEnvelopeMovesAndGrows() {
    Envelope envelope(0, 0, 10, 20);
    envelope.Expand(0.9, 1.1, true);
    QCOMPARE(envelope.GetWidth(), 9.0);
    QCOMPARE(envelope.GetHeight(), 22.0);
    envelope.CenterAt(3, 4);
    QCOMPARE(sidesOf(envelope), (QVector<double>{-1.5, -7, 7.5, 15}));
    envelope.Offset(1, -1);
    envelope.Expand(0.5, 2, false);
    QCOMPARE(sidesOf(envelope), (QVector<double>{-1, -10, 9, 16}));
    QCOMPARE(envelope.GetAnchorPoint()->GetX(), 4.0);
    QCOMPARE(envelope.GetAnchorPoint()->GetY(), 3.0);
  }

  void unorderedCornersStayAndStillGrowOutwards() {
    Envelope envelope;
    envelope.PutCoords(10, 20, 0, 0);
    QCOMPARE(envelope.GetWidth(), -10.0);
    envelope.Expand(1, 2, false);
    envelope.CenterAt(make<Point>(0.0, 0.0, 0.0));
    QCOMPARE(envelope.GetXMin(), 6.0);
    QCOMPARE(envelope.GetYMax(), -12.0);
    QCOMPARE(sidesOf(envelope), (QVector<double>{-6, -12, 6, 12}));
    QCOMPARE(ptr_cast<Envelope>(envelope.Clone())->GetXMin(), 6.0);
  }

  void twoPointsSpanAnOrderedRectangle() {
    auto const corner = make<Point>(5.0, 1.0, 0.0);
    QCOMPARE(sidesOf(Envelope(corner, make<Point>(2.0, 8.0, 0.0))), (QVector<double>{2, 1, 5, 8}));
    QVERIFY(Envelope(corner, nullptr).IsEmpty());
    QVERIFY(Envelope(corner, make<Point>(noNumber, 8.0, 0.0)).IsEmpty());
  }

  void emptyGeometriesHaveAnEmptyEnvelopeAndNoAnchor() {
    auto const empty = make<Envelope>(), everywhere = make<Envelope>(-100.0, -100.0, 100.0, 100.0);
    for (GeometryPtr const& geometry :
         QList<GeometryPtr>{empty, point(noNumber, 1), line({}), line({{noNumber, 1}}), area({}),
                            make<MultiPolyline>(QVector<QVector<QPointF>>{{}, {}})}) {
      QVERIFY(geometry->GetEnvelope()->IsEmpty());
      QCOMPARE(geometry->GetEnvelope()->GetWidth(), 0.0);
      QVERIFY(!geometry->GetAnchorPoint());
      QVERIFY(!geometry->Intersects(everywhere) && !everywhere->Contains(geometry));
      QVERIFY(!geometry->Buffer(1));
    }
  }

  void geometriesMeet_data() {
    Rows<GeometryPtr, GeometryPtr, bool> row;
    auto const page = rectangle(0, 0, 10, 10);
    row("rectangles that touch in a corner", page, rectangle(10, 10, 20, 20), true);
    row("rectangles apart", page, rectangle(10.1, 0, 20, 10), false);
    row("a flat rectangle inside", page, rectangle(2, 5, 8, 5), true);
    row("a rectangle that is a point on the edge", page, rectangle(10, 5, 10, 5), true);
    row("two flat rectangles that cross", rectangle(0, 5, 9, 5), rectangle(4, 0, 4, 9), true);
    row("a rectangle with unordered corners", page, rectangle(8, 8, 2, 2), true);
    row("an empty rectangle", page, GeometryPtr(make<Envelope>()), false);
    row("nothing", page, GeometryPtr(), false);
    row("a line through a rectangle", page, line({{-5, 5}, {15, 5}}), true);
    row("a line past a corner", page, line({{9, 12}, {12, 9}}), false);
    row("a line that ends on a side", page, line({{10, 5}, {12, 5}}), true);
    row("a line along a side", page, line({{10, 2}, {10, 12}}), true);
    row("a line of one vertex", page, line({{5, 5}}), true);
    row("a line against a flat rectangle", line({{5, 0}, {5, 9}}), rectangle(2, 5, 8, 5), true);
    row("a line with an infinite vertex", page, line({{5, 5}, {HUGE_VAL, 5}}), false);
    row("a ring of two vertices", page, area({{{1, 1}, {2, 2}}}), false);
    auto const ring = area({square(2, 8), square(0, 10)});
    row("a point in a hole, whatever the order", ring, point(5, 5), false);
    row("a point beside the hole", ring, point(1, 5), true);
    auto const island = area({square(4, 6), square(0, 10), square(2, 8)});
    row("a point on an island", island, point(5, 5), true);
    row("a point around the island", island, point(3, 5), false);
    auto const crossing = area({square(0, 6), square(4, 10)});
    row("a point where two rings cover each other", crossing, point(5, 5), false);
    row("a point in one of two rings", crossing, point(8, 8), true);
    auto const bow = area({{{0, 0}, {10, 10}, {10, 0}, {0, 10}}});
    row("a point in a wing of a bow", bow, point(9, 5), true);
    row("a point between the wings", bow, point(5, 9), false);
    auto const spike = area({{{0, 0}, {10, 0}, {20, 0}, {10, 0}, {10, 10}, {0, 10}}});
    row("a point in an area with a spike", spike, point(5, 5), true);
    row("a point on the spike", spike, point(15, 0), false);
  }
  void geometriesMeet() {
    auto const [a, b, meet] = fetched<GeometryPtr, GeometryPtr, bool>();
    QCOMPARE(a->Intersects(b), meet);
    if (b) QCOMPARE(b->Intersects(a), meet);

    // The kernel agrees with GEOS.
    auto const polygon = ptr_cast<Polygon>(a);
    auto const place = ptr_cast<Point>(b);
    if (polygon && place) QCOMPARE(contains(polygon->GetRings(), place->GetX(), place->GetY()), meet);
    auto const rectangle = ptr_cast<Envelope>(a);
    Ring const ends = ptr_cast<Polyline>(b) ? ptr_cast<Polyline>(b)->GetPoints() : Ring();
    if (rectangle && ends.size() == 2 && std::isfinite(ends[1].x()))
      QCOMPARE(!clippedSegment(ends[0], ends[1], boxOf(rectOf(*rectangle))).isEmpty(), meet);
  }

  void aRingIsClippedToABox_data() {
    Rows<Ring, double, bool> row;
    row("inside", square(2, 8), 36.0, true);
    row("around", square(-5, 20), 100.0, true);
    row("over a corner", square(5, 20), 25.0, true);
    row("beyond", square(11, 20), 0.0, true);
    row("a bar beyond two sides", Ring{{-4, 4}, {14, 4}, {14, 6}, {-4, 6}, {-4, 4}}, 20.0, true);
    row("a small ring far from the origin", Ring{{1e9, 1e9}, {1e9 + 1, 1e9}, {1e9, 1e9 + 1}}, 0.5, false);
  }
  void aRingIsClippedToABox() {
    auto const [ring, size, isClipped] = fetched<Ring, double, bool>();
    Ring const clipped = isClipped ? clippedRing(ring, {0, 0, 10, 10}) : ring;
    QCOMPARE(signedArea(clipped), size);
    Ring reversed = clipped;
    std::reverse(reversed.begin(), reversed.end());
    QCOMPARE(signedArea(reversed), -size);
  }

  void thePoleOfInaccessibilityIsInTheWidestPart() {
    Rings const ell{{{0, 0}, {90, 0}, {90, 30}, {12, 30}, {12, 90}, {0, 90}}, {{60, 5}, {85, 5}, {85, 25}, {60, 25}}};
    Pole const pole = poleOfInaccessibility(ell, 0.1);
    QVERIFY2(std::abs(pole.depth - 15) < 0.4, qPrintable(QString::number(pole.depth)));
    QVERIFY(contains(ell, pole.place.x(), pole.place.y()) && pole.place.x() < 60);
  }

  void equalMeansTheSamePoints_data() {
    Rows<GeometryPtr, GeometryPtr, bool> row;
    auto const page = rectangle(0, 0, 10, 10);
    row("rectangle and ring that starts elsewhere", page, area({{{10, 10}, {10, 0}, {0, 0}, {0, 10}, {10, 10}}}), true);
    row("an extra vertex on a side", page, area({{{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}}}), true);
    row("one inside the other", page, rectangle(1, 1, 9, 9), false);
    row("a line and its reverse", line({{0, 0}, {4, 2}}), line({{4, 2}, {2, 1}, {0, 0}}), true);
    row("an area and its outline", page, line({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}), false);
  }
  void equalMeansTheSamePoints() {
    auto const [a, b, equal] = fetched<GeometryPtr, GeometryPtr, bool>();
    QCOMPARE(a->Equals(b), equal);
    QCOMPARE(b->Equals(a), equal);
  }

  void containingNeedsTheInterior() {
    auto const page = rectangle(0, 0, 10, 10);
    QVERIFY(page->Contains(page));
    QVERIFY(page->Contains(line({{0, 0}, {10, 10}})));
    QVERIFY(!page->Contains(line({{0, 0}, {10, 0}})));
    QVERIFY(!page->Contains(rectangle(5, 5, 11, 9)));
    QVERIFY(!page->Contains(nullptr));
  }

  void aBufferIsAnArea() {
    auto const round = point(3, 4)->Buffer(2);
    QVERIFY(ptr_cast<Polygon>(round));
    QCOMPARE(sidesOf(*round), (QVector<double>{1, 2, 5, 6}));
    QCOMPARE(sidesOf(*rectangle(0, 0, 10, 10)->Buffer(-2)), (QVector<double>{2, 2, 8, 8}));
    QVERIFY(!rectangle(0, 0, 10, 10)->Buffer(-6));
    QVERIFY(!point(3, 4)->Buffer(noNumber));
  }

  void aUnionIsOneGeometryOrNone() {
    auto const page = rectangle(0, 0, 10, 10);
    auto const apart = ptr_cast<Polygon>(page->Union(rectangle(20, 0, 30, 10)));
    QCOMPARE(apart->GetRings().size(), 2);
    QCOMPARE(sidesOf(*apart), (QVector<double>{0, 0, 30, 10}));
    QVERIFY(page->Union(area({}))->Equals(page));
    QVERIFY(ptr_cast<MultiPolyline>(line({{0, 0}, {1, 0}})->Union(line({{5, 0}, {6, 0}}))));
    QVERIFY(!page->Union(point(20, 20)));
    QVERIFY(!point(1, 1)->Union(point(2, 2)));
    QVERIFY(!line({})->Union(area({})));
    QVERIFY(!page->Union(nullptr));
  }

  void curvesComeBackAsSegments() {
    char const* const text = "CURVEPOLYGON(CIRCULARSTRING(0 0, 2 2, 4 0, 2 -2, 0 0))";
    OGRGeometry* geometry = nullptr;
    QCOMPARE(OGRGeometryFactory::createFromWkt(text, nullptr, &geometry), OGRERR_NONE);
    std::unique_ptr<OGRGeometry> const owned(geometry);
    auto const circle = fromOgr(*owned);
    QVERIFY(ptr_cast<Polygon>(circle));
    QVERIFY(ptr_cast<Polygon>(circle)->GetRings().value(0).size() > 16);
    QVERIFY(circle->Contains(point(2, 1.99)));
    QVERIFY(!circle->Intersects(point(2, 2.01)));
  }
};

QTEST_GUILESS_MAIN(GeometryTest)
#include "tst_geometry.moc"
