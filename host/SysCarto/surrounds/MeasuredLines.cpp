#include "MeasuredLines.h"

#include <cmath>

namespace SysCarto {

using SysGeometry::Envelope;

namespace {

// Far from the origin the numbers of lines are larger than an int.
int shortNumber(double number) { return static_cast<int>(std::fmod(number, 1e9)); }

// Where numbers are so large that the next one is the same, there is still an end.
template <class Visit>
void visitMultiples(double from, double to, double step, Visit const& visit) {
  constexpr int most = 2000;
  double const first = firstMultiple(from, step), last = lastMultiple(to, step);
  for (int i = 0; i < most && first + i <= last; ++i) visit(first + i);
}

}  // namespace

GridLines::~GridLines() = default;

double firstMultiple(double from, double step) { return std::ceil(from / step - 1e-9); }
double lastMultiple(double to, double step) { return std::floor(to / step + 1e-9); }

double MeasuredLines::count(Envelope const& extent, double interval) const {
  return (extent.GetWidth() + extent.GetHeight()) / interval;
}

GridStep MeasuredLines::unitSize(Envelope const&) const { return {1, 1}; }

QVector<GridLine> MeasuredLines::lines(Envelope const& extent, GridStep const& interval) const {
  QVector<GridLine> lines;
  double const left = extent.GetXMin(), right = extent.GetXMax(), bottom = extent.GetYMin(), top = extent.GetYMax();
  visitMultiples(left, right, interval.longitude, [&](double number) {
    double const x = number * interval.longitude;
    lines << GridLine{true, x, shortNumber(number), {{{x, bottom}, {x, top}}}, {}};
  });
  visitMultiples(bottom, top, interval.latitude, [&](double number) {
    double const y = number * interval.latitude;
    lines << GridLine{false, y, shortNumber(number), {{{left, y}, {right, y}}}, {}};
  });
  return lines;
}

QVector<GridCrossing> MeasuredLines::crossings(Envelope const& extent, GridStep const& interval) const {
  QVector<GridCrossing> crossings;
  visitMultiples(extent.GetXMin(), extent.GetXMax(), interval.longitude, [&](double column) {
    visitMultiples(extent.GetYMin(), extent.GetYMax(), interval.latitude, [&](double row) {
      QPointF const at(column * interval.longitude, row * interval.latitude);
      crossings << GridCrossing{at, at + QPointF(interval.longitude, 0), at + QPointF(0, interval.latitude)};
    });
  });
  return crossings;
}

}  // namespace SysCarto
