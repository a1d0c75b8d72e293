#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/ThinningGrid.h"

#include <deque>
#include <vector>

namespace SysCarto {

/// The features of a store with no more vertices than a resolution can show. A feature is thinned when it is first
/// asked for, and kept until the resolution changes. All tiles of a page get the same lines.
class SYSCARTO_EXPORT ThinnedFeatures {
public:
  explicit ThinnedFeatures(FeatureStore const& store) : store_(store) {}

  /// Map units on a pixel. Resolutions that differ by rounding only count as one.
  void setResolution(double unitsPerPixel);

  /// The parts of a feature, thinned; those too small to be seen are left out, but of an area one of them, in the least
  /// size. Valid until the next call.
  struct Range {
    Part const* begin_;
    Part const* end_;
    Part const* begin() const { return begin_; }
    Part const* end() const { return end_; }
  };
  Range parts(int feature);

  /// What a feature covers, as it is in the store.
  Box const& box(int feature) const { return store_.features[feature].box; }

private:
  struct Place {
    int firstPart = -1;
    int partCount = 0;
  };
  void thin(int feature);
  void keepMark(Feature const& feature);

  FeatureStore const& store_;
  ThinningGrid grid_;
  double resolution_ = 0;
  std::vector<Place> places_;
  std::vector<Part> parts_;
  VertexPool vertices_;
  std::deque<std::vector<Box>> stretches_;  // of the parts that are long enough
};

}  // namespace SysCarto
