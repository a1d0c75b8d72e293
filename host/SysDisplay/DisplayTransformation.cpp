#include "DevicePath.h"
#include "DisplayTransformationHost.h"

#include <SysDisplay/Units.h>

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysDisplay {

using SysGeometry::Envelope;
using SysGeometry::Point;
using SysUtility::_ptr_t;

namespace {

// Two scales this near to each other differ only by the rounding of the bounds.
constexpr double sameScale = 1e-7;

int toPixel(double position) {
  constexpr double low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
  if (std::isnan(position)) return 0;
  // The bias lets what lies between two pixels go the same way, whatever the last bits of the mapping are.
  return static_cast<int>(std::clamp(std::floor(position + 0.5 + 1e-6), low, high));
}

}  // namespace

struct DisplayTransformation::Private {
  double xmin = 0, ymin = 0, xmax = 1, ymax = 1;
  QRect frame{0, 0, 1, 1};
  double mapScale = 0;
  double pageScale = 1;
  bool fillsWidth = false;
  QTransform turn;
  QPointF patternOrigin;
  QRectF whole;  // with y upwards
  double wholePerPoint = 0;
  QPaintDevice* device = nullptr;

  double frameWidth() const { return std::max(1, frame.width()); }
  double frameHeight() const { return std::max(1, frame.height()); }
  double scaleX() const { return frameWidth() / (xmax - xmin); }
  double scaleY() const { return frameHeight() / (ymax - ymin); }
  bool hasFrameAspect() const {
    return std::isfinite(scaleX()) && std::abs(scaleX() - scaleY()) <= sameScale * scaleX();
  }

  // Pixels on a world unit. Of two scales that should be equal the longer side has the truer one.
  double scale() const {
    if (hasFrameAspect()) return frameWidth() >= frameHeight() ? scaleX() : scaleY();
    return fillsWidth && xmax > xmin ? scaleX() : std::min(scaleX(), scaleY());
  }

  // From the turned world.
  QTransform straight() const {
    double const s = scale();
    return QTransform(s, 0, 0, -s, frame.left() - xmin * s, frame.top() + ymax * s);
  }
};

DisplayTransformation::DisplayTransformation() : d(std::make_unique<Private>()) {}
DisplayTransformation::DisplayTransformation(DisplayTransformation const& other)
    : CRef(other), d(std::make_unique<Private>(*other.d)) {}
DisplayTransformation& DisplayTransformation::operator=(DisplayTransformation const& other) {
  *d = *other.d;
  return *this;
}
DisplayTransformation::~DisplayTransformation() = default;

_ptr_t<DisplayTransformation> DisplayTransformation::Clone() const {
  return SysUtility::make<DisplayTransformation>(*this);
}

double DisplayTransformation::GetMapScale() const { return d->mapScale; }
double DisplayTransformation::GetPageScale() const { return d->pageScale; }
void DisplayTransformation::SetPageScale(double pageScale) {
  if (std::isfinite(pageScale) && pageScale > 0) d->pageScale = pageScale;
}
double DisplayTransformation::PixelsPerPoint() const { return d->pageScale * pixelsPerInch / pointsPerInch; }

QPaintDevice* DisplayTransformation::GetPaintDevice() const { return d->device; }
void DisplayTransformation::SetPaintDevice(QPaintDevice* device) { d->device = device; }

void DisplayTransformation::SetVisibleBounds(_ptr_t<Envelope> const& bounds) {
  if (!bounds) return;
  double x1, y1, x2, y2;
  bounds->QueryCoords(x1, y1, x2, y2);
  if (x1 > x2) std::swap(x1, x2);
  if (y1 > y2) std::swap(y1, y2);
  bool const isFinite = std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2 - x1) && std::isfinite(y2 - y1);
  bool const isPoint = x2 - x1 <= 0 && y2 - y1 <= 0;
  if (!isFinite || isPoint) return;
  d->xmin = x1;
  d->ymin = y1;
  d->xmax = x2;
  d->ymax = y2;
}

_ptr_t<Envelope> DisplayTransformation::GetVisibleBounds() const {
  return SysUtility::make<Envelope>(d->xmin, d->ymin, d->xmax, d->ymax);
}

_ptr_t<Envelope> DisplayTransformation::GetFittedBounds() const {
  if (d->hasFrameAspect()) return GetVisibleBounds();
  bool const widens = d->scale() < d->scaleX();
  double const xmax = widens ? d->xmin + d->frameWidth() / d->scale() : d->xmax;
  double const ymin = widens ? d->ymin : d->ymax - d->frameHeight() / d->scale();
  return SysUtility::make<Envelope>(d->xmin, ymin, xmax, d->ymax);
}

void DisplayTransformation::SetDeviceFrame(QRect const& frame) { d->frame = frame; }
QRect DisplayTransformation::GetDeviceFrame() const { return d->frame; }

QPoint DisplayTransformation::FromMapPoint(double x, double y) const {
  double const scale = d->scale();
  QPointF const point = d->turn.map(QPointF(x, y));
  return {toPixel(d->frame.left() + (point.x() - d->xmin) * scale),
          toPixel(d->frame.top() + (d->ymax - point.y()) * scale)};
}

_ptr_t<Point> DisplayTransformation::ToMapPoint(QPoint const& pixel) const { return ToMapPoint(pixel.x(), pixel.y()); }

_ptr_t<Point> DisplayTransformation::ToMapPoint(int x, int y) const {
  double const scale = d->scale();
  QPointF const turned(d->xmin + (static_cast<double>(x) - d->frame.left()) / scale,
                       d->ymax - (static_cast<double>(y) - d->frame.top()) / scale);
  QPointF const point = d->turn.inverted().map(turned);
  return SysUtility::make<Point>(point.x(), point.y(), 0.0);
}

QTransform DisplayTransformation::ToDevice() const { return d->turn * d->straight(); }

void DisplayTransformationHost::setMapScale(DisplayTransformation& transformation, double denominator) {
  transformation.d->mapScale = denominator;
}

void DisplayTransformationHost::setFillsWidth(DisplayTransformation& transformation, bool fillsWidth) {
  transformation.d->fillsWidth = fillsWidth;
}

void DisplayTransformationHost::setPatternOrigin(DisplayTransformation& transformation, double x, double y) {
  transformation.d->patternOrigin = {x, y};
}

QPointF DisplayTransformationHost::patternOrigin(DisplayTransformation const& transformation) {
  return snapped(transformation.d->straight().map(transformation.d->patternOrigin));
}

void DisplayTransformationHost::setTurn(DisplayTransformation& transformation, double degrees, QPointF const& about) {
  double const angle = degrees * M_PI / 180, cosine = std::cos(angle), sine = std::sin(angle);
  transformation.d->turn = QTransform(cosine, sine, -sine, cosine, about.x() - cosine * about.x() + sine * about.y(),
                                      about.y() - sine * about.x() - cosine * about.y());
}

QTransform const& DisplayTransformationHost::turn(DisplayTransformation const& transformation) {
  return transformation.d->turn;
}

QRectF DisplayTransformationHost::coveredWorld(DisplayTransformation const& transformation) {
  auto const bounds = transformation.GetFittedBounds();
  return transformation.d->turn.inverted().mapRect(
      QRectF(QPointF(bounds->GetXMin(), bounds->GetYMin()), QPointF(bounds->GetXMax(), bounds->GetYMax())));
}

void DisplayTransformationHost::setWhole(DisplayTransformation& transformation, QRectF const& whole) {
  transformation.d->whole = whole;
  transformation.d->wholePerPoint = transformation.PixelsPerPoint() / transformation.d->scale();
}

// A tile may lie a little beyond, since it is made of whole pixels.
QRectF DisplayTransformationHost::wholeWorld(DisplayTransformation const& transformation) {
  QRectF const covered = coveredWorld(transformation);
  QRectF const whole = transformation.d->turn.inverted().mapRect(transformation.d->whole);
  return whole.isEmpty() || !whole.intersects(covered) ? covered : whole;
}

DisplayTransformationHost::OnPage DisplayTransformationHost::onPage(DisplayTransformation const& transformation) {
  constexpr double mostPx = 2, mostPart = 0.03;  // by which whole pixels may be off
  auto const& d = *transformation.d;
  auto const fitted = transformation.GetFittedBounds();
  QRectF const shown(QPointF(fitted->GetXMin(), fitted->GetYMin()), QPointF(fitted->GetXMax(), fitted->GetYMax()));
  double const perPoint = transformation.PixelsPerPoint() / d.scale(), most = mostPx / d.scale();
  auto const isAbout = [most](double a, double b) { return std::abs(a - b) <= most; };
  bool const isWhole = isAbout(shown.left(), d.whole.left()) && isAbout(shown.right(), d.whole.right()) &&
                       isAbout(shown.top(), d.whole.top()) && isAbout(shown.bottom(), d.whole.bottom()) &&
                       std::abs(perPoint / d.wholePerPoint - 1) < mostPart;
  return isWhole ? OnPage{d.whole, d.wholePerPoint} : OnPage{shown, perPoint};
}

double DisplayTransformationHost::pixelsPerUnit(DisplayTransformation const& transformation) {
  return transformation.d->scale();
}

}  // namespace SysDisplay
