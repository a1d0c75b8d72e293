#include "LabelPlacer.h"

#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/TextWrap.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <limits>

namespace SysCarto {

using namespace SysDisplay;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int maxMarksCounted = 8;
constexpr int importantMark = 4;     // counts as so many
constexpr double hiddenPart = 0.25;  // of a mark, at either side, that a text may cover which came first

// The wanted places, in their order.
std::vector<PointPlace> placesOf(LabelSettings const& settings) {
  if (settings.places.isEmpty()) return {std::begin(pointPlaces), std::prev(std::end(pointPlaces))};
  std::vector<PointPlace> places;
  for (QString const& name : settings.places)
    for (PointPlace const& place : pointPlaces)
      if (name == QLatin1String(place.name)) places.push_back(place);
  return places;
}

// The box of a text beside a mark. On a slant the text stands a little above or below the mark's middle, so that eye
// and mark meet at its height; straight above and below it keeps clear of the mark.
Box boxBeside(Box const& mark, PointPlace const& direction, double width, double height, double offset) {
  double const x = (mark.xmin + mark.xmax) / 2, y = (mark.ymin + mark.ymax) / 2;
  double left = x - width / 2, bottom = y - height / 2;
  if (direction.across > 0) left = mark.xmax + offset;
  if (direction.across < 0) left = mark.xmin - offset - width;
  if (direction.across != 0 && direction.up > 0) bottom = y - height * 0.15;
  if (direction.across != 0 && direction.up < 0) bottom = y - height * 0.85;
  if (direction.across == 0 && direction.up > 0) bottom = mark.ymax + offset;
  if (direction.across == 0 && direction.up < 0) bottom = mark.ymin - offset - height;
  return {left, bottom, left + width, bottom + height};
}

QPointF centreOf(Box const& box) { return {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}; }

}  // namespace

LabelPlacer::LabelPlacer(FeatureStore const& store, LabelSettings const& settings, Renderer const& renderer,
                         DisplayTransformation const& transformation)
    : store_(store),
      settings_(settings),
      places_(placesOf(settings)),
      scale_(transformation.GetMapScale()),
      thinned_(store),
      shapes_(store, renderer, scale_) {
  auto const bounds = transformation.GetFittedBounds();
  double const unitsPerPoint =
      transformation.PixelsPerPoint() / DisplayTransformationHost::pixelsPerUnit(transformation);
  if (!bounds || bounds->IsEmpty() || !(unitsPerPoint > 0) || !std::isfinite(unitsPerPoint) || !settings.symbol) return;
  unitsPerPoint_ = unitsPerPoint;
  turn_ = DisplayTransformationHost::turn(transformation);
  turnBack_ = turn_.inverted();
  covered_ = DisplayTransformationHost::coveredWorld(transformation);
  for (PinnedLabel const& pin : settings.pinned) pins_[pin.key] = &pin;
  left_ = bounds->GetXMin();
  bottom_ = bounds->GetYMin();
  frame_ = {0, 0, bounds->GetWidth() / unitsPerPoint, bounds->GetHeight() / unitsPerPoint};
  thinned_.setResolution(2 * unitsPerPoint);
}

void LabelPlacer::addObstacle(SysGeometry::Polygon const& area) {
  Rings rings = area.GetRings();
  for (Ring& ring : rings)
    for (QPointF& point : ring) point = toPage(point.x(), point.y());
  LabelShape shape = LabelShape::area(std::move(rings));
  bool const isUpright = shape.rings.size() == 1 && shape.rings[0].size() == 4 &&
                         std::abs(std::abs(SysGeometry::signedArea(shape.rings[0])) -
                                  (shape.box.xmax - shape.box.xmin) * (shape.box.ymax - shape.box.ymin)) < 1e-6;
  index_.add(isUpright ? LabelShape::upright(shape.box) : std::move(shape));
}

std::vector<int> LabelPlacer::candidates() const {
  std::vector<int> features = store_.query({covered_.left(), covered_.top(), covered_.right(), covered_.bottom()});
  auto const isLeftOut = [this](int feature) {
    return !shapes_.isDrawn(feature) || store_.labels[feature].isEmpty() ||
           (only_ && store_.ids[static_cast<size_t>(feature)] != *only_);
  };
  features.erase(std::remove_if(features.begin(), features.end(), isLeftOut), features.end());
  std::stable_sort(features.begin(), features.end(),
                   [this](int a, int b) { return store_.priorities[a] > store_.priorities[b]; });
  return features;
}

// Of one in ten, the most important ones, the names are to stand beside their marks: no other name covers these where
// it can stand elsewhere.
double LabelPlacer::leastImportant() const {
  constexpr size_t oneIn = 10;
  std::vector<double> priorities = store_.priorities;
  if (priorities.size() < oneIn) return std::numeric_limits<double>::infinity();
  auto const place = priorities.begin() + static_cast<std::ptrdiff_t>(priorities.size() / oneIn);
  std::nth_element(priorities.begin(), place, priorities.end(), std::greater<>());
  bool const differ = *std::min_element(place, priorities.end()) < *place;
  return differ ? *place : std::numeric_limits<double>::infinity();
}

void LabelPlacer::collectMarks() {
  double const least = leastImportant();
  std::vector<Box> marks;
  std::vector<int> weights;
  for (int feature = 0; feature < store_.size(); ++feature) {
    Feature const& given = store_.features[feature];
    if (!shapes_.isDrawn(feature)) continue;
    for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
      if (store_.parts[i].kind != PartKind::Point) continue;
      double const* const xy = store_.parts[i].xy;
      Box const mark = shapes_.at(feature, toPage(xy[0], xy[1]));
      if (!mark.meets(frame_)) continue;
      marks.push_back(mark);
      weights.push_back(store_.priorities[feature] > least ? importantMark : 1);
    }
  }
  marks_ = std::make_unique<MarkIndex>(marks, weights);
}

void LabelPlacer::place(std::function<bool()> const& isCancelled) {
  if (!isUsable()) return;
  collectMarks();
  std::vector<int> features = candidates();
  auto const free =
      std::stable_partition(features.begin(), features.end(), [this](int feature) { return pinOf(feature); });
  for (auto feature = features.begin(); feature != free; ++feature) placePinned(*feature, *pinOf(*feature));
  int untilCheck = 0;
  for (auto feature = free; feature != features.end(); ++feature) {
    if (untilCheck++ % 64 == 0 && isCancelled()) return;
    size_t const before = labels_.size();
    count(*feature, placeFeature(*feature), before);
  }
}

void LabelPlacer::count(int feature, Outcome outcome, size_t labelsBefore) {
  if (outcome == Outcome::Placed) ++placedCount_;
  if (outcome == Outcome::NoRoom) keepUnplaced(feature);
  for (size_t i = labelsBefore; i < labels_.size(); ++i) labels_[i].key = store_.keys[feature];
}

LabelPlacer::Outcome LabelPlacer::placeFeature(int feature) {
  Feature const& given = store_.features[feature];
  bool hasArea = false, hasLine = false;
  for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
    PartKind const kind = store_.parts[i].kind;
    hasArea = hasArea || kind == PartKind::Ring || kind == PartKind::FilledRing;
    hasLine = hasLine || kind == PartKind::Line;
  }
  LabelText text = textOf(feature);
  if (hasArea || hasLine) {
    // What is lower than its letters holds no text; looking at that first saves laying out the text.
    double const size = std::max(given.box.xmax - given.box.xmin, given.box.ymax - given.box.ymin) / unitsPerPoint_;
    bool const mayStandOutside = hasArea && settings_.areaPlace == AreaPlace::Outside;
    if (size < text.symbol->format().size && !mayStandOutside)
      return settings_.minSizeCm > 0 ? Outcome::NotWanted : Outcome::NoRoom;
    measure(text);
    if (text.bounds.isEmpty()) return Outcome::NotWanted;
    return hasArea ? placeAtPolygon(text, feature) : placeAlongLines(text, feature);
  }
  auto const point = visiblePoint(feature);
  return point ? placeBesidePoint(feature, text, *point) : Outcome::NotWanted;
}

std::optional<QPointF> LabelPlacer::visiblePoint(int feature) const {
  Feature const& given = store_.features[feature];
  for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
    double const* const xy = store_.parts[i].xy;
    QPointF const point = toPage(xy[0], xy[1]);
    if (frame_.contains(point.x(), point.y())) return point;
  }
  return std::nullopt;
}

LabelText LabelPlacer::textOf(int feature) {
  _ptr_t<TextSymbol> const& given = settings_.symbolFor(store_.priorities[feature]);
  _ptr_t<TextSymbol>& symbol = centred_[given.get()];
  if (!symbol) {
    TextFormat format = given->format();
    format.horizontal = HorizontalAlignment::Center;
    format.vertical = VerticalAlignment::Middle;
    symbol = make<TextSymbol>(format);
  }
  return {store_.labels[feature], symbol, QRectF()};
}

void LabelPlacer::measure(LabelText& text) { text.bounds = text.symbol->bounds(text.text); }

// The first of the wanted places that covers the fewest marks of others, or an empty box.
Box LabelPlacer::boxFor(Box const& mark, double width, double height) const {
  Box best;
  // Labels come in the order of importance, so the first one around names the most important place there: it is shown
  // whatever marks it covers.
  bool const isFirstAround = index_.isFree(LabelShape::upright(mark.grown(height)));
  int fewest = isFirstAround ? std::numeric_limits<int>::max() : maxMarksCounted + 1;
  for (PointPlace const& place : places_) {
    Box const box = boxBeside(mark, place, width, height, settings_.offsetPt);
    if (!frame_.contains(box) || !index_.isFree(LabelShape::upright(box.grown(settings_.gapPt)))) continue;
    int const covered = marks_->count(box, fewest);
    if (covered < fewest) {
      fewest = covered;
      best = box;
    }
    if (fewest == 0) break;
  }
  return best;
}

LabelPlacer::Outcome LabelPlacer::placeBesidePoint(int feature, LabelText& text, QPointF const& point) {
  Box const mark = shapes_.at(feature, point);
  double const hiddenX = hiddenPart * (mark.xmax - mark.xmin), hiddenY = hiddenPart * (mark.ymax - mark.ymin);
  Box const core{mark.xmin + hiddenX, mark.ymin + hiddenY, mark.xmax - hiddenX, mark.ymax - hiddenY};
  if (!index_.isFree(LabelShape::upright(core))) return Outcome::NoRoom;
  if (settings_.wrapPt > 0) text.text = SysDisplay::wrapped(text.text, *text.symbol, settings_.wrapPt);
  // Most places of a crowded map have no room for their name. That shows at the least size that it may have, too, and
  // laying out a text takes far longer.
  double const minHeight = text.symbol->bounds(QStringLiteral("i")).height();
  if (boxFor(mark, text.symbol->minWidth(text.text), minHeight).isEmpty()) return Outcome::NoRoom;
  measure(text);
  if (text.bounds.isEmpty()) return Outcome::NotWanted;
  Box const box = boxFor(mark, text.bounds.width(), text.bounds.height());
  if (box.isEmpty()) return Outcome::NoRoom;
  accept(text, centreOf(box), 0);
  index_.add(LabelShape::upright(mark));
  return Outcome::Placed;
}

bool LabelPlacer::isFree(LabelText const& text, QPointF const& centre, double angle) const {
  return frame_.contains(shapeAt(text, centre, angle, 0).box) &&
         index_.isFree(shapeAt(text, centre, angle, settings_.gapPt));
}

LabelShape LabelPlacer::shapeAt(LabelText const& text, QPointF const& centre, double angle, double gapPt) const {
  double const width = text.bounds.width() + 2 * gapPt, height = text.bounds.height() + 2 * gapPt;
  if (angle != 0) return LabelShape::turned(centre, width, height, angle);
  return LabelShape::upright(
      {centre.x() - width / 2, centre.y() - height / 2, centre.x() + width / 2, centre.y() + height / 2});
}

void LabelPlacer::accept(LabelText const& text, QPointF const& centre, double angle, Ring const& leader) {
  LabelShape shape = shapeAt(text, centre, angle, 0);
  PlacedLabel placed{text.text, text.symbol, 0, 0, angle, {}, {}, {}};
  auto const outline = shape.outline();
  for (QPointF const& corner : outline[0]) placed.area << fromPage(corner);
  for (QPointF const& point : leader) placed.leader << fromPage(point);
  // The bounds need not lie about the position evenly.
  double const turn = angle * M_PI / 180;
  QPointF const off(text.bounds.center().x(), -text.bounds.center().y());
  QPointF const position = fromPage(centre - QPointF(off.x() * std::cos(turn) - off.y() * std::sin(turn),
                                                     off.x() * std::sin(turn) + off.y() * std::cos(turn)));
  placed.x = position.x();
  placed.y = position.y();
  index_.add(std::move(shape));
  if (!leader.isEmpty()) index_.add(LabelShape::area({leader}));
  labels_.push_back(std::move(placed));
}

}  // namespace SysCarto
