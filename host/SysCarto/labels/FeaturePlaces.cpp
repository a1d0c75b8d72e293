#include "LabelPlacer.h"

#include "host/SysDisplay/TextWrap.h"

#include <SysDisplay/Units.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysCarto {

using SysDisplay::cmPerPoint;

namespace {

constexpr double fromBorderPt = 0.75;
constexpr int maxPolygons = 3;  // of a feature that are tried, largest first
constexpr int maxLines = 5;
constexpr int directions = 16;  // around an area
constexpr int distances = 12;   // beyond it, half a text's height each
constexpr int maxSteps = 40;
constexpr double finePt = 0.5;
constexpr double farHeights = 2;  // from which a pinned label has a leader

bool isRing(Part const& part) { return part.kind == PartKind::Ring || part.kind == PartKind::FilledRing; }

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

LabelPlacer::Outcome LabelPlacer::placeAtPolygon(LabelText const& text, int feature) {
  std::vector<PageArea> areas = areasOf(feature);
  areas.erase(std::remove_if(areas.begin(), areas.end(), [](PageArea const& area) { return area.rings.isEmpty(); }),
              areas.end());
  if (areas.empty() || widthOf(SysGeometry::boxOf(areas[0].rings)) * cmPerPoint < settings_.minSizeCm)
    return Outcome::NotWanted;
  if (placeInside(text, areas)) return Outcome::Placed;
  bool const isBeside = settings_.areaPlace == AreaPlace::Outside && placeOutside(text, areas[0]);
  return isBeside ? Outcome::Placed : Outcome::NoRoom;
}

bool LabelPlacer::placeInside(LabelText const& given, std::vector<PageArea> const& areas) {
  for (QString const& lines : wrapped(given.text)) {
    LabelText text = given;
    text.text = lines;
    measure(text);
    for (PageArea const& area : areas)
      for (QPointF const& centre :
           placesInside(area.rings, text.bounds.width() + 2 * fromBorderPt, text.bounds.height() + 2 * fromBorderPt))
        if (isFree(text, centre, 0)) {
          accept(text, centre, 0);
          return true;
        }
  }
  return false;
}

// Around the middle of the area, as near as it goes without touching the area itself.
bool LabelPlacer::placeOutside(LabelText const& text, PageArea const& area) {
  LabelShape const named = LabelShape::area(area.rings);
  QPointF const middle = SysGeometry::poleOfInaccessibility(area.rings, finePt).place;
  double const halfWidth = text.bounds.width() / 2, halfHeight = text.bounds.height() / 2;
  double const farthest = std::hypot(widthOf(named.box), named.box.ymax - named.box.ymin) / 2 + distances * halfHeight;
  double const step = std::max(halfHeight, farthest / maxSteps);
  for (double distance = step; distance <= farthest; distance += step)
    for (int i = 0; i < directions; ++i) {
      double const angle = M_PI / 4 - i * 2 * M_PI / directions, x = std::cos(angle), y = std::sin(angle);
      QPointF const edge = middle + QPointF(x, y) * distance;
      QPointF const centre = edge + QPointF(x * halfWidth, y * halfHeight) / std::max(std::abs(x), std::abs(y));
      Ring const leader{middle, edge};
      if (!isFree(text, centre, 0) || intersects(shapeAt(text, centre, 0, fromBorderPt), named)) continue;
      if (!index_.isFree(LabelShape::area({leader}))) continue;
      accept(text, centre, 0, leader);
      return true;
    }
  return false;
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

LabelPlacer::Outcome LabelPlacer::placeAlongLines(LabelText const& text, int feature) {
  auto lines = linesOf(feature);
  std::stable_sort(lines.begin(), lines.end(), [](auto const& a, auto const& b) { return a.size() > b.size(); });
  std::vector<MeasuredLine> measured;
  double length = 0;
  for (auto& line : lines) {
    measured.emplace_back(std::move(line));
    length += measured.back().length();
  }
  if (length * cmPerPoint < settings_.minSizeCm) return Outcome::NotWanted;
  if (measured.size() > maxLines) measured.erase(measured.begin() + maxLines, measured.end());
  bool isPlaced = !along_.value(text.text).empty();  // where the text repeats on lines, it stands on another one
  for (MeasuredLine const& line : measured) {
    if (!placeAlongLine(text, line)) continue;
    isPlaced = true;
    if (settings_.repeatCm == 0) break;
  }
  return isPlaced ? Outcome::Placed : Outcome::NoRoom;
}

bool LabelPlacer::placeAlongLine(LabelText const& text, MeasuredLine const& line) {
  bool isPlaced = false;
  for (Pieces const& pieces : waysAlong(text, line)) {
    QPointF const middle = pieces[pieces.size() / 2].centre;
    if (isRepeatedTooSoon(text.text, middle) || !placeAlong(pieces)) continue;
    if (settings_.repeatCm == 0) return true;
    along_[text.text].push_back(middle);
    isPlaced = true;
  }
  return isPlaced;
}

std::vector<LabelPlacer::Pieces> LabelPlacer::waysAlong(LabelText const& text, MeasuredLine const& line) {
  double const width = text.bounds.width(), height = text.bounds.height();
  if (line.length() < width) return {};  // before letters are measured, which takes long
  double const lift = height / 2 + settings_.offsetPt;
  std::vector<Pieces> ways;
  auto const letters =
      settings_.linePlace == LinePlace::Curved ? lettersOf(text.text, *text.symbol) : std::vector<Letter>();
  if (!letters.empty()) {
    std::vector<LabelText> texts;
    for (Letter const& letter : letters) measure(texts.emplace_back(LabelText{letter.text, text.symbol, {}}));
    for (auto const& placed : curvedPlaces(line, letters, width, height, lift)) {
      ways.emplace_back();
      for (size_t i = 0; i < placed.size(); ++i) ways.back().push_back({texts[i], placed[i].centre, placed[i].angle});
    }
    return ways;
  }
  for (Stretch const& stretch : straightStretches(line, width, height)) {
    double const above = settings_.linePlace == LinePlace::On ? 0 : lift + stretch.bend;
    double const angle = stretch.angle * M_PI / 180;
    ways.push_back({{text, stretch.middle + QPointF(-std::sin(angle), std::cos(angle)) * above, stretch.angle}});
  }
  return ways;
}

bool LabelPlacer::placeAlong(Pieces const& pieces) {
  auto const hasRoom = [this](Piece const& piece) { return isFree(piece.text, piece.centre, piece.angle); };
  if (!std::all_of(pieces.begin(), pieces.end(), hasRoom)) return false;
  for (Piece const& piece : pieces) accept(piece.text, piece.centre, piece.angle);
  return true;
}

bool LabelPlacer::isRepeatedTooSoon(QString const& text, QPointF const& middle) const {
  if (settings_.repeatCm == 0) return false;
  double const apart = settings_.repeatCm / cmPerPoint;
  auto const placed = along_.find(text);
  return placed != along_.end() && std::any_of(placed->begin(), placed->end(), [&](QPointF const& other) {
           return std::hypot(other.x() - middle.x(), other.y() - middle.y()) < apart;
         });
}

// Points of a feature as they are; of what extends, the middle of what is in sight.
void LabelPlacer::keepUnplaced(int feature) {
  LabelText const text = textOf(feature);
  Box const& box = store_.features[feature].box;
  double const x = (std::max(box.xmin, covered_.left()) + std::min(box.xmax, covered_.right())) / 2;
  double const y = (std::max(box.ymin, covered_.top()) + std::min(box.ymax, covered_.bottom())) / 2;
  unplaced_.push_back({text.text, text.symbol, x, y, 0, {}, {}, store_.keys[feature]});
}

// Wherever it was put, with a line that leads there from afar.
void LabelPlacer::placePinned(int feature, PinnedLabel const& pin) {
  QPointF const centre = toPage(pin.x, pin.y);
  LabelText text = textOf(feature);
  if (settings_.wrapPt > 0) text.text = SysDisplay::wrapped(text.text, *text.symbol, settings_.wrapPt);
  measure(text);
  if (pin.hidden || text.bounds.isEmpty() || !frame_.contains(centre.x(), centre.y())) return;
  Box const box = shapeAt(text, centre, pin.angle, 0).box;
  QPointF const named = nearestOf(feature, centre);
  QPointF const end(std::clamp(named.x(), box.xmin, box.xmax), std::clamp(named.y(), box.ymin, box.ymax));
  bool const isFar = std::hypot(named.x() - end.x(), named.y() - end.y()) > farHeights * text.bounds.height();
  size_t const before = labels_.size();
  accept(text, centre, pin.angle, isFar ? Ring{named, end} : Ring());
  count(feature, Outcome::Placed, before);
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
