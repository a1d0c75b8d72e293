#include "FeatureWindows.h"

#include <algorithm>
#include <iterator>

namespace SysCarto {

namespace {

constexpr double marginShare = 1.0 / 32;  // what is read around, for symbols that reach farther and small steps
constexpr std::size_t maxWindows = 3;
constexpr std::size_t maxOlderBytes = 32 << 20;
constexpr double sameCell = 1 + 1e-9;

}  // namespace

std::shared_ptr<FeaturePack const> FeatureWindows::window(Box const& area, double unitsPerPixel, Read const& read) {
  double const cell = ThinningGrid::forPixels(unitsPerPixel).cell();
  if (!(cell > 0) || area.isEmpty()) return nullptr;
  auto const fits = [&](auto const& one) { return one->cell() <= cell * sameCell && one->area().contains(area); };
  auto const known = std::find_if(kept_.begin(), kept_.end(), fits);
  if (known != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, known);
    return kept_.front();
  }
  std::size_t older = 0, count = 1;
  for (auto one = kept_.begin(); one != kept_.end();) {
    older += (*one)->bytes();
    one = ++count > maxWindows || older > maxOlderBytes ? kept_.erase(one) : std::next(one);
  }
  std::shared_ptr<FeaturePack const> made =
      read(area.grown(std::max(area.xmax - area.xmin, area.ymax - area.ymin) * marginShare), cell);
  if (made) kept_.push_front(made);
  return made;
}

}  // namespace SysCarto
