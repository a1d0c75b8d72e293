#pragma once

#include "host/SysCarto/layers/FeatureStore.h"

#include <vector>

namespace SysCarto {

/// The numbers of the features that are drawn within `reach` map units of a place, the nearest first, and of those that
/// are as near the one first that is drawn last. A point or a line is as near as its nearest place; an area is where it
/// has the place in it, and a hole is none of it.
SYSCARTO_EXPORT std::vector<int> featuresAt(FeatureStore const& store, double x, double y, double reach);

/// The numbers of the features that have these numbers in their source, ascending.
SYSCARTO_EXPORT std::vector<int> featuresOf(FeatureStore const& store, std::vector<qint64> ids);

}  // namespace SysCarto
