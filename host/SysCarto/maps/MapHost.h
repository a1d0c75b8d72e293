#pragma once

#include <SysCarto/Map.h>

#include <optional>

namespace SysCarto {

struct SYSCARTO_EXPORT MapHost {
  /// The bounds as they were set, before they are fitted to the frame; a document stores these.
  static SysGeometry::Envelope storedBounds(Map const& map);

  /// The scale denominator that is kept whatever becomes of the frame: the bounds then say where the centre is and
  /// nothing more. 0 where the bounds decide, as they do at first.
  static double lockedScale(Map const& map);
  static void lockScale(Map& map, double denominator);

  /// What a map shows: its bounds, about whose centre it is turned counterclockwise, in degrees, and a scale
  /// denominator that is kept or 0.
  struct Portion {
    SysGeometry::Envelope bounds;
    double rotation;
    double lockedScale;
  };

  /// What is shown in place of the map's own portion, of which a document stores no trace. Null ends it, and so does
  /// whoever gives the map another portion of its own.
  static void showInstead(Map& map, std::optional<Portion> const& portion);
  static bool isShownInstead(Map const& map);

  // The map's own, whatever is shown in their place.
  static double storedRotation(Map const& map);
  static double storedScale(Map const& map);

  /// Layers in drawing order, each there once. Each must hold its data in the map's coordinate system.
  static void setLayers(Map& map, QList<SysUtility::_ptr_t<Layer>> const& layers);

  /// Within ±360 degrees, counterclockwise; an angle beyond that counts from there on.
  static void setRotation(Map& map, double degrees);

  /// What the map is asked to show when its extent changes as a rectangle of its frame does that lies straight on the
  /// page: the same rectangle about the place that is its centre.
  static SysGeometry::Envelope turnedBack(Map const& map, SysGeometry::Envelope const& extent);

  /// How many times as long as usual the search for places of the labels may take; 0 where nobody said.
  static int labelEffort(Map const& map);
  static void setLabelEffort(Map& map, int effort);

  /// Whether views of the map also show the labels that found no place. No document stores it.
  static bool showsUnplaced(Map const& map);
  static void setShowsUnplaced(Map& map, bool shows);

  // Told by the data frames that are on a page: the size on paper, and that one comes or goes.
  static void setFrameSize(Map& map, double widthCm, double heightCm);
  static void countFrame(Map& map, bool comes);

  /// Whether a data frame on a page shows the map.
  static bool isFramed(Map const& map);

  /// When the map, a layer or a graphic of it was last changed outside the history's steps (`ChangeMark`).
  static quint64 lastChange(Map const& map);
};

}  // namespace SysCarto
