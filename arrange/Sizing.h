#pragma once

#include <SysCarto/Element.h>

namespace Plugin {

/// Which extents a sizing command changes. A text has one size only: it takes the first that the command changes.
struct SizedExtents {
  bool width;
  bool height;
};

/// A factor for scaling what is `drawn` wide or high to `wanted`. What has no extent counts as 0.01.
inline double scaleFactor(double wanted, double drawn) { return wanted / (drawn == 0.0 ? 0.01 : drawn); }

/// Scales about the lower left corner of the drawn bounds, given with them.
inline void scaleExtents(SysCarto::Element& element, int type, SysGeometry::Envelope const& drawn, SizedExtents extents,
                         double wantedWidth, double wantedHeight) {
  double const fx = extents.width ? scaleFactor(wantedWidth, drawn.GetXMax() - drawn.GetXMin()) : 1.0;
  double const fy = extents.height ? scaleFactor(wantedHeight, drawn.GetYMax() - drawn.GetYMin()) : 1.0;
  auto const origin = SysUtility::make<SysGeometry::Point>(drawn.GetXMin(), drawn.GetYMin(), 0.0);
  if (type == SysCarto::ElementType::Text)
    element.Scale(origin, extents.width ? fx : fy, 1.0);
  else
    element.Scale(origin, fx, fy);
}

}  // namespace Plugin
