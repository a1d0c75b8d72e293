#pragma once

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/layers/WatchedReading.h"

/// Opens a table, and makes it ready to give single rows. Of some files each of these means to read them to the end, so
/// it is done on another thread while `progress` is asked. An empty pointer on a failure, with a sentence in `error`,
/// or without one where `progress` wanted no more.
std::unique_ptr<SysCarto::FeatureTable> openTable(SysCarto::SourceSettings const& source,
                                                  SysCarto::ReadProgress const& progress, QString& error);

/// As `FeatureScan::open`, in the same way.
std::unique_ptr<SysCarto::FeatureScan> openScan(SysCarto::SourceSettings const& source,
                                                SysCarto::FeatureScan::Wanted const& wanted,
                                                SysCarto::ReadProgress const& progress, QString& error);
