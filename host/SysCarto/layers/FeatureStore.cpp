#include "FeatureStore.h"

#include "host/SysCarto/layers/BoxTree.h"

#include <algorithm>

namespace SysCarto {

FeatureStore::FeatureStore() = default;
FeatureStore::~FeatureStore() = default;

void FeatureStore::beginFeature() {
  current_ = Feature{static_cast<int>(parts.size()), 0, -1, Box()};
  polygonStarts_ = false;
}

void FeatureStore::addPart(PartKind kind, double const* xy, int count) {
  double* const room = vertices_.room(count);
  std::copy_n(xy, 2 * static_cast<size_t>(count), room);
  vertices_.keep(count);
  Part part{room, count, kind, polygonStarts_, Box(), nullptr};
  part.box.add(xy, count);
  current_.box.add(part.box);
  parts.push_back(part);
  polygonStarts_ = false;
}

void FeatureStore::endFeature(int symbolClass, QString const& label, double priority) {
  current_.partCount = static_cast<int>(parts.size()) - current_.firstPart;
  if (current_.partCount == 0) return;
  current_.symbolClass = symbolClass;
  box_.add(current_.box);
  features.push_back(current_);
  if (!keepsLabels) return;
  labels.push_back(label);
  priorities.push_back(priority);
}

void FeatureStore::append(FeatureStore& other) {
  int const before = static_cast<int>(parts.size());
  parts.insert(parts.end(), other.parts.begin(), other.parts.end());
  for (Feature& feature : other.features) {
    feature.firstPart += before;
    features.push_back(feature);
  }
  labels.insert(labels.end(), other.labels.begin(), other.labels.end());
  priorities.insert(priorities.end(), other.priorities.begin(), other.priorities.end());
  vertices_.takeOver(other.vertices_);
  box_.add(other.box_);
}

void FeatureStore::finish() {
  parts.shrink_to_fit();
  std::vector<Box> boxes;
  boxes.reserve(features.size());
  for (Feature const& feature : features) boxes.push_back(feature.box);
  index_ = std::make_unique<BoxTree>(boxes);
}

std::vector<int> FeatureStore::query(Box const& rectangle) const {
  std::vector<int> found;
  if (!index_ || rectangle.isEmpty()) return found;
  index_->any(rectangle, [&](int feature) {
    found.push_back(feature);
    return false;
  });
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace SysCarto
