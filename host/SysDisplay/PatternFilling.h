#pragma once

#include "host/SysDisplay/FillDrawing.h"

#include <QImage>
#include <QRect>

namespace SysDisplay {

/// What shows through areas that are filled with it, wherever they lie.
class Pattern {
public:
  virtual ~Pattern();

  /// The pixels of a rectangle on the device, in the format ARGB32_Premultiplied. What a place shows must not depend on
  /// the rectangle, and `anchor` is all that tells where it lies on the sheet that tiles are cut from.
  virtual QImage drawn(QRect const& area, QPointF const& anchor) = 0;

  /// Fills rings on a target's canvas with it.
  virtual void drawShapes(DrawTarget& target, VectorCanvas& canvas, PointRuns const& rings) = 0;
};

/// Areas filled with a pattern. Of the target, what lies beneath them is drawn once, as it is needed; so many small
/// areas cost little more than one large one.
std::unique_ptr<Filling> patternFilling(std::unique_ptr<Pattern> pattern);

/// The mean of all pixels of a picture: what takes the place of a pattern too fine to be seen.
QColor meanColor(QImage const& image);

}  // namespace SysDisplay
