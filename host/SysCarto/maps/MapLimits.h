#pragma once

namespace SysCarto {

// What a map can show, in map units. A view ignores an extent beyond these, so that what it shows can be saved.
constexpr double maxMapCoordinate = 1e12;
constexpr double minMapExtent = 1e-9;

}  // namespace SysCarto
