#pragma once

#include "DataSurvey.h"

/// Whether the areas of a layer are the land that there is within `area`, and leave the sea free: then what lies
/// around them may be drawn as water. Held against a picture of the globe's land with cells of half a degree.
bool showsLand(LayerSurvey const& layer, GlobeArea const& area);
