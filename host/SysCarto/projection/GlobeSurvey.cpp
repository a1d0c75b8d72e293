#include "GlobeSurvey.h"

#include "ProjectionProbe.h"

#include "host/SysGeometry/Box.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace SysCarto {

namespace {

constexpr double degree = M_PI / 180;
// Data end at ±180 and at the poles; a border just before them never coincides with an edge of theirs.
constexpr double widest = 180 - 1.3e-8, northmost = 90 - 1.7e-7;
constexpr double unevenness = 0.05;  // of an edge against its neighbours, from which on it may hold a break
constexpr double remains = 1e-3;     // of its length on the map, when a break was followed to the end
constexpr double nearlyAll = 0.9;    // of the globe
constexpr double largePart = 0.25;   // of the largest
constexpr int halvings = 24, halvingsBeside = 18;
constexpr int refinements = 8;
constexpr double wideBreak = 2;     // edges of the lattice
constexpr double nearBorder = 0.5;  // degrees
constexpr double straight = 1e-4;   // degrees: a border this near to its chord follows it
constexpr double leastMargin = 1e-7;
constexpr double shortestChord = 1e-3;
constexpr double leastSine = 0.05;

double distance(double ax, double ay, double bx, double by) { return std::hypot(bx - ax, by - ay); }

}  // namespace

bool GlobeSurvey::Place::isShown() const { return std::isfinite(x); }

double GlobeSurvey::Trace::apart() const { return distance(from.x, from.y, to.x, to.y); }

bool GlobeSurvey::Trace::isBreak() const { return !to.isShown() || apart() > remains * first; }

GlobeSurvey::GlobeSurvey(ProjectionProbe const& probe, double centralLongitude, Care care)
    : probe_(probe),
      centralLongitude_(centralLongitude),
      columns_(care == Care::Glance ? 73 : 361),
      rows_(care == Care::Glance ? 37 : 181),
      radii_(care == Care::Glance ? 2 * ProjectionProbe::maxRadii : ProjectionProbe::maxRadii) {
  std::vector<Place*> places;
  nodes_.resize(static_cast<size_t>(columns_ + 1) * (rows_ + 1));
  for (int row = 0; row <= rows_; ++row)
    for (int column = 0; column <= columns_; ++column) {
      Place& place = nodes_[node(column, row)];
      place.at = {widest * (2.0 * column / columns_ - 1), northmost * (2.0 * row / rows_ - 1), 0};
      places.push_back(&place);
    }
  fill(places);
  if (care == Care::Survey) {
    fillHoles();
    dropCrumbs();
  }
  do findBreaks();
  while (care == Care::Survey && hideTornCells());
}

void GlobeSurvey::findBreaks() {
  edges_.assign(2 * nodes_.size(), {});
  points_.clear();
  breaks_.clear();
  addEdges(false);
  addEdges(true);
}

// Where a break as wide as many cells ends within one, a point lies there that the projection can't show, such as the
// pole of an oblique map. Answers whether there was one.
bool GlobeSurvey::hideTornCells() {
  auto const length = [&](int from, int to) {
    if (from < 0 || to >= static_cast<int>(nodes_.size())) return 0.0;
    double const long_ = distance(nodes_[from].x, nodes_[from].y, nodes_[to].x, nodes_[to].y);
    return std::isfinite(long_) ? long_ : 0;
  };
  auto const isBroken = [&](int edge) { return edges_[edge].last >= 0 && edges_[edge].first >= 0; };
  auto const isTorn = [&](int edge) {
    if (!isBroken(edge)) return false;
    int const step = edge % 2 ? columns_ + 1 : 1, start = edge / 2, end = start + step, column = start % (columns_ + 1);
    double const before = step > 1 || column > 0 ? length(start - step, start) : 0;
    double const after = step > 1 || column + 1 < columns_ ? length(end, end + step) : 0;
    return length(start, end) > wideBreak * (before + after);
  };
  std::vector<int> torn;
  for (int row = 0; row < rows_; ++row)
    for (int column = 0; column < columns_; ++column) {
      int const corner = node(column, row), above = corner + columns_ + 1;
      std::array<int, 4> const sides{edge(corner, false), edge(corner, true), edge(corner + 1, true),
                                     edge(above, false)};
      bool const isEnd = std::count_if(sides.begin(), sides.end(), isBroken) == 1;
      bool const isShown = nodes_[corner].isShown() && nodes_[corner + 1].isShown() && nodes_[above].isShown() &&
                           nodes_[above + 1].isShown();
      if (isShown && isEnd && std::any_of(sides.begin(), sides.end(), isTorn))
        torn.insert(torn.end(), {corner, corner + 1, above, above + 1});
    }
  for (int at : torn) nodes_[at].x = nodes_[at].y = NAN;
  return !torn.empty();
}

void GlobeSurvey::fill(std::vector<Place*> const& places) const {
  std::vector<double> xy;
  xy.reserve(2 * places.size());
  for (Place const* place : places) xy.insert(xy.end(), {place->at.x + centralLongitude_, place->at.y});
  probe_.projectAndReturn(xy, radii_);
  for (size_t i = 0; i < places.size(); ++i) {
    places[i]->x = xy[2 * i];
    places[i]->y = xy[2 * i + 1];
  }
}

// A single place may fail to come back, since ways back are found by trial; it lies where its neighbours say.
void GlobeSurvey::fillHoles() {
  std::vector<int> holes;
  std::vector<double> xy;
  for (int row = 1; row < rows_; ++row)
    for (int column = 1; column < columns_; ++column) {
      int const at = node(column, row);
      if (nodes_[at].isShown() || !nodes_[at - 1].isShown() || !nodes_[at + 1].isShown() ||
          !nodes_[at - columns_ - 1].isShown() || !nodes_[at + columns_ + 1].isShown())
        continue;
      holes.push_back(at);
      xy.insert(xy.end(), {nodes_[at].at.x + centralLongitude_, nodes_[at].at.y});
    }
  probe_.project(xy, radii_);
  for (size_t i = 0; i < holes.size(); ++i) {
    Place const &west = nodes_[holes[i] - 1], &east = nodes_[holes[i] + 1];
    double const off = distance(xy[2 * i], xy[2 * i + 1], (west.x + east.x) / 2, (west.y + east.y) / 2);
    if (!(off < distance(west.x, west.y, east.x, east.y) / 4)) continue;
    nodes_[holes[i]].x = xy[2 * i];
    nodes_[holes[i]].y = xy[2 * i + 1];
  }
}

// Where a projection is far from its middle, some places come back by chance. What is shown has a block of nine nodes
// about it (a morphological opening).
void GlobeSurvey::dropCrumbs() {
  std::vector<char> isLarge(nodes_.size());
  auto const visitBlock = [&](int column, int row, auto const& visit) {
    for (int y = row - 1; y <= row + 1; ++y)
      for (int x = column - 1; x <= column + 1; ++x)
        if (!visit(node(x, y))) return false;
    return true;
  };
  for (int row = 1; row < rows_; ++row)
    for (int column = 1; column < columns_; ++column)
      if (visitBlock(column, row, [&](int at) { return nodes_[at].isShown(); }))
        visitBlock(column, row, [&](int at) { return isLarge[at] = 1; });
  for (size_t i = 0; i < nodes_.size(); ++i)
    if (!isLarge[i]) nodes_[i].x = nodes_[i].y = NAN;
}

// Whether an edge is too long, too short or too slanted between those before and after it.
bool GlobeSurvey::mayBreak(int before, int a, int b, int after) const {
  auto const edge = [&](int from, int to) {
    return std::array<double, 2>{nodes_[to].x - nodes_[from].x, nodes_[to].y - nodes_[from].y};
  };
  auto const own = edge(a, b);
  bool const hasBefore = before >= 0 && nodes_[before].isShown(), hasAfter = after >= 0 && nodes_[after].isShown();
  if (!hasBefore && !hasAfter) return true;
  auto const first = hasBefore ? edge(before, a) : edge(b, after), last = hasAfter ? edge(b, after) : first;
  return distance(own[0], own[1], (first[0] + last[0]) / 2, (first[1] + last[1]) / 2) >
         unevenness * std::hypot(own[0], own[1]);
}

void GlobeSurvey::addEdges(bool isUp) {
  int const step = isUp ? columns_ + 1 : 1, count = isUp ? rows_ : columns_;
  std::vector<Trace> traces;
  auto const add = [&](int from, int to, int edge) {
    Trace trace{nodes_[from], nodes_[to], 0, from, to, edge};
    trace.first = trace.apart();
    traces.push_back(trace);
  };
  for (int row = 0; row + isUp <= rows_; ++row)
    for (int column = 0; column + !isUp <= columns_; ++column) {
      int const a = node(column, row), b = a + step, place = isUp ? row : column;
      if (!nodes_[a].isShown() && !nodes_[b].isShown()) continue;
      bool const both = nodes_[a].isShown() && nodes_[b].isShown();
      if (both && !mayBreak(place > 0 ? a - step : -1, a, b, place + 2 <= count ? b + step : -1)) continue;
      nodes_[a].isShown() ? add(a, b, edge(a, isUp)) : add(b, a, edge(a, isUp));
    }
  follow(traces, halvings);
  followAgain(traces);
  auto const addAt = [&](Place const& place, int node) { return addPoint(place, node, nodes_[node]); };
  std::vector<Trace> const found = std::move(traces);
  traces.clear();
  for (Trace const& trace : found) {
    if (!trace.isBreak()) continue;
    int const a = trace.edge / 2, b = a + step;
    Edge& edge = edges_[trace.edge];
    (trace.isForward() ? edge.last : edge.first) = addAt(trace.from, trace.isForward() ? a : b);
    if (!trace.isForward() || !nodes_[b].isShown()) continue;
    if (trace.to.isShown()) {
      edge.first = addAt(trace.to, b);
      breaks_.push_back(trace);
    } else {
      add(b, a, trace.edge);  // a gap: its other side
    }
  }
  follow(traces, halvings);
  followAgain(traces);
  for (Trace const& trace : traces)
    if (!trace.isForward()) edges_[trace.edge].first = addAt(trace.from, trace.edge / 2 + step);
}

// On the way to a place that isn't shown there may have been a break before.
void GlobeSurvey::followAgain(std::vector<Trace>& traces) const {
  std::vector<Trace> again;
  for (Trace const& trace : traces) {
    if (trace.to.isShown()) continue;
    Place const& node = nodes_[trace.start];
    int const behind = 2 * trace.start - trace.end;
    bool const hasBehind = behind >= 0 && behind < static_cast<int>(nodes_.size()) && nodes_[behind].isShown();
    double const way = distance(node.x, node.y, trace.from.x, trace.from.y);
    if (hasBehind && way < wideBreak * distance(node.x, node.y, nodes_[behind].x, nodes_[behind].y)) continue;
    again.push_back({node, trace.from, way, trace.start, trace.end, static_cast<int>(&trace - traces.data())});
  }
  follow(again, halvings);
  for (Trace const& trace : again)
    if (trace.isBreak()) traces[trace.edge].from = trace.from;
}

// Halves edges, always keeping the half with the break: with a place that isn't shown, or else the longer one.
void GlobeSurvey::follow(std::vector<Trace>& traces, int halvings) const {
  std::vector<Place> middles(traces.size());
  std::vector<Place*> places;
  for (Place& middle : middles) places.push_back(&middle);
  for (int i = 0; i < halvings && !traces.empty(); ++i) {
    for (size_t k = 0; k < traces.size(); ++k) middles[k].at = between(traces[k].from.at, traces[k].to.at, 0.5);
    fill(places);
    for (size_t k = 0; k < traces.size(); ++k) {
      Trace& trace = traces[k];
      Place const& middle = middles[k];
      bool const isFirstHalf =
          !middle.isShown() || (trace.to.isShown() && distance(trace.from.x, trace.from.y, middle.x, middle.y) >
                                                          distance(middle.x, middle.y, trace.to.x, trace.to.y));
      (isFirstHalf ? trace.to : trace.from) = middle;
    }
  }
}

// Near the border, at the poles and on the meridian farthest from the middle a place may come back badly, and does no
// harm.
bool GlobeSurvey::suits(ProjectionDomain const& domain) const {
  auto const admits = [&](Vertex at) { return domain.admit(at); };
  auto const holds = [&](Vertex const& at) {
    double const aside = nearBorder / std::cos(at.y * degree);
    return admits({at.x - aside, at.y, 0}) && admits({at.x + aside, at.y, 0}) && admits({at.x, at.y - nearBorder, 0}) &&
           admits({at.x, at.y + nearBorder, 0});
  };
  if (std::any_of(breaks_.begin(), breaks_.end(),
                  [&](Trace const& found) { return admits(found.from.at) && admits(found.to.at); }))
    return false;
  int shown = 0, admitted = 0;
  for (int row = 1; row < rows_; ++row)
    for (int column = 1; column < columns_; ++column) {
      Place const& place = nodes_[node(column, row)];
      if (!place.isShown() && holds(place.at)) return false;
      shown += place.isShown();
      admitted += place.isShown() && admits(place.at);
    }
  return 2 * admitted >= shown;
}

double GlobeSurvey::size() const {
  SysGeometry::Box box;
  for (Place const& node : nodes_)
    if (node.isShown()) box.add(node.x, node.y);
  return box.isEmpty() ? 0 : std::max(box.xmax - box.xmin, box.ymax - box.ymin);
}

// Numbers what hangs together, and answers for each number how many square degrees of the equator it is as large as.
std::vector<double> GlobeSurvey::findParts(std::vector<int>& part) const {
  std::vector<double> sizes;
  part.assign(nodes_.size(), -1);
  std::vector<int> reached;
  auto const reach = [&](int at) {
    if (part[at] >= 0 || !nodes_[at].isShown()) return;
    part[at] = static_cast<int>(sizes.size()) - 1;
    sizes.back() += std::cos(nodes_[at].at.y * degree);
    reached.push_back(at);
  };
  auto const cross = [&](int edge, int to) {
    if (edges_[edge].last < 0 && edges_[edge].first < 0) reach(to);
  };
  for (int start = 0; start < static_cast<int>(nodes_.size()); ++start) {
    if (part[start] >= 0 || !nodes_[start].isShown()) continue;
    sizes.push_back(0);
    for (reach(start); !reached.empty();) {
      int const at = reached.back(), column = at % (columns_ + 1), row = at / (columns_ + 1), above = columns_ + 1;
      reached.pop_back();
      if (column < columns_) cross(edge(at, false), at + 1);
      if (column > 0) cross(edge(at - 1, false), at - 1);
      if (row < rows_) cross(edge(at, true), at + above);
      if (row > 0) cross(edge(at - above, true), at - above);
    }
  }
  return sizes;
}

void GlobeSurvey::keepPartsAbout(Vertex const& middle) {
  isKept_.assign(nodes_.size(), 1);
  double all = 0;
  for (Place const& node : nodes_) all += std::cos(node.at.y * degree);
  std::vector<int> part;
  std::vector<double> const sizes = findParts(part);
  if (sizes.empty() || std::accumulate(sizes.begin(), sizes.end(), 0.0) > nearlyAll * all) return;
  int const column = static_cast<int>(std::lround((middle.x / widest + 1) / 2 * columns_));
  int const row = static_cast<int>(std::lround((middle.y / northmost + 1) / 2 * rows_));
  int const inMiddle = part[node(std::clamp(column, 0, columns_), std::clamp(row, 0, rows_))];
  double const large = *std::max_element(sizes.begin(), sizes.end()) * largePart;
  for (size_t i = 0; i < nodes_.size(); ++i)
    isKept_[i] = part[i] >= 0 && (part[i] == inMiddle || sizes[part[i]] >= large);
}

int GlobeSurvey::addPoint(Place const& place, int node, Place const& towards) {
  double const dx = towards.at.x - place.at.x, dy = towards.at.y - place.at.y, length = std::hypot(dx, dy);
  points_.push_back({place, node, length > 0 ? dx / length : 0, length > 0 ? dy / length : 0, length, 0, -1, false});
  return static_cast<int>(points_.size()) - 1;
}

// Goes along an edge of the lattice, forwards or back: appends where a stretch of what is shown ends and where one
// starts.
void GlobeSurvey::visitEdge(int edge, bool isForward, Ends& ends) const {
  Edge const& found = edges_[edge];
  int const end = isForward ? found.last : found.first, start = isForward ? found.first : found.last;
  if (end >= 0 && isKept_[points_[end].node]) ends.emplace_back(end, false);
  if (start >= 0 && isKept_[points_[start].node]) ends.emplace_back(start, true);
}

// Around a cell counterclockwise, each stretch that is shown is closed by a chord from its end to its start.
void GlobeSurvey::addCell(int column, int row) {
  int const corner = node(column, row);
  Ends ends;
  visitEdge(edge(corner, false), true, ends);
  visitEdge(edge(corner + 1, true), true, ends);
  visitEdge(edge(corner + columns_ + 1, false), false, ends);
  visitEdge(edge(corner, true), false, ends);
  for (size_t i = 0; i < ends.size(); ++i) {
    auto const& next = ends[(i + 1) % ends.size()];
    if (ends[i].second && !next.second) points_[next.first].next = ends[i].first;
  }
}

// Around the whole lattice.
void GlobeSurvey::addRim() {
  Ends ends;
  auto const add = [&](int from, int edge, bool isForward) {
    if (nodes_[from].isShown() && isKept_[from]) {
      int const point = addPoint(nodes_[from], from, nodes_[from]);
      if (!ends.empty()) ends.emplace_back(point, false);
      ends.emplace_back(point, true);
    }
    visitEdge(edge, isForward, ends);
  };
  for (int i = 0; i < columns_; ++i) add(node(i, 0), edge(node(i, 0), false), true);
  for (int i = 0; i < rows_; ++i) add(node(columns_, i), edge(node(columns_, i), true), true);
  for (int i = columns_; i > 0; --i) add(node(i, rows_), edge(node(i - 1, rows_), false), false);
  for (int i = rows_; i > 0; --i) add(node(0, i), edge(node(0, i - 1), true), false);
  if (nodes_[node(0, 0)].isShown() && isKept_[node(0, 0)]) ends.emplace_back(ends.front().first, false);
  for (size_t i = 0; i < ends.size(); ++i) {
    auto const& next = ends[(i + 1) % ends.size()];
    if (!ends[i].second || next.second) continue;
    points_[ends[i].first].next = next.first;
    points_[ends[i].first].isRim = true;
  }
}

// Looks for the border beside the middle of each chord, and answers the chords that were divided there.
std::vector<int> GlobeSurvey::refined(std::vector<int> const& chords, bool isFirst) {
  std::vector<Trace> traces;
  std::vector<Place*> places;
  for (int chord : chords) {
    Place const &a = points_[chord].place, &b = points_[points_[chord].next].place;
    double const dx = b.at.x - a.at.x, dy = b.at.y - a.at.y;
    Vertex const middle = between(a.at, b.at, 0.5);
    traces.push_back({{{middle.x - dy / 2, middle.y + dx / 2, 0}, 0, 0},
                      {{middle.x + dy / 2, middle.y - dx / 2, 0}, 0, 0},
                      0,
                      0,
                      0,
                      chord});
  }
  for (Trace& trace : traces) places.insert(places.end(), {&trace.from, &trace.to});
  fill(places);
  for (Trace& trace : traces) trace.first = trace.apart();
  traces.erase(std::remove_if(traces.begin(), traces.end(), [](Trace const& trace) { return !trace.from.isShown(); }),
               traces.end());
  std::vector<Trace> const whole = traces;
  follow(traces, halvingsBeside);
  std::vector<int> divided;
  for (size_t i = 0; i < traces.size(); ++i) {
    Trace const& trace = traces[i];
    int const chord = trace.edge, next = points_[chord].next;
    Place const &a = points_[chord].place, &b = points_[next].place;
    double const long_ = distance(a.x, a.y, b.x, b.y);
    bool const isBeside = distance(trace.from.x, trace.from.y, (a.x + b.x) / 2, (a.y + b.y) / 2) < long_;
    if (!trace.isBreak() || !isBeside) continue;
    Vertex const middle = between(a.at, b.at, 0.5);
    double const bend = distance(middle.x, middle.y, trace.from.at.x, trace.from.at.y);
    bool const settles = isFirst || bend < 2 * points_[chord].bend;  // a frayed border has no curve to follow
    points_[chord].bend = bend;
    if (bend < straight || !settles) continue;
    int const added = addPoint(trace.from, points_[chord].node, whole[i].from);
    points_[added].next = next;
    points_[added].bend = points_[chord].bend = bend / 4;
    points_[chord].next = added;
    divided.insert(divided.end(), {chord, added});
  }
  return divided;
}

std::vector<Run> GlobeSurvey::border(Vertex const& middle) {
  keepPartsAbout(middle);
  for (int row = 0; row < rows_; ++row)
    for (int column = 0; column < columns_; ++column) addCell(column, row);
  addRim();
  std::vector<int> chords;
  for (int i = 0; i < static_cast<int>(points_.size()); ++i) {
    if (points_[i].isRim || points_[i].next < 0) continue;
    Vertex const &a = points_[i].place.at, &b = points_[points_[i].next].place.at;
    if (distance(a.x, a.y, b.x, b.y) > shortestChord) chords.push_back(i);
  }
  for (int i = 0; i < refinements; ++i) chords = refined(chords, i == 0);

  // Between its vertices the border may bend inwards, so that each is moved that far away from the chord.
  std::vector<double> margins(points_.size(), 0);
  for (size_t i = 0; i < points_.size(); ++i) {
    if (points_[i].next < 0 || points_[i].isRim) continue;
    size_t const next = points_[i].next;
    Vertex const &a = points_[i].place.at, &b = points_[next].place.at;
    double const length = distance(a.x, a.y, b.x, b.y);
    for (size_t k : {i, next}) {
      double const sine = std::abs(points_[k].inX * (b.y - a.y) - points_[k].inY * (b.x - a.x)) / length;
      double const margin = std::max(leastMargin, 1.2 * points_[i].bend) / std::max(sine, leastSine);
      margins[k] = std::max(margins[k], std::min(margin, points_[k].room / 2));
    }
  }
  std::vector<Run> rings;
  std::vector<char> isDone(points_.size());
  for (size_t start = 0; start < points_.size(); ++start) {
    Run ring;
    for (int i = static_cast<int>(start); i >= 0 && !isDone[i]; i = points_[i].next) {
      isDone[i] = 1;
      Point const& point = points_[i];
      bool const isArc = !point.isRim && point.bend > straight / 8;
      ring.push_back({point.place.at.x + point.inX * margins[i], point.place.at.y + point.inY * margins[i],
                      static_cast<unsigned char>(isArc ? seamEdge | arcEdge : seamEdge)});
    }
    if (ring.size() > 2) rings.push_back(std::move(ring));
  }
  return rings;
}

}  // namespace SysCarto
