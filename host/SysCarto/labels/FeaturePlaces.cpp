#include "AreaSpine.h"
#include "LabelPlacer.h"

#include "host/SysDisplay/TextWrap.h"

#include <SysDisplay/Units.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace SysCarto {

using SysDisplay::cmPerPoint;

namespace {

constexpr double fromBorderPt = 0.75;
constexpr int maxPolygons = 3;  // of a feature that are tried, largest first
constexpr int maxLines = 5;
constexpr int directions = 16;  // around an area
constexpr int distances = 12;   // beyond it, half a text's height each
constexpr int maxSteps = 40;
constexpr size_t maxOutside = 32, maxAlong = 24;
constexpr size_t maxPlaces = 8, maxBows = 3;                  // in an area, and along it with the same gaps
constexpr double spreadShares[] = {0.8, 0.65, 0.5, 0.35, 0};  // of an area's length
constexpr double widestGap = 1.5;                             // between letters, in their heights
constexpr double otherAreaCost = 2, levelCost = 2, acrossCost = 4, outsideCost = 10;
constexpr double leastWithin = 0.3;  // of a text that reaches beyond its area
constexpr double finePt = 0.5;
constexpr double farHeights = 2;  // from which a pinned label has a leader

bool isRing(Part const& part) { return part.kind == PartKind::Ring || part.kind == PartKind::FilledRing; }

// How much of a box lies within an area, by samples.
double shareWithin(Rings const& rings, QPointF const& centre, double width, double height) {
  constexpr int columns = 9, rows = 3;
  int within = 0;
  for (int column = 0; column < columns; ++column)
    for (int row = 0; row < rows; ++row)
      within += SysGeometry::contains(rings, centre.x() + width * ((column + 0.5) / columns - 0.5),
                                      centre.y() + height * ((row + 0.5) / rows - 0.5));
  return static_cast<double>(within) / (columns * rows);
}

bool isInside(Rings const& rings, LabelShape const& shape) {
  return SysGeometry::contains(rings, (shape.box.xmin + shape.box.xmax) / 2, (shape.box.ymin + shape.box.ymax) / 2) &&
         !SysGeometry::anyEdge(shape.outline(), [&](QPointF const& a, QPointF const& b) {
           return SysGeometry::anyEdge(
               rings, [&](QPointF const& p, QPointF const& q) { return SysGeometry::segmentsMeet(a, b, p, q); });
         });
}

double widthOf(Box const& box) { return box.isEmpty() ? 0 : box.xmax - box.xmin; }

}  // namespace

std::vector<LabelPlacer::PageArea> LabelPlacer::areasOf(int feature) {
  std::vector<PageArea> areas;
  for (Part const& part : thinned_.parts(feature)) {
    if (!isRing(part)) continue;
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
  std::stable_sort(areas.begin(), areas.end(), [](PageArea const& a, PageArea const& b) { return a.size > b.size; });
  if (areas.size() > maxPolygons) areas.resize(maxPolygons);
  return areas;
}

void LabelPlacer::addAtPolygon(WantedLabel label, std::vector<WantedLabel>& wanted) {
  std::vector<PageArea> areas = areasOf(label.feature);
  areas.erase(std::remove_if(areas.begin(), areas.end(), [](PageArea const& area) { return area.rings.isEmpty(); }),
              areas.end());
  if (areas.empty() || widthOf(SysGeometry::boxOf(areas[0].rings)) * cmPerPoint < settings_.minSizeCm) return;
  addInside(label, areas);
  if (settings_.areaPlace == AreaPlace::Across) addAcross(label, areas[0]);
  if (settings_.areaText != AreaText::Level) addAlongArea(label, areas[0]);
  if (settings_.areaPlace == AreaPlace::Outside && label.ways.empty()) addOutside(label, areas[0]);
  wanted.push_back(std::move(label));
}

// In one line rather than in several, in the largest area rather than in another, in its middle rather than beside
// that.
void LabelPlacer::addInside(WantedLabel& label, std::vector<PageArea> const& areas) const {
  LabelText const whole = label.texts[0];
  label.texts.clear();
  for (QString const& lines : wrapped(whole.text)) {
    int const number = static_cast<int>(label.texts.size());
    LabelText& text = label.texts.emplace_back(LabelText{lines, whole.symbol, {}});
    measure(text);
    double const width = text.bounds.width() + 2 * fromBorderPt, height = text.bounds.height() + 2 * fromBorderPt;
    double cost = number;
    for (PageArea const& area : areas) {
      auto const places = placesInside(area.rings, width, height);
      size_t const most = label.ways.size() + maxPlaces;
      for (QPointF const& centre : places) {
        double const off = std::hypot(centre.x() - places[0].x(), centre.y() - places[0].y());
        addIfFree(label, {{{number, centre, 0}}, cost + std::min(off / (width + height), 1.0)});
        if (label.ways.size() == most) break;
      }
      cost += otherAreaCost;
    }
  }
}

// The more of the area's length it takes the better, as far as letters still make a word. What lies level then is for
// want of something better.
void LabelPlacer::addAlongArea(WantedLabel& label, PageArea const& area) const {
  LabelText const whole = label.texts[0];
  std::vector<Letter> const letters = lettersOf(whole.text, *whole.symbol);
  MeasuredLine const spine(spineOf(area.rings));
  double const height = whole.bounds.height(), width = whole.bounds.width();
  int const gaps = letters.empty() ? 0 : letters.back().number;
  if (gaps == 0 || spine.length() < width) return;
  for (LabelWay& level : label.ways) level.cost += levelCost;
  size_t const firstLetter = label.texts.size();
  for (Letter const& letter : letters) measure(label.texts.emplace_back(LabelText{letter.text, whole.symbol, {}}));
  bool const isSpread = settings_.areaText == AreaText::Spread;
  double gapBefore = -1;
  for (double const share : spreadShares) {
    double const gap = isSpread ? std::clamp((share * spine.length() - width) / gaps, 0.0, widestGap * height) : 0;
    if (gap == gapBefore) continue;
    gapBefore = gap;
    std::vector<Letter> apart = letters;
    for (Letter& letter : apart) letter.along += gap * (letter.number - gaps / 2.0);
    size_t const most = label.ways.size() + maxBows;
    double cost = 1 - share;
    for (auto const& placed : curvedPlaces(spine, apart, width + gap * gaps, height, 0)) {
      LabelWay way{{}, cost};
      for (PlacedLetter const& one : placed)
        way.pieces.push_back({static_cast<int>(firstLetter + way.pieces.size()), one.centre, one.angle});
      bool const isWithin = std::all_of(way.pieces.begin(), way.pieces.end(), [&](LabelPiece const& piece) {
        LabelText const& text = label.texts[static_cast<size_t>(piece.text)];
        return isInside(area.rings, shapeOf(text, piece.centre, piece.angle, fromBorderPt));
      });
      size_t const before = label.ways.size();
      if (isWithin) addIfFree(label, std::move(way));
      if (label.ways.size() > before) cost += 0.3 / maxBows;
      if (label.ways.size() == most) break;
    }
  }
}

// About the middle of the area, as far as enough of the text lies within.
void LabelPlacer::addAcross(WantedLabel& label, PageArea const& area) const {
  QPointF const middle = SysGeometry::poleOfInaccessibility(area.rings, finePt).place;
  for (size_t number = 0; number < label.texts.size(); ++number) {
    double const width = label.texts[number].bounds.width(), height = label.texts[number].bounds.height();
    for (QPointF const& off : {QPointF(), QPointF(0, 0.5), QPointF(0, -0.5), QPointF(0.25, 0), QPointF(-0.25, 0)}) {
      QPointF const centre = middle + QPointF(off.x() * width, off.y() * height);
      double const within = shareWithin(area.rings, centre, width, height);
      if (within < leastWithin) continue;
      double const cost = acrossCost * (2 - within) + static_cast<double>(number);
      addIfFree(label, {{{static_cast<int>(number), centre, 0}}, cost});
    }
  }
}

// Around the middle of the area, as near as it goes without touching the area itself.
void LabelPlacer::addOutside(WantedLabel& label, PageArea const& area) const {
  LabelText const& text = label.texts[0];
  LabelShape const named = LabelShape::area(area.rings);
  QPointF const middle = SysGeometry::poleOfInaccessibility(area.rings, finePt).place;
  double const halfWidth = text.bounds.width() / 2, halfHeight = text.bounds.height() / 2;
  double const farthest = std::hypot(widthOf(named.box), named.box.ymax - named.box.ymin) / 2 + distances * halfHeight;
  double const step = std::max(halfHeight, farthest / maxSteps);
  size_t const most = label.ways.size() + maxOutside;
  for (double distance = step; distance <= farthest && label.ways.size() < most; distance += step)
    for (int i = 0; i < directions; ++i) {
      double const angle = M_PI / 4 - i * 2 * M_PI / directions, x = std::cos(angle), y = std::sin(angle);
      QPointF const edge = middle + QPointF(x, y) * distance;
      QPointF const centre = edge + QPointF(x * halfWidth, y * halfHeight) / std::max(std::abs(x), std::abs(y));
      Ring const leader{middle, edge};
      if (intersects(shapeOf(text, centre, 0, fromBorderPt), named) || !index_.isFree(LabelShape::area({leader})))
        continue;
      addIfFree(label, {{{0, centre, 0}}, outsideCost + distance / farthest + 0.01 * i, leader});
    }
}

std::vector<std::vector<QPointF>> LabelPlacer::linesOf(int feature) {
  std::vector<std::vector<QPointF>> lines;
  for (Part const& part : thinned_.parts(feature)) {
    if (part.kind != PartKind::Line) continue;
    std::vector<QPointF> line;
    for (int i = 0; i < part.count; ++i) line.push_back(toPage(part.xy[2 * i], part.xy[2 * i + 1]));
    lines.push_back(std::move(line));
  }
  return lines;
}

void LabelPlacer::addAlongLines(WantedLabel label, std::vector<WantedLabel>& wanted) {
  auto lines = linesOf(label.feature);
  std::stable_sort(lines.begin(), lines.end(), [](auto const& a, auto const& b) { return a.size() > b.size(); });
  std::vector<MeasuredLine> measured;
  double length = 0;
  for (auto& line : lines) {
    measured.emplace_back(std::move(line));
    length += measured.back().length();
  }
  if (length * cmPerPoint < settings_.minSizeCm) return;
  if (measured.size() > maxLines) measured.erase(measured.begin() + maxLines, measured.end());
  double cost = 0;
  for (MeasuredLine const& line : measured) addAlongLine(label, line, cost++);
  if (settings_.repeatCm > 0) return addRepeated(std::move(label), wanted);
  std::stable_sort(label.ways.begin(), label.ways.end(),
                   [](LabelWay const& a, LabelWay const& b) { return a.cost < b.cost; });
  if (label.ways.size() > maxAlong) label.ways.resize(maxAlong);
  wanted.push_back(std::move(label));
}

// The nearer to the middle the better.
void LabelPlacer::addAlongLine(WantedLabel& label, MeasuredLine const& line, double cost) const {
  LabelText const text = label.texts[0];
  double const width = text.bounds.width(), height = text.bounds.height();
  auto const add = [&](std::vector<LabelPiece> pieces) {
    addIfFree(label, {std::move(pieces), cost});
    cost += 1.0 / maxAlong;
  };
  if (settings_.linePlace == LinePlace::Level) {
    for (QPointF const& spot : spotsOn(line, height)) add({{0, spot, 0}});
    return;
  }
  if (line.length() < width) return;  // before letters are measured, which takes long
  double const lift = height / 2 + settings_.offsetPt;
  auto const letters =
      settings_.linePlace == LinePlace::Curved ? lettersOf(text.text, *text.symbol) : std::vector<Letter>();
  if (!letters.empty()) {
    if (label.texts.size() == 1)
      for (Letter const& letter : letters) measure(label.texts.emplace_back(LabelText{letter.text, text.symbol, {}}));
    for (auto const& placed : curvedPlaces(line, letters, width, height, lift)) {
      std::vector<LabelPiece> pieces;
      for (PlacedLetter const& one : placed)
        pieces.push_back({static_cast<int>(pieces.size()) + 1, one.centre, one.angle});
      add(std::move(pieces));
    }
    return;
  }
  for (Stretch const& stretch : straightStretches(line, width, height)) {
    double const above = settings_.linePlace == LinePlace::On ? 0 : lift + stretch.bend;
    double const angle = stretch.angle * M_PI / 180;
    add({{0, stretch.middle + QPointF(-std::sin(angle), std::cos(angle)) * above, stretch.angle}});
  }
}

double LabelPlacer::repeatPt() const { return settings_.repeatCm / cmPerPoint; }

// A label for each stretch of the lines of about that length, which has the ways there.
void LabelPlacer::addRepeated(WantedLabel label, std::vector<WantedLabel>& wanted) const {
  auto ways = std::exchange(label.ways, {});
  label.repeats = label.texts[0].text;
  size_t const first = wanted.size();
  double const apart = std::max(repeatPt(), label.texts[0].bounds.width());
  std::vector<QPointF> middles;
  for (LabelWay& way : ways) {
    QPointF const middle = way.middle();
    auto const distanceTo = [&](QPointF const& other) {
      return std::hypot(other.x() - middle.x(), other.y() - middle.y());
    };
    auto const nearest = std::min_element(middles.begin(), middles.end(), [&](QPointF const& a, QPointF const& b) {
      return distanceTo(a) < distanceTo(b);
    });
    size_t const number = static_cast<size_t>(nearest - middles.begin());
    bool const isFar = nearest == middles.end() || distanceTo(*nearest) >= apart;
    if (isFar) {
      middles.push_back(middle);
      wanted.push_back(label);
      way.cost = 0;
    }
    auto& own = isFar ? wanted.back().ways : wanted[first + number].ways;
    if (!isFar) way.cost = std::min(distanceTo(*nearest) / apart, 1.0);
    if (own.size() < maxAlong) own.push_back(std::move(way));
  }
  if (middles.empty()) wanted.push_back(std::move(label));
}

// Wherever it was put, with a line that leads there from afar.
void LabelPlacer::placePinned(int feature, PinnedLabel const& pin) {
  QPointF const centre = toPage(pin.x, pin.y);
  LabelText text = textOf(feature);
  if (settings_.wrapPt > 0) text.text = SysDisplay::wrapped(text.text, *text.symbol, settings_.wrapPt);
  measure(text);
  if (pin.hidden || text.bounds.isEmpty() || !frame_.contains(centre.x(), centre.y())) return;
  Box const box = shapeOf(text, centre, pin.angle, 0).box;
  QPointF const named = nearestOf(feature, centre);
  QPointF const end(std::clamp(named.x(), box.xmin, box.xmax), std::clamp(named.y(), box.ymin, box.ymax));
  bool const isFar = std::hypot(named.x() - end.x(), named.y() - end.y()) > farHeights * text.bounds.height();
  put(text, centre, pin.angle, feature, isFar ? Ring{named, end} : Ring(), text.text);
  ++labelCount_;
}

// Of an area its middle, and the place itself where it lies inside; of a line its nearest place.
QPointF LabelPlacer::nearestOf(int feature, QPointF const& place) {
  auto const areas = areasOf(feature);
  for (PageArea const& area : areas)
    if (SysGeometry::contains(area.rings, place.x(), place.y())) return place;
  if (!areas.empty() && !areas[0].rings.isEmpty())
    return SysGeometry::poleOfInaccessibility(areas[0].rings, finePt).place;
  QPointF nearest = visiblePoint(feature).value_or(place);
  double least = std::numeric_limits<double>::infinity();
  for (auto const& line : linesOf(feature))
    for (size_t i = 1; i < line.size(); ++i) {
      QPointF const way = line[i] - line[i - 1];
      double const squared = QPointF::dotProduct(way, way);
      double const t = squared > 0 ? std::clamp(QPointF::dotProduct(place - line[i - 1], way) / squared, 0.0, 1.0) : 0;
      QPointF const on = line[i - 1] + way * t, rest = place - on;
      if (QPointF::dotProduct(rest, rest) >= least) continue;
      least = QPointF::dotProduct(rest, rest);
      nearest = on;
    }
  return nearest;
}

void LabelPlacer::addObstacles(FeatureStore const& store, Renderer const& renderer, LabelObstacle kind) {
  if (!isUsable() || kind == LabelObstacle::None) return;
  MarkShapes marks(store, renderer, scale_);
  ThinnedFeatures thinned(store);
  thinned.setResolution(2 * unitsPerPoint_);
  for (int const feature : store.query({covered_.left(), covered_.top(), covered_.right(), covered_.bottom()})) {
    if (!marks.isDrawn(feature)) continue;
    Rings area;
    for (Part const& part : thinned.parts(feature)) {
      Ring points;
      for (int i = 0; i < part.count; ++i) points << toPage(part.xy[2 * i], part.xy[2 * i + 1]);
      if (part.kind == PartKind::Point)
        index_.add(LabelShape::upright(marks.at(feature, points[0])));
      else if (kind == LabelObstacle::Areas && isRing(part))
        area << points;
      else
        addEdges(points);
    }
    if (!area.isEmpty()) index_.add(LabelShape::area(std::move(area)));
  }
}

// Each by itself: a long line has a large box.
void LabelPlacer::addEdges(Ring const& points) {
  for (int i = 1; i < points.size(); ++i) {
    LabelShape edge = LabelShape::area({{points[i - 1], points[i]}});
    if (edge.box.meets(frame_)) index_.add(std::move(edge));
  }
}

}  // namespace SysCarto
