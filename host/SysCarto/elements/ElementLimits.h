#pragma once

namespace SysCarto {

/// How far a frame may lie from the page's lower left corner, in centimetres, in each direction. A frame is not moved
/// beyond, so that where it lies can be saved.
constexpr double farthestOnPageCm = 10000;

}  // namespace SysCarto
