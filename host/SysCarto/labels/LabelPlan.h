#pragma once

#include "host/SysCarto/labels/LabelPlacer.h"
#include "host/SysCarto/labels/LabelSearch.h"

#include <SysCarto/Export.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace SysCarto {

class BoxTree;

/// Labels that are placed against each other, all at once.
class SYSCARTO_EXPORT LabelPlan {
public:
  /// `effort` is that of the search.
  explicit LabelPlan(int effort = 1);
  ~LabelPlan();

  /// In points of the page: what is kept free around a label, and how far labels are apart that repeat a text of a
  /// group.
  struct Room {
    double gap = 0, apart = 0;
    int group = 0;
  };

  /// In the order of importance. `rank` is the same for equally important ones, and grows.
  void add(WantedLabel label, int rank, Room const& room);

  /// Nothing is added afterwards. Goes on with placing them until that is done, as it answers, or `mayGoOn` says no.
  /// What comes of it in the end is the same however often that was.
  bool place(std::function<bool()> const& mayGoOn);

  int count() const { return static_cast<int>(labels_.size()); }
  WantedLabel const& label(int number) const { return labels_[static_cast<size_t>(number)].wanted; }

  /// How a label is placed, in the end; null where it is not.
  LabelWay const* chosen(int number) const;

  /// Lets go of the ways of a label, which has none then.
  void forget(int number);

private:
  struct Label {
    WantedLabel wanted;
    Room room;
    int first;  // of its ways
    Box box;    // of all that matters to others
  };
  struct Way {
    LabelWay const* given;
    std::vector<LabelShape> shapes, spaced;  // of its pieces and its leader, and with the gap around them
    Box box;                                 // around them
  };

  void addWays(Label& label);
  void findConflicts(int number);
  void findConflicts(Label const& upper, Label const& lower);
  bool isTooMuch() const;
  static bool meet(std::vector<LabelShape> const& a, std::vector<LabelShape> const& b);
  static bool covers(Way const& way, Box const& box);
  static bool hide(WantedLabel const& a, WantedLabel const& b);
  static bool isNear(Way const& a, Way const& b, double distance);

  std::deque<Label> labels_;
  std::vector<Way> ways_;
  LabelSearch search_;
  std::unique_ptr<BoxTree> const tree_;  // of the labels whose conflicts are known
  int withWays_ = 0, next_ = 0;
  std::int64_t looks_ = 0;
};

/// Places the labels of the layers of a map. Those of a layer that comes before are more important than all of the
/// next, and in a layer those of a higher priority.
class SYSCARTO_EXPORT MapLabelling {
public:
  /// Layers that work on one page, and live as long as this. `effort` is that of the search.
  MapLabelling(std::vector<LabelPlacer*> layers, int effort);

  /// Goes on until it is done, as it answers, or `mayGoOn` says no. What was placed is in the layers then.
  bool goOn(std::function<bool()> const& mayGoOn);

private:
  bool prepare(std::function<bool()> const& mayGoOn);
  bool addLabels();
  bool finish(std::function<bool()> const& mayGoOn);

  std::vector<LabelPlacer*> const layers_;
  MarkIndex::Marks given_;
  std::optional<MarkIndex> marks_;  // of these, once all are there
  size_t prepared_ = 0;             // steps
  LabelPlan plan_;
  std::vector<LabelPlacer*> owners_;  // of the labels of the plan
  size_t layer_ = 0;                  // whose labels are added
  int rank_ = 0;
  std::optional<double> priority_;  // of the label before, of the same layer
  int finished_ = 0;                // labels, those that are placed before those that are not
};

}  // namespace SysCarto
