#pragma once

#include "host/SysCarto/labels/LabelIndex.h"

#include <QPointF>

#include <vector>

namespace SysCarto {

/// The bow along the length of an area on which a name can lie, from left to right: through the middle of the widest
/// part and as far as that reaches. An area that has no length to speak of has a level line. Empty for none. `rings` by
/// the even-odd rule.
std::vector<QPointF> spineOf(Rings const& rings);

/// Where a level line meets an area, ascending: from each first to each second place it lies within.
std::vector<double> crossings(Rings const& rings, double y);

}  // namespace SysCarto
