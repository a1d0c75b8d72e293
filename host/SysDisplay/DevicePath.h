#pragma once

#include "host/SysDisplay/PointRuns.h"
#include "host/SysDisplay/WorldRun.h"

#include <QTransform>

#include <cmath>

namespace SysDisplay {

/// The nearest 1/64 of a pixel, the grid on which the rasteriser works. What lies exactly between two always goes the
/// same way, although the transformations of two tiles differ in their last bits.
inline double snapped(double px) {
  constexpr double bias = 64.0 / 65536.0;
  constexpr double rounding = 6755399441055744.0;  // 1.5 × 2^52: a sum with it has no room for a fraction
  return ((px * 64.0 + bias + rounding) - rounding) / 64.0;
}
inline QPointF snapped(QPointF const& point) { return {snapped(point.x()), snapped(point.y())}; }

/// Device coordinates lie within this distance of 0, the range in which `snapped` is exact.
constexpr double maxCoordinatePx = 1e12;

/// The vertices of a run as snapped device points. Neighbours that fall onto one point are merged; with `thinPx`, so is
/// a point that lies nearer than that to the last one kept, but for the end and the first of a stretch. Pairs that are
/// not finite are left out.
///
/// Of a stretch that lies beyond one side of `area` (device pixels), as its neighbours do, only the first vertex stays.
/// No other point depends on the area. So all tiles that a place lies in have the same points there, and the same
/// segments before and after them.
SYSDISPLAY_EXPORT void toDevicePoints(QTransform const& toDevice, WorldRun const& run, QRectF const& area,
                                      double thinPx, std::vector<QPointF>& points);

/// Brings a ring to what matters within `area`: of neighbouring vertices that lie beyond the same side only the first
/// and the last stay. Inside the area the ring stays as it is, vertex for vertex. Long segments are
/// divided, at places that hang on `anchor`.
SYSDISPLAY_EXPORT void clipRing(std::vector<QPointF> const& ring, QRectF const& area, QPointF const& anchor,
                                PointRuns& out);

/// Brings a ring to the vertices that matter within `area`, as `clipRing` does, and divides nothing.
SYSDISPLAY_EXPORT void dropBeyond(QPointF const* ring, int count, QRectF const& area, PointRuns& out);

/// Brings a line to the runs that matter within `area`. Segments beyond one side are dropped, except the neighbour of a
/// segment that stays, since it shapes the join. Answers true where a closed line stayed in one piece, so that its one
/// run is to be closed again.
SYSDISPLAY_EXPORT bool splitLine(std::vector<QPointF> const& line, bool closed, QRectF const& area,
                                 QPointF const& anchor, PointRuns& out);

/// The line moved by `distancePx` to the left of its direction, as seen on the page. Sharp corners are cut off.
SYSDISPLAY_EXPORT std::vector<QPointF> offsetLine(std::vector<QPointF> const& line, bool closed, double distancePx);

/// The unit vector to the left of a segment's direction as seen on the page. On a device, where y runs downwards, the
/// left of (dx, dy) is (dy, −dx).
inline QPointF leftOf(QPointF const& from, QPointF const& to) {
  QPointF const d = to - from;
  return QPointF(d.y(), -d.x()) / std::hypot(d.x(), d.y());
}

}  // namespace SysDisplay
