#pragma once

#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/labels/LabelSearch.h"

#include <SysCarto/Export.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

namespace SysCarto {

/// Labels that are placed against each other, all at once.
class SYSCARTO_EXPORT LabelPlan {
public:
  /// In points of the page: what is kept free around a label, and how far labels are apart that repeat a text of a
  /// group.
  struct Room {
    double gap = 0, apart = 0;
    int group = 0;
  };

  /// In the order of importance. `rank` is the same for equally important ones, and grows.
  void add(WantedLabel label, int rank, Room const& room);

  /// Once, for all that were added.
  void place(std::function<bool()> const& isCancelled);

  int count() const { return static_cast<int>(labels_.size()); }
  WantedLabel const& label(int number) const { return labels_[static_cast<size_t>(number)].wanted; }

  /// How a label is placed; null where it is not.
  LabelWay const* chosen(int number) const;

private:
  struct Label {
    WantedLabel wanted;
    Room room;
    int first;  // of its ways
    Box box;    // of all that matters to others
  };
  struct Way {
    int label;
    LabelWay const* given;
    std::vector<LabelShape> shapes, spaced;  // of its pieces and its leader, and with the gap around them
    Box box;                                 // around them
  };

  void addWays(Label& label);
  void findConflicts(std::function<bool()> const& isCancelled);
  void findConflicts(Label const& upper, Label const& lower);
  bool conflict(Way const& upper, Way const& lower) const;
  static bool meet(std::vector<LabelShape> const& a, std::vector<LabelShape> const& b);
  static bool covers(Way const& way, Box const& box);
  static bool hide(WantedLabel const& a, WantedLabel const& b);
  bool repeats(Way const& a, Way const& b) const;

  std::deque<Label> labels_;
  std::vector<Way> ways_;
  LabelSearch search_;
  int withWays_ = 0;
  std::int64_t looks_ = 0;
};

/// Places the labels of the layers of a map. Those of a layer that comes before are more important than all of the
/// next, and in a layer those of a higher priority. They work on one page; what was placed is in them.
void placeLabels(std::vector<LabelPlacer*> const& layers, std::function<bool()> const& isCancelled);

}  // namespace SysCarto
