#pragma once

#include <SysCarto/Element.h>

#include <QPointF>

namespace SysCarto {

/// Whether the element can be turned by any angle: texts, pictures, markers, lines and polygons can, and groups of
/// these. Rectangles, ellipses and frames stand upright.
SYSCARTO_EXPORT bool canTurn(Element const& element);

/// Turns it counterclockwise about a point, in the units of its container. What can't be turned stays as it is.
SYSCARTO_EXPORT void turn(Element& element, QPointF const& about, double degrees);

}  // namespace SysCarto
