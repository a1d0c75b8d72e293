#include "Boxes.h"

#include "host/SysDisplay/DisplayTransformationHost.h"

#include <cmath>
#include <limits>

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysGeometry::Envelope;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

_ptr_t<Envelope> box(QRectF const& r) { return make<Envelope>(r.left(), r.top(), r.right(), r.bottom()); }

}  // namespace

class TransformationTest : public QObject {
  Q_OBJECT

private slots:
  void fitting_data() {
    // bounds: x, y, width, height with y upwards
    Rows<QRectF, QRectF> row;
    row("equal aspect stays as it is", QRectF(1, 2, 20, 10), QRectF(1, 2, 20, 10));
    row("narrow bounds grow to the right", QRectF(0, 0, 10, 10), QRectF(0, 0, 20, 10));
    row("low bounds grow downwards", QRectF(0, 0, 20, 5), QRectF(0, -5, 20, 10));
    row("corners are ordered", QRectF(20, 10, -20, -10), QRectF(0, 0, 20, 10));
    row("a flat line takes the frame's aspect", QRectF(0, 7, 20, 0), QRectF(0, -3, 20, 10));
    row("an upright line takes the frame's aspect", QRectF(3, 0, 0, 10), QRectF(3, 0, 20, 10));
    row("a point is ignored", QRectF(5, 5, 0, 0), QRectF(0, 0, 2, 1));
    row("not a number is ignored", QRectF(notANumber, 0, 4, 4), QRectF(0, 0, 2, 1));
    row("infinite bounds are ignored", QRectF(-1e308, 0, 1.7e308, 4).adjusted(-1e308, 0, 1e308, 0), QRectF(0, 0, 2, 1));
  }
  void fitting() {
    auto const [bounds, fitted] = fetched<QRectF, QRectF>();
    DisplayTransformation transformation;
    transformation.SetDeviceFrame(QRect(0, 0, 200, 100));
    transformation.SetVisibleBounds(box(QRectF(0, 0, 2, 1)));
    transformation.SetVisibleBounds(box(bounds));
    QCOMPARE(rectOf(*transformation.GetFittedBounds()), fitted);
  }

  void pixels_data() {
    Rows<QPointF, QPoint> row;
    int const most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();
    row("upper left corner", QPointF(0, 10), QPoint(5, 7));
    row("lower right corner lies beyond the last pixel", QPointF(20, 0), QPoint(205, 107));
    row("below half rounds down", QPointF(0.049, 10), QPoint(5, 7));
    row("half rounds up", QPointF(0.05, 9.95), QPoint(6, 8));
    row("half rounds up left of zero, too", QPointF(-0.65, 10.75), QPoint(-1, 0));
    row("far away saturates", QPointF(1e300, 1e300), QPoint(most, least));
    row("far away saturates the other way", QPointF(-1e300, -1e300), QPoint(least, most));
  }
  void pixels() {
    auto const [world, pixel] = fetched<QPointF, QPoint>();
    DisplayTransformation transformation;
    transformation.SetDeviceFrame(QRect(5, 7, 200, 100));
    transformation.SetVisibleBounds(box(QRectF(0, 0, 20, 10)));
    QCOMPARE(transformation.FromMapPoint(world.x(), world.y()), pixel);
    QPointF const exact = transformation.ToDevice().map(world);
    if (std::abs(exact.x()) < 1e6) QVERIFY(std::abs(exact.x() - pixel.x()) <= 0.5 + 1e-9);
  }

  // Pixels of a map that is turned by 30 degrees about (10, 5), as they come out of a compass.
  void aTurnedMapIsMappedBothWays() {
    DisplayTransformation whole;
    whole.SetDeviceFrame(QRect(0, 0, 2000, 1000));
    whole.SetVisibleBounds(box(QRectF(0, 0, 20, 10)));
    DisplayTransformationHost::setTurn(whole, 30, {10, 5});
    auto const part = whole.Clone();
    part->SetDeviceFrame(QRect(0, 0, 500, 400));
    part->SetVisibleBounds(box(QRectF(11, 4, 5, 4)));
    for (auto const& [world, pixel] :
         {std::make_pair(QPointF(10, 5), QPoint(1000, 500)), std::make_pair(QPointF(14, 5), QPoint(1346, 300)),
          std::make_pair(QPointF(10, 8), QPoint(850, 240))}) {
      QCOMPARE(whole.FromMapPoint(world.x(), world.y()), pixel);
      QCOMPARE(part->FromMapPoint(world.x(), world.y()), pixel - QPoint(1100, 200));
      auto const back = whole.ToMapPoint(pixel);
      QVERIFY(std::hypot(back->GetX() - world.x(), back->GetY() - world.y()) < 0.0075);
      QVERIFY(QLineF(whole.ToDevice().map(world), pixel).length() < 0.75);
    }
    double const width = 20 * std::cos(M_PI / 6) + 10 * 0.5, height = 20 * 0.5 + 10 * std::cos(M_PI / 6);
    QVERIFY(isAbout(DisplayTransformationHost::coveredWorld(whole),
                    QRectF(10 - width / 2, 5 - height / 2, width, height), 1e-9));
    QCOMPARE(rectOf(*whole.GetFittedBounds()), QRectF(0, 0, 20, 10));
  }

  // Scales belong to their owner: neither bounds nor frame nor device may change them, and a clone keeps them.
  void scalesStay() {
    DisplayTransformation transformation;
    transformation.SetPageScale(3.125);
    DisplayTransformationHost::setMapScale(transformation, 25000);
    auto const clone = transformation.Clone();
    clone->SetDeviceFrame(QRect(0, 0, 512, 512));
    clone->SetVisibleBounds(box(QRectF(0, 0, 1, 1)));
    clone->SetPaintDevice(nullptr);
    QCOMPARE(clone->GetPageScale(), 3.125);
    QCOMPARE(clone->GetMapScale(), 25000.0);
    QCOMPARE(clone->PixelsPerPoint(), 3.125 * 96 / 72);
    clone->SetPageScale(1);
    QCOMPARE(transformation.GetPageScale(), 3.125);
    QCOMPARE(transformation.GetDeviceFrame(), QRect(0, 0, 1, 1));
  }
};

QTEST_MAIN(TransformationTest)
#include "TransformationTest.moc"
