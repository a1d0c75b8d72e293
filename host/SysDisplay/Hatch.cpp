#include "Hatch.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/DrawingBudget.h"

#include <algorithm>
#include <cmath>

namespace SysDisplay {

namespace {

// A frame turned with the hatch: u runs along its lines, v across. The diagonals are not scaled back, so that u and v
// of a point on the pixel grid are multiples of 1/64, too; points on the 1/32 grid of u and v then lie on the 1/64 grid
// of pixels, and the edges of a line are exact, whichever of its points the tile cuts it at.
struct Frame {
  double ux, uy, vx, vy, xu, xv, yu, yv;
  double stretch;  // length of one v on the page, inverted
  double quantum;

  QPointF toFrame(QPointF const& p) const { return {ux * p.x() + uy * p.y(), vx * p.x() + vy * p.y()}; }
  QPointF toDevice(double u, double v) const { return {xu * u + xv * v, yu * u + yv * v}; }
  double rounded(double value) const { return std::floor(value / quantum + 0.5 + 1e-3) * quantum; }
};

constexpr double rootOfTwo = 1.41421356237309504880;

// All four keep the orientation, so that crossing lines add up.
// clang-format off
constexpr Frame frames[] = {
    //  ux uy   vx vy    xu    xv     yu   yv   stretch    quantum
    {   1, 0,   0, 1,    1,    0,     0,   1,   1,         1.0 / 64},
    {   0,-1,   1, 0,    0,    1,    -1,   0,   1,         1.0 / 64},
    {   1, 1,  -1, 1,   .5,  -.5,    .5,  .5,   rootOfTwo, 1.0 / 32},
    {   1,-1,   1, 1,   .5,   .5,   -.5,  .5,   rootOfTwo, 1.0 / 32},
};
// clang-format on

struct Crossing {
  int line;
  double u;
};

QRectF frameOf(Frame const& frame, QRectF const& area) {
  PointRuns corners;
  for (QPointF const& corner : {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
    corners.points.push_back(frame.toFrame(corner));
  return corners.bounds();
}

class Hatcher {
public:
  Hatcher(Frame const& frame, double spacingPx, double widthPx, QRectF const& area, QPointF const& anchor)
      : frame_(frame), step_(spacingPx * frame.stretch), origin_(frame.toFrame(anchor).y()) {
    half_ = std::max(frame.rounded(widthPx / 2 * frame.stretch), frame.quantum);
    visible_ = frameOf(frame, area);
    // Numbers count from the first line that shows, since far from the origin they would be too large.
    base_ = std::ceil((visible_.top() - half_ - origin_) / step_);
    last_ = static_cast<int>(std::floor((visible_.bottom() + half_ - origin_) / step_) - base_);
  }

  void cross(PointRuns const& rings) {
    for (int i = 0; i < rings.count(); ++i) {
      QPointF const* points = rings.run(i);
      int const size = rings.size(i);
      for (int j = 0; j < size; ++j) edge(frame_.toFrame(points[j]), frame_.toFrame(points[j + 1 == size ? 0 : j + 1]));
    }
  }

  void collect(PointRuns& out) {
    // From right to left: the rasteriser searches a row of cells from its left end for the place of a new one.
    bool const descending = frame_.vx > 0;
    std::sort(crossings_.begin(), crossings_.end(), [=](Crossing const& a, Crossing const& b) {
      return a.line != b.line ? (a.line < b.line) != descending : a.u < b.u;
    });
    for (size_t i = 0; i + 1 < crossings_.size(); i += 2) {
      double const from = shown(crossings_[i].u), to = shown(crossings_[i + 1].u);
      if (from >= to) continue;
      double const v = position(crossings_[i].line);
      out.add(frame_.toDevice(from, v - half_));
      out.add(frame_.toDevice(to, v - half_));
      out.add(frame_.toDevice(to, v + half_));
      out.add(frame_.toDevice(from, v + half_));
      out.endRun();
    }
  }

private:
  double position(int line) const { return frame_.rounded(origin_ + (base_ + line) * step_); }
  double shown(double u) const {
    return frame_.rounded(std::clamp(u, std::floor(visible_.left()) - 64, std::ceil(visible_.right()) + 64));
  }

  void edge(QPointF const& a, QPointF const& b) {
    QPointF const& low = a.y() < b.y() ? a : b;
    QPointF const& high = a.y() < b.y() ? b : a;
    double const first = std::max(0.0, std::floor((low.y() - origin_) / step_) - base_);
    double const last = std::min<double>(last_, std::ceil((high.y() - origin_) / step_) - base_);
    if (first > last) return;
    double const slope = (high.x() - low.x()) / (high.y() - low.y());
    for (int line = static_cast<int>(first); line <= last; ++line) {
      double const v = position(line);
      if (v >= low.y() && v < high.y()) crossings_.push_back({line, low.x() + (v - low.y()) * slope});
    }
  }

  Frame const& frame_;
  double const step_;
  double const origin_;
  double half_, base_;
  int last_;
  QRectF visible_;
  std::vector<Crossing> crossings_;
};

// The rasteriser has room for few cells at a time, and goes through all edges again for every few rows. With so many
// long lines it has to be given a few rows at a time.
constexpr double bandPx = 16;

// Appends the part of a line's quadrangle between two pixel rows. The cuts lie on the 1/64 grid like the corners, and
// both are made on the edges as given, so that two bands meet in the same points.
void cutToRows(QPointF const* corners, int count, double top, double bottom, PointRuns& out) {
  auto const addCut = [&](QPointF const& a, QPointF const& b, double row) {
    if ((a.y() < row) != (b.y() < row)) out.add(snapped(a + (b - a) * ((row - a.y()) / (b.y() - a.y()))));
  };
  for (int i = 0; i < count; ++i) {
    QPointF const& a = corners[i];
    QPointF const& b = corners[i + 1 == count ? 0 : i + 1];
    if (a.y() >= top && a.y() <= bottom) out.add(a);
    addCut(a, b, a.y() < b.y() ? top : bottom);
    addCut(a, b, a.y() < b.y() ? bottom : top);
  }
  out.endRun();
}

// The quadrangles as the strokes that they are.
void strokeHatch(VectorCanvas& canvas, PointRuns const& lines, QColor const& color) {
  if (lines.isEmpty()) return;
  PointRuns axes;
  for (int i = 0; i < lines.count(); ++i) {
    QPointF const* const corners = lines.run(i);
    axes.add((corners[0] + corners[3]) / 2);
    axes.add((corners[1] + corners[2]) / 2);
    axes.endRun();
  }
  QPointF const across = lines.run(0)[3] - lines.run(0)[0];
  canvas.stroke(axes, false, {color, std::hypot(across.x(), across.y())});
}

}  // namespace

void fillHatch(DrawTarget& target, PointRuns const& lines, QColor const& color, QRectF const& area) {
  if (auto* const canvas = target.canvas()) return strokeHatch(*canvas, lines, color);
  PointRuns band;
  for (double top = std::floor(area.top()); top < area.bottom(); top += bandPx) {
    double const bottom = top + bandPx;
    band.clear();
    for (int i = 0; i < lines.count(); ++i) {
      QPointF const* corners = lines.run(i);
      auto const [low, high] = std::minmax_element(corners, corners + lines.size(i),
                                                   [](QPointF const& a, QPointF const& b) { return a.y() < b.y(); });
      if (high->y() > top && low->y() < bottom) cutToRows(corners, lines.size(i), top, bottom, band);
    }
    target.fill(band, color, Qt::WindingFill);
  }
}

void hatchRings(PointRuns const& rings, HatchDirection direction, double spacingPx, double widthPx, QRectF const& area,
                QPointF const& anchor, PointRuns& out) {
  if (DrawingBudget::isSpent()) return;
  Hatcher hatcher(frames[static_cast<int>(direction)], spacingPx, widthPx, area, anchor);
  hatcher.cross(rings);
  hatcher.collect(out);
  DrawingBudget::spendOnVertices(static_cast<double>(out.points.size()));
}

}  // namespace SysDisplay
