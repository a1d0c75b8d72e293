#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layout/Series.h"
#include "host/SysCarto/maps/MapHost.h"

#include <optional>

/// The parts of a feature in the units of a map: those of a store, projected where that has another coordinate system.
/// None where it has none, or lies where the map's system shows nothing.
std::vector<std::vector<QPointF>> shapeOf(SysCarto::FeatureStore const& store, qint64 feature,
                                          QString const& storeSystem, QString const& mapSystem);

/// What the frame's map has to show of the shape of a feature, turned by degrees that an attribute holds or, along
/// lines, by those that make a line lead from left to right. A feature that a map cuts in two at the edge of the world
/// is shown where more of it lies. Nothing for a shape that is empty.
///
/// The map is asked what scale an extent has, and is as before afterwards.
std::optional<SysCarto::MapHost::Portion> portionFor(SysCarto::SeriesFrame const& frame,
                                                     std::vector<std::vector<QPointF>> const& shape, double degrees);
