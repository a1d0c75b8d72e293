#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysUtility/Archive.h"

#include <SysCarto/Element.h>
#include <SysCarto/FrameProperties.h>
#include <SysCarto/Page.h>

namespace SysCarto {

/// Describes an element in the archive's own object, its kind in the field "type". Reading makes a new element; after a
/// problem the pointer is as before. The context's maps must all be there, since elements refer to them by number.
SYSCARTO_EXPORT void describeElement(SysUtility::Archive& archive, SysUtility::_ptr_t<Element>& element,
                                     DocumentContext& context);

/// Describes border, background and shadow; what is missing reads as an empty pointer.
SYSCARTO_EXPORT void describeFrame(SysUtility::Archive& archive, IFrameProperties& frame);

SYSCARTO_EXPORT void describePage(SysUtility::Archive& archive, Page& page);

}  // namespace SysCarto
