#pragma once

#include <SysDisplay/DisplayTransformation.h>

#include <QPointF>
#include <QRectF>

namespace SysDisplay {

struct SYSDISPLAY_EXPORT DisplayTransformationHost {
  /// Told by the map that is shown.
  static void setMapScale(DisplayTransformation& transformation, double denominator);

  /// Whether the width of the bounds always fills the frame, as a page does in a picture of whole pixels or of another
  /// shape; the height then shows what it can from the top. Otherwise the bounds are shown whole.
  static void setFillsWidth(DisplayTransformation& transformation, bool fillsWidth);

  // A map may be turned in its frame, which stays as it is. What the transformation maps is then the turned world: the
  // world turned about one place, in which the frame lies straight. Visible and fitted bounds are rectangles of the
  // turned world, and mean the same where nothing is turned; a clone with other bounds shows another part of it.

  /// Degrees, counterclockwise as seen on the device, about a place of the world.
  static void setTurn(DisplayTransformation& transformation, double degrees, QPointF const& about);

  /// From the world to the turned world; the identity where nothing is turned.
  static QTransform const& turn(DisplayTransformation const& transformation);

  /// The smallest rectangle of the world, with y upwards, that holds all of what the device frame shows.
  static QRectF coveredWorld(DisplayTransformation const& transformation);

  /// All that a map shows, as a rectangle of the turned world: told by the map when its transformation shows that, and
  /// kept by clones that show a part of it, a tile of a picture.
  static void setWhole(DisplayTransformation& transformation, QRectF const& whole);

  /// The smallest rectangle of the world that holds all of the map where the device frame shows some of it, else that
  /// of `coveredWorld`.
  static QRectF wholeWorld(DisplayTransformation const& transformation);

  /// What a map shows of the turned world, and how much of that a point of its page is.
  struct OnPage {
    QRectF bounds;  ///< with y upwards
    double unitsPerPoint;
  };

  /// As the map told it where all of it is shown, whatever whole pixels that is made of; else as the pixels say.
  static OnPage onPage(DisplayTransformation const& transformation);

  static double pixelsPerUnit(DisplayTransformation const& transformation);

  /// The place of the turned world that hatches hang on, (0, 0) at first. All tiles of a picture share it: the nearer
  /// it is, the better they agree on its pixels.
  static void setPatternOrigin(DisplayTransformation& transformation, double x, double y);

  /// Where that place lies on the device, on the grid of the rasteriser.
  static QPointF patternOrigin(DisplayTransformation const& transformation);
};

}  // namespace SysDisplay
