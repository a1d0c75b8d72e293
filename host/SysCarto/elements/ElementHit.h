#pragma once

#include <SysCarto/Element.h>

namespace SysCarto {

/// Whether who points at `place`, a small rectangle in the container's units, points at the element. A line, an area
/// and the members of a group are met where they are drawn: without a fill on the outline alone. Everything else is met
/// anywhere in its rectangle.
SYSCARTO_EXPORT bool isHit(Element const& element, SysGeometry::Envelope const& place,
                           SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);

}  // namespace SysCarto
