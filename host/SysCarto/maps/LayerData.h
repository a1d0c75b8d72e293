#pragma once

#include "host/SysGeometry/Box.h"

#include <SysCarto/Layer.h>

#include <QStringList>

#include <optional>

namespace SysCarto {

// What is asked of a layer of whatever kind about its data.

/// What they cover, in map units.
SYSCARTO_EXPORT SysGeometry::Box boxOf(Layer const& layer);

/// Why they could not be read, as a sentence; empty where they could.
SYSCARTO_EXPORT QString problemOf(Layer const& layer);

/// How much was read of what views wait for, from 0 to 1; nothing where they wait for nothing.
SYSCARTO_EXPORT std::optional<double> readShareOf(Layer const& layer);

/// As `problemOf`, for what a page would be drawn of now: what failed some time ago would be read again.
SYSCARTO_EXPORT QString failureOf(Layer const& layer);

/// What else is to be said of those that were read, as sentences.
SYSCARTO_EXPORT QStringList warningsOf(Layer const& layer);

/// The files that they come from, absolute: the layer's own first, where it has one.
SYSCARTO_EXPORT QStringList filesOf(Layer const& layer);

/// Reads them anew, for a map in a coordinate system. Answers as `problemOf`; what else is to be said is added to
/// `warnings`.
SYSCARTO_EXPORT QString readAgain(Layer& layer, QString const& mapSystem, QStringList& warnings);

}  // namespace SysCarto
