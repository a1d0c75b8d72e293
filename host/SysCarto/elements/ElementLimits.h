#pragma once

namespace SysCarto {

// Nothing is moved farther than it may lie, so that where it lies can be saved.

/// How far a frame may lie from the page's lower left corner, in centimetres, in each direction.
constexpr double farthestOnPageCm = 10000;

/// The same of graphics, from the origin of what they lie on: in page centimetres, or in map units on a map.
constexpr double farthestGraphic = 1e12;

}  // namespace SysCarto
