#include "LabelPlacer.h"

#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/TextWrap.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace SysCarto {

using namespace SysDisplay;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int maxMarksCovered = 8, maxMarksCounted = 100;
constexpr int importantMark = 4;     // counts as so many
constexpr double hiddenPart = 0.25;  // of a mark, at either side, that what labels keep clear of may cover
constexpr double coveredMarkCost = 2;
constexpr double cellWidth = 6, cellHeight = 1.5;  // in sizes of the letters
constexpr int mostInCell = 6, mostFailed = 20;

// How many places are looked at, where so many labels begin in a cell.
struct Crowd {
  int labels;
  size_t sides;
};
constexpr Crowd crowds[] = {{4, 24}, {12, 12}, {std::numeric_limits<int>::max(), 8}};

QPointF centreOf(Box const& box) { return {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}; }

}  // namespace

LabelPlacer::LabelPlacer(FeatureStore const& store, LabelSettings const& settings, Renderer const& renderer,
                         DisplayTransformation const& transformation)
    : store_(store),
      settings_(settings),
      sides_(sidesOf(settings)),
      scale_(transformation.GetMapScale()),
      thinned_(store),
      shapes_(store, renderer, scale_) {
  auto const [bounds, unitsPerPoint] = DisplayTransformationHost::onPage(transformation);
  if (bounds.isEmpty() || !(unitsPerPoint > 0) || !std::isfinite(unitsPerPoint) || !settings.symbol) return;
  unitsPerPoint_ = unitsPerPoint;
  turn_ = DisplayTransformationHost::turn(transformation);
  turnBack_ = turn_.inverted();
  covered_ = turnBack_.mapRect(bounds);
  for (PinnedLabel const& pin : settings.pinned) pins_[pin.key] = &pin;
  left_ = bounds.left();
  bottom_ = bounds.top();
  frame_ = {0, 0, bounds.width() / unitsPerPoint, bounds.height() / unitsPerPoint};
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

void LabelPlacer::addMarks(MarkIndex::Marks& marks) {
  double const least = leastImportant();
  for (int feature = 0; feature < store_.size(); ++feature) {
    Feature const& given = store_.features[feature];
    if (!shapes_.isDrawn(feature)) continue;
    for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
      if (store_.parts[i].kind != PartKind::Point) continue;
      double const* const xy = store_.parts[i].xy;
      Box const mark = shapes_.at(feature, toPage(xy[0], xy[1]));
      if (mark.meets(frame_)) marks.add(mark, store_.priorities[feature] > least ? importantMark : 1);
    }
  }
}

std::vector<LabelShape> LabelPlacer::placePinned() {
  if (pins_.isEmpty()) return {};
  for (int const feature : candidates())
    if (auto const* const pin = pinOf(feature)) placePinned(feature, *pin);
  std::vector<LabelShape> taken;
  for (PlacedLabel const& label : labels_) {
    taken.push_back(LabelShape::area({toPage(label.area)}));
    if (!label.leader.isEmpty()) taken.push_back(LabelShape::area({toPage(label.leader)}));
  }
  return taken;
}

void LabelPlacer::begin(MarkIndex const& marks) {
  marks_ = &marks;
  features_ = candidates();
  features_.erase(std::remove_if(features_.begin(), features_.end(), [this](int feature) { return pinOf(feature); }),
                  features_.end());
  countCells();
}

bool LabelPlacer::addNext(std::vector<WantedLabel>& wanted) {
  if (next_ == features_.size()) return false;
  addWanted(features_[next_++], wanted);
  return true;
}

void LabelPlacer::addWanted(int feature, std::vector<WantedLabel>& wanted) {
  Feature const& given = store_.features[feature];
  bool hasArea = false, hasLine = false;
  for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
    PartKind const kind = store_.parts[i].kind;
    hasArea = hasArea || kind == PartKind::Ring || kind == PartKind::FilledRing;
    hasLine = hasLine || kind == PartKind::Line;
  }
  WantedLabel label{feature};
  label.texts.push_back(textOf(feature));
  LabelText& text = label.texts[0];
  if (hasArea || hasLine) {
    // What is lower than its letters holds no text; looking at that first saves laying out the text.
    double const size = std::max(given.box.xmax - given.box.xmin, given.box.ymax - given.box.ymin) / unitsPerPoint_;
    bool const mayStandOutside = hasArea && settings_.areaPlace == AreaPlace::Outside;
    if (size < text.symbol->format().size && !mayStandOutside) {
      if (settings_.minSizeCm == 0) wanted.push_back(std::move(label));
      return;
    }
    measure(text);
    if (text.bounds.isEmpty()) return;
    return hasArea ? addAtPolygon(std::move(label), wanted) : addAlongLines(std::move(label), wanted);
  }
  if (auto const point = visiblePoint(feature)) addBesidePoint(std::move(label), *point, wanted);
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

// About as large as a name; labels that begin in one cell are in each other's way.
std::pair<int, int> LabelPlacer::cellOf(QPointF const& point) const {
  double const size = std::max(settings_.symbol->format().size, 1.0);
  return {static_cast<int>(std::floor(point.x() / (cellWidth * size))),
          static_cast<int>(std::floor(point.y() / (cellHeight * size)))};
}

void LabelPlacer::countCells() {
  for (int const feature : features_) {
    bool const isPoint = store_.parts[store_.features[feature].firstPart].kind == PartKind::Point;
    auto const point = isPoint ? visiblePoint(feature) : std::nullopt;
    if (point) ++cells_[cellOf(*point)].all;
  }
}

void LabelPlacer::addBesidePoint(WantedLabel label, QPointF const& point, std::vector<WantedLabel>& wanted) {
  Box const mark = shapes_.at(label.feature, point);
  double const hiddenX = hiddenPart * (mark.xmax - mark.xmin), hiddenY = hiddenPart * (mark.ymax - mark.ymin);
  Box const core{mark.xmin + hiddenX, mark.ymin + hiddenY, mark.xmax - hiddenX, mark.ymax - hiddenY};
  if (mark.xmax > mark.xmin) {
    label.mark = mark;
    label.core = core;
  }
  LabelText& text = label.texts[0];
  Cell& cell = cells_[cellOf(point)];
  if (cell.tried < mostInCell && cell.failed < mostFailed && index_.isFree(LabelShape::upright(core))) {
    if (settings_.wrapPt > 0) text.text = SysDisplay::wrapped(text.text, *text.symbol, settings_.wrapPt);
    measure(text);
    if (text.bounds.isEmpty()) return;
    addBeside(label, mark, cell);
    ++(label.ways.empty() ? cell.failed : cell.tried);
  }
  if (label.ways.empty()) return leaveOut(label);  // there may be any number
  wanted.push_back(std::move(label));
}

// The more names there are, the fewer places are looked at for each. Where marks lie so close that a text covers many
// of them wherever it stands, names keep their distance.
void LabelPlacer::addBeside(WantedLabel& label, Box const& mark, Cell const& cell) const {
  LabelText const& text = label.texts[0];
  double const height = text.bounds.height();
  std::vector<LabelWay> crowded;
  auto const few =
      std::find_if(std::begin(crowds), std::end(crowds), [&](Crowd const& one) { return cell.all <= one.labels; });
  for (size_t i = 0; i < std::min(sides_.size(), few->sides); ++i) {
    MarkSide const& side = sides_[i];
    Box const box = boxAt(mark, side, text.bounds.width(), height, settings_.offsetPt);
    if (!isFree(text, centreOf(box), 0)) continue;
    int const covered = marks_->count(box, cell.tried > 0 ? maxMarksCovered + 1 : maxMarksCounted);
    auto& ways = covered > maxMarksCovered ? crowded : label.ways;
    ways.push_back({{{0, centreOf(box), 0}}, side.cost + coveredMarkCost * covered});
  }
  if (!label.ways.empty() || cell.tried > 0) return;
  label.ways = std::move(crowded);
  label.around = mark.grown(height);
}

bool LabelPlacer::isFree(LabelText const& text, QPointF const& centre, double angle) const {
  return frame_.contains(shapeOf(text, centre, angle, 0).box) &&
         index_.isFree(shapeOf(text, centre, angle, settings_.gapPt));
}

void LabelPlacer::addIfFree(WantedLabel& label, LabelWay way) const {
  for (LabelPiece const& piece : way.pieces) {
    LabelText const& text = label.texts[static_cast<size_t>(piece.text)];
    if (!isFree(text, piece.centre, piece.angle)) return;
    way.cost += coveredMarkCost * marks_->count(shapeOf(text, piece.centre, piece.angle, 0).box, maxMarksCounted);
  }
  label.ways.push_back(std::move(way));
}

LabelShape LabelPlacer::shapeOf(LabelText const& text, QPointF const& centre, double angle, double gapPt) {
  double const width = text.bounds.width() + 2 * gapPt, height = text.bounds.height() + 2 * gapPt;
  if (angle != 0) return LabelShape::turned(centre, width, height, angle);
  return LabelShape::upright(
      {centre.x() - width / 2, centre.y() - height / 2, centre.x() + width / 2, centre.y() + height / 2});
}

void LabelPlacer::accept(WantedLabel const& label, LabelWay const& way) {
  if (!label.repeats.isEmpty()) repeated_.insert(label.repeats);
  for (LabelPiece const& piece : way.pieces)
    put(label.texts[static_cast<size_t>(piece.text)], piece.centre, piece.angle, label.feature, way.leader,
        label.texts[static_cast<size_t>(way.pieces.size() > 1 ? 0 : piece.text)].text);
  ++labelCount_;
}

void LabelPlacer::put(LabelText const& text, QPointF const& centre, double angle, int feature, Ring const& leader,
                      QString const& name) {
  PlacedLabel placed{text.text, text.symbol, 0, 0, angle, {}, {}, store_.keys[static_cast<size_t>(feature)],
                     name,      labelCount_};
  auto const outline = shapeOf(text, centre, angle, 0).outline();
  for (QPointF const& corner : outline[0]) placed.area << fromPage(corner);
  for (QPointF const& point : leader) placed.leader << fromPage(point);
  // The bounds need not lie about the position evenly.
  double const turn = angle * M_PI / 180;
  QPointF const off(text.bounds.center().x(), -text.bounds.center().y());
  QPointF const position = fromPage(centre - QPointF(off.x() * std::cos(turn) - off.y() * std::sin(turn),
                                                     off.x() * std::sin(turn) + off.y() * std::cos(turn)));
  placed.x = position.x();
  placed.y = position.y();
  labels_.push_back(std::move(placed));
  placedFeatures_.insert(feature);
}

// Points of a feature as they are; of what extends, the middle of what is in sight.
void LabelPlacer::leaveOut(WantedLabel const& label) {
  int const feature = label.feature;
  if (repeated_.contains(label.repeats)) placedFeatures_.insert(feature);
  if (placedFeatures_.contains(feature) || leftOut_.contains(feature)) return;
  leftOut_.insert(feature);
  LabelText const text = textOf(feature);
  Box const& box = store_.features[feature].box;
  double const x = (std::max(box.xmin, covered_.left()) + std::min(box.xmax, covered_.right())) / 2;
  double const y = (std::max(box.ymin, covered_.top()) + std::min(box.ymax, covered_.bottom())) / 2;
  unplaced_.push_back({text.text, text.symbol, x, y, 0, {}, {}, store_.keys[feature], text.text, -1});
}

}  // namespace SysCarto
