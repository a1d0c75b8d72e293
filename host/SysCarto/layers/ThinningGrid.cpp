#include "ThinningGrid.h"

#include <cmath>

namespace SysCarto {

namespace {

constexpr double cellPx = 1.0 / 4;

}  // namespace

// Cells come in steps of a quarter octave, the steps at places where no round resolution lies.
ThinningGrid ThinningGrid::forPixels(double unitsPerPixel) {
  constexpr double place = 0.37;
  if (!(unitsPerPixel > 0) || !std::isfinite(unitsPerPixel)) return ThinningGrid();
  return ThinningGrid(std::exp2((std::floor(std::log2(unitsPerPixel * cellPx) * 4 + place) - place) / 4));
}

int ThinningGrid::minVertices(PartKind kind) {
  switch (kind) {
    case PartKind::Ring:
    case PartKind::FilledRing: return 3;
    case PartKind::Outline:
    case PartKind::Line: return 2;
    case PartKind::Point: return 1;
  }
  return 1;
}

// Of the vertices of one cell that follow each other the smallest one stays, whatever the direction of the line. The
// ends of an open line stay, too.
int ThinningGrid::thin(PartKind kind, double const* xy, int count, double* kept) const {
  bool const closed = kind == PartKind::Ring || kind == PartKind::FilledRing;
  auto const cellOf = [this](double value) { return cell_ > 0 ? std::floor(value / cell_) : value; };
  auto const isEnd = [&](int i) { return !closed && (i == 0 || i + 1 == count); };
  double cellX = 0, cellY = 0, x = 0, y = 0;
  bool holds = false;
  double* next = kept;
  auto const keep = [&](double keptX, double keptY) {
    *next++ = keptX;
    *next++ = keptY;
  };
  for (int i = 0; i < count; ++i) {
    double const vx = xy[2 * i], vy = xy[2 * i + 1];
    double const cx = cellOf(vx), cy = cellOf(vy);
    if (!holds || cx != cellX || cy != cellY || isEnd(i)) {
      if (holds) keep(x, y);
      x = vx;
      y = vy;
    } else if (vx < x || (vx == x && vy < y)) {
      x = vx;
      y = vy;
    }
    cellX = cx;
    cellY = cy;
    holds = !isEnd(i);
    if (!holds) keep(vx, vy);
  }
  if (holds) keep(x, y);
  int const left = static_cast<int>(next - kept) / 2;
  bool const tiny = left == 2 && !closed && kept[0] == kept[2] && kept[1] == kept[3];
  return tiny ? 0 : left;
}

}  // namespace SysCarto
