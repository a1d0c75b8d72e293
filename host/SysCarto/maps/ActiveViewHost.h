#pragma once

#include "host/SysCarto/maps/ViewSurface.h"

#include <SysCarto/ActiveView.h>

namespace SysCarto {

/// The screen on which a view is shown: borrowed, or null. The desktop sets it, and takes it away before it ends.
struct SYSCARTO_EXPORT ActiveViewHost {
  static void setSurface(ActiveView& view, ViewSurface* surface);
  static ViewSurface* surface(ActiveView const& view);
};

}  // namespace SysCarto
