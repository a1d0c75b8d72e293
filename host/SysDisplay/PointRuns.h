#pragma once

#include <SysDisplay/Export.h>

#include <QPointF>
#include <QRectF>

#include <vector>

namespace SysDisplay {

/// Runs of points, stored flat so that a buffer can be used again: rings to fill, lines to stroke. Usually device
/// pixels, y downwards.
struct SYSDISPLAY_EXPORT PointRuns {
  std::vector<QPointF> points;
  std::vector<int> ends;  ///< for each run, one past its last point

  void clear();
  bool isEmpty() const { return ends.empty(); }
  int count() const { return static_cast<int>(ends.size()); }
  QPointF const* run(int number) const { return points.data() + begin(number); }
  int size(int number) const { return size(number, number); }

  /// How many points the runs from the first to the last have together.
  int size(int first, int last) const { return ends[last] - begin(first); }

  /// Appends to the open run. A point that repeats the one before it is left out.
  void add(QPointF const& point) {
    int const begin = ends.empty() ? 0 : ends.back();
    if (static_cast<int>(points.size()) > begin && points.back() == point) return;
    points.push_back(point);
  }

  /// Closes the open run; an empty one is forgotten.
  void endRun();

  /// Appends whole runs; the open run must be empty.
  void append(PointRuns const& other);

  QRectF bounds() const;

private:
  int begin(int number) const { return number ? ends[number - 1] : 0; }
};

}  // namespace SysDisplay
