#include "FeatureStore.h"

#include "host/SysCarto/layers/BoxTree.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <utility>

namespace SysCarto {

namespace {

struct Vertex {
  double x, y;
};

// The vertices of a part as the algorithms of geometry want them.
struct Vertices {
  explicit Vertices(Part const& part) : first(reinterpret_cast<Vertex const*>(part.xy)), count(part.count) {}
  Vertex const* begin() const { return first; }
  Vertex const* end() const { return first + count; }
  bool empty() const { return count == 0; }
  Vertex const& back() const { return first[count - 1]; }

  Vertex const* first;
  int count;
};

bool isRing(Part const& part) { return part.kind == PartKind::Ring || part.kind == PartKind::FilledRing; }

// Of a ring, its edges.
bool meetsLine(Part const& part, Box const& rectangle) {
  Vertices const vertices(part);
  if (vertices.count == 1) return rectangle.contains(part.xy[0], part.xy[1]);
  bool isFirst = !isRing(part);  // a line has no edge that closes it
  return SysGeometry::anyEdge(vertices, [&](Vertex const& a, Vertex const& b) {
    if (std::exchange(isFirst, false)) return false;
    return !SysGeometry::clippedSegment({a.x, a.y}, {b.x, b.y}, rectangle).isEmpty();
  });
}

}  // namespace

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

std::vector<bool> FeatureStore::classesWithin(Box const& rectangle, int count) const {
  std::vector<bool> found(count);
  int missing = count;
  if (!index_ || rectangle.isEmpty()) return found;
  index_->any(rectangle, [&](int number) {
    Feature const& feature = features[number];
    int const own = feature.symbolClass;
    if (own < 0 || own >= count || found[own] || !meets(feature, rectangle)) return false;
    found[own] = true;
    return --missing == 0;
  });
  return found;
}

// A rectangle that no edge crosses lies within an area where its middle does.
bool FeatureStore::meets(Feature const& feature, Box const& rectangle) const {
  if (rectangle.contains(feature.box)) return true;
  double const x = (rectangle.xmin + rectangle.xmax) / 2, y = (rectangle.ymin + rectangle.ymax) / 2;
  bool isInside = false;
  for (int i = feature.firstPart; i < feature.firstPart + feature.partCount; ++i) {
    Part const& part = parts[i];
    if (!part.box.meets(rectangle)) continue;
    if (rectangle.contains(part.box) || meetsLine(part, rectangle)) return true;
    if (isRing(part) && SysGeometry::contains(Vertices(part), x, y)) isInside = !isInside;
  }
  return isInside;
}

}  // namespace SysCarto
