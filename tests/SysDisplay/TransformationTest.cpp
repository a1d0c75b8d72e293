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
