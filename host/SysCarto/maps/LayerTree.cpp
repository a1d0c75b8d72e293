#include "LayerTree.h"

#include "host/SysCarto/layers/LayerHost.h"

namespace SysCarto {

namespace {

// Those from `first` up to `last`, all of which lie in the same `depth` groups.
std::vector<LayerEntry> entriesWithin(LayerList const& list, int first, int last, int depth) {
  std::vector<LayerEntry> entries;
  while (first < last) {
    auto const group = list.groups[first].value(depth);
    int next = first + 1;
    while (group && next < last && list.groups[next].value(depth) == group) ++next;
    if (group)
      entries.push_back({nullptr, group, entriesWithin(list, first, next, depth + 1)});
    else
      entries.push_back({list.layers[first], nullptr, {}});
    first = next;
  }
  return entries;
}

}  // namespace

LayerList layersOf(Map const& map) {
  LayerList list{SysUtility::retain(const_cast<Map*>(&map)), map.GetLayers()};
  for (auto const& layer : map.GetLayers()) list.groups << LayerHost::groups(*layer);
  return list;
}

std::vector<LayerEntry> entriesOf(LayerList const& list) { return entriesWithin(list, 0, list.layers.size(), 0); }
std::vector<LayerEntry> entriesOf(Map const& map) { return entriesOf(layersOf(map)); }

void addEntries(LayerList& list, std::vector<LayerEntry> const& entries, LayerGroups const& outer) {
  for (LayerEntry const& entry : entries) {
    if (entry.group) {
      addEntries(list, entry.entries, outer + LayerGroups{entry.group});
    } else {
      list.layers << entry.layer;
      list.groups << outer;
    }
  }
}

LayerGroups groupsOf(Map const& map) {
  LayerGroups groups;
  for (auto const& layer : map.GetLayers())
    for (auto const& group : LayerHost::groups(*layer))
      if (!groups.contains(group)) groups << group;
  return groups;
}

}  // namespace SysCarto
