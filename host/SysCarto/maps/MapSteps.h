#pragma once

#include "host/SysCarto/layers/LayerGroup.h"

#include <SysCarto/Map.h>

#include <QCoreApplication>

namespace SysCarto {

/// Which layers a map has, the lowest first.
struct LayerList {
  SysUtility::_ptr_t<Map> map;
  QList<SysUtility::_ptr_t<Layer>> layers;
  /// Of each layer; none where they stay in those that they are in, and one between two of a group joins that.
  QVector<LayerGroups> groups = {};
};

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

  /// The layer's own switch.
  static void setVisible(Layer& layer, bool visible);
  static void setVisible(LayerGroup& group, bool visible);

  /// Gives maps other lists of layers, each map once, as one step. Layers must hold their data in the coordinate system
  /// of the map that they come to.
  static void changeLayers(QString const& name, QVector<LayerList> const& wanted);
};

}  // namespace SysCarto
