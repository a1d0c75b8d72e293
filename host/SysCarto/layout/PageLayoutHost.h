#pragma once

#include <SysCarto/PageLayout.h>

namespace SysCarto {

struct SYSCARTO_EXPORT PageLayoutHost {
  /// Takes the place of a layout whose maps it was given: where the focus is open, it stays where it was there, and
  /// surrounds whose map no data frame shows follow the focus map.
  static void succeed(PageLayout& layout, PageLayout const& former);

  /// When the layout's settings, its page or its elements were last changed outside the history's steps (`ChangeMark`).
  /// The focus counts for nothing: it is told by `GetFocusMap`.
  static quint64 lastChange(PageLayout const& layout);
};

}  // namespace SysCarto
