#include "DashLine.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/DrawingBudget.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace SysDisplay {

namespace {

// The stretch of a segment, as fractions of it, that lies within the area; from > to where none does.
struct Stretch {
  double from = 0, to = 1;

  void cut(double start, double delta, double low, double high) {
    if (delta == 0) {
      if (start < low || start > high) from = 2;
      return;
    }
    double const a = (low - start) / delta, b = (high - start) / delta;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
  }
};

// Two points nearer than this have no direction.
constexpr double tiny = 1e-6;

class Dasher {
public:
  Dasher(Dashes const& dashes, QRectF const& area, PointRuns& out)
      : pattern_(dashes.pattern),
        period_(std::accumulate(pattern_.begin(), pattern_.end(), 0.0)),
        out_(out),
        phase_(std::fmod(dashes.start, period_)) {
    // A dash that shows begins at most its own length outside.
    double const longest = *std::max_element(pattern_.begin(), pattern_.end()) + 1;
    area_ = area.adjusted(-longest, -longest, longest, longest);
  }

  // About as many as the segment adds.
  double pointsOf(QPointF const& a, QPointF const& b) const {
    QPointF const d = b - a;
    Stretch const stretch = stretchOf(a, d);
    if (stretch.from > stretch.to) return 0;
    return (stretch.to - stretch.from) * std::hypot(d.x(), d.y()) / period_ * static_cast<double>(pattern_.size()) + 2;
  }

  void segment(QPointF const& a, QPointF const& b) {
    QPointF const d = b - a;
    double const length = std::hypot(d.x(), d.y());
    Stretch const stretch = stretchOf(a, d);
    bool goesOn = false;
    if (stretch.from <= stretch.to) goesOn = dashes(a, b, length, stretch);
    if (!goesOn) out_.endRun();
    open_ = goesOn;
    phase_ = std::fmod(phase_ + length, period_);
  }

  void finish() { out_.endRun(); }

private:
  Stretch stretchOf(QPointF const& a, QPointF const& d) const {
    Stretch stretch;
    stretch.cut(a.x(), d.x(), area_.left(), area_.right());
    stretch.cut(a.y(), d.y(), area_.top(), area_.bottom());
    return stretch;
  }

  // Draws the dashes that touch the stretch; answers whether the last goes on in the next segment.
  bool dashes(QPointF const& a, QPointF const& b, double length, Stretch const& stretch) {
    auto const at = [&](double s) { return a + (b - a) * (s / length); };
    double const skipped = std::floor((phase_ + stretch.from * length) / period_);
    double begin = skipped * period_ - phase_;
    bool first = true;
    for (size_t i = 0; begin <= stretch.to * length; i = (i + 2) % pattern_.size()) {
      double const end = begin + pattern_[i];
      double const next = end + pattern_[i + 1];
      if (end >= stretch.from * length && end > tiny) {
        bool const continues = first && begin <= 0 && open_;
        first = false;
        if (!continues) {
          out_.endRun();
          out_.add(begin <= 0 ? a : begin < length - tiny ? at(begin) : b);
        }
        if (end > length) {
          out_.add(b);
          return true;
        }
        out_.add(at(end));
        out_.endRun();
      }
      begin = next;
    }
    return false;
  }

  std::vector<double> const& pattern_;
  double const period_;
  PointRuns& out_;
  QRectF area_;
  double phase_;
  bool open_ = false;
};

}  // namespace

void dashLine(std::vector<QPointF> const& line, bool closed, Dashes const& dashes, QRectF const& area, PointRuns& out) {
  if (line.size() < 2 || dashes.pattern.empty()) return;
  Dasher dasher(dashes, area, out);
  // Counted before the first is made: together they could take all the memory that there is.
  double points = closed ? dasher.pointsOf(line.back(), line.front()) : 0;
  for (size_t i = 1; i < line.size(); ++i) points += dasher.pointsOf(line[i - 1], line[i]);
  DrawingBudget::spendOnVertices(points);
  if (DrawingBudget::isSpent()) return;
  for (size_t i = 1; i < line.size(); ++i) dasher.segment(line[i - 1], line[i]);
  if (closed) dasher.segment(line.back(), line.front());
  dasher.finish();
}

}  // namespace SysDisplay
