#pragma once

#include <SysDisplay/DisplayTransformation.h>

#include <QPointF>

namespace SysDisplay {

struct SYSDISPLAY_EXPORT DisplayTransformationHost {
  /// Told by the map that is shown.
  static void setMapScale(DisplayTransformation& transformation, double denominator);

  /// Whether the width of the bounds always fills the frame, as a page does in a picture of whole pixels or of another
  /// shape; the height then shows what it can from the top. Otherwise the bounds are shown whole.
  static void setFillsWidth(DisplayTransformation& transformation, bool fillsWidth);

  /// The place in the world that hatches hang on, (0, 0) at first. All tiles of a picture share it: the nearer it is,
  /// the better they agree on its pixels.
  static void setPatternOrigin(DisplayTransformation& transformation, double x, double y);

  /// Where that place lies on the device, on the grid of the rasteriser.
  static QPointF patternOrigin(DisplayTransformation const& transformation);
};

}  // namespace SysDisplay
