#pragma once

#include "host/SysCarto/layers/FeatureStore.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <utility>
#include <vector>

namespace SysCarto {

/// Numbered boxes, found by where they lie. For sources: it brings in all of Boost.Geometry's index.
class BoxTree {
public:
  BoxTree() = default;

  /// Numbers the boxes from 0; quicker than inserting them one by one.
  explicit BoxTree(std::vector<Box> const& boxes) : tree_(entriesOf(boxes)) {}

  void insert(Box const& box, int number) { tree_.insert({boostBox(box), number}); }

  /// Calls `visit` with the number of each box that meets the rectangle, in no order, until it answers true; answers
  /// whether it did.
  template <class Visit>
  bool any(Box const& rectangle, Visit const& visit) const {
    for (auto it = tree_.qbegin(boost::geometry::index::intersects(boostBox(rectangle))); it != tree_.qend(); ++it)
      if (visit(it->second)) return true;
    return false;
  }

private:
  using Point = boost::geometry::model::point<double, 2, boost::geometry::cs::cartesian>;
  using BoostBox = boost::geometry::model::box<Point>;
  using Entry = std::pair<BoostBox, int>;

  static BoostBox boostBox(Box const& box) { return {Point(box.xmin, box.ymin), Point(box.xmax, box.ymax)}; }
  static std::vector<Entry> entriesOf(std::vector<Box> const& boxes) {
    std::vector<Entry> entries;
    entries.reserve(boxes.size());
    for (Box const& box : boxes) entries.emplace_back(boostBox(box), static_cast<int>(entries.size()));
    return entries;
  }

  boost::geometry::index::rtree<Entry, boost::geometry::index::quadratic<16>> tree_;
};

}  // namespace SysCarto
