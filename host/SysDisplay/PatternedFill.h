#pragma once

#include "host/SysDisplay/PathDrawing.h"

namespace SysDisplay {

class Filling;

/// A fill symbol of the host with an outline of its own: it says what its area shows.
class SYSDISPLAY_EXPORT PatternedFill : public PreparableFill {
public:
  ~PatternedFill() override;

  std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const final;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;

protected:
  PatternedFill();
  PatternedFill(PatternedFill const&);
  PatternedFill& operator=(PatternedFill const&);

private:
  /// An empty pointer where the area shows nothing.
  virtual std::unique_ptr<Filling> filling(double pixelsPerPoint) const = 0;
};

}  // namespace SysDisplay
