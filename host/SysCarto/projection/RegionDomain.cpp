#include "host/SysCarto/projection/ProjectionDomain.h"
#include "host/SysGeometry/Box.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

namespace SysCarto {

namespace {

constexpr int columns = 360, rows = 180;
constexpr int maxTurns = 3;     // coordinates further round the globe than this are no coordinates
constexpr double aside = 3e-9;  // degrees: where an edge goes exactly through a vertex of the border, beside it

bool isLeft(Vertex const& a, Vertex const& b, Vertex const& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x) >= 0;
}

bool cross(Vertex const& a, Vertex const& b, Vertex const& p, Vertex const& q) {
  return isLeft(a, b, p) != isLeft(a, b, q) && isLeft(p, q, a) != isLeft(p, q, b);
}

// How far along the first edge the second one crosses it.
double crossingAt(Vertex const& a, Vertex const& b, Vertex const& p, Vertex const& q) {
  double const across = (b.x - a.x) * (q.y - p.y) - (b.y - a.y) * (q.x - p.x);
  double const t = ((p.x - a.x) * (q.y - p.y) - (p.y - a.y) * (q.x - p.x)) / across;
  return std::isfinite(t) ? std::clamp(t, 0.0, 1.0) : 0.5;
}

// A place on a ring: after a vertex, at a fraction of the edge to the next.
struct OnRing {
  size_t ring, edge;
  double t;

  bool operator<(OnRing const& other) const {
    return std::tie(ring, edge, t) < std::tie(other.ring, other.edge, other.t);
  }
};

// Where an edge of the data crosses the border, and how both go on from there inside of the other.
struct Crossing {
  OnRing onData, onBorder;
  size_t alongData = 0, alongBorder = 0;  // the crossing at the other end
  bool startsData = false, startsBorder = false;
};

class RegionDomain final : public ProjectionDomain {
public:
  explicit RegionDomain(std::vector<Run> border);

  void clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const override;
  void clipLine(Run const& line, std::vector<Run>& lines) const override;
  bool admit(Vertex& point) const override;

private:
  struct Segment {
    size_t ring, index;
  };
  struct Cell {
    std::vector<size_t> segments;
    bool isCentreInside = false;
  };

  Vertex const& start(Segment const& s) const { return border_[s.ring][s.index]; }
  Vertex const& end(Segment const& s) const { return border_[s.ring][(s.index + 1) % border_[s.ring].size()]; }
  static int columnAt(double x) { return static_cast<int>(std::clamp(std::floor(x) + 180, 0.0, columns - 1.0)); }
  static int rowAt(double y) { return static_cast<int>(std::clamp(std::floor(y) + 90, 0.0, rows - 1.0)); }
  Cell const& cellAt(double x, double y) const { return cells_[rowAt(y) * columns + columnAt(x)]; }
  template <class Visit>
  void visitCells(Vertex const& a, Vertex const& b, Visit const& visit) const;
  void fillRow(int row);
  bool isInside(Vertex const& v) const;
  void addCrossings(Run const& run, size_t number, bool closed, std::vector<Crossing>& crossings) const;
  bool clipTurn(std::vector<Run> const& rings, std::vector<Run>& polygon) const;

  std::vector<Run> const border_;
  std::vector<Segment> segments_;
  std::vector<Cell> cells_;
};

// The border's own index: its segments by cells of one degree, and which of their centres are inside.
RegionDomain::RegionDomain(std::vector<Run> border) : border_(std::move(border)), cells_(columns * rows) {
  for (size_t ring = 0; ring < border_.size(); ++ring)
    for (size_t i = 0; i < border_[ring].size(); ++i) {
      Segment const segment{ring, i};
      visitCells(start(segment), end(segment), [&](int cell) { cells_[cell].segments.push_back(segments_.size()); });
      segments_.push_back(segment);
    }
  for (int row = 0; row < rows; ++row) fillRow(row);
}

void RegionDomain::fillRow(int row) {
  double const y = row + 0.5 - 90;
  std::vector<double> crossed;
  for (Segment const& segment : segments_) {
    Vertex const &a = start(segment), &b = end(segment);
    if ((a.y > y) != (b.y > y)) crossed.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
  }
  std::sort(crossed.begin(), crossed.end());
  size_t passed = 0;
  for (int column = 0; column < columns; ++column) {
    while (passed < crossed.size() && crossed[passed] <= column + 0.5 - 180) ++passed;
    cells_[row * columns + column].isCentreInside = passed % 2 == 1;
  }
}

// Those that the box about an edge meets; of a long edge, about each piece of it that lies on the globe.
template <class Visit>
void RegionDomain::visitCells(Vertex const& a, Vertex const& b, Visit const& visit) const {
  if (std::min(a.x, b.x) > columns / 2 || std::max(a.x, b.x) < -columns / 2) return;
  if (std::max(std::abs(b.x - a.x), std::abs(b.y - a.y)) > 2) {
    Vertex const middle = between(a, b, 0.5);
    visitCells(a, middle, visit);
    visitCells(middle, b, visit);
    return;
  }
  for (int row = rowAt(std::min(a.y, b.y)); row <= rowAt(std::max(a.y, b.y)); ++row)
    for (int column = columnAt(std::min(a.x, b.x)); column <= columnAt(std::max(a.x, b.x)); ++column)
      visit(row * columns + column);
}

bool RegionDomain::isInside(Vertex const& v) const {
  if (std::abs(v.x) >= columns / 2 || std::abs(v.y) >= rows / 2) return false;
  Cell const& cell = cellAt(v.x, v.y);
  Vertex const centre{std::floor(v.x) + 0.5, std::floor(v.y) + 0.5, 0};
  bool inside = cell.isCentreInside;
  for (size_t index : cell.segments)
    if (cross(centre, v, start(segments_[index]), end(segments_[index]))) inside = !inside;
  return inside;
}

void RegionDomain::addCrossings(Run const& run, size_t number, bool closed, std::vector<Crossing>& crossings) const {
  std::vector<size_t> candidates;
  for (size_t i = 0; i + !closed < run.size(); ++i) {
    Vertex const &a = run[i], &b = run[(i + 1) % run.size()];
    candidates.clear();
    visitCells(a, b, [&](int cell) {
      candidates.insert(candidates.end(), cells_[cell].segments.begin(), cells_[cell].segments.end());
    });
    std::sort(candidates.begin(), candidates.end());
    candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
    for (size_t index : candidates) {
      Segment const& segment = segments_[index];
      Vertex const &p = start(segment), &q = end(segment);
      if (!cross(a, b, p, q)) continue;
      Crossing crossing;
      crossing.onData = {number, i, crossingAt(a, b, p, q)};
      crossing.onBorder = {segment.ring, segment.index, crossingAt(p, q, a, b)};
      crossings.push_back(crossing);
    }
  }
}

Vertex placeOf(std::vector<Run> const& rings, OnRing const& at) {
  Run const& ring = rings[at.ring];
  return between(ring[at.edge], ring[(at.edge + 1) % ring.size()], at.t);
}

// The way along a ring from one place on it to another; without its last vertex, but with the first.
void appendWay(std::vector<Run> const& rings, OnRing const& from, OnRing const& to, bool isForward, Run& run) {
  Run const& ring = rings[from.ring];
  Run way{placeOf(rings, from)};
  OnRing const &first = isForward ? from : to, &last = isForward ? to : from;
  Run inner;
  bool const isRound = last < first || (first.edge == last.edge && first.t > last.t);
  size_t const count = (last.edge + ring.size() - first.edge) % ring.size();
  size_t const vertices = count == 0 && isRound ? ring.size() : count;
  for (size_t k = 1; k <= vertices; ++k) inner.push_back(ring[(first.edge + k) % ring.size()]);
  if (isForward) {
    way.insert(way.end(), inner.begin(), inner.end());
  } else {  // what is known of an edge stands at its other end
    way.front().edge = ring[last.edge].edge;
    for (size_t k = inner.size(); k-- > 0;) {
      Vertex v = inner[k];
      v.edge = k > 0 ? inner[k - 1].edge : ring[first.edge].edge;
      way.push_back(v);
    }
  }
  run.insert(run.end(), way.begin(), way.end());
}

// Joins crossings that follow each other on a ring, where the way between them lies inside. `of` names the place,
// `other` and `starts` what becomes known. False where a ring is not crossed an even number of times.
template <class IsInside>
bool joinAlong(std::vector<Crossing>& crossings, OnRing Crossing::*of, size_t Crossing::*other, bool Crossing::*starts,
               std::vector<char>& isCrossed, IsInside const& isInside) {
  std::vector<size_t> order(crossings.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return crossings[a].*of < crossings[b].*of; });
  for (size_t first = 0; first < order.size();) {
    size_t const ring = (crossings[order[first]].*of).ring;
    size_t last = first;
    while (last < order.size() && (crossings[order[last]].*of).ring == ring) ++last;
    size_t const count = last - first;
    if (count % 2) return false;
    isCrossed[ring] = 1;
    for (size_t i = isInside(ring) ? 1 : 0; i < count; i += 2) {
      size_t const a = order[first + i], b = order[first + (i + 1) % count];
      crossings[a].*other = b;
      crossings[b].*other = a;
      crossings[a].*starts = true;
    }
    first = last;
  }
  return true;
}

// What lies within both is bounded by the data inside the border and by the border inside the data (Weiler–Atherton, by
// the even-odd rule).
bool RegionDomain::clipTurn(std::vector<Run> const& rings, std::vector<Run>& polygon) const {
  std::vector<Crossing> crossings;
  for (size_t i = 0; i < rings.size(); ++i) addCrossings(rings[i], i, true, crossings);
  std::vector<char> isDataCrossed(rings.size()), isBorderCrossed(border_.size());
  auto const contains = [&](size_t ring) {
    Vertex const& v = border_[ring].front();
    return std::count_if(rings.begin(), rings.end(),
                         [&](Run const& other) { return SysGeometry::contains(other, v.x, v.y); }) %
               2 ==
           1;
  };
  if (!joinAlong(crossings, &Crossing::onData, &Crossing::alongData, &Crossing::startsData, isDataCrossed,
                 [&](size_t ring) { return isInside(rings[ring].front()); }) ||
      !joinAlong(crossings, &Crossing::onBorder, &Crossing::alongBorder, &Crossing::startsBorder, isBorderCrossed,
                 contains))
    return false;
  for (size_t i = 0; i < rings.size(); ++i)
    if (!isDataCrossed[i] && isInside(rings[i].front())) polygon.push_back(rings[i]);
  for (size_t i = 0; i < border_.size(); ++i)
    if (!isBorderCrossed[i] && contains(i)) polygon.push_back(border_[i]);
  std::vector<char> isDone(crossings.size());
  for (size_t start = 0; start < crossings.size(); ++start) {
    if (!crossings[start].startsData) continue;  // all run the way that the data do
    Run ring;
    for (size_t i = start; !isDone[i];) {
      Crossing const& entry = crossings[i];
      Crossing const& exit = crossings[entry.alongData];
      isDone[i] = isDone[entry.alongData] = 1;
      appendWay(rings, entry.onData, exit.onData, entry.startsData, ring);
      Crossing const& next = crossings[exit.alongBorder];
      appendWay(border_, exit.onBorder, next.onBorder, exit.startsBorder, ring);
      i = exit.alongBorder;
    }
    if (ring.size() > 2) polygon.push_back(std::move(ring));
  }
  return true;
}

// The run as it lies in one turn of the globe.
Run shifted(Run run, double byX, double byY) {
  for (Vertex& v : run) {
    v.x += byX;
    v.y += byY;
  }
  return run;
}

SysGeometry::Box boxOf(Run const* runs, size_t count) {
  SysGeometry::Box box;
  for (size_t i = 0; i < count; ++i)
    for (Vertex const& v : runs[i]) box.add(v.x, v.y);
  return box;
}

// Calls `visit` with each turn of the globe in which something lies; what lies on the meridian between two is in both.
template <class Visit>
void visitTurns(Run const* runs, size_t count, Visit const& visit) {
  SysGeometry::Box const box = boxOf(runs, count);
  if (box.isEmpty()) return;
  auto const turn = [](double x) {
    return static_cast<int>(std::clamp(std::floor((x + 180) / 360), -1.0 * maxTurns, 1.0 * maxTurns));
  };
  auto const [first, last] = std::minmax({turn(box.xmin + aside), turn(box.xmax - aside)});
  for (int i = first; i <= last; ++i) visit(-360.0 * i);
}

// On the edge of the globe itself a place belongs to what lies beside it.
Vertex besideEdge(Vertex v) {
  auto const beside = [](double value, double edge, double by) {
    return std::abs(std::abs(value) - edge) < by ? std::copysign(edge - by, value) : value;
  };
  return {beside(v.x, 180, 1e-7), beside(v.y, 90, 1e-6), v.edge};
}

// What is left in several turns may meet again on the map, where the meridian between them is none of its borders: as
// one polygon it is filled without a hairline there.
void RegionDomain::clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const {
  constexpr int attempts = 4;
  SysGeometry::Box const box = boxOf(rings.data(), rings.size());
  bool const isOnce = box.xmax - box.xmin <= 360 + aside;
  std::vector<Run> whole;
  visitTurns(rings.data(), rings.size(), [&](double turn) {
    for (int i = 0; i < attempts; ++i) {
      std::vector<Run> moved, polygon;
      for (Run const& ring : rings) moved.push_back(shifted(ring, turn + i * aside, i * aside / 2));
      if (!clipTurn(moved, polygon)) continue;
      std::move(polygon.begin(), polygon.end(), std::back_inserter(whole));
      break;
    }
    if (isOnce || whole.empty()) return;
    polygons.push_back(std::move(whole));
    whole.clear();
  });
  if (!whole.empty()) polygons.push_back(std::move(whole));
}

void RegionDomain::clipLine(Run const& line, std::vector<Run>& lines) const {
  size_t const before = lines.size();
  SysGeometry::Box const box = boxOf(&line, 1);
  bool const isOnce = box.xmax - box.xmin < aside;
  visitTurns(&line, 1, [&](double turn) {
    if (isOnce && lines.size() > before) return;
    Run run = shifted(line, turn, 0);
    std::transform(run.begin(), run.end(), run.begin(), besideEdge);
    std::vector<Crossing> crossings;
    addCrossings(run, 0, false, crossings);
    std::sort(crossings.begin(), crossings.end(),
              [](Crossing const& a, Crossing const& b) { return a.onData < b.onData; });
    bool inside = isInside(run.front());
    Run piece;
    if (inside) piece.push_back(run.front());
    size_t next = 0;
    auto const end = [&] {
      if (piece.size() > 1) lines.push_back(piece);
      piece.clear();
    };
    for (size_t i = 0; i + 1 < run.size(); ++i) {
      for (; next < crossings.size() && crossings[next].onData.edge == i; ++next) {
        piece.push_back(between(run[i], run[i + 1], crossings[next].onData.t));
        inside = !inside;
        if (!inside) end();
      }
      if (inside) piece.push_back(run[i + 1]);
    }
    end();
  });
}

bool RegionDomain::admit(Vertex& point) const {
  if (std::abs(point.x) > 180) point.x = std::remainder(point.x, 360.0);
  return isInside(besideEdge(point));
}

}  // namespace

std::unique_ptr<ProjectionDomain> makeRegionDomain(std::vector<Run> border) {
  return std::make_unique<RegionDomain>(std::move(border));
}

}  // namespace SysCarto
