#include "FeatureStore.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>

namespace SysCarto {

namespace {

namespace bg = boost::geometry;
using BoostPoint = bg::model::point<double, 2, bg::cs::cartesian>;
using BoostBox = bg::model::box<BoostPoint>;
using Entry = std::pair<BoostBox, int>;

BoostBox boostBox(Box const& box) { return {BoostPoint(box.xmin, box.ymin), BoostPoint(box.xmax, box.ymax)}; }

}  // namespace

void Box::add(double x, double y) {
  xmin = std::min(xmin, x);
  xmax = std::max(xmax, x);
  ymin = std::min(ymin, y);
  ymax = std::max(ymax, y);
}

void Box::add(double const* xy, int count) {
  for (int i = 0; i < count; ++i) add(xy[2 * i], xy[2 * i + 1]);
}

void Box::add(Box const& other) {
  if (other.isEmpty()) return;
  add(other.xmin, other.ymin);
  add(other.xmax, other.ymax);
}

struct FeatureStore::Index {
  bg::index::rtree<Entry, bg::index::rstar<16>> tree;
};

FeatureStore::FeatureStore() = default;
FeatureStore::~FeatureStore() = default;

void FeatureStore::beginFeature() {
  current_ = Feature{static_cast<int>(parts.size()), 0, -1, Box()};
  polygonStarts_ = false;
}

void FeatureStore::addPart(PartKind kind, double const* coordinates, int count) {
  Part part{static_cast<int>(xy.size() / 2), count, kind, polygonStarts_, Box()};
  part.box.add(coordinates, count);
  xy.insert(xy.end(), coordinates, coordinates + 2 * static_cast<size_t>(count));
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

void FeatureStore::finish() {
  xy.shrink_to_fit();
  parts.shrink_to_fit();
  std::vector<Entry> entries;
  entries.reserve(features.size());
  for (int i = 0; i < size(); ++i) entries.emplace_back(boostBox(features[i].box), i);
  index_ = std::make_unique<Index>(Index{decltype(Index::tree)(entries)});
}

std::vector<int> FeatureStore::query(Box const& rectangle) const {
  std::vector<int> found;
  if (!index_ || rectangle.isEmpty()) return found;
  auto const take = [&](Entry const& entry) { found.push_back(entry.second); };
  for (auto it = index_->tree.qbegin(bg::index::intersects(boostBox(rectangle))); it != index_->tree.qend(); ++it)
    take(*it);
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace SysCarto
