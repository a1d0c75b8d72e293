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

/// The layers of a map as they are, with their groups.
SYSCARTO_EXPORT LayerList layersOf(Map const& map);

SYSCARTO_EXPORT std::vector<LayerEntry> entriesOf(LayerList const& list);
SYSCARTO_EXPORT std::vector<LayerEntry> entriesOf(Map const& map);

/// Adds the layers of the entries to a list of layers that lie in `outer`.
SYSCARTO_EXPORT void addEntries(LayerList& list, std::vector<LayerEntry> const& entries, LayerGroups const& outer = {});

/// The groups of a map's layers, each once.
SYSCARTO_EXPORT LayerGroups groupsOf(Map const& map);

}  // namespace SysCarto
