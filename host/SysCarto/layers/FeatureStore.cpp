#include "FeatureStore.h"

#include "host/SysCarto/layers/BoxTree.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace SysCarto {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

bool isRing(Part const& part) { return part.kind == PartKind::Ring || part.kind == PartKind::FilledRing; }

// A rectangle in which the world, turned, is seen.
class Sight {
public:
  Sight(Box const& rectangle, QTransform const& turn) : rectangle_(rectangle), turn_(turn) {}

  Box world() const { return mapped(rectangle_, turn_.inverted()); }

  // A rectangle that no edge crosses lies within an area where its middle does.
  bool shows(Feature const& feature, Part const* parts) {
    if (rectangle_.contains(mapped(feature.box, turn_))) return true;
    double const x = (rectangle_.xmin + rectangle_.xmax) / 2, y = (rectangle_.ymin + rectangle_.ymax) / 2;
    bool isInside = false;
    for (Part const* part = parts; part != parts + feature.partCount; ++part) {
      Box const box = mapped(part->box, turn_);
      if (!box.meets(rectangle_)) continue;
      if (rectangle_.contains(box)) return true;
      turnVertices(*part);
      if (anyEdgeMeets(*part)) return true;
      if (isRing(*part) && SysGeometry::contains(vertices_, x, y)) isInside = !isInside;
    }
    return isInside;
  }

private:
  static Box mapped(Box const& box, QTransform const& way) {
    if (way.isIdentity()) return box;  // to the last bit
    return SysGeometry::boxOf(way.mapRect(QRectF(QPointF(box.xmin, box.ymin), QPointF(box.xmax, box.ymax))));
  }

  void turnVertices(Part const& part) {
    vertices_.clear();
    for (int i = 0; i < part.count; ++i) vertices_.push_back(turn_.map(QPointF(part.xy[2 * i], part.xy[2 * i + 1])));
  }

  bool anyEdgeMeets(Part const& part) const {
    bool isOmitted = !isRing(part);  // the first one, which would close a line
    return SysGeometry::anyEdge(vertices_, [&](QPointF const& a, QPointF const& b) {
      return !std::exchange(isOmitted, false) && !SysGeometry::clippedSegment(a, b, rectangle_).isEmpty();
    });
  }

  Box const rectangle_;
  QTransform const turn_;
  std::vector<QPointF> vertices_;  // of the part that is looked at
};

}  // namespace

FeatureStore::FeatureStore() = default;
FeatureStore::~FeatureStore() = default;

void FeatureStore::beginFeature(qint64 id) {
  currentId_ = id;
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

void FeatureStore::endFeature(int symbolClass, QString const& label, double priority, QString const& key) {
  current_.partCount = static_cast<int>(parts.size()) - current_.firstPart;
  if (current_.partCount == 0) return values.resize(features.size() * valuesPerFeature);
  current_.symbolClass = symbolClass;
  box_.add(current_.box);
  features.push_back(current_);
  ids.push_back(currentId_);
  if (!keepsLabels) return;
  labels.push_back(label);
  priorities.push_back(priority);
  keys.push_back(key);
}

int FeatureStore::classSetOf(std::vector<int> const& classes) {
  if (classes.empty()) return -1;
  auto const [known, isNew] = setNumbers_.emplace(classes, static_cast<int>(classSets.size()));
  if (isNew) classSets.push_back(classes);
  return known->second;
}

void FeatureStore::takeForm(FeatureStore const& other) {
  vertices_.clear();
  index_.reset();
  box_ = Box();
  parts.clear();
  features.clear();
  ids.clear();
  labels.clear();
  priorities.clear();
  keys.clear();
  values.clear();
  keepsLabels = other.keepsLabels;
  valuesPerFeature = other.valuesPerFeature;
  knowLargest(other.known_);
  if (classSets != other.classSets) classSets = other.classSets;
}

void FeatureStore::append(FeatureStore& other) {
  int const before = static_cast<int>(parts.size());
  parts.insert(parts.end(), other.parts.begin(), other.parts.end());
  std::vector<int> own;
  for (std::vector<int> const& classes : other.classSets) own.push_back(classSetOf(classes));
  for (Feature& feature : other.features) {
    feature.firstPart += before;
    if (!own.empty() && feature.symbolClass >= 0) feature.symbolClass = own[feature.symbolClass];
    features.push_back(feature);
  }
  ids.insert(ids.end(), other.ids.begin(), other.ids.end());
  labels.insert(labels.end(), other.labels.begin(), other.labels.end());
  priorities.insert(priorities.end(), other.priorities.begin(), other.priorities.end());
  keys.insert(keys.end(), other.keys.begin(), other.keys.end());
  values.insert(values.end(), other.values.begin(), other.values.end());
  vertices_.takeOver(other.vertices_);
  box_.add(other.box_);
}

void FeatureStore::knowLargest(std::vector<double> numbers) {
  known_ = std::move(numbers);
  largest_ = known_;
  largest_.resize(static_cast<size_t>(valuesPerFeature), nan);
}

double FeatureStore::largestValue(int number) const { return largest_.empty() ? nan : largest_[number]; }

void FeatureStore::finish() {
  knowLargest(std::move(known_));
  for (int feature = 0; feature < size(); ++feature)
    for (int i = 0; i < valuesPerFeature; ++i) largest_[i] = std::fmax(largest_[i], value(feature, i));
  parts.shrink_to_fit();
  ids.shrink_to_fit();
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

std::vector<bool> FeatureStore::classesWithin(Box const& rectangle, QTransform const& turn,
                                              std::vector<std::vector<int>> const& drawing, int count) const {
  std::vector<bool> found(count);
  if (!index_ || rectangle.isEmpty()) return found;
  Sight sight(rectangle, turn);
  std::vector<bool> seen(drawing.size());
  auto missing = drawing.size();
  index_->any(sight.world(), [&](int number) {
    Feature const& feature = features[number];
    int const own = feature.symbolClass;
    if (own < 0 || own >= static_cast<int>(drawing.size()) || seen[own] ||
        !sight.shows(feature, &parts[feature.firstPart]))
      return false;
    seen[own] = true;
    for (int const drawn : drawing[own]) found[drawn] = true;
    return --missing == 0;
  });
  return found;
}

}  // namespace SysCarto
