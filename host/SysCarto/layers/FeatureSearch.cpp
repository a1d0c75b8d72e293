#include "FeatureSearch.h"

#include "host/SysGeometry/PlaneGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace SysCarto {

namespace {

constexpr double nowhere = std::numeric_limits<double>::infinity();

double distanceToLine(Part const& part, double x, double y) {
  double squared = nowhere;
  double const* const xy = part.xy;
  if (part.count == 1) squared = (xy[0] - x) * (xy[0] - x) + (xy[1] - y) * (xy[1] - y);
  for (int i = 2; i < 2 * part.count; i += 2)
    squared = std::min(squared, SysGeometry::squaredDistanceToSegment(xy[i - 2], xy[i - 1], xy[i], xy[i + 1], x, y));
  return std::sqrt(squared);
}

double distanceToPoints(Part const& part, double x, double y) {
  double distance = nowhere;
  for (int i = 0; i < 2 * part.count; i += 2)
    distance = std::min(distance, std::hypot(part.xy[i] - x, part.xy[i + 1] - y));
  return distance;
}

bool isInRing(Part const& part, double x, double y) {
  bool isInside = false;
  double const* const xy = part.xy;
  for (int i = 0, before = 2 * part.count - 2; i < 2 * part.count; before = i, i += 2)
    if ((xy[i + 1] > y) != (xy[before + 1] > y) &&
        x < xy[i] + (xy[before] - xy[i]) * (y - xy[i + 1]) / (xy[before + 1] - xy[i + 1]))
      isInside = !isInside;
  return isInside;
}

double distanceTo(FeatureStore const& store, Feature const& feature, double x, double y) {
  double distance = nowhere;
  bool isInside = false;
  for (int i = feature.firstPart; i < feature.firstPart + feature.partCount; ++i) {
    Part const& part = store.parts[static_cast<size_t>(i)];
    bool const isRing = part.kind == PartKind::Ring || part.kind == PartKind::FilledRing;
    if (isRing && part.box.contains(x, y) && isInRing(part, x, y)) isInside = !isInside;
    if (part.kind == PartKind::Line) distance = std::min(distance, distanceToLine(part, x, y));
    if (part.kind == PartKind::Point) distance = std::min(distance, distanceToPoints(part, x, y));
  }
  return isInside ? 0 : distance;
}

}  // namespace

std::vector<int> featuresAt(FeatureStore const& store, double x, double y, double reach) {
  std::vector<std::pair<double, int>> found;
  for (int const number : store.query(Box{x, y, x, y}.grown(reach))) {
    Feature const& feature = store.features[static_cast<size_t>(number)];
    double const distance = feature.symbolClass < 0 ? nowhere : distanceTo(store, feature, x, y);
    if (distance <= reach) found.emplace_back(distance, -number);
  }
  std::sort(found.begin(), found.end());
  std::vector<int> numbers;
  for (auto const& one : found) numbers.push_back(-one.second);
  return numbers;
}

std::vector<int> featuresOf(FeatureStore const& store, std::vector<qint64> ids) {
  std::sort(ids.begin(), ids.end());
  std::vector<int> numbers;
  for (int i = 0; !ids.empty() && i < store.size(); ++i)
    if (std::binary_search(ids.begin(), ids.end(), store.ids[static_cast<size_t>(i)])) numbers.push_back(i);
  return numbers;
}

}  // namespace SysCarto
