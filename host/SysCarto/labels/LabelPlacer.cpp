#include "LabelPlacer.h"

#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/MarkerPainter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

using namespace SysDisplay;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double besideMarkPt = 1;
constexpr double aboveLinePt = 1;
constexpr double fromBorderPt = 0.75;
constexpr int maxMarksCounted = 8;
constexpr int maxPolygons = 3;  // of a feature that are tried, largest first
constexpr int maxLines = 5;

// Beside a mark, in the order in which a label is wanted: across, −1 to the left and 1 to the right of it, and up.
// clang-format off
struct Direction { int across, up; };
constexpr Direction directions[] = {
  {1, 1}, {-1, 1}, {1, -1}, {-1, -1}, {1, 0}, {-1, 0}, {0, 1}, {0, -1},
};
// clang-format on

// The box of a text beside a mark. On a slant the text stands a little above or below the mark's middle, so that eye
// and mark meet at its height; straight above and below it keeps clear of the mark.
Box boxBeside(Box const& mark, Direction const& direction, double width, double height) {
  double const x = (mark.xmin + mark.xmax) / 2, y = (mark.ymin + mark.ymax) / 2;
  double left = x - width / 2, bottom = y - height / 2;
  if (direction.across > 0) left = mark.xmax + besideMarkPt;
  if (direction.across < 0) left = mark.xmin - besideMarkPt - width;
  if (direction.across != 0 && direction.up > 0) bottom = y - height * 0.15;
  if (direction.across != 0 && direction.up < 0) bottom = y - height * 0.85;
  if (direction.across == 0) bottom = direction.up > 0 ? mark.ymax + besideMarkPt : mark.ymin - besideMarkPt - height;
  return {left, bottom, left + width, bottom + height};
}

QPointF centreOf(Box const& box) { return {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}; }

// What a marker covers about its position, in points, y upwards.
Box markShape(Symbol const* symbol) {
  auto const* marker = dynamic_cast<PreparableMarker const*>(symbol);
  auto const drawing = marker ? marker->prepare(1) : nullptr;
  if (!drawing) return {0, 0, 0, 0};
  QRectF const bounds = drawing->bounds();
  return {bounds.left(), -bounds.bottom(), bounds.right(), -bounds.top()};
}

}  // namespace

LabelPlacer::LabelPlacer(FeatureStore const& store, LabelSettings const& settings, Renderer const& renderer,
                         DisplayTransformation const& transformation)
    : store_(store), settings_(settings), thinned_(store), looks_(renderer, store, transformation.GetMapScale()) {
  auto const bounds = transformation.GetFittedBounds();
  double const unitsPerPoint =
      transformation.PixelsPerPoint() / DisplayTransformationHost::pixelsPerUnit(transformation);
  if (!bounds || bounds->IsEmpty() || !(unitsPerPoint > 0) || !std::isfinite(unitsPerPoint) || !settings.symbol) return;
  unitsPerPoint_ = unitsPerPoint;
  turn_ = DisplayTransformationHost::turn(transformation);
  turnBack_ = turn_.inverted();
  covered_ = DisplayTransformationHost::coveredWorld(transformation);
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
  features.erase(std::remove_if(features.begin(), features.end(),
                                [this](int feature) { return !isDrawn(feature) || store_.labels[feature].isEmpty(); }),
                 features.end());
  std::stable_sort(features.begin(), features.end(),
                   [this](int a, int b) { return store_.priorities[a] > store_.priorities[b]; });
  return features;
}

// That of the uppermost symbol.
Box const& LabelPlacer::markShapeOf(int feature) {
  int const symbolClass = looks_.drawing()[store_.features[feature].symbolClass].back();
  auto const key = std::make_pair(symbolClass, looks_.lookOf(symbolClass, feature));
  auto known = markShapes_.find(key);
  if (known == markShapes_.end())
    known = markShapes_.emplace(key, markShape(looks_.symbol(symbolClass, key.second).get())).first;
  return known->second;
}

Box LabelPlacer::markOf(int feature, QPointF const& point) {
  Box const& shape = markShapeOf(feature);
  return {point.x() + shape.xmin, point.y() + shape.ymin, point.x() + shape.xmax, point.y() + shape.ymax};
}

void LabelPlacer::collectMarks() {
  std::vector<Box> marks;
  for (int feature = 0; feature < store_.size(); ++feature) {
    Feature const& given = store_.features[feature];
    if (!isDrawn(feature)) continue;
    for (int i = given.firstPart; i < given.firstPart + given.partCount; ++i) {
      if (store_.parts[i].kind != PartKind::Point) continue;
      double const* const xy = store_.parts[i].xy;
      Box const mark = markOf(feature, toPage(xy[0], xy[1]));
      if (mark.meets(frame_)) marks.push_back(mark);
    }
  }
  marks_ = std::make_unique<MarkIndex>(marks);
}

void LabelPlacer::place(std::function<bool()> const& isCancelled) {
  if (!isUsable()) return;
  collectMarks();
  int count = 0;
  for (int const feature : candidates()) {
    if (count++ % 64 == 0 && isCancelled()) return;
    placeFeature(feature);
  }
}

void LabelPlacer::placeFeature(int feature) {
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
    if (size < text.symbol->format().size) return;
    measure(text);
    if (text.bounds.isEmpty()) return;
    hasArea ? placeInPolygon(text, feature) : placeAlongLine(text, feature);
  } else if (auto const point = visiblePoint(feature)) {
    placeBesidePoint(feature, text, *point);
  }
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
  for (Direction const& direction : directions) {
    Box const box = boxBeside(mark, direction, width, height);
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

bool LabelPlacer::placeBesidePoint(int feature, LabelText& text, QPointF const& point) {
  Box const mark = markOf(feature, point);
  if (!index_.isFree(LabelShape::upright(mark))) return false;
  // Most places of a crowded map have no room for their name. That shows at the least size that it may have, too, and
  // laying out a text takes far longer.
  double const minHeight = text.symbol->bounds(QStringLiteral("i")).height();
  if (boxFor(mark, text.symbol->minWidth(text.text), minHeight).isEmpty()) return false;
  measure(text);
  if (text.bounds.isEmpty()) return false;
  Box const box = boxFor(mark, text.bounds.width(), text.bounds.height());
  if (box.isEmpty()) return false;
  accept(text, centreOf(box), 0);
  index_.add(LabelShape::upright(mark));
  return true;
}

bool LabelPlacer::placeInPolygon(LabelText const& given, int feature) {
  struct Area {
    Rings rings;
    double size = 0;
  };
  std::vector<Area> areas;
  for (Part const& part : thinned_.parts(feature)) {
    if (part.kind != PartKind::Ring && part.kind != PartKind::FilledRing) continue;
    if (part.startsPolygon || areas.empty()) areas.emplace_back();
    double const* const xy = part.xy;
    Ring ring;
    for (int i = 0; i < part.count; ++i) ring << toPage(xy[2 * i], xy[2 * i + 1]);
    ring = SysGeometry::clippedRing(ring, frame_);
    if (ring.size() < 3) continue;
    double const size = std::abs(SysGeometry::signedArea(ring));
    areas.back().size += areas.back().rings.isEmpty() ? size : -size;
    areas.back().rings << ring;
  }
  std::stable_sort(areas.begin(), areas.end(), [](Area const& a, Area const& b) { return a.size > b.size; });
  if (areas.size() > maxPolygons) areas.resize(maxPolygons);
  for (QString const& lines : wrapped(given.text)) {
    LabelText text = given;
    text.text = lines;
    measure(text);
    for (Area const& area : areas)
      for (QPointF const& centre :
           placesInside(area.rings, text.bounds.width() + 2 * fromBorderPt, text.bounds.height() + 2 * fromBorderPt))
        if (frame_.contains(shapeAt(text, centre, 0, 0).box) &&
            index_.isFree(shapeAt(text, centre, 0, settings_.gapPt))) {
          accept(text, centre, 0);
          return true;
        }
  }
  return false;
}

bool LabelPlacer::placeAlongLine(LabelText const& text, int feature) {
  std::vector<std::vector<QPointF>> lines;
  for (Part const& part : thinned_.parts(feature)) {
    if (part.kind != PartKind::Line) continue;
    double const* const xy = part.xy;
    std::vector<QPointF> line;
    for (int i = 0; i < part.count; ++i) line.push_back(toPage(xy[2 * i], xy[2 * i + 1]));
    lines.push_back(std::move(line));
  }
  std::stable_sort(lines.begin(), lines.end(), [](auto const& a, auto const& b) { return a.size() > b.size(); });
  if (lines.size() > maxLines) lines.resize(maxLines);
  for (std::vector<QPointF> const& line : lines)
    for (Stretch const& stretch : straightStretches(line, text.bounds.width(), text.bounds.height())) {
      double const above = text.bounds.height() / 2 + aboveLinePt + stretch.bend;
      double const angle = stretch.angle * M_PI / 180;
      QPointF const centre = stretch.middle + QPointF(-std::sin(angle), std::cos(angle)) * above;
      if (!frame_.contains(shapeAt(text, centre, stretch.angle, 0).box)) continue;
      if (!index_.isFree(shapeAt(text, centre, stretch.angle, settings_.gapPt))) continue;
      accept(text, centre, stretch.angle);
      return true;
    }
  return false;
}

LabelShape LabelPlacer::shapeAt(LabelText const& text, QPointF const& centre, double angle, double gapPt) const {
  double const width = text.bounds.width() + 2 * gapPt, height = text.bounds.height() + 2 * gapPt;
  if (angle != 0) return LabelShape::turned(centre, width, height, angle);
  return LabelShape::upright(
      {centre.x() - width / 2, centre.y() - height / 2, centre.x() + width / 2, centre.y() + height / 2});
}

void LabelPlacer::accept(LabelText const& text, QPointF const& centre, double angle) {
  LabelShape shape = shapeAt(text, centre, angle, 0);
  PlacedLabel placed{text.text, text.symbol, 0, 0, angle, {}};
  auto const outline = shape.outline();
  for (QPointF const& corner : outline[0]) placed.area << fromPage(corner);
  // The bounds need not lie about the position evenly.
  double const turn = angle * M_PI / 180;
  QPointF const off(text.bounds.center().x(), -text.bounds.center().y());
  QPointF const position = fromPage(centre - QPointF(off.x() * std::cos(turn) - off.y() * std::sin(turn),
                                                     off.x() * std::sin(turn) + off.y() * std::cos(turn)));
  placed.x = position.x();
  placed.y = position.y();
  index_.add(std::move(shape));
  labels_.push_back(std::move(placed));
}

}  // namespace SysCarto
