#include "OnPaper.h"
#include "SurroundFixture.h"

#include "host/SysCarto/surrounds/GridTexts.h"

#include <cpl_error.h>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

constexpr int pxPerCm = 40;
// The frame on a page of 12 by 10 centimetres: from (1, 1) to (11, 9).
constexpr QRect framePx(pxPerCm, pxPerCm, 10 * pxPerCm, 8 * pxPerCm);

Sheet const page{Envelope(0, 0, 12, 10), QSize(12, 10) * pxPerCm, pxPerCm * 2.54 / 96};

QJsonObject thinLine() { return json("{'type':'simpleLine','width':0.28}"); }

// The places of which something is true.
template <class Place, class Predicate>
QVector<Place> where(QVector<Place> const& places, Predicate const& isSo) {
  QVector<Place> found;
  std::copy_if(places.begin(), places.end(), std::back_inserter(found), isSo);
  return found;
}

}  // namespace

class GraticuleTest : public QObject {
  Q_OBJECT

private slots:
  void linesRunThroughTheirPlaces_data() {
    // onLines: map units
    Rows<QString, Envelope, double, QVector<QPointF>, QVector<QPointF>> row;
    row("degrees", "EPSG:4326", Envelope(-25, -20, 25, 20), 10.0, {{0, 5}, {5, 0}, {20, -13}, {-17, -10}},
        {{5, 5}, {-15, 15}});
    row("the whole world, both sides of its cut", "EPSG:4326", Envelope(-180, -90, 180, 90), 45.0,
        {{-135, 10}, {-135, 85}, {45, -80}, {179.5, 20}, {-179.5, 20}, {20, 45}}, {{20, 20}, {160, -20}});
    row("over the antimeridian", "EPSG:3832", Envelope(2000000, -2000000, 7000000, 2000000), 10.0,
        {{30 * 111319.49, 500000}, {40 * 111319.49, 500000}, {4000000, 0}}, {{35 * 111319.49, 500000}});
    // A polar map: the parallel of 80 degrees is a circle about the pole, and meridians meet there.
    row("around a pole", "EPSG:3995", Envelope(-2500000, -2000000, 2500000, 2000000), 10.0,
        {{0, 1085943}, {1085943, 0}, {-1085943, 0}, {0, -500000}, {500000, 0}}, {{700000, 300000}});
    row("a map that lies askew", "+proj=omerc +lat_0=45 +lonc=10 +alpha=35 +gamma=0 +datum=WGS84",
        Envelope(-500000, -400000, 500000, 400000), 5.0, {{0, 0}}, {});
  }

  void linesRunThroughTheirPlaces() {
    auto const [system, bounds, interval, onLines, offLines] =
        fetched<QString, Envelope, double, QVector<QPointF>, QVector<QPointF>>();
    auto const frame = frameWith(system, bounds, {{"interval", interval}, {"labels", false}});
    QImage const image = drawn(frame);
    auto const shown = frame->GetMap()->GetExtent();
    auto const isInked = [&](QPointF const& place) {
      double const x = framePx.left() + (place.x() - shown->GetXMin()) / shown->GetWidth() * framePx.width();
      double const y = framePx.top() + (shown->GetYMax() - place.y()) / shown->GetHeight() * framePx.height();
      return !isBlank(image, QRect(qRound(x) - 2, qRound(y) - 2, 5, 5));
    };
    QCOMPARE(where(onLines + offLines, isInked), onLines);
    QVERIFY(isBlank(image, QRect(0, 0, image.width(), pxPerCm - 2)));
    QVERIFY(isBlank(image, QRect(0, 0, pxPerCm - 2, image.height())));
  }

  // Where PROJ says that a meridian and a parallel are, to a tenth of a millimetre on paper.
  void aTurnedGridLiesWhereProjSays_data() {
    Rows<QString, Envelope, double> row;
    row("Europe", "EPSG:3035", Envelope(2700000, 1600000, 6100000, 4200000), 33);
    row("a polar map", "EPSG:3995", Envelope(-1000000, -5000000, 3000000, -1800000), -71);
    row("degrees, upside down", "EPSG:4326", Envelope(-25, -20, 25, 20), 180);
  }
  void aTurnedGridLiesWhereProjSays() {
    auto const [system, bounds, rotation] = fetched<QString, Envelope, double>();
    auto const frame = frameWith(system, bounds, {{"interval", 5}, {"labels", false}, {"lineSymbol", thinLine()}});
    MapHost::setRotation(*frame->GetMap(), rotation);
    FinePicture const picture(sceneOf(frame));
    OnPaper const place("OGC:CRS84", system, bounds, rotation);
    int seen = 0;
    for (double longitude = -180; longitude < 180; longitude += 15)
      for (double latitude = -75; latitude < 90; latitude += 15) {
        QPointF const crossing = place.of(longitude, latitude);
        if (!QRectF(1.5, 1.5, 9, 7).contains(crossing)) continue;
        ++seen;
        QVERIFY(picture.isInked(crossing));
        for (QPointF const& along : {place.of(longitude + 1, latitude), place.of(longitude, latitude + 1)})
          QVERIFY(picture.hasLineAt(along, crossing));
      }
    QVERIFY2(seen >= 4, qPrintable(QString::number(seen)));
  }

  void onlyAPartOfTheLinesIsDrawnWhereAsked_data() {
    // What is inked of: a crossing, the middle between two crossings, and the end of a meridian at the frame.
    Rows<QJsonObject, QString, double, QVector<bool>> row;
    for (double const rotation : {0.0, 12.0}) {
      QString const turned = rotation == 0 ? QString() : QString(", turned");
      row("lines" + turned, {}, "OGC:CRS84", rotation, {true, true, true});
      row("ticks" + turned, {{"kind", "ticks"}, {"size", 8}}, "OGC:CRS84", rotation, {false, false, true});
      row("crosses" + turned, {{"kind", "crosses"}, {"size", 8}}, "OGC:CRS84", rotation, {true, false, false});
      row("lines in metres" + turned, {{"system", "projected"}}, "EPSG:3035", rotation, {true, true, true});
      row("crosses in metres" + turned, {{"system", "projected"}, {"kind", "crosses"}}, "EPSG:3035", rotation,
          {true, false, false});
    }
  }
  void onlyAPartOfTheLinesIsDrawnWhereAsked() {
    auto const [settings, system, rotation, inked] = fetched<QJsonObject, QString, double, QVector<bool>>();
    Envelope const bounds(2700000, 1600000, 6100000, 4320000);
    QJsonObject whole = settings;
    for (auto const& [key, value] : {std::make_pair("interval", QJsonValue(5)),
                                     {"spacing", 500000},
                                     {"labels", false},
                                     {"lineSymbol", thinLine()}})
      whole.insert(key, value);
    auto const frame = frameWith("EPSG:3035", bounds, whole);
    MapHost::setRotation(*frame->GetMap(), rotation);
    FinePicture const picture(sceneOf(frame));
    OnPaper const place(system, "EPSG:3035", bounds, rotation);
    bool const isGlobe = system == "OGC:CRS84";
    double const x = isGlobe ? 10 : 4500000, y = isGlobe ? 45 : 3000000, step = isGlobe ? 5 : 500000;
    QPointF const crossing = place.of(x, y), between = place.of(x, y + step / 2);
    QVector<bool> found{picture.isInked(crossing), picture.isInked(between)};
    QPointF end;  // a meridian's last place in the frame, a tenth of a millimetre from its side
    for (double up = 0; QRectF(1.01, 1.01, 9.98, 7.98).contains(place.of(x, y + up * step)); up += 0.0005)
      end = place.of(x, y + up * step);
    found << picture.isInked(end);
    QCOMPARE(found, inked);
    if (found[0]) {
      // The arms of a cross run along the lines, to half its size and no farther.
      QPointF const ahead = place.of(x + step / 50, y) - crossing;
      double const cm = std::hypot(ahead.x(), ahead.y());
      QVERIFY(picture.isInked(crossing + ahead / cm * 0.09));
    }
  }

  void labelsSayWhatTheyAreAskedTo_data() {
    Rows<QString, QString> row;
    auto const degrees = [&](double value, bool isLongitude, DegreeFormat format, bool signs, QString const& text) {
      row(text, degreesText(value, isLongitude, format, signs), text);
    };
    degrees(-15.5, true, DegreeFormat::Automatic, false, "15°30′W");
    degrees(15.0042, false, DegreeFormat::Automatic, false, "15°00′15.12″N");
    degrees(200, true, DegreeFormat::Automatic, true, "−160°");
    degrees(-7.1234, false, DegreeFormat::Decimal, false, "7.1234°S");
    degrees(-7.25, false, DegreeFormat::Decimal, true, "−7.25°");
    degrees(12, true, DegreeFormat::Minutes, false, "12°00′E");
    degrees(12.9999999, true, DegreeFormat::Minutes, false, "13°00′E");
    degrees(0.125, true, DegreeFormat::Minutes, true, "0°07.5′");
    degrees(-0.125, true, DegreeFormat::Seconds, false, "0°07′30″W");
    degrees(59.99999999, false, DegreeFormat::Seconds, false, "60°00′00″N");
    degrees(0, false, DegreeFormat::Minutes, false, "0°00′");
    degrees(180, true, DegreeFormat::Seconds, false, "180°00′00″");
    auto const coordinate = [&](double value, bool isEasting, QString const& system, bool signs, QString const& text) {
      row(text, coordinateText(value, isEasting, unitOf(system), signs).replace(QChar(0xa0), ' '), text);
    };
    coordinate(500000, true, "EPSG:3035", false, "500,000 m E");
    coordinate(-2000.5, false, "", false, "−2,000.5 m N");
    coordinate(650000, false, "EPSG:2264", false, "650,000 ft N");
    coordinate(12.5, true, "EPSG:4326", false, "12.5° E");
    coordinate(-1500000, true, "EPSG:3035", true, "−1,500,000");
  }
  void labelsSayWhatTheyAreAskedTo() {
    auto const [found, expected] = fetched<QString, QString>();
    QCOMPARE(found, expected);
  }

  void onlyTheSidesThatAreAskedForAreLabelled() {
    // Without the corners.
    constexpr int width = 8 * pxPerCm, height = 6 * pxPerCm, depth = pxPerCm - 1;
    QVector<std::pair<char const*, QRect>> const sides{{"labelsLeft", {0, 2 * pxPerCm, depth, height}},
                                                       {"labelsRight", {11 * pxPerCm + 1, 2 * pxPerCm, depth, height}},
                                                       {"labelsTop", {2 * pxPerCm, 0, width, depth}},
                                                       {"labelsBottom", {2 * pxPerCm, 9 * pxPerCm + 1, width, depth}}};
    for (auto const& [wanted, outside] : sides) {
      QJsonObject settings{{"interval", 10}};
      for (auto const& side : sides) settings.insert(side.first, QLatin1String(side.first) == QLatin1String(wanted));
      QImage const image = drawn(frameWith("EPSG:4326", Envelope(-25, -20, 25, 20), settings));
      for (auto const& side : sides) QCOMPARE(!isBlank(image, side.second), side.first == wanted);
    }
  }

  void labelsLieOutsideTheFrameAndInItsBoundary() {
    auto const frame = frameWith("EPSG:4326", Envelope(-25, -20, 25, 20), {{"interval", 10}});
    QImage const image = drawn(frame);
    QTransform const toPixels = page.transformation()->ToDevice();
    QRectF const boundary = rectOf(*frame->GetBoundary(page.transformation())->GetEnvelope());
    QRect const covered = toPixels.mapRect(boundary).toAlignedRect();
    QVERIFY(covered.contains(framePx.adjusted(-8, -8, 8, 8)));
    QVERIFY(covered.contains(ink(image).where));
    // The equator and the meridian of 0 have one on each of the four sides.
    int const middleX = framePx.left() + framePx.width() / 2, middleY = framePx.top() + framePx.height() / 2;
    for (QRect const& place :
         {QRect(middleX - 5, framePx.bottom() + 3, 10, 12), QRect(middleX - 5, framePx.top() - 15, 10, 12),
          QRect(framePx.left() - 15, middleY - 5, 12, 10), QRect(framePx.right() + 3, middleY - 5, 12, 10)})
      QVERIFY(!isBlank(image, place));

    // Where only a meridian is labelled, nothing stands beside the frame.
    auto const upright = frameWith("EPSG:4326", Envelope(-25, 5, 25, 45), {{"interval", 90}});
    QRectF const covers = rectOf(*upright->GetBoundary(page.transformation())->GetEnvelope());
    QVERIFY(covers.left() == 1 && covers.right() == 11 && covers.top() < 0.8 && covers.bottom() > 9.2);
  }

  void everyLineHasItsLabel_data() {
    // labels: pixels
    Rows<QString, Envelope, double, QVector<QPoint>, QVector<QPoint>> row;
    row("a parallel around a pole, on its lowest point", "EPSG:3995", Envelope(-2500000, -2000000, 2500000, 2000000),
        10.0, {{240, 287}}, {{240, 113}});
    row("meridians from pole to pole, on the equator", "ESRI:54009", Envelope(-20000000, -16000000, 20000000, 16000000),
        45.0, {{195, 200}, {285, 200}, {240, 200}}, {{240, 105}});
    row("meridians that end in the line of a pole, beyond it", "ESRI:54030",
        Envelope(-20000000, -16000000, 20000000, 16000000), 90.0, {{240, 107}, {240, 293}, {288, 107}}, {{240, 200}});
    row("lines along the sides of the frame, in its corners", "EPSG:4326", Envelope(-25, -20, 25, 20), 25.0,
        {{40, 33}, {40, 367}, {33, 200}}, {{33, 50}});
  }

  void everyLineHasItsLabel() {
    auto const [system, bounds, interval, labels, bare] =
        fetched<QString, Envelope, double, QVector<QPoint>, QVector<QPoint>>();
    QImage const with = drawn(frameWith(system, bounds, {{"interval", interval}}));
    QImage const without = drawn(frameWith(system, bounds, {{"interval", interval}, {"labels", false}}));
    auto const isLabelled = [&](QPoint const& place) {
      QRect const around(place - QPoint(4, 4), QSize(9, 9));
      return with.copy(around) != without.copy(around);
    };
    QCOMPARE(where(labels + bare, isLabelled), labels);
  }

  // In Svalbard a degree of longitude is a fifth as long as one of latitude.
  void theIntervalFollowsEitherDirection() {
    Envelope const bounds(350000, 8400000, 850000, 8800000);
    QImage const image = drawn(frameWith("EPSG:32633", bounds, {{"labels", false}}));
    int crossed = 0;
    for (int x = framePx.left() + 2; x < framePx.right() - 2; ++x)
      if (image.pixelColor(x, 200) != Qt::white && image.pixelColor(x - 1, 200) == Qt::white) ++crossed;
    QVERIFY2(crossed >= 2 && crossed <= 5, qPrintable(QString::number(crossed)));
  }

  void theIntervalFollowsTheScale() {
    auto const frame = frameWith("EPSG:4326", Envelope(-25, -20, 25, 20), {});
    QImage const before = drawn(frame);
    frame->GetMap()->SetExtent(make<Envelope>(-0.25, -0.2, 0.25, 0.2));
    QVERIFY(drawn(frame) != before);
    frame->GetMap()->SetExtent(make<Envelope>(-25.0, -20.0, 25.0, 20.0));
    QVERIFY(drawn(frame) == before);
  }

  void aMillionLinesAreNotDrawnButToldOf() {
    auto const frame = frameWith("EPSG:4326", Envelope(-180, -90, 180, 90), {{"interval", 0.0005}});
    QString const problem = GraticuleSettings::problemOf(*ptr_cast<Graticule>(frame->GetMapGrid(0)), *frame);
    QVERIFY2(problem.contains("has an interval of 0.0005 degrees, which makes 1,080,000 lines"), qPrintable(problem));
    QVERIFY2(problem.contains("enter one of 0.54 degrees or more"), qPrintable(problem));
    QVERIFY(drawn(frame) == drawn(frameWith("EPSG:4326", Envelope(-180, -90, 180, 90), {})));
  }

  // Who looks for GDAL's errors after drawing, as an export does, must not take these for its own.
  void placesBeyondTheGlobeAreNoErrors() {
    int errors = 0;
    CPLPushErrorHandlerEx([](CPLErr, CPLErrorNum, char const*) { ++*static_cast<int*>(CPLGetErrorHandlerUserData()); },
                          &errors);
    drawn(frameWith("ESRI:54042", Envelope(-20000000, -25000000, 20000000, 25000000), {{"interval", 15}}));
    CPLPopErrorHandler();
    QCOMPARE(errors, 0);
  }

  void withoutAGlobeThereIsNoGrid() {
    QVERIFY(isBlank(drawn(frameWith("", Envelope(0, 0, 100, 80), {})), framePx.adjusted(-20, -20, 20, 20)));
  }

private:
  static _ptr_t<MapFrameElement> frameWith(QString const& system, Envelope const& bounds, QJsonObject const& settings) {
    auto const frame = madeIn<MapFrameElement>(1, 1, 11, 9);
    frame->SetBorder(nullptr);
    frame->SetBackGround(nullptr);
    frame->SetMap(mapShowing(system, bounds, 10, 8));
    frame->AddMapGrid(described<Graticule>(settings));
    return frame;
  }

  static QImage drawn(_ptr_t<MapFrameElement> const& frame) { return page.drawn(sceneOf(frame)); }
};

QTEST_MAIN(GraticuleTest)
#include "GraticuleTest.moc"
