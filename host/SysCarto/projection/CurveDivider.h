#pragma once

#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace SysCarto {

/// A place on an edge.
struct CurveEnd {
  double x, y;    ///< before
  double px, py;  ///< projected
};

/// Adds vertices along an edge whose image under a projection is a curve, until no piece of the curve lies farther than
/// a tolerance from its chord. `Project` is called as bool(double& x, double& y).
template <class Project>
class CurveDivider {
public:
  /// `longest` is the length, along either axis of the source, beyond which an edge is divided in any case; edges
  /// shorter than `shortest` are left as they are.
  CurveDivider(Project project, double tolerance, double longest, double shortest)
      : project_(project), tolerance_(tolerance), longest_(longest), shortest_(shortest) {}

  /// Whether an edge is long enough for its image to be looked at.
  template <class Place>
  bool mayBend(Place const& a, Place const& b) const {
    return length(a, b) >= shortest_;
  }

  /// Calls `visit(px, py)` for each vertex added between the two, in order. Where the middle has no image, as where a
  /// meridian goes through a place that lies at infinity, one beside it will do.
  template <class Visit>
  void divide(CurveEnd const& a, CurveEnd const& b, Visit const& visit, int depth = 0) const {
    if (!mayBend(a, b) || depth > deepest) return;
    for (double const at : {0.5, 0.4}) {
      CurveEnd middle{a.x + (b.x - a.x) * at, a.y + (b.y - a.y) * at, 0, 0};
      middle.px = middle.x;
      middle.py = middle.y;
      if (project_(middle.px, middle.py)) return divideAt(middle, a, b, visit, depth);
    }
  }

  /// The same for an edge that may bend and whose middle is known.
  template <class Visit>
  void divideAt(CurveEnd const& middle, CurveEnd const& a, CurveEnd const& b, Visit const& visit, int depth = 0) const {
    if (length(a, b) <= longest_ && isStraight(a, b, middle)) return;
    divide(a, middle, visit, depth + 1);
    visit(middle.px, middle.py);
    divide(middle, b, visit, depth + 1);
  }

private:
  static constexpr int deepest = 16;

  template <class Place>
  static double length(Place const& a, Place const& b) {
    return std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
  }

  bool isStraight(CurveEnd const& a, CurveEnd const& b, CurveEnd const& middle) const {
    return SysGeometry::squaredDistanceToSegment(a.px, a.py, b.px, b.py, middle.px, middle.py) <=
           tolerance_ * tolerance_;
  }

  Project project_;
  double tolerance_, longest_, shortest_;
};

}  // namespace SysCarto
