#pragma once

#include "host/SysCarto/layout/PageAids.h"

#include <SysCarto/Page.h>

namespace SysCarto {

struct SYSCARTO_EXPORT PageHost {
  /// Makes the page one of the custom form with a size of its own, in centimetres, portrait way up; that of `Paper` is
  /// left as it is. A negative size, or one that is not a number, is ignored.
  static void setCustomSize(Page& page, double widthCm, double heightCm);

  static PageAids const& aids(Page const& page);
  static void setAids(Page& page, PageAids const& aids);

  /// When what a document stores of the page was last changed (`ChangeMark`).
  static quint64 lastChange(Page const& page);
};

}  // namespace SysCarto
