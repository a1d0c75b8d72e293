#include "SurroundFixture.h"

#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <cpl_error.h>
#include <proj.h>

#include <cmath>
#include <memory>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

constexpr int pxPerCm = 40;
// The frame on a page of 12 by 10 centimetres: from (1, 1) to (11, 9).
constexpr QRect framePx(pxPerCm, pxPerCm, 10 * pxPerCm, 8 * pxPerCm);

Sheet const page{Envelope(0, 0, 12, 10), QSize(12, 10) * pxPerCm, pxPerCm * 2.54 / 96};

QJsonObject thinLine() { return json("{'type':'simpleLine','width':0.28}"); }

// Places of the globe on the page, as PROJ has them, with a map that is turned in the frame.
class OnPaper {
public:
  OnPaper(QString const& system, Envelope const& bounds, double rotation) {
    PJ* const given = proj_create_crs_to_crs(nullptr, "OGC:CRS84", system.toUtf8().constData(), nullptr);
    projection_.reset(proj_normalize_for_visualization(nullptr, given));
    proj_destroy(given);
    cmPerUnit_ = std::min(10 / bounds.GetWidth(), 8 / bounds.GetHeight());
    auto const centre = bounds.GetAnchorPoint();
    centre_ = {centre->GetX(), centre->GetY()};
    angle_ = rotation * M_PI / 180;
  }

  QPointF of(double longitude, double latitude) const {
    PJ_COORD const at = proj_trans(projection_.get(), PJ_FWD, proj_coord(longitude, latitude, 0, 0));
    double const x = (at.xy.x - centre_.x()) * cmPerUnit_, y = (at.xy.y - centre_.y()) * cmPerUnit_;
    return {6 + x * std::cos(angle_) - y * std::sin(angle_), 5 + x * std::sin(angle_) + y * std::cos(angle_)};
  }

private:
  struct Destroy {
    void operator()(PJ* projection) const { proj_destroy(projection); }
  };
  std::unique_ptr<PJ, Destroy> projection_;
  QPointF centre_;
  double cmPerUnit_, angle_;
};

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
    constexpr double fine = 400, halfLineCm = 0.005;
    auto const frame = frameWith(system, bounds, {{"interval", 5}, {"labels", false}, {"lineSymbol", thinLine()}});
    MapHost::setRotation(*frame->GetMap(), rotation);
    Sheet const paper{Envelope(0, 0, 12, 10), QSize(12, 10) * fine, fine * 2.54 / 96};
    QImage const image = paper.drawn(sceneOf(frame));
    OnPaper const place(system, bounds, rotation);
    int seen = 0;
    for (double longitude = -180; longitude < 180; longitude += 15)
      for (double latitude = -75; latitude < 90; latitude += 15) {
        QPointF const crossing = place.of(longitude, latitude);
        if (!QRectF(1.5, 1.5, 9, 7).contains(crossing)) continue;
        ++seen;
        for (QPointF const& along : {place.of(longitude + 1, latitude), place.of(longitude, latitude + 1)}) {
          QLineF const normal = QLineF(along, crossing).normalVector().unitVector();
          QPointF const aside = normal.p2() - normal.p1();
          auto const isInked = [&](QPointF const& cm) {
            return image.pixelColor(qRound(cm.x() * fine), qRound((10 - cm.y()) * fine)) != Qt::white;
          };
          QVERIFY(isInked(along));
          for (double const off : {-0.01 - halfLineCm, 0.01 + halfLineCm}) QVERIFY(!isInked(along + aside * off));
        }
      }
    QVERIFY2(seen >= 4, qPrintable(QString::number(seen)));
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
