#pragma once

#include "host/SysDisplay/Hatch.h"
#include "host/SysDisplay/LinePainter.h"

#include <SysDisplay/FillSymbol.h>

#include <optional>

namespace SysDisplay {

/// A fill symbol made ready for one target. The rings of one polygon are added in world coordinates and drawn together
/// by the even-odd rule: their area, then their outline.
class SYSDISPLAY_EXPORT FillPainter {
public:
  /// The target must outlive the painter; the symbol is read at once.
  FillPainter(DrawTarget& target, FillSymbol const& symbol);

  /// False where the symbol draws nothing at all.
  bool isVisible() const;

  /// How far from the polygon the outline may reach, in pixels.
  double reachPx() const;

  /// Without `outlined` the ring is only filled, and the caller adds those of its edges that are to be stroked.
  void addRing(WorldRun const& run, bool outlined = true);

  /// A run of edges that belongs to the outline and not to the area.
  void addOutline(WorldRun const& run);

  /// Draws what was added and forgets it.
  void draw();

private:
  bool fills() const { return solid_ || !hatches_.empty(); }
  void drawHatches();

  DrawTarget& target_;
  QColor color_;
  bool solid_ = false;
  std::vector<HatchDirection> hatches_;
  double hatchSpacingPx_;
  double hatchWidthPx_;
  std::optional<LinePainter> outline_;
  QRectF area_;
  std::vector<QPointF> ring_;
  PointRuns rings_;
  PointRuns hatchLines_;
};

}  // namespace SysDisplay
