#pragma once

#include <SysDisplay/Export.h>

#include <QImage>
#include <QPointF>
#include <QRect>

#include <vector>

namespace SysDisplay {

/// With more vertices than that on some rows, Qt's rasteriser takes the square of their number, and in the end gives
/// up.
constexpr int mostVerticesOfRows = 30000;

/// How much of each pixel lies within rings, whatever their number of vertices and crossings.
///
/// Each edge adds to the pixels that it crosses what it changes of the area to its right, with its direction's sign;
/// the sums from the left are winding numbers averaged over pixels, which the fill rule turns into parts of one. Where
/// edges cross within a pixel this is as near as such an average can be, and what Qt's rasteriser shows, too. The time
/// is that of the pixels that edges cross.
class SYSDISPLAY_EXPORT CoverageGrid {
public:
  /// Nothing, on these pixels. The memory of before is used again.
  void clear(QRect const& pixels);

  /// An edge of a ring, in the coordinates of those pixels. All edges of a ring must be added, also those that lie
  /// outside: to the left of the pixels they count.
  void add(QPointF a, QPointF b);

  /// Opaque black as far as pixels lie within.
  QImage mask(Qt::FillRule rule) const;

private:
  void addInRow(double* row, double x1, double x2, double height) const;

  QRect pixels_;
  size_t stride_ = 0;
  std::vector<double> changes_;  // along each row; one more than there are pixels
};

}  // namespace SysDisplay
