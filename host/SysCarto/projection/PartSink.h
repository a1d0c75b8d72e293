#pragma once

#include <SysCarto/Export.h>

namespace SysCarto {

/// A ring that is filled and stroked; one that is only filled, since some of its edges come from a cut; a run of its
/// other edges, which is only stroked; a line; a point.
enum class PartKind : unsigned char { Ring, FilledRing, Outline, Line, Point };

/// Takes the parts of a projected geometry, in their order.
class SYSCARTO_EXPORT PartSink {
public:
  virtual ~PartSink();

  /// The next ring is the first of a polygon; its holes and outlines follow.
  virtual void startPolygon() = 0;

  /// `xy` are `count` vertices as x, y pairs, and are not kept.
  virtual void addPart(PartKind kind, double const* xy, int count) = 0;
};

}  // namespace SysCarto
