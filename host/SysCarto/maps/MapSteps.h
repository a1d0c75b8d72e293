#pragma once

#include <SysCarto/Map.h>

#include <QCoreApplication>

namespace SysCarto {

/// What a gesture of the host changes of a map where it lies, as a named step of the history that the editor records
/// into. What changes nothing leaves no step.
class SYSCARTO_EXPORT MapSteps {
  Q_DECLARE_TR_FUNCTIONS(MapSteps)

public:
  // Of the extent; each answers false where a map can't show that.

  /// Zooms of one map that follow each other are one step.
  static bool zoom(Map& map, SysGeometry::Envelope const& extent);
  static bool pan(Map& map, SysGeometry::Envelope const& extent);
  static bool setExtent(Map& map, SysGeometry::Envelope const& extent);

  /// About the map's centre, where the scale is true. Of a map with a locked scale it is another one that is kept then;
  /// the extents above only move such a map.
  static bool setScale(Map& map, double denominator);

  static void setVisible(Layer& layer, bool visible);
};

}  // namespace SysCarto
