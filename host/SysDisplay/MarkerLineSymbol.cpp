#include "MarkerLineSymbol.h"

#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/GeometryParts.h"
#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/StrokeDrawing.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::boxOf;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

constexpr double nearestMarkersPx = 1;
constexpr double verticesOfAMarker = 4;  // at least
constexpr double degreesPerRadian = 180 / 3.14159265358979323846;

// Markers of one line are turned in steps of a degree, and so many pixels of them are kept drawn at most.
constexpr int fullTurn = 360;
constexpr double keptPx = 16e6;
constexpr double drawingsOfAPicture = 16;  // at different places within a pixel

// Where the lines of one marker symbol reach from its position, however it is turned.
double radiusOf(QRectF const& bounds) {
  return std::hypot(std::max(-bounds.left(), bounds.right()), std::max(-bounds.top(), bounds.bottom()));
}

// A line measured from its beginning. Everything is counted from its first point, so that tiles, which differ in where
// that point lies, get the same numbers to the last bit.
class Course {
public:
  Course(std::vector<QPointF> const& points, bool closed) : start_(points.front()), closed_(closed) {
    for (QPointF const& point : points) append(point - start_);
    if (closed) append(QPointF());
  }

  bool isClosed() const { return closed_; }
  double length() const { return lengths_.back(); }
  int segments() const { return static_cast<int>(points_.size()) - 1; }
  double from(int segment) const { return lengths_[segment]; }
  double to(int segment) const { return lengths_[segment + 1]; }

  /// The part of a segment that lies within a box, as lengths along the line.
  SysGeometry::SegmentRange within(int segment, QRectF const& area) const {
    auto const range =
        SysGeometry::clippedSegment(points_[segment], points_[segment + 1], boxOf(area.translated(-start_)));
    double const length = to(segment) - from(segment);
    return {from(segment) + range.from * length, from(segment) + range.to * length};
  }

  QPointF at(double length, int nearSegment) const { return start_ + placeAt(length, nearSegment); }

  /// From a place behind the middle to one as far ahead of it.
  QPointF chord(double middle, double half, int nearSegment) const {
    return placeAt(onLine(middle + half), nearSegment) - placeAt(onLine(middle - half), nearSegment);
  }

private:
  void append(QPointF const& point) {
    double const step =
        points_.empty() ? 0 : std::hypot(point.x() - points_.back().x(), point.y() - points_.back().y());
    lengths_.push_back(points_.empty() ? 0 : lengths_.back() + step);
    points_.push_back(point);
  }

  double onLine(double length) const {
    if (!closed_) return std::clamp(length, 0.0, this->length());
    double const rest = std::fmod(length, this->length());
    return rest < 0 ? rest + this->length() : rest;
  }

  QPointF placeAt(double length, int nearSegment) const {
    int segment = nearSegment;
    if (length < from(segment) || length > to(segment)) {
      auto const after = std::upper_bound(lengths_.begin() + 1, lengths_.end() - 1, length);
      segment = static_cast<int>(after - lengths_.begin()) - 1;
    }
    double const whole = to(segment) - from(segment);
    double const part = whole > 0 ? (length - from(segment)) / whole : 0;
    return points_[segment] + (points_[segment + 1] - points_[segment]) * part;
  }

  QPointF const start_;
  bool const closed_;
  std::vector<QPointF> points_;  // from the start
  std::vector<double> lengths_;  // up to each
};

class MarkerLineDrawing final : public PathDrawing {
public:
  MarkerLineDrawing(DrawTarget& target, MarkerLineSymbol const& symbol, _ptr_t<PreparableMarker> const& marker,
                    std::unique_ptr<MarkerDrawing> drawing)
      : target_(target),
        marker_(marker),
        bounds_(drawing->bounds()),
        isTurned_(symbol.isTurned()),
        intervalPx_(std::max(nearestMarkersPx, symbol.interval() * target.pixelsPerPoint())),
        firstPx_(std::max(0.0, symbol.first() * target.pixelsPerPoint())),
        offsetPx_(symbol.GetOffset() * target.pixelsPerPoint()) {
    drawings_[0] = std::move(drawing);
    double const reach = radiusOf(bounds_) + 4;
    area_ = target.area().adjusted(-reach, -reach, reach, reach);
    double const picturePx = std::max(1.0, bounds_.width() * bounds_.height()) * drawingsOfAPicture;
    maxDrawings_ = static_cast<size_t>(std::clamp(keptPx / picturePx, 2.0, double(fullTurn)));
  }

  double reachPx() const override { return radiusOf(bounds_) + 4 + std::abs(offsetPx_) * 2; }

  void addLine(WorldRun const& run) override { add(run, false); }
  void addRing(WorldRun const& run, bool outlined) override {
    if (outlined) add(run, true);
  }

  void draw(Box const&) override {
    for (Place const& place : places_)
      if (!DrawingBudget::isSpent()) drawingAt(place.degrees).drawAt(target_, place.position);
    places_.clear();
  }

private:
  struct Place {
    QPointF position;
    int degrees;
  };

  // How far along the line a marker stands depends on all that comes before.
  void add(WorldRun const& run, bool closed) {
    toDevicePoints(target_.toDevice(), WorldRun{run.xy, run.count}, area_, thinPx, line_);
    if (line_.empty()) return;
    std::vector<QPointF> const& points = courseOf(line_, closed, offsetPx_, moved_);
    if (points.size() > 1) return collect(Course(points, closed && points.size() > 2));
    if (firstPx_ == 0 && area_.contains(points.front())) places_.push_back({points.front(), 0});
  }

  void collect(Course const& course) {
    constexpr double rounding = 1e-6;
    for (int i = 0; i < course.segments(); ++i) {
      auto const range = course.within(i, area_);
      if (range.isEmpty()) continue;
      bool const isEnd = i + 1 == course.segments() && !course.isClosed();
      double const end = isEnd ? range.to + rounding : std::min(range.to, course.to(i) - rounding);
      double number = std::max(0.0, std::ceil((range.from - rounding - firstPx_) / intervalPx_));
      // Beyond what is counted one by one there are no markers.
      for (; firstPx_ + number * intervalPx_ <= end && number + 1 > number && !DrawingBudget::isSpent(); ++number) {
        DrawingBudget::spendOnVertices(verticesOfAMarker);
        double const length = std::max(firstPx_ + number * intervalPx_, course.from(i));
        places_.push_back({course.at(length, i), degreesAt(course, length, i)});
      }
    }
  }

  // The direction of a stretch as long as the marker is wide: that of one segment would jump at every vertex.
  int degreesAt(Course const& course, double length, int segment) const {
    if (!isTurned_) return 0;
    QPointF const along = course.chord(length, std::max(1.0, bounds_.width() / 2), segment);
    double const degrees = std::atan2(-along.y(), along.x()) * degreesPerRadian;
    return (static_cast<int>(std::floor(degrees + 0.5 + 1e-6)) + fullTurn) % fullTurn;
  }

  MarkerDrawing& drawingAt(int degrees) {
    auto& known = drawings_[degrees];
    if (known) return *known;
    if (drawings_.size() > maxDrawings_) {
      drawings_.clear();
      return drawingAt(degrees);
    }
    auto const turned = ptr_cast<PreparableMarker>(marker_->Clone());
    turned->SetAngle(marker_->GetAngle() + degrees);
    known = turned->prepare(target_.pixelsPerPoint());
    return *known;
  }

  static constexpr double thinPx = 0.25;

  DrawTarget& target_;
  _ptr_t<PreparableMarker> const marker_;
  QRectF const bounds_;
  bool const isTurned_;
  double const intervalPx_, firstPx_, offsetPx_;
  size_t maxDrawings_;
  std::map<int, std::unique_ptr<MarkerDrawing>> drawings_;  // by degrees
  QRectF area_;
  std::vector<QPointF> line_, moved_;
  std::vector<Place> places_;
};

}  // namespace

MarkerLineSymbol::MarkerLineSymbol() : marker_(SysUtility::make<SimpleMarkerSymbol>()) {}
MarkerLineSymbol::MarkerLineSymbol(MarkerLineSymbol const& other) : PreparableLine(other) { *this = other; }
MarkerLineSymbol& MarkerLineSymbol::operator=(MarkerLineSymbol const& other) {
  PreparableLine::operator=(other);
  marker_ = other.marker_ ? ptr_cast<MarkerSymbol>(other.marker_->Clone()) : nullptr;
  intervalPt_ = other.intervalPt_;
  firstPt_ = other.firstPt_;
  turned_ = other.turned_;
  return *this;
}
MarkerLineSymbol::~MarkerLineSymbol() = default;

_ptr_t<Symbol> MarkerLineSymbol::Clone() const { return SysUtility::make<MarkerLineSymbol>(*this); }

std::unique_ptr<PathDrawing> MarkerLineSymbol::prepare(DrawTarget& target) const {
  auto const marker = ptr_cast<PreparableMarker>(marker_);
  auto drawing = marker ? marker->prepare(target.pixelsPerPoint()) : nullptr;
  if (!drawing) return nullptr;
  return std::make_unique<MarkerLineDrawing>(target, *this, marker, std::move(drawing));
}

_ptr_t<Envelope> MarkerLineSymbol::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Geometry> const& geometry) const {
  auto const marker = ptr_cast<PreparableMarker>(marker_);
  auto const drawing = transformation && marker ? marker->prepare(transformation->PixelsPerPoint()) : nullptr;
  std::optional<QRectF> line;
  if (drawing) line = deviceBounds(*transformation, geometry.get());
  if (!line) return nullptr;
  double const offsetPx = std::abs(GetOffset()) * 2 * transformation->PixelsPerPoint();
  double const reach = radiusOf(drawing->bounds()) + offsetPx + 1;
  return toWorld(*transformation, line->adjusted(-reach, -reach, reach, reach));
}

void MarkerLineSymbol::resize(double factor) {
  if (marker_) marker_->SetSize(marker_->GetSize() * factor);
  SetOffset(GetOffset() * factor);
  intervalPt_ = std::clamp(intervalPt_ * factor, minInterval, maxInterval);
  firstPt_ = std::min(firstPt_ * factor, maxInterval);
}

double MarkerLineSymbol::GetWidth() const { return marker_ ? marker_->GetSize() : 0; }
void MarkerLineSymbol::SetWidth(double points) {
  if (marker_) marker_->SetSize(points);
}

}  // namespace SysDisplay
