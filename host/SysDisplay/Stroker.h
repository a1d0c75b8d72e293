#pragma once

#include "host/SysDisplay/PointRuns.h"

#include <SysDisplay/LineSymbol.h>

namespace SysDisplay {

/// Makes the outline of a thick line, rings to be filled by the winding rule. Qt's own stroker would do, but for its
/// curves: the rasteriser rounds those differently left and right of a tile's edge.
class SYSDISPLAY_EXPORT Stroker {
public:
  Stroker(double widthPx, LineCapStyle cap, LineJoinStyle join, double miterLimit);

  /// Appends the outline of a line. Neighbouring points must differ. A single point becomes a dot, by the cap.
  void strokeOpen(QPointF const* points, int count, PointRuns& out);
  void strokeClosed(QPointF const* points, int count, PointRuns& out);

  /// How far from the line its outline may reach, in pixels.
  double reachPx() const;

  /// The rectangle of a line's outline. Neighbouring points must differ.
  QRectF bounds(QPointF const* points, int count, bool closed) const;

private:
  void measure(QPointF const* points, int count, int segments);
  void joinAt(QPointF const& point, QPointF const& n1, QPointF const& n2, PointRuns& out) const;
  void capAt(QPointF const& point, QPointF const& normal, PointRuns& out) const;
  void arc(QPointF const& centre, QPointF const& from, double angle, PointRuns& out) const;
  void dot(QPointF const& centre, PointRuns& out) const;
  bool reachesTip(double cosine) const;

  double const half_;
  LineCapStyle const cap_;
  LineJoinStyle const join_;
  double const miterLimit_;
  double arcStep_;
  double arcCosine_;              // of a turn, from which on down an arc has points between its ends
  std::vector<QPointF> normals_;  // of each segment of the line at work, to its left as the device's y runs
};

}  // namespace SysDisplay
