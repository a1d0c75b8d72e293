#include "AreaSpine.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>

namespace SysCarto {

namespace {

constexpr double finePt = 0.5;
// How much longer than wide, as deviations, an area has to be that its name is not level; the more, the steeper that
// is.
constexpr double leastLength = 1.3, leastLengthUpright = 2.5;
constexpr int rows = 48;             // across the area's length
constexpr double leastWidth = 0.15;  // of the widest part: where it is narrower the area ends
constexpr double mostRise = 0.35;    // of the bow, over half of its length

// Of an area with the first ring's sense for what counts positive, about its middle.
struct Moments {
  double area = 0, x = 0, y = 0, xx = 0, xy = 0, yy = 0;
};

// Green's theorem, as for second moments of area of polygons; in each ring counted from one of its vertices, so that
// digits are kept.
Moments momentsOf(Rings const& rings) {
  Moments all;
  if (rings.isEmpty() || rings[0].isEmpty()) return all;
  QPointF const origin = rings[0][0];
  bool isFirst = true;
  for (Ring const& ring : rings) {
    Moments own;
    SysGeometry::anyEdge(ring, [&](QPointF const& from, QPointF const& to) {
      QPointF const a = from - origin, b = to - origin;
      double const cross = a.x() * b.y() - b.x() * a.y();
      own.area += cross / 2;
      own.x += cross * (a.x() + b.x()) / 6;
      own.y += cross * (a.y() + b.y()) / 6;
      own.xx += cross * (a.x() * a.x() + a.x() * b.x() + b.x() * b.x()) / 12;
      own.yy += cross * (a.y() * a.y() + a.y() * b.y() + b.y() * b.y()) / 12;
      own.xy += cross * (a.x() * b.y() + 2 * a.x() * a.y() + 2 * b.x() * b.y() + b.x() * a.y()) / 24;
      return false;
    });
    double const sign = (own.area < 0 ? -1 : 1) * (isFirst ? 1 : -1);
    isFirst = false;
    all.area += sign * own.area;
    all.x += sign * own.x;
    all.y += sign * own.y;
    all.xx += sign * own.xx;
    all.yy += sign * own.yy;
    all.xy += sign * own.xy;
  }
  if (!(all.area > 0)) return {};
  double const x = all.x / all.area, y = all.y / all.area;
  return {all.area, x, y, all.xx / all.area - x * x, all.xy / all.area - x * y, all.yy / all.area - y * y};
}

// The direction in which an area is longest, in radians within a quarter turn.
double directionOf(Moments const& moments) {
  double const half = (moments.xx - moments.yy) / 2, reach = std::hypot(half, moments.xy);
  double const mean = (moments.xx + moments.yy) / 2;
  double const shortest = std::max(mean - reach, 0.0);
  double const direction = std::atan2(moments.xy, half) / 2;
  double const least = leastLength + (leastLengthUpright - leastLength) * std::abs(direction) / (M_PI / 2);
  return mean + reach < least * least * shortest ? 0 : direction;
}

// Across the area, which runs upwards.
struct Row {
  double y, low, high;

  double width() const { return high - low; }
};

// The stretch of a row that goes on best from the one before.
std::optional<Row> nextTo(Row const& before, Rings const& upright, double y) {
  std::optional<Row> best;
  std::vector<double> const xs = crossings(upright, y);
  double most = 0;
  for (size_t i = 0; i + 1 < xs.size(); i += 2) {
    double const shared = std::min(xs[i + 1], before.high) - std::max(xs[i], before.low);
    if (shared <= most) continue;
    most = shared;
    best = Row{y, xs[i], xs[i + 1]};
  }
  return best;
}

// From the deepest place to both ends, as far as one stretch goes over into the next.
std::vector<Row> rowsOf(Rings const& upright) {
  Box const box = SysGeometry::boxOf(upright);
  QPointF const deepest = SysGeometry::poleOfInaccessibility(upright, finePt).place;
  double const step = (box.ymax - box.ymin) / rows;
  auto const first = nextTo({0, deepest.x() - finePt, deepest.x() + finePt}, upright, deepest.y());
  if (!first || !(step > 0)) return {};
  std::vector<Row> found{*first};
  for (double const way : {-step, step})
    for (std::optional<Row> last = first; last;) {
      double const y = last->y + way;
      last = y > box.ymin && y < box.ymax ? nextTo(*last, upright, y) : std::nullopt;
      if (last) found.push_back(*last);
    }
  double widest = 0;
  for (Row const& one : found) widest = std::max(widest, one.width());
  std::sort(found.begin(), found.end(), [](Row const& a, Row const& b) { return a.y < b.y; });
  auto const isNarrow = [least = leastWidth * widest](Row const& one) { return one.width() < least; };
  auto const middle = std::find_if(found.begin(), found.end(), [&](Row const& one) { return one.y == first->y; });
  auto const end = std::find_if(middle + 1, found.end(), isNarrow);
  auto const begin = std::find_if(std::make_reverse_iterator(middle), found.rend(), isNarrow).base();
  return {begin, end};
}

// x = a + b·t + c·t² with t from −1 to 1, by least squares: the wider a row the more it counts.
std::array<double, 3> bowThrough(std::vector<Row> const& rows, double middle, double half) {
  double s[5] = {}, r[3] = {};
  for (Row const& one : rows) {
    double const t = (one.y - middle) / half;
    double power = one.width();
    for (int i = 0; i < 5; ++i, power *= t) {
      s[i] += power;
      if (i < 3) r[i] += power * (one.low + one.high) / 2;
    }
  }
  // Elimination; the three are positive for three rows or more.
  double m[3][4] = {{s[0], s[1], s[2], r[0]}, {s[1], s[2], s[3], r[1]}, {s[2], s[3], s[4], r[2]}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j)
      for (int k = 3; j != i && k >= i; --k) m[j][k] -= m[i][k] * m[j][i] / m[i][i];
  return {m[0][3] / m[0][0], m[1][3] / m[1][1], m[2][3] / m[2][2]};
}

}  // namespace

std::vector<double> crossings(Rings const& rings, double y) {
  std::vector<double> xs;
  SysGeometry::anyEdge(rings, [&](QPointF const& a, QPointF const& b) {
    if ((a.y() > y) != (b.y() > y)) xs.push_back(a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y()));
    return false;
  });
  std::sort(xs.begin(), xs.end());
  return xs;
}

std::vector<QPointF> spineOf(Rings const& rings) {
  Moments const moments = momentsOf(rings);
  if (!(moments.area > 0)) return {};
  QTransform turn;
  turn.rotateRadians(M_PI / 2 - directionOf(moments));
  Rings upright;
  for (Ring const& ring : rings) upright << turn.map(QPolygonF(ring));
  std::vector<Row> const found = rowsOf(upright);
  if (found.size() < 3) return {};
  double const middle = (found.front().y + found.back().y) / 2, half = (found.back().y - found.front().y) / 2;
  auto const [a, b, c] = bowThrough(found, middle, half);
  double const most = mostRise * half, tilt = std::clamp(b, -most, most), bow = std::clamp(c, -most, most);
  QTransform const back = turn.inverted();
  std::vector<QPointF> spine;
  for (int i = 0; i <= rows; ++i) {
    double const t = 2.0 * i / rows - 1;
    spine.push_back(back.map(QPointF(a + tilt * t + bow * t * t, middle + half * t)));
  }
  if (spine.front().x() > spine.back().x()) std::reverse(spine.begin(), spine.end());
  return spine;
}

}  // namespace SysCarto
