#pragma once

#include "Coverage.h"

/// The page whose feature lies next to that of a page in a direction of the compass, “north” or “southwest”, where
/// north is up on the page; 0 for none. Only what reaches into `shown`, an area in map units, counts: what a reader
/// sees go on beyond the edge of the map. Nothing for a word that is no direction.
std::optional<int> neighbourOf(Coverage const& coverage, int page, QString const& direction,
                               SysGeometry::Box const& shown, double degreesTurned);
