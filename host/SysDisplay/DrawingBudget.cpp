#include "DrawingBudget.h"

#include "host/SysDisplay/PointRuns.h"

#include <algorithm>
#include <cmath>

namespace SysDisplay {

namespace {

// In pixels of one colour: measured, and rounded.
constexpr double vertexCost = 2500;
constexpr double edgeCost = 20;  // of each row or column that it crosses

thread_local DrawingBudget* current = nullptr;

}  // namespace

DrawingBudget::DrawingBudget(double pixels) : pixels_(pixels), left_(pixels), before_(current) { current = this; }

DrawingBudget::~DrawingBudget() { current = before_; }

void DrawingBudget::spend(double pixels) {
  if (current) current->left_ -= pixels;
}

bool DrawingBudget::isSpent() { return current && current->isExceeded(); }

void DrawingBudget::spendOnVertices(double count) { spend(vertexCost * count); }

void DrawingBudget::spendOnFill(PointRuns const& rings, QRectF const& device) {
  if (!current || rings.isEmpty()) return;
  QRectF const seen = rings.bounds() & device;
  if (seen.isEmpty()) return;
  double edges = 0;
  for (int i = 0; i < rings.count(); ++i) {
    QPointF const* const ring = rings.run(i);
    for (int j = 1; j < rings.size(i); ++j)
      edges += std::min(std::abs(ring[j].x() - ring[j - 1].x()), seen.width()) +
               std::min(std::abs(ring[j].y() - ring[j - 1].y()), seen.height());
  }
  current->left_ -= seen.width() * seen.height() + edgeCost * edges;
  spendOnVertices(static_cast<double>(rings.points.size()) / 10);
}

}  // namespace SysDisplay
