#include "DevicePath.h"

#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::boxOf;
using SysGeometry::outcode;

namespace {

// A segment longer than this is divided where it crosses a lattice that hangs on the pattern's origin. So no coordinate
// near the tile gets too large for the rasteriser, and the points of division are the same in every tile.
constexpr double longPx = 8192.0;
constexpr double latticePx = 4096.0;

bool isLong(QPointF const& a, QPointF const& b) {
  return std::abs(a.x() - b.x()) > longPx || std::abs(a.y() - b.y()) > longPx;
}

// One axis of a segment, turned so that the segment runs upwards along it.
struct Axis {
  double from, to, low, high, anchor;

  double position(double number) const { return anchor + number * latticePx; }
  double numberOf(double position) const { return (position - anchor) / latticePx; }
};

// Calls `visit` for the numbers of the lattice lines that the segment crosses: those near the area, and the ones next
// to its ends, which give a join at the end its direction.
template <class Visit>
void visitCrossings(Axis const& axis, Visit const& visit) {
  double const first = std::floor(axis.numberOf(axis.from)) + 1;
  double const last = std::ceil(axis.numberOf(axis.to)) - 1;
  if (first > last) return;
  visit(first);
  double const nearFirst = std::max(first + 1, std::floor(axis.numberOf(axis.low)) - 1);
  double const nearLast = std::min(last - 1, std::ceil(axis.numberOf(axis.high)) + 1);
  for (double number = nearFirst; number <= nearLast; ++number) visit(number);
  if (last > first) visit(last);
}

// Calls `visit` with the points that divide a long segment, from a to b.
template <class Visit>
void divide(QPointF const& a, QPointF const& b, QRectF const& area, QPointF const& anchor, Visit const& visit) {
  bool const alongX = std::abs(b.x() - a.x()) >= std::abs(b.y() - a.y());
  auto const major = [&](QPointF const& p) { return alongX ? p.x() : p.y(); };
  auto const minor = [&](QPointF const& p) { return alongX ? p.y() : p.x(); };
  double const sign = major(b) > major(a) ? 1.0 : -1.0;
  double const side1 = sign * major(area.topLeft()), side2 = sign * major(area.bottomRight());
  Axis const axis{sign * major(a), sign * major(b), std::min(side1, side2), std::max(side1, side2),
                  sign * major(anchor)};
  // The same points whichever way the segment runs: neighbours share it.
  QPointF const& start = sign > 0 ? a : b;
  QPointF const& end = sign > 0 ? b : a;
  double const slope = (minor(end) - minor(start)) / (major(end) - major(start));
  visitCrossings(axis, [&](double number) {
    double const m = snapped(sign * axis.position(number));
    double const n = snapped(minor(start) + (m - major(start)) * slope);
    visit(alongX ? QPointF(m, n) : QPointF(n, m));
  });
}

// Takes vertices and keeps, of a stretch beyond one side, its first and its last.
class StretchDropper {
public:
  StretchDropper(Box const& area, PointRuns& out) : area_(area), out_(out) {}

  void add(QPointF const& point) {
    unsigned const sides = outcode(area_, point);
    if (shared_ & sides) {
      shared_ &= sides;
      held_ = point;
      holds_ = true;
      return;
    }
    flush();
    out_.add(point);
    shared_ = sides;
  }

  void flush() {
    if (holds_) out_.add(held_);
    holds_ = false;
  }

private:
  Box const area_;
  PointRuns& out_;
  QPointF held_;
  bool holds_ = false;
  unsigned shared_ = 0;
};

// Tells which stretches of a run are not needed to draw an area.
class StretchSkipper {
public:
  StretchSkipper(QTransform const& toDevice, WorldRun const& run, QRectF const& area) : run_(run) {
    constexpr double roundingPx = 1;
    if (!run.stretches) return;
    needed_ =
        boxOf(toDevice.inverted(&knows_).mapRect(area.adjusted(-roundingPx, -roundingPx, roundingPx, roundingPx)));
  }

  // The neighbours, too, shape what is drawn: a join takes its direction from the segments on both sides.
  bool skips(int stretch) const {
    return knows_ && !isNeeded(stretch - 1) && !isNeeded(stretch) && !isNeeded(stretch + 1);
  }

private:
  bool isNeeded(int stretch) const {
    int const count = run_.stretchCount();
    return run_.stretches[(stretch + count) % count].meets(needed_);
  }

  WorldRun const& run_;
  bool knows_ = false;
  Box needed_;
};

// The line with its long segments divided.
std::vector<QPointF> divided(std::vector<QPointF> const& line, bool closed, QRectF const& area, QPointF const& anchor) {
  std::vector<QPointF> result;
  size_t const count = line.size();
  for (size_t i = 0; i < count; ++i) {
    result.push_back(line[i]);
    if (i + 1 == count && !closed) break;
    QPointF const& next = line[(i + 1) % count];
    if (isLong(line[i], next)) divide(line[i], next, area, anchor, [&](QPointF const& p) { result.push_back(p); });
  }
  return result;
}

bool hasLongSegment(std::vector<QPointF> const& line, bool closed) {
  for (size_t i = 1; i < line.size(); ++i)
    if (isLong(line[i - 1], line[i])) return true;
  return closed && isLong(line.back(), line.front());
}

// Joins the run that ends at a ring's first vertex with the one that begins there.
void joinAtStart(PointRuns& runs, int firstRun) {
  if (runs.count() - firstRun < 2) return;
  auto const begin = runs.points.begin() + (firstRun ? runs.ends[firstRun - 1] : 0);
  auto const end = runs.points.begin() + runs.ends[firstRun];
  std::vector<QPointF> const head(begin + 1, end);
  int const removed = static_cast<int>(end - begin);
  runs.points.erase(begin, end);
  runs.points.insert(runs.points.end(), head.begin(), head.end());
  runs.ends.erase(runs.ends.begin() + firstRun);
  for (int i = firstRun; i < runs.count(); ++i) runs.ends[i] -= removed;
  runs.ends.back() = static_cast<int>(runs.points.size());
}

}  // namespace

void toDevicePoints(QTransform const& toDevice, WorldRun const& run, QRectF const& area, double thinPx,
                    std::vector<QPointF>& points) {
  points.clear();
  double const m11 = toDevice.m11(), m12 = toDevice.m12(), m21 = toDevice.m21(), m22 = toDevice.m22();
  double const dx = toDevice.dx(), dy = toDevice.dy();
  constexpr double nearest = 1.0 / 128;
  double const thin = std::max(thinPx, nearest);
  auto const isNear = [&points](QPointF const& point, double distance) {
    return !points.empty() && std::abs(point.x() - points.back().x()) < distance &&
           std::abs(point.y() - points.back().y()) < distance;
  };
  auto const at = [&](int i, QPointF& point) {
    double const wx = run.xy[2 * i], wy = run.xy[2 * i + 1];
    double const x = m11 * wx + m21 * wy + dx, y = m12 * wx + m22 * wy + dy;
    point = {snapped(std::clamp(x, -maxCoordinatePx, maxCoordinatePx)),
             snapped(std::clamp(y, -maxCoordinatePx, maxCoordinatePx))};
    return std::isfinite(x) && std::isfinite(y);
  };
  StretchSkipper const skipper(toDevice, run, area);
  QPointF point, end;
  bool endIsKept = true;
  size_t afterFirst = 0;  // how many points there are up to the first of the stretch before
  for (int stretch = 0; stretch < run.stretchCount(); ++stretch) {
    int const first = stretch * WorldRun::stretchLength;
    if (at(first, point)) {
      // The first of a stretch stays whatever came before, and what is too near to it gives way.
      while (points.size() > afterFirst && isNear(point, thin)) points.pop_back();
      if (!isNear(point, nearest)) points.push_back(point);
      endIsKept = true;
    }
    afterFirst = points.size();
    if (skipper.skips(stretch)) continue;
    int const last = std::min(first + WorldRun::stretchLength, run.count);
    for (int i = first + 1; i < last; ++i) {
      if (!at(i, point)) continue;
      endIsKept = !isNear(point, thin);
      if (endIsKept)
        points.push_back(point);
      else
        end = point;
    }
  }
  if (!endIsKept && end != points.back()) points.push_back(end);
}

void clipRing(std::vector<QPointF> const& ring, QRectF const& area, QPointF const& anchor, PointRuns& out) {
  if (ring.empty()) return;
  Box const box = boxOf(area);
  StretchDropper dropper(box, out);
  QPointF const* previous = &ring.back();
  for (QPointF const& point : ring) {
    if (isLong(*previous, point) && !(outcode(box, *previous) & outcode(box, point)))
      divide(*previous, point, area, anchor, [&](QPointF const& p) { dropper.add(p); });
    dropper.add(point);
    previous = &point;
  }
  dropper.flush();
  out.endRun();
}

void dropBeyond(QPointF const* ring, int count, QRectF const& area, PointRuns& out) {
  StretchDropper dropper(boxOf(area), out);
  for (int i = 0; i < count; ++i) dropper.add(ring[i]);
  dropper.flush();
  out.endRun();
}

bool splitLine(std::vector<QPointF> const& given, bool closed, QRectF const& area, QPointF const& anchor,
               PointRuns& out) {
  if (given.empty()) return false;
  bool const dividing = hasLongSegment(given, closed);
  std::vector<QPointF> const longer = dividing ? divided(given, closed, area, anchor) : std::vector<QPointF>();
  std::vector<QPointF> const& line = dividing ? longer : given;

  Box const box = boxOf(area);
  int const count = static_cast<int>(line.size());
  int const segments = closed ? count : count - 1;
  int const firstRun = out.count();
  if (segments == 0 || count == 1) {
    if (!outcode(box, line[0])) out.add(line[0]);
    out.endRun();
    return false;
  }
  auto const end = [&](int segment) { return segment + 1 == count ? 0 : segment + 1; };
  auto const visible = [&](int segment) {
    if (segment < 0 || segment >= segments) {
      if (!closed) return false;
      segment = (segment + segments) % segments;
    }
    return (outcode(box, line[segment]) & outcode(box, line[end(segment)])) == 0;
  };
  bool before = visible(-1), here = visible(0), open = false, broken = false;
  bool const startsAtOnce = before || here || visible(1);
  for (int i = 0; i < segments; ++i) {
    bool const after = visible(i + 1);
    if (before || here || after) {
      if (!open) out.add(line[i]);
      out.add(line[end(i)]);
      open = true;
    } else {
      out.endRun();
      open = false;
      broken = true;
    }
    before = here;
    here = after;
  }
  bool const wholeRing = closed && !broken;
  if (wholeRing) out.points.pop_back();
  out.endRun();
  if (closed && broken && open && startsAtOnce) joinAtStart(out, firstRun);
  return wholeRing;
}

std::vector<QPointF> offsetLine(std::vector<QPointF> const& line, bool closed, double distancePx) {
  size_t const count = line.size();
  if (count < 2) return line;
  auto const left = [&](size_t from) { return leftOf(line[from % count], line[(from + 1) % count]); };
  std::vector<QPointF> result;
  for (size_t i = 0; i < count; ++i) {
    bool const isEnd = !closed && (i == 0 || i + 1 == count);
    QPointF const n1 = left(!closed && i == 0 ? 0 : i + count - 1);
    QPointF const n2 = isEnd ? (i == 0 ? n1 : left(i - 1)) : left(i);
    if (isEnd) {
      result.push_back(snapped(line[i] + n2 * distancePx));
      continue;
    }
    double const cosine = QPointF::dotProduct(n1, n2);
    if (cosine > -0.5) {
      result.push_back(snapped(line[i] + (n1 + n2) * (distancePx / (1 + cosine))));
    } else {
      result.push_back(snapped(line[i] + n1 * distancePx));
      result.push_back(snapped(line[i] + n2 * distancePx));
    }
  }
  result.erase(std::unique(result.begin(), result.end()), result.end());
  return result;
}

}  // namespace SysDisplay
