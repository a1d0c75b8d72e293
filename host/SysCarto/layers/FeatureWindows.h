#pragma once

#include "host/SysCarto/layers/FeaturePack.h"

#include <functional>
#include <list>
#include <memory>

namespace SysCarto {

/// The windows of a layer that were read last. What lies within one of them, and is no finer, needs no reading.
class FeatureWindows {
public:
  /// Reads what meets an area of the map, thinned to a cell; an empty pointer where that was given up.
  using Read = std::function<std::unique_ptr<FeaturePack>(Box const& area, double cell)>;

  /// The features in an area, or around it, as pixels of so many map units show them.
  std::shared_ptr<FeaturePack const> window(Box const& area, double unitsPerPixel, Read const& read);

  void clear() { kept_.clear(); }

private:
  std::list<std::shared_ptr<FeaturePack const>> kept_;  // the one that was asked for last first
};

}  // namespace SysCarto
