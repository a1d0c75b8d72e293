#pragma once

#include "host/SysDisplay/DashLine.h"
#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/Stroker.h"

#include <SysDisplay/LineSymbol.h>

namespace SysDisplay {

/// A line symbol made ready for one target. Lines are added in world coordinates and drawn together: where they
/// overlap, a colour that shines through is not doubled. One feature at a time is the usual use.
class SYSDISPLAY_EXPORT LinePainter {
public:
  /// The target must outlive the painter; the symbol is read at once.
  LinePainter(DrawTarget& target, LineSymbol const& symbol);

  /// False where the symbol draws nothing at all.
  bool isVisible() const { return visible_; }

  /// How far from its line the symbol may reach, in pixels.
  double reachPx() const;

  void addLine(WorldRun const& run);
  void addRing(WorldRun const& run);

  /// The same from points as `toDevicePoints` makes them.
  void addDevice(std::vector<QPointF> const& points, bool closed);

  /// Draws what was added and forgets it.
  void draw();

private:
  void add(WorldRun const& run, bool closed);
  void stroke(std::vector<QPointF> const& line, bool closed);

  DrawTarget& target_;
  bool visible_;
  QColor color_;
  double offsetPx_;
  DashPattern dashes_;
  Stroker stroker_;
  QRectF area_;
  std::vector<QPointF> line_;
  PointRuns pieces_;
  PointRuns outline_;
};

}  // namespace SysDisplay
