#include "LayerArrangement.h"

using SysCarto::LayerEntry;
using SysCarto::LayerGroup;
using SysCarto::Map;
using SysUtility::_ptr_t;

namespace {

using Entries = LayerArrangement::Entries;

Entries* entriesOfGroup(Entries& entries, LayerGroup const& group) {
  for (LayerEntry& entry : entries) {
    if (entry.group.get() == &group) return &entry.entries;
    if (Entries* const inner = entriesOfGroup(entry.entries, group)) return inner;
  }
  return nullptr;
}

void collect(Entries& entries, LayerArrangement::Chosen const& chosen, bool takes, Entries& found) {
  for (std::size_t i = 0; i < entries.size();) {
    if (!chosen.contains(LayerArrangement::thing(entries[i]))) {
      collect(entries[i++].entries, chosen, takes, found);
    } else if (takes) {
      found.push_back(std::move(entries[i]));
      entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      found.push_back(entries[i++]);
    }
  }
}

bool find(Entries const& entries, void const* thing, LayerPosition& found) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (LayerArrangement::thing(entries[i]) == thing) {
      found.below = static_cast<int>(i);
      found.count = static_cast<int>(entries.size());
      return true;
    }
    if (!find(entries[i].entries, thing, found)) continue;
    if (!found.group) found.group = entries[i].group;
    return true;
  }
  return false;
}

}  // namespace

LayerArrangement::LayerArrangement(QVector<SysCarto::LayerRow> const& rows) {
  for (SysCarto::LayerRow const& row : rows) {
    if (row.layer || row.group) chosen_ << row.thing();
    if (!maps_.contains(row.map)) maps_ << row.map;
  }
}

void const* LayerArrangement::thing(LayerEntry const& entry) {
  return entry.group ? static_cast<void const*>(entry.group.get()) : entry.layer.get();
}

Entries* LayerArrangement::entries(_ptr_t<Map> const& map, LayerGroup const* group) {
  for (MapEntries& one : read_)
    if (one.map == map) return group ? entriesOfGroup(one.entries, *group) : &one.entries;
  read_.push_back({map, SysCarto::entriesOf(*map)});
  return entries(map, group);
}

Entries LayerArrangement::chosenOf(_ptr_t<Map> const& map, bool takes) {
  Entries found;
  collect(*entries(map), chosen_, takes, found);
  return found;
}

void LayerArrangement::change(QString const& step) const {
  QVector<SysCarto::LayerList> lists;
  for (MapEntries const& one : read_) {
    lists.append({one.map, {}});
    addEntries(lists.last(), one.entries);
  }
  SysCarto::MapSteps::changeLayers(step, lists);
}

LayerPosition positionOf(SysCarto::LayerRow const& row) {
  LayerPosition position;
  find(SysCarto::entriesOf(*row.map), row.thing(), position);
  return position;
}
