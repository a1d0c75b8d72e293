#include "PlaneGeometry.h"

#include <queue>

namespace SysGeometry {

namespace {

constexpr int maxCells = 4000;
constexpr double maxLoss = 0.02;  // of the depth

struct Cell {
  Pole pole;  // of its centre
  double half;
  int number;

  double bestPossible() const { return pole.depth + half * M_SQRT2; }
  bool operator<(Cell const& other) const {
    return bestPossible() != other.bestPossible() ? bestPossible() < other.bestPossible() : number > other.number;
  }
};

double depthOf(Rings const& area, QPointF const& place) {
  double nearest = INFINITY;
  anyEdge(area, [&](QPointF const& a, QPointF const& b) {
    nearest = std::min(nearest, squaredDistanceToSegment(a, b, place));
    return false;
  });
  return contains(area, place.x(), place.y()) ? std::sqrt(nearest) : -std::sqrt(nearest);
}

}  // namespace

Pole poleOfInaccessibility(Rings const& area, double precision) {
  Box const box = boxOf(area);
  double const width = box.xmax - box.xmin, height = box.ymax - box.ymin, half = std::min(width, height) / 2;
  auto const poleAt = [&](QPointF const& place) { return Pole{place, depthOf(area, place)}; };
  Pole best = poleAt({box.xmin + width / 2, box.ymin + height / 2});
  if (!(half > precision / 4) || std::max(width, height) / half > maxCells / 4) return best;

  std::priority_queue<Cell> cells;
  int number = 1;
  auto const add = [&](QPointF const& centre, double h) {
    Cell const cell{poleAt(centre), h, number++};
    if (cell.pole.depth > best.depth) best = cell.pole;
    cells.push(cell);
  };
  for (double x = box.xmin + half; x < box.xmax + half; x += 2 * half)
    for (double y = box.ymin + half; y < box.ymax + half; y += 2 * half) add({x, y}, half);
  while (!cells.empty() && number < maxCells) {
    Cell const top = cells.top();
    cells.pop();
    if (top.bestPossible() - best.depth <= std::max(precision, maxLoss * best.depth)) break;
    double const h = top.half / 2;
    for (QPointF const& off : {QPointF(-h, -h), QPointF(h, -h), QPointF(-h, h), QPointF(h, h)})
      add(top.pole.place + off, h);
  }
  return best;
}

}  // namespace SysGeometry
