#pragma once

#include <SysCarto/Map.h>

namespace SysCarto {

struct SYSCARTO_EXPORT MapHost {
  /// The bounds as they were set, before they are fitted to the frame; a document stores these.
  static SysGeometry::Envelope storedBounds(Map const& map);

  // Told by the data frames that are on a page: the size on paper, and that one comes or goes.
  static void setFrameSize(Map& map, double widthCm, double heightCm);
  static void countFrame(Map& map, bool comes);

  /// Whether a data frame on a page shows the map.
  static bool isFramed(Map const& map);

  /// When the map, a layer or a graphic of it was last changed outside the history's steps (`ChangeMark`).
  static quint64 lastChange(Map const& map);
};

}  // namespace SysCarto
