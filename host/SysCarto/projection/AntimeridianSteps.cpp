#include "AntimeridianSteps.h"

#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

namespace {

constexpr double seamDegrees = 1e-4;      // how near to the antimeridian data are cut
constexpr double nearAntimeridian = 150;  // where both ends of an edge that steps across it lie
constexpr double noArea = 5e-8;           // square degrees

// Geographic data that were not cut at the antimeridian have edges that step across it, and those whose longitudes
// begin at Greenwich or farther east across the meridian where they begin. Read as straight lines these would run
// around the whole map.
bool stepsAcross(Vertex const& a, Vertex const& b, double centralLongitude) {
  double const ax = a.x + centralLongitude, bx = b.x + centralLongitude, apart = std::abs(ax - bx);
  bool const areOfOneTurn = apart < 360 && std::min(ax, bx) >= 0 && std::max(ax, bx) > 180;
  bool const areBesideIt = ax * bx < 0 && std::min(std::abs(ax), std::abs(bx)) > nearAntimeridian;
  return apart > 2 * nearAntimeridian && (areOfOneTurn || areBesideIt);
}

// Whether an edge lies on that meridian.
bool runsAlong(double meridian, Vertex const& a, Vertex const& b, double centralLongitude) {
  return a.x == b.x && a.y != b.y && std::abs(a.x + centralLongitude - meridian) < seamDegrees;
}

}  // namespace

void unwrap(Run& run) {
  for (size_t i = 1; i < run.size(); ++i) run[i].x = run[i - 1].x + std::remainder(run[i].x - run[i - 1].x, 360.0);
}

void closeOverPole(Run& ring) {
  if (ring.size() < 3) return;
  double const gap = ring.front().x - ring.back().x;
  double const turn = std::round((gap - std::remainder(gap, 360.0)) / 360);
  if (turn == 0) return;
  double middle = 0;
  for (Vertex const& v : ring) middle += v.y;
  double const pole = middle > 0 ? 90 : -90;
  Vertex const first = ring.front();
  ring.push_back({first.x - 360 * turn, first.y, seamEdge});
  ring.push_back({first.x - 360 * turn, pole, seamEdge});
  ring.push_back({first.x, pole, seamEdge});
}

// Steps count where they can't be meant as they are written: a box may be as wide as it likes, a band around the globe
// has an edge on both sides of the antimeridian, or is nothing without its long edges.
void joinRing(Run& ring, double centralLongitude) {
  bool across = false, isBox = true, runsWest = false, runsEast = false;
  for (size_t i = 0; i < ring.size(); ++i) {
    Vertex const &a = ring[i], &b = ring[(i + 1) % ring.size()];
    runsWest = runsWest || runsAlong(-180, a, b, centralLongitude);
    runsEast = runsEast || runsAlong(180, a, b, centralLongitude);
    across = across || stepsAcross(a, b, centralLongitude);
    isBox = isBox && (a.x == b.x || a.y == b.y);
  }
  if (!across || isBox || (runsWest && runsEast)) return;
  Run joined = ring;
  unwrap(joined);
  closeOverPole(joined);
  if (std::abs(SysGeometry::signedArea(joined)) > noArea) ring = std::move(joined);
}

// A step along a parallel is meant as it is written.
void joinLine(Run& line, double centralLongitude) {
  for (size_t i = 1; i < line.size(); ++i)
    if (line[i - 1].y != line[i].y && stepsAcross(line[i - 1], line[i], centralLongitude)) return unwrap(line);
}

}  // namespace SysCarto
