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

  void segment(QPointF const& a, QPointF const& b) {
    QPointF const d = b - a;
    double const length = std::hypot(d.x(), d.y());
    Stretch stretch;
    stretch.cut(a.x(), d.x(), area_.left(), area_.right());
    stretch.cut(a.y(), d.y(), area_.top(), area_.bottom());
    bool goesOn = false;
    if (stretch.from <= stretch.to) goesOn = dashes(a, b, length, stretch);
    if (!goesOn) out_.endRun();
    open_ = goesOn;
    phase_ = std::fmod(phase_ + length, period_);
  }

  void finish() { out_.endRun(); }

private:
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
  for (size_t i = 1; i < line.size() && !DrawingBudget::isSpent(); ++i) {
    size_t const before = out.points.size();
    dasher.segment(line[i - 1], line[i]);
    DrawingBudget::spendOnVertices(static_cast<double>(out.points.size() - before));
  }
  if (closed) dasher.segment(line.back(), line.front());
  dasher.finish();
}

}  // namespace SysDisplay
