#pragma once

#include "host/SysDisplay/PatternedFill.h"

#include <SysDisplay/MarkerSymbol.h>

namespace SysDisplay {

/// Markers on a grid, cut off at the edge of the area. The grid hangs where hatches do.
class SYSDISPLAY_EXPORT PointPatternFillSymbol final : public PatternedFill {
public:
  /// With a plain round marker.
  PointPatternFillSymbol();
  PointPatternFillSymbol(PointPatternFillSymbol const&);
  PointPatternFillSymbol& operator=(PointPatternFillSymbol const&);
  ~PointPatternFillSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;

  /// An empty pointer draws nothing.
  SysUtility::_ptr_t<MarkerSymbol> const& marker() const { return marker_; }
  void setMarker(SysUtility::_ptr_t<MarkerSymbol> const& marker) { marker_ = marker; }

  struct Grid {
    double dx = 10, dy = 10;  ///< points between columns and between rows
    bool staggered = false;   ///< every second row is moved by half a column
    double angle = 0;         ///< degrees counterclockwise; the markers stay upright
  };
  Grid const& grid() const { return grid_; }
  void setGrid(Grid const& grid) { grid_ = grid; }

private:
  std::unique_ptr<Filling> filling(double pixelsPerPoint) const override;

  SysUtility::_ptr_t<MarkerSymbol> marker_;
  Grid grid_;
};

}  // namespace SysDisplay
