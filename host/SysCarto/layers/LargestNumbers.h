#pragma once

#include <vector>

class OGRLayer;

namespace SysCarto {

class Condition;
class FeatureEvaluator;
class ReadWatch;
class Renderer;
class SourceBounds;

/// Whether how features are drawn depends on the largest of their numbers.
bool followsLargest(Renderer const& renderer);

/// The largest of each number that symbols follow, of all features of a layer that have a place and that the condition
/// admits, found without their geometries; nothing where the watch ended it. What goes beyond the bounds, where there
/// are any, is left out.
std::vector<double> largestNumbers(OGRLayer& layer, Condition const& condition, Renderer const& renderer,
                                   FeatureEvaluator const& evaluator, SourceBounds const* bounds, ReadWatch& watch);

}  // namespace SysCarto
