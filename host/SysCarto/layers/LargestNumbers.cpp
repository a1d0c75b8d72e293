#include "LargestNumbers.h"

#include "Condition.h"
#include "DerivedLayer.h"
#include "FeatureEvaluator.h"
#include "FeatureStore.h"
#include "Renderer.h"
#include "SourceBounds.h"
#include "WatchedReading.h"
#include "indexed/SourceIndexes.h"

#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace SysCarto {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct Largest {
  double number = nan;
  GIntBig feature = OGRNullFID;
};

bool hasPlace(OGRFeature const& feature) { return feature.GetGeometryRef() && !feature.GetGeometryRef()->IsEmpty(); }

bool asksForGeometry(Condition const& condition, Renderer const& renderer) {
  auto const mentions = [](QString const& text) { return text.contains(QLatin1String("OGR_"), Qt::CaseInsensitive); };
  auto const& rules = renderer.settings().classes;
  return mentions(condition.fields().join(QLatin1Char(' '))) ||
         std::any_of(rules.begin(), rules.end(), [&](SymbolClass const& one) { return mentions(one.filter); }) ||
         std::any_of(renderer.varied().begin(), renderer.varied().end(),
                     [&](VariedProperty const& one) { return mentions(one.expression); });
}

void ignoreGeometries(OGRLayer& layer, bool isIgnored) {
  char const* const geometry[] = {"OGR_GEOMETRY", "OGR_STYLE", nullptr};
  if (layer.TestCapability(OLCIgnoreFields))
    layer.SetIgnoredFields(isIgnored ? const_cast<char const**>(geometry) : nullptr);
}

// The largest with the feature that has it; of all features, or of those with a place.
std::vector<Largest> pass(OGRLayer& layer, Condition const& condition, FeatureEvaluator const& evaluator, bool ofAll,
                          SourceBounds const* admitted, ReadWatch& watch) {
  std::optional<SourceBounds> bounds;
  if (admitted) bounds = *admitted;
  std::vector<Largest> largest;
  FeatureStore store;
  layer.ResetReading();
  while (OGRFeatureUniquePtr const feature{layer.GetNextFeature()}) {
    if (!watch.goesOn()) return {};
    if (bounds && !bounds->admits(*feature)) break;
    if ((!ofAll && !hasPlace(*feature)) || !condition.admits(*feature)) continue;
    store.values.clear();
    evaluator.place(*feature, store);
    largest.resize(store.values.size());
    for (size_t i = 0; i < largest.size(); ++i)
      if (!std::isnan(store.values[i]) && !(store.values[i] <= largest[i].number))
        largest[i] = {store.values[i], feature->GetFID()};
  }
  return largest;
}

}  // namespace

bool followsLargest(Renderer const& renderer) {
  auto const& varied = renderer.varied();
  return std::any_of(varied.begin(), varied.end(),
                     [](VariedProperty const& one) { return one.kind == VariedProperty::Kind::Size; });
}

// A row without a place, such as one of sums, is not drawn. Where one has a largest number, geometries are read after
// all.
std::vector<double> largestNumbers(OGRLayer& layer, Condition const& condition, Renderer const& renderer,
                                   FeatureEvaluator const& evaluator, SourceBounds const* bounds, ReadWatch& watch) {
  bool const isPlain = !asksForGeometry(condition, renderer);
  readInAnyOrder(layer);
  ignoreGeometries(layer, isPlain);
  std::vector<Largest> largest = pass(layer, condition, evaluator, isPlain, bounds, watch);
  ignoreGeometries(layer, false);
  bool const isPlaced = std::all_of(largest.begin(), largest.end(), [&](Largest const& one) {
    OGRFeatureUniquePtr const feature(one.feature != OGRNullFID ? layer.GetFeature(one.feature) : nullptr);
    return !feature || hasPlace(*feature);
  });
  if (isPlain && !isPlaced) largest = pass(layer, condition, evaluator, false, bounds, watch);
  if (watch.wasStopped()) return {};
  std::vector<double> numbers;
  for (Largest const& one : largest) numbers.push_back(one.number);
  numbers.resize(renderer.varied().size(), nan);
  return numbers;
}

}  // namespace SysCarto
