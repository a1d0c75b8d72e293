#pragma once

#include <SysCarto/PageLayout.h>

#include <functional>

class QPainter;

namespace SysCarto {

/// Draws a page in the order of an export: its background and its border, then the elements one over the other. `draw`
/// draws an element; those that reach none of the painter's pixels are passed over.
SYSCARTO_EXPORT void drawInPageOrder(PageLayout const& layout, QPainter& painter,
                                     SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                                     std::function<void(SysUtility::_ptr_t<Element> const&)> const& draw);

}  // namespace SysCarto
