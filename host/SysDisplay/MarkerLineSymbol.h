#pragma once

#include "host/SysDisplay/PathDrawing.h"

#include <SysDisplay/MarkerSymbol.h>

namespace SysDisplay {

/// Markers in a row along the line, without the line. Its width is the size of its marker.
class SYSDISPLAY_EXPORT MarkerLineSymbol final : public PreparableLine {
public:
  /// With a plain round marker.
  MarkerLineSymbol();
  MarkerLineSymbol(MarkerLineSymbol const&);
  MarkerLineSymbol& operator=(MarkerLineSymbol const&);
  ~MarkerLineSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void resize(double factor) override;

  double GetWidth() const override;
  void SetWidth(double points) override;

  /// An empty pointer draws nothing.
  SysUtility::_ptr_t<MarkerSymbol> const& marker() const { return marker_; }
  void setMarker(SysUtility::_ptr_t<MarkerSymbol> const& marker) { marker_ = marker; }

  // Points: what an interval may be.
  static constexpr double minInterval = 0.5, maxInterval = 1000;

  /// Points from one marker to the next; where that is less than a pixel, so far.
  double interval() const { return intervalPt_; }
  void setInterval(double points) { intervalPt_ = points; }

  /// Points from the line's beginning to its first marker.
  double first() const { return firstPt_; }
  void setFirst(double points) { firstPt_ = points; }

  /// Whether what is the right of a marker points along the line.
  bool isTurned() const { return turned_; }
  void setTurned(bool turned) { turned_ = turned; }

private:
  SysUtility::_ptr_t<MarkerSymbol> marker_;
  double intervalPt_ = 20;
  double firstPt_ = 0;
  bool turned_ = true;
};

}  // namespace SysDisplay
