#include "Neighbours.h"

#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <iterator>

using SysCarto::Feature;
using SysGeometry::Box;

namespace {

constexpr double beyond = 1.01;  // of half the map's size: what only touches the edge lies on both sides of it
constexpr double alongEdge[] = {0, 0.25, -0.25, 0.5, -0.5, 0.75, -0.75};
constexpr double cornersReach = 30, sidesReach = 44;  // degrees

struct Direction {
  char const* name;
  int east, north;
};
constexpr Direction directions[] = {
    {"east", 1, 0},  {"northeast", 1, 1},   {"north", 0, 1},  {"northwest", -1, 1},
    {"west", -1, 0}, {"southwest", -1, -1}, {"south", 0, -1}, {"southeast", 1, -1},
};

bool isCorner(Direction const& direction) { return direction.east != 0 && direction.north != 0; }

QPointF centreOf(Box const& box) { return {(box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2}; }

struct Search {
  Coverage const& coverage;
  int page;
  Direction direction;
  QTransform turn;  // of the map
  QPointF centre;   // of what it shows, in the turned world
  double width, height;

  // Another page's feature at a place of the turned world.
  int pageAt(QPointF const& turned) const {
    QPointF const place = turn.inverted().map(turned);
    for (int const number : SysCarto::featuresAt(coverage.store(), place.x(), place.y(), 0))
      if (int const other = coverage.pageOf(coverage.store().ids[static_cast<size_t>(number)]); other && other != page)
        return other;
    return 0;
  }

  int atEdge() const {
    QPointF const out(direction.east * width / 2, direction.north * height / 2);
    QPointF const along(direction.north * width / 2, direction.east * height / 2);
    for (double const part : alongEdge) {
      int const other = pageAt(centre + out * beyond + (isCorner(direction) ? QPointF() : along * part));
      if (other > 0) return other;
    }
    return 0;
  }

  int nearest(QPointF const& from) const {
    int found = 0;
    double least = 0;
    double const wanted = std::atan2(direction.north, direction.east) * 180 / M_PI;
    auto const& store = coverage.store();
    for (int number = 0; number < store.size(); ++number) {
      int const other = coverage.pageOf(store.ids[static_cast<size_t>(number)]);
      if (other == 0 || other == page) continue;
      QPointF const way = turn.map(centreOf(store.features[static_cast<size_t>(number)].box)) - turn.map(from);
      double const distance = std::hypot(way.x(), way.y());
      double const off = std::abs(std::remainder(std::atan2(way.y(), way.x()) * 180 / M_PI - wanted, 360));
      if (distance == 0 || off > (isCorner(direction) ? cornersReach : sidesReach)) continue;
      if (found > 0 && distance >= least) continue;
      found = other;
      least = distance;
    }
    return found;
  }
};

bool isArea(SysCarto::FeatureStore const& store, Feature const& feature) {
  SysCarto::PartKind const kind = store.parts[static_cast<size_t>(feature.firstPart)].kind;
  return kind != SysCarto::PartKind::Point && kind != SysCarto::PartKind::Line;
}

}  // namespace

std::optional<int> neighbourOf(Coverage const& coverage, int page, QString const& direction, SysCarto::Map const& map) {
  auto const wanted = std::find_if(std::begin(directions), std::end(directions),
                                   [&](Direction const& one) { return direction == QLatin1String(one.name); });
  if (wanted == std::end(directions)) return std::nullopt;
  auto const& store = coverage.store();
  auto const own = SysCarto::featuresOf(store, {coverage.feature(page)});
  if (own.empty()) return 0;
  auto const shown = map.GetExtent();
  auto const centre = shown->GetAnchorPoint();
  Search const search{coverage,
                      page,
                      *wanted,
                      SysDisplay::DisplayTransformationHost::turn(*map.GetDisplayTransformation()),
                      {centre->GetX(), centre->GetY()},
                      shown->GetWidth(),
                      shown->GetHeight()};
  Feature const& feature = store.features[static_cast<size_t>(own.front())];
  return isArea(store, feature) ? search.atEdge() : search.nearest(centreOf(feature.box));
}
