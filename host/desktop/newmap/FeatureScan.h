#pragma once

#include <QString>

#include <functional>

class OGRFeature;

/// Reads the features of a file's layer that have a geometry and that a condition, as of a layer's source, admits; an
/// empty condition admits all. False, with a sentence in `problem`, where they can't be read, or not to their end.
bool scanFeatures(QString const& file, QString const& layer, QString const& where, QString& problem,
                  std::function<void(OGRFeature const&)> const& use);
