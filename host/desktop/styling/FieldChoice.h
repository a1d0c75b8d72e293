#pragma once

#include "DataSurvey.h"

/// Which fields of a layer say what. Each answers null where none looks like it.

/// The names of the features.
FieldSurvey const* nameField(LayerSurvey const& layer);

/// How large or important they are, more is larger.
FieldSurvey const* sizeField(LayerSurvey const& layer);

/// Of what kind they are: a few values, each of several features.
FieldSurvey const* classField(LayerSurvey const& layer);

/// A number that may be compared between areas of different size: a density, a share, an index.
FieldSurvey const* rateField(LayerSurvey const& layer);
