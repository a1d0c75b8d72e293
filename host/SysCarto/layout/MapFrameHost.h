#pragma once

#include <SysCarto/MapFrameElement.h>

namespace SysCarto {

struct MapFrameHost {
  /// Gives a frame that takes the place of another one its lock: they are locked and unlocked together, as clones are.
  static void shareLock(MapFrameElement& frame, MapFrameElement const& former);
};

}  // namespace SysCarto
