#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <memory>
#include <vector>

namespace SysCarto {

using SysGeometry::Ring;
using SysGeometry::Rings;

/// A place that a label takes: an upright box, or a box that is turned, or any area. In points of the page, y upwards.
struct LabelShape {
  Box box;      ///< around the whole
  Rings rings;  ///< empty for an upright box

  static LabelShape upright(Box const& box) { return {box, {}}; }

  /// A box about a centre, turned counterclockwise.
  static LabelShape turned(QPointF const& centre, double width, double height, double degrees);
  static LabelShape area(Rings rings);

  Rings outline() const;
};

/// True where the two share a point.
bool intersects(LabelShape const& a, LabelShape const& b);

/// What has been placed on a page, for quick answers to whether a place is free.
class LabelIndex {
public:
  LabelIndex();
  ~LabelIndex();
  LabelIndex(LabelIndex const&) = delete;
  LabelIndex& operator=(LabelIndex const&) = delete;

  void add(LabelShape shape);
  bool isFree(LabelShape const& shape) const;

private:
  std::unique_ptr<BoxTree> tree_;
  std::vector<LabelShape> shapes_;
};

/// The marks of points, known before any label is placed.
class MarkIndex {
public:
  struct Marks {
    std::vector<Box> boxes;
    std::vector<int> weights;

    void add(Box const& box, int weight) {
      boxes.push_back(box);
      weights.push_back(weight);
    }
  };
  explicit MarkIndex(Marks const& marks);
  ~MarkIndex();

  /// How much the marks weigh that meet the box, counted up to `most`.
  int count(Box const& box, int most) const;

private:
  std::unique_ptr<BoxTree> tree_;
  std::vector<int> const weights_;
};

}  // namespace SysCarto
