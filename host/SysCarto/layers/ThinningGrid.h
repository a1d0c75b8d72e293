#pragma once

#include "host/SysCarto/projection/PartSink.h"

namespace SysCarto {

/// Vertices that fall into one cell of a grid are replaced by one of them. The grid hangs on the coordinates, not on
/// where a line begins or on the rectangle that is drawn, so that neighbours keep their common border.
///
/// What was thinned to a cell and is thinned again to one of twice the side, four times, … is the same as if it had
/// been thinned to that alone.
class ThinningGrid {
public:
  /// 0 only drops vertices that are repeated.
  explicit ThinningGrid(double cell = 0) : cell_(cell) {}

  /// For pixels of so many map units: a quarter of one or a little less, in steps.
  static ThinningGrid forPixels(double unitsPerPixel);

  double cell() const { return cell_; }

  /// Puts the vertices that stay to `kept`, where there is room for all. Answers how many.
  int thin(PartKind kind, double const* xy, int count, double* kept) const;

  /// A part of fewer vertices shows nothing.
  static int minVertices(PartKind kind);

private:
  double cell_;
};

}  // namespace SysCarto
