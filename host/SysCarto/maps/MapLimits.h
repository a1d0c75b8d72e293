#pragma once

namespace SysCarto {

// What a map can show, in map units. A view ignores an extent beyond these, so that what it shows can be saved.
constexpr double farthestMapCoordinate = 1e12;
constexpr double smallestMapExtent = 1e-9;

}  // namespace SysCarto
