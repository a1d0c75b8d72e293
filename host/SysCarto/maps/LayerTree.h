#pragma once

#include "host/SysCarto/maps/MapSteps.h"

#include <vector>

namespace SysCarto {

constexpr int maxLayerGroupDepth = 16;

/// A layer, or a group with what lies in it, the lowest first: how the contents and a document nest what a map keeps as
/// a flat list in drawing order.
struct LayerEntry {
  SysUtility::_ptr_t<Layer> layer;
  SysUtility::_ptr_t<LayerGroup> group;  ///< where there is no layer
  std::vector<LayerEntry> entries;       ///< of the group
};

/// What a row of the contents stands for: a layer, a group of layers, or the map where neither is named.
struct LayerRow {
  SysUtility::_ptr_t<Map> map;
  SysUtility::_ptr_t<LayerGroup> group = nullptr;
  SysUtility::_ptr_t<Layer> layer = nullptr;

  bool operator==(LayerRow const& other) const {
    return map == other.map && group == other.group && layer == other.layer;
  }
  /// The object itself, to tell rows apart by.
  void const* thing() const {
    if (layer) return layer.get();
    return group ? static_cast<void const*>(group.get()) : map.get();
  }
};

/// A place among the entries of a map, or of one of its groups.
struct LayerPlace {
  SysUtility::_ptr_t<Map> map;
  SysUtility::_ptr_t<LayerGroup> group;
  int below;  ///< how many of these entries lie below
};

/// The layers of a map as they are, with their groups.
SYSCARTO_EXPORT LayerList layersOf(Map const& map);

SYSCARTO_EXPORT std::vector<LayerEntry> entriesOf(LayerList const& list);
SYSCARTO_EXPORT std::vector<LayerEntry> entriesOf(Map const& map);

/// Adds the layers of the entries to a list of layers that lie in `outer`.
SYSCARTO_EXPORT void addEntries(LayerList& list, std::vector<LayerEntry> const& entries, LayerGroups const& outer = {});

/// The groups of a map's layers, each once.
SYSCARTO_EXPORT LayerGroups groupsOf(Map const& map);

}  // namespace SysCarto
