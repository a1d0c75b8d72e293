#pragma once

#include "host/SysGeometry/Box.h"

#include <vector>

/// The boxes of the features of a layer, of which there may be any number: all of them, or each second, fourth…
class BoxSample {
public:
  void add(SysGeometry::Box const& box) {
    all_.add(box);
    if (seen_++ % step_ != 0) return;
    if (boxes_.size() >= most) thin();
    if ((seen_ - 1) % step_ == 0) boxes_.push_back(box);
  }

  SysGeometry::Box const& all() const { return all_; }
  std::vector<SysGeometry::Box> const& boxes() const { return boxes_; }
  int step() const { return step_; }

private:
  static constexpr size_t most = 1 << 16;

  void thin() {
    for (size_t i = 0; 2 * i < boxes_.size(); ++i) boxes_[i] = boxes_[2 * i];
    boxes_.resize((boxes_.size() + 1) / 2);
    step_ *= 2;
  }

  std::vector<SysGeometry::Box> boxes_;
  SysGeometry::Box all_;  // of all that there are
  long long seen_ = 0;
  int step_ = 1;
};

/// Where the features of a layer are, but for few that lie far from all others, as one whose coordinates are wrong.
struct Bulk {
  SysGeometry::Box box;
  int outliers = 0;                          ///< about as many
  std::vector<SysGeometry::Box> boxes = {};  ///< of the sample, those that are no outliers

  /// Outliers are no more than one in a hundred, or one in less, of at least thirty features; each lies three times
  /// farther from the others than these reach.
  static Bulk of(BoxSample const& sample);
};
