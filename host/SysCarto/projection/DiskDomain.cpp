#include "host/SysCarto/projection/ProjectionDomain.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SysCarto {

namespace {

constexpr double degree = M_PI / 180;
constexpr double longEdge = 1;   // degrees; edges are divided before they are followed around the border
constexpr double arcStep = 0.5;  // degrees of direction between vertices on the border

// So many degrees the middle lies beside the meridian and the parallel that were asked for: data have edges along those
// opposite of it, and no edge may go through the antipode, where there is no direction.
constexpr double aside = 1e-7;
constexpr double besideParallel = 1.7e-7;

// Edges along a pole are followed around it, just before it; so the pole itself lies beyond them.
constexpr double maxLatitude = 90 - 1e-7;
constexpr double antipodeLatitude = 90 - 1e-9;

// A direction from the centre, from north over east, and a distance; degrees.
struct Polar {
  double direction, distance;
};

double turned(double from, double to) { return std::remainder(to - from, 360.0); }

Run beforePoles(Run run) {
  for (Vertex& v : run) v.y = std::clamp(v.y, -maxLatitude, maxLatitude);
  return run;
}

// Divides long edges, so that what lies between their ends is followed, too.
Run divided(Run const& run, bool closed) {
  Run result;
  size_t const count = run.size();
  for (size_t i = 0; i < count; ++i) {
    result.push_back(run[i]);
    if (i + 1 == count && !closed) break;
    Vertex const& next = run[(i + 1) % count];
    double const length = std::max(std::abs(next.x - run[i].x), std::abs(next.y - run[i].y));
    int const pieces = static_cast<int>(std::min(3600.0, std::ceil(length / longEdge)));
    for (int k = 1; k < pieces; ++k) result.push_back(between(run[i], next, static_cast<double>(k) / pieces));
  }
  return result;
}

// Of a latitude; exact at the poles.
double cosineOf(double latitude) { return std::abs(latitude) < 90 ? std::cos(latitude * degree) : 0; }

class DiskDomain final : public ProjectionDomain {
public:
  DiskDomain(double centreLatitude, std::vector<double> limits)
      : latitude_(std::abs(centreLatitude) < 90 ? centreLatitude - std::copysign(besideParallel, centreLatitude)
                                                : centreLatitude),
        sine_(std::sin(latitude_ * degree)),
        cosine_(cosineOf(latitude_)),
        limits_(std::move(limits)) {
    // At a pole every longitude will do; a round one would lie on the borders of data.
    antipode_ = {180 - aside, std::clamp(-latitude_, -antipodeLatitude, antipodeLatitude)};
    if (std::abs(antipode_.y) == antipodeLatitude) antipode_.x = 17.3;
  }

  void clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const override;
  void clipLine(Run const& line, std::vector<Run>& lines) const override;
  bool admit(Vertex& point) const override;

private:
  Polar polar(Vertex const& v) const;
  double limit(double direction) const;
  bool isInside(Vertex const& v) const {
    Polar const p = polar(v);
    return p.distance <= limit(p.direction);
  }
  Vertex crossing(Vertex inside, Vertex outside) const;
  void addArc(Run& run, double from, double by) const;
  // `turnsOver` says that the border around the disk is still to be added, and becomes false where that was done.
  Run clipRing(Run const& ring, bool& turnsOver) const;
  Run clipOutside(Run const& ring, bool& turnsOver) const;
  bool containsAntipode(std::vector<Run> const& rings) const;

  double const latitude_;  // of the centre
  double const sine_, cosine_;
  std::vector<double> const limits_;
  Vertex antipode_;
};

Polar DiskDomain::polar(Vertex const& v) const {
  double const sine = std::sin(v.y * degree), cosine = std::cos(v.y * degree);
  double const longitude = (v.x + aside) * degree;
  double const east = cosine * std::sin(longitude), along = cosine * std::cos(longitude);
  double const north = cosine_ * sine - sine_ * along;
  return {std::atan2(east, north) / degree,
          std::atan2(std::hypot(east, north), sine_ * sine + cosine_ * along) / degree};
}

double DiskDomain::limit(double direction) const {
  double const count = static_cast<double>(limits_.size());
  double place = direction / 360 * count;
  place -= count * std::floor(place / count);
  size_t const index = std::min(static_cast<size_t>(place), limits_.size() - 1);
  double const next = limits_[(index + 1) % limits_.size()];
  return limits_[index] + (next - limits_[index]) * (place - static_cast<double>(index));
}

Vertex DiskDomain::crossing(Vertex inside, Vertex outside) const {
  for (int i = 0; i < 48; ++i) {
    Vertex const middle = between(inside, outside, 0.5);
    (isInside(middle) ? inside : outside) = middle;
  }
  return inside;
}

// The border from a direction onwards, both ends left out.
void DiskDomain::addArc(Run& run, double from, double by) const {
  int const pieces = static_cast<int>(std::ceil(std::abs(by) / arcStep));
  for (int i = 1; i < pieces; ++i) {
    double const direction = from + by * i / pieces;
    Vertex v = placeFrom(latitude_, direction, limit(direction));
    v.x -= aside;
    v.edge = seamEdge | arcEdge;
    run.push_back(v);
  }
}

// A ring that never comes inside either goes around the border, and then all of the disk is within it, or it doesn't.
Run DiskDomain::clipOutside(Run const& ring, bool& turnsOver) const {
  double by = 0, last = polar(ring.back()).direction;
  for (Vertex const& v : ring) {
    double const direction = polar(v).direction;
    by += turned(last, direction);
    last = direction;
  }
  Run result;
  if (std::abs(by) <= 180) return result;
  if (!turnsOver) addArc(result, -arcStep, 360 + arcStep);
  turnsOver = false;
  return result;
}

Run DiskDomain::clipRing(Run const& given, bool& turnsOver) const {
  Run const ring = divided(given, true);
  std::vector<char> inside(ring.size());
  std::transform(ring.begin(), ring.end(), inside.begin(), [&](Vertex const& v) { return isInside(v); });
  auto const first = std::find(inside.begin(), inside.end(), 1);
  if (first == inside.end()) return clipOutside(ring, turnsOver);
  if (std::find(inside.begin(), inside.end(), 0) == inside.end()) return given;

  Run result;
  size_t const count = ring.size(), start = static_cast<size_t>(first - inside.begin());
  double left = 0, by = 0, last = 0;  // where the ring left the disk, and how far it has gone around it since
  for (size_t n = 0; n < count; ++n) {
    size_t const i = (start + n) % count, next = (i + 1) % count;
    if (inside[i]) result.push_back(ring[i]);
    if (inside[i] && !inside[next]) {
      Vertex exit = crossing(ring[i], ring[next]);
      left = last = polar(exit).direction;
      by = 0;
      exit.edge = seamEdge | arcEdge;
      result.push_back(exit);
    }
    if (!inside[i] && inside[next]) {
      Vertex entry = crossing(ring[next], ring[i]);
      by += turned(last, polar(entry).direction);
      if (turnsOver) by -= by > 0 ? 360 : -360;  // the other way round
      turnsOver = false;
      addArc(result, left, by);
      entry.edge = ring[i].edge;
      result.push_back(entry);
    } else if (!inside[next]) {
      double const direction = polar(ring[next]).direction;
      by += turned(last, direction);
      last = direction;
    }
  }
  return result;
}

// In the plane of longitude and latitude.
bool DiskDomain::containsAntipode(std::vector<Run> const& rings) const {
  bool inside = false;
  for (Run const& ring : rings)
    for (int turn = -2; turn <= 2; ++turn)
      if (SysGeometry::contains(ring, antipode_.x + 360 * turn, antipode_.y)) inside = !inside;
  return inside;
}

// Seen from the centre, an area that holds the antipode lies outside of its rings; the border as one more ring turns
// this over. Where a ring follows the border already, the other way round does the same: two edges on each other would
// show as a hairline.
void DiskDomain::clipPolygon(std::vector<Run> const& given, std::vector<std::vector<Run>>& polygons) const {
  std::vector<Run> rings, polygon;
  std::transform(given.begin(), given.end(), std::back_inserter(rings), beforePoles);
  bool turnsOver = containsAntipode(rings);
  for (Run const& ring : rings) {
    Run clipped = clipRing(ring, turnsOver);
    if (clipped.size() > 2) polygon.push_back(std::move(clipped));
  }
  if (turnsOver) {
    polygon.emplace_back();
    addArc(polygon.back(), -arcStep, 360 + arcStep);
  }
  if (!polygon.empty()) polygons.push_back(std::move(polygon));
}

void DiskDomain::clipLine(Run const& given, std::vector<Run>& lines) const {
  Run const line = divided(given, false);
  Run run;
  auto const end = [&] {
    if (run.size() > 1) lines.push_back(run);
    run.clear();
  };
  for (size_t i = 0; i < line.size(); ++i) {
    bool const inside = isInside(line[i]);
    if (inside) run.push_back(line[i]);
    if (i + 1 == line.size()) break;
    bool const nextInside = isInside(line[i + 1]);
    if (inside && !nextInside) {
      run.push_back(crossing(line[i], line[i + 1]));
      end();
    } else if (!inside && nextInside) {
      run.push_back(crossing(line[i + 1], line[i]));
    }
  }
  end();
}

bool DiskDomain::admit(Vertex& point) const { return isInside(point); }

}  // namespace

Vertex placeFrom(double centreLatitude, double direction, double distance) {
  double const centreSine = std::sin(centreLatitude * degree), centreCosine = cosineOf(centreLatitude);
  double const sine = std::sin(distance * degree), cosine = std::cos(distance * degree);
  double const north = sine * std::cos(direction * degree), east = sine * std::sin(direction * degree);
  double const z = centreSine * cosine + centreCosine * north, along = centreCosine * cosine - centreSine * north;
  return {std::atan2(east, along) / degree, std::atan2(z, std::hypot(along, east)) / degree, 0};
}

std::unique_ptr<ProjectionDomain> makeDiskDomain(double centreLatitude, std::vector<double> limits) {
  return std::make_unique<DiskDomain>(centreLatitude, std::move(limits));
}

}  // namespace SysCarto
