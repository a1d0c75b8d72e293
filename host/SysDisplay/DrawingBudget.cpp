#include "DrawingBudget.h"

#include "host/SysDisplay/CoverageGrid.h"
#include "host/SysDisplay/PointRuns.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <vector>

namespace SysDisplay {

namespace {

// In pixels of one colour: measured, and rounded.
constexpr double vertexCost = 2500;
constexpr double edgeCost = 25;   // of each row or column that it crosses
constexpr double searchCost = 2;  // of each cell that is passed on the way to another
constexpr double walkCost = 6;    // of each row or column of an edge that is gone through once more

thread_local DrawingBudget* current = nullptr;
std::atomic<bool> isCounting = false, hasGivenUp = false;

// The cells that edges cross, in strips of some rows. The rasteriser keeps those of a row in a list, which it searches
// from its left end for each crossing. It has room for few, and goes along all edges of a strip again, from end to end,
// whenever they are used up. So edges that lie close cost the square of their number, until there are so many that they
// are filled pixel by pixel.
class RowCells {
public:
  explicit RowCells(QRectF const& seen) : seen_(seen), strips_(static_cast<size_t>(seen.height() / stripPx) + 1) {}

  void add(QPointF const& a, QPointF const& b) {
    QPointF const& high = a.y() < b.y() ? a : b;
    QPointF const& low = a.y() < b.y() ? b : a;
    double const top = std::max(high.y(), seen_.top()), bottom = std::min(low.y(), seen_.bottom());
    if (!(bottom > top)) return;
    double const slope = (low.x() - high.x()) / (low.y() - high.y());
    double const length = std::abs(low.x() - high.x()) + low.y() - high.y();
    auto const first = stripAt(top), last = stripAt(bottom);
    for (size_t strip = first; strip <= last; ++strip) {
      double const from = strip == first ? top : seen_.top() + stripPx * static_cast<double>(strip);
      double const to = strip == last ? bottom : seen_.top() + stripPx * static_cast<double>(strip + 1);
      strips_[strip].walked += std::min(length, longestPx);
      add(strips_[strip], to - from, high.x() + (from - high.y()) * slope, high.x() + (to - high.y()) * slope);
    }
  }

  double cost() const {
    double sum = 0;
    for (Strip const& strip : strips_) {
      double const cellsInRow = std::min(strip.listed / stripPx, seen_.width());
      double const passes = cellsInRow * stripPx / std::max(roomForCells, cellsInRow);
      sum += edgeCost * strip.crossed;
      if (strip.edges > mostVerticesOfRows) continue;
      sum += searchCost * strip.listed * cellsInRow / 2 + walkCost * strip.walked * passes;
    }
    return sum;
  }

private:
  static constexpr double stripPx = 16;
  static constexpr double roomForCells = 300;
  static constexpr double longestPx = 64000;  // what lies farther away is cut off before

  struct Strip {
    int edges = 0;
    double crossed = 0;
    double listed = 0;  // of those, what lies neither to the left nor to the right
    double walked = 0;  // with what lies above and below
  };

  size_t stripAt(double y) const {
    return std::min(static_cast<size_t>((y - seen_.top()) / stripPx), strips_.size() - 1);
  }

  void add(Strip& strip, double rows, double x1, double x2) const {
    ++strip.edges;
    double const width = std::abs(x2 - x1);
    double const columns =
        std::max(std::min(std::max(x1, x2), seen_.right()) - std::max(std::min(x1, x2), seen_.left()), 0.0);
    bool const isInside = x1 >= seen_.left() && x1 <= seen_.right();
    double const part = width > 0 ? columns / width : isInside ? 1 : 0;
    strip.crossed += rows + columns;
    strip.listed += rows * part + columns;
  }

  QRectF const seen_;
  std::vector<Strip> strips_;
};

}  // namespace

DrawingBudget::DrawingBudget(double pixels) : pixels_(pixels), left_(pixels), before_(current) {
  current = this;
  hasGivenUp = false;
  isCounting = true;
}

DrawingBudget::~DrawingBudget() {
  current = before_;
  isCounting = before_ != nullptr;
}

bool DrawingBudget::isExceeded() const { return left_ < 0 || hasGivenUp; }

bool DrawingBudget::giveUp() {
  if (isCounting) hasGivenUp = true;
  return isCounting;
}

bool DrawingBudget::isGivenUp() { return isCounting && hasGivenUp; }

void DrawingBudget::spend(double pixels) {
  if (current) current->left_ -= pixels;
}

bool DrawingBudget::isSpent() { return current && current->isExceeded(); }

void DrawingBudget::spendOnVertices(double count) { spend(vertexCost * count); }

void DrawingBudget::spendOnFill(PointRuns const& rings, QRectF const& device) {
  if (!current || rings.isEmpty()) return;
  QRectF const seen = rings.bounds() & device;
  if (seen.isEmpty()) return;
  RowCells cells(seen);
  for (int i = 0; i < rings.count(); ++i) {
    QPointF const* const ring = rings.run(i);
    for (int j = 0, last = rings.size(i) - 1; j <= last; ++j) cells.add(ring[j ? j - 1 : last], ring[j]);
  }
  current->left_ -= seen.width() * seen.height() + cells.cost();
  spendOnVertices(static_cast<double>(rings.points.size()) / 10);
}

}  // namespace SysDisplay
