#pragma once

#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/layers/WatchedReading.h"

#include <functional>

class OGRFeature;

/// Reads the features of a source that have a geometry. False, with a sentence in `problem`, where they can't be read,
/// or not to their end; and without one where `progress` wanted no more.
bool scanFeatures(SysCarto::SourceSettings const& source, SysCarto::ReadProgress const& progress, QString& problem,
                  std::function<void(OGRFeature const&)> const& use);
