#pragma once

#include "Coverage.h"

#include <SysCarto/Map.h>

/// The page on which the map of a page's feature goes on in a direction of the compass, “north” or “southwest”, where
/// north is up on the page: that of the area at this edge of the map, the middle of the edge first. Of points and lines
/// it is the nearest one that lies in that direction. 0 for none; nothing for a word that is no direction.
std::optional<int> neighbourOf(Coverage const& coverage, int page, QString const& direction, SysCarto::Map const& map);
