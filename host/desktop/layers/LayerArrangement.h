#pragma once

#include "host/SysCarto/maps/LayerTree.h"

#include <QSet>

#include <list>

/// The layers of some maps while they are being arranged anew: changed as a tree, and given back as one step.
class LayerArrangement {
public:
  using Entries = std::vector<SysCarto::LayerEntry>;
  using Chosen = QSet<void const*>;  ///< layers and groups

  explicit LayerArrangement(QVector<SysCarto::LayerRow> const& rows);

  Chosen const& chosen() const { return chosen_; }

  /// The maps of the rows, each once.
  QList<SysUtility::_ptr_t<SysCarto::Map>> const& maps() const { return maps_; }

  /// Of a map as a whole, or of a group of it; null for a group that it does not have.
  Entries* entries(SysUtility::_ptr_t<SysCarto::Map> const& map, SysCarto::LayerGroup const* group = nullptr);

  /// The chosen entries of a map, without those in a chosen group, the lowest first; `takes` takes them away.
  Entries chosenOf(SysUtility::_ptr_t<SysCarto::Map> const& map, bool takes);

  void change(QString const& step) const;

  static void const* thing(SysCarto::LayerEntry const& entry);

private:
  struct MapEntries {
    SysUtility::_ptr_t<SysCarto::Map> map;
    Entries entries;
  };
  Chosen chosen_;
  QList<SysUtility::_ptr_t<SysCarto::Map>> maps_;
  std::list<MapEntries> read_;
};

/// Where an entry lies: the list of its siblings, and its place in it.
struct LayerPosition {
  SysUtility::_ptr_t<SysCarto::LayerGroup> group;  ///< empty for the map itself
  int below = -1;                                  ///< −1 where there is no such entry
  int count = 0;                                   ///< of the list
};
LayerPosition positionOf(SysCarto::LayerRow const& row);
