#include "host/SysCarto/projection/ProjectionDomain.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double edge = 180;
constexpr double nearly = 1e-9;
constexpr int maxTurns = 3;  // coordinates further round the globe than this are no coordinates

class StripDomain final : public ProjectionDomain {
public:
  StripDomain(double south, double north) : south_(south), north_(north) {}

  void clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const override;
  void clipLine(Run const& line, std::vector<Run>& lines) const override;
  bool admit(Vertex& point) const override;

private:
  struct Turns {
    int first, last;
  };

  static Turns turnsOf(Run const* runs, size_t count);
  bool isInside(Vertex const& v) const {
    return v.x >= -edge - nearly && v.x <= edge + nearly && v.y >= south_ - nearly && v.y <= north_ + nearly;
  }
  Vertex clamped(Vertex const& v) const {
    return {std::clamp(v.x, -edge, edge), std::clamp(v.y, south_, north_), v.edge};
  }
  bool onOneSide(Vertex const& a, Vertex const& b) const;
  template <class Visit>
  void visitPieces(Vertex const& a, Vertex const& b, Visit const& visit) const;
  Run clipRing(Run const& ring, double shift) const;
  void append(Run& run, Vertex const& v) const;

  double const south_, north_;
};

Vertex shifted(Vertex const& v, double shift) { return {v.x + shift, v.y, v.edge}; }

bool isFlat(Run const& run) {
  auto const flat = [&](double Vertex::*axis) {
    auto const ends = std::minmax_element(run.begin(), run.end(),
                                          [=](Vertex const& a, Vertex const& b) { return a.*axis < b.*axis; });
    return *ends.second.*axis - *ends.first.*axis <= nearly;
  };
  return run.size() < 3 || flat(&Vertex::x) || flat(&Vertex::y);
}

StripDomain::Turns StripDomain::turnsOf(Run const* runs, size_t count) {
  double west = INFINITY, east = -INFINITY;
  for (size_t i = 0; i < count; ++i)
    for (Vertex const& v : runs[i]) {
      west = std::min(west, v.x);
      east = std::max(east, v.x);
    }
  if (!(west <= east)) return {0, -1};
  auto const turn = [](double x) { return std::clamp(std::floor((x + edge) / 360), -1.0 * maxTurns, 1.0 * maxTurns); };
  int const first = static_cast<int>(turn(west + nearly)), last = static_cast<int>(turn(east - nearly));
  return {first, std::max(first, last)};
}

bool StripDomain::onOneSide(Vertex const& a, Vertex const& b) const {
  auto const both = [](double p, double q, double side) {
    return std::abs(p - side) <= nearly && std::abs(q - side) <= nearly;
  };
  return both(a.x, b.x, -edge) || both(a.x, b.x, edge) || both(a.y, b.y, south_) || both(a.y, b.y, north_);
}

// Divides an edge where it crosses the lines of the border, so that each piece lies on one side of each.
template <class Visit>
void StripDomain::visitPieces(Vertex const& a, Vertex const& b, Visit const& visit) const {
  std::array<double, 5> places{};  // in order along the edge, from 0
  int count = 1;
  auto const cross = [&](double from, double to, double side) {
    if (!((from < side && to > side) || (from > side && to < side))) return;
    double const place = (side - from) / (to - from);
    int i = count++;
    for (; i > 1 && places[i - 1] > place; --i) places[i] = places[i - 1];
    places[i] = place;
  };
  cross(a.x, b.x, -edge);
  cross(a.x, b.x, edge);
  cross(a.y, b.y, south_);
  cross(a.y, b.y, north_);
  for (int i = 0; i < count; ++i)
    visit(i == 0 ? a : between(a, b, places[i]), i + 1 == count ? b : between(a, b, places[i + 1]));
}

// A stretch along one side of the border keeps only its ends.
void StripDomain::append(Run& run, Vertex const& v) const {
  size_t const count = run.size();
  if (count > 1 && onOneSide(run[count - 2], run[count - 1]) && onOneSide(run[count - 1], v) &&
      onOneSide(run[count - 2], v))
    run.back() = v;
  else
    run.push_back(v);
}

Run StripDomain::clipRing(Run const& ring, double shift) const {
  Run result;
  for (size_t i = 0; i < ring.size(); ++i) {
    Vertex const a = shifted(ring[i], shift), b = shifted(ring[(i + 1) % ring.size()], shift);
    visitPieces(a, b, [&](Vertex const& p, Vertex const& q) {
      Vertex from = clamped(p);
      if (!isInside(between(p, q, 0.5)) || onOneSide(from, clamped(q))) from.edge |= seamEdge;
      append(result, from);
    });
  }
  return result;
}

void StripDomain::clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const {
  Turns const turns = turnsOf(rings.data(), rings.size());
  for (int turn = turns.first; turn <= turns.last; ++turn) {
    std::vector<Run> polygon;
    for (Run const& ring : rings) {
      Run clipped = clipRing(ring, -360.0 * turn);
      if (!isFlat(clipped)) polygon.push_back(std::move(clipped));
    }
    if (!polygon.empty()) polygons.push_back(std::move(polygon));
  }
}

void StripDomain::clipLine(Run const& line, std::vector<Run>& lines) const {
  Turns const turns = turnsOf(&line, 1);
  for (int turn = turns.first; turn <= turns.last; ++turn) {
    Run run;
    auto const end = [&] {
      if (run.size() > 1) lines.push_back(run);
      run.clear();
    };
    for (size_t i = 1; i < line.size(); ++i)
      visitPieces(shifted(line[i - 1], -360.0 * turn), shifted(line[i], -360.0 * turn),
                  [&](Vertex const& p, Vertex const& q) {
                    if (!isInside(between(p, q, 0.5))) return end();
                    if (run.empty()) run.push_back(clamped(p));
                    run.push_back(clamped(q));
                  });
    end();
  }
}

bool StripDomain::admit(Vertex& point) const {
  if (point.x < -edge || point.x > edge) point.x -= 360 * std::floor((point.x + edge) / 360);
  return point.y >= south_ - nearly && point.y <= north_ + nearly;
}

}  // namespace

std::unique_ptr<ProjectionDomain> makeStripDomain(double south, double north) {
  return std::make_unique<StripDomain>(south, north);
}

}  // namespace SysCarto
