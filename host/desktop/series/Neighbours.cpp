#include "Neighbours.h"

#include "host/SysCarto/layers/FeatureSearch.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <iterator>

using SysGeometry::Box;

namespace {

struct Direction {
  char const* name;
  double degrees;  // counterclockwise from the east
  double reach;    // to either side; a neighbour at a corner is no neighbour at a side
};
constexpr Direction directions[] = {
    {"east", 0, 44},   {"northeast", 45, 30},  {"north", 90, 44},  {"northwest", 135, 30},
    {"west", 180, 44}, {"southwest", 225, 30}, {"south", 270, 44}, {"southeast", 315, 30},
};

double gapBetween(Box const& a, Box const& b) {
  double const x = std::max({0.0, a.xmin - b.xmax, b.xmin - a.xmax});
  double const y = std::max({0.0, a.ymin - b.ymax, b.ymin - a.ymax});
  return std::hypot(x, y);
}

QPointF centreOf(Box const& box) { return {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}; }

}  // namespace

std::optional<int> neighbourOf(Coverage const& coverage, int page, QString const& direction, Box const& shown,
                               double degreesTurned) {
  auto const wanted = std::find_if(std::begin(directions), std::end(directions),
                                   [&](Direction const& one) { return direction == QLatin1String(one.name); });
  if (wanted == std::end(directions)) return std::nullopt;
  auto const& store = coverage.store();
  auto const own = SysCarto::featuresOf(store, {coverage.feature(page)});
  if (own.empty()) return 0;
  Box const box = store.features[static_cast<size_t>(own.front())].box;
  double const width = std::max(box.xmax - box.xmin, 1e-3 * (shown.xmax - shown.xmin));
  double const height = std::max(box.ymax - box.ymin, 1e-3 * (shown.ymax - shown.ymin));
  QTransform turn;
  turn.rotate(degreesTurned);
  int nearest = 0;
  std::pair<double, double> best;
  for (int const number : store.query(shown)) {
    int const candidate = coverage.pageOf(store.ids[static_cast<size_t>(number)]);
    if (candidate == 0 || candidate == page) continue;
    Box const& other = store.features[static_cast<size_t>(number)].box;
    // In widths and heights of the feature: the neighbours of a sheet that is not square lie at its corners, too.
    QPointF const way = centreOf(other) - centreOf(box);
    QPointF const turned = turn.map(QPointF(way.x() / width, way.y() / height));
    double const angle = std::atan2(turned.y(), turned.x()) * 180 / M_PI;
    if (turned.isNull() || std::abs(std::remainder(angle - wanted->degrees, 360)) > wanted->reach) continue;
    std::pair<double, double> const distance{gapBetween(box, other), std::hypot(turned.x(), turned.y())};
    if (nearest == 0 || distance < best) {
      nearest = candidate;
      best = distance;
    }
  }
  return nearest;
}
