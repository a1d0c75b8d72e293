#pragma once

#include "host/SysGeometry/Box.h"

#include <vector>

namespace SysDisplay {

/// The vertices of a ring or a line in world coordinates, owned by someone else. The first may be repeated at the end
/// of a ring.
struct WorldRun {
  static constexpr int stretchLength = 64;

  double const* xy;  ///< pairs, x first
  int count;

  /// For each `stretchLength` vertices, what they and the next one cover (of a ring, the first one follows the last).
  /// So drawing a part of the run costs what is in it. Null where that is not known; then every vertex is looked at.
  SysGeometry::Box const* stretches = nullptr;

  int stretchCount() const { return (count + stretchLength - 1) / stretchLength; }
};

/// What a run's `stretches` are to be. Empty for a run of three or less, since the neighbours of one that is needed are
/// needed, too.
inline std::vector<SysGeometry::Box> stretchesOf(WorldRun const& run) {
  int const count = run.stretchCount();
  if (count < 4) return {};
  std::vector<SysGeometry::Box> boxes(count);
  for (int i = 0; i < run.count; ++i) {
    double const x = run.xy[2 * i], y = run.xy[2 * i + 1];
    int const stretch = i / WorldRun::stretchLength;
    boxes[stretch].add(x, y);
    if (i % WorldRun::stretchLength == 0) boxes[(stretch + count - 1) % count].add(x, y);
  }
  return boxes;
}

}  // namespace SysDisplay
