#include "FeatureFit.h"

#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysCarto/maps/MapLimits.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <QTransform>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

using SysCarto::MapHost;
using SysGeometry::Box;
using Shape = std::vector<std::vector<QPointF>>;

namespace {

constexpr double farRound = 270;  // degrees: what reaches so far round the globe, with a gap in it
constexpr double wideGap = 0.33;  // as wide as that, in parts of its width, was cut at the edge of the world
constexpr double nearby = 0.5;    // of the size of the largest part

Box boxOf(std::vector<QPointF> const& points) {
  Box box;
  for (QPointF const& point : points) box.add(point.x(), point.y());
  return box;
}

double weightOf(Box const& box) {
  double const width = box.xmax - box.xmin, height = box.ymax - box.ymin;
  return width * height + 1e-6 * (width * width + height * height);  // a straight line weighs something, too
}

template <class Keep>
Shape kept(Shape const& shape, Keep const& keep) {
  Shape result;
  for (auto const& part : shape)
    if (keep(boxOf(part))) result.push_back(part);
  return result;
}

// Whether the way from the shape's left end over its middle to its right end leads round the globe.
bool reachesFarRound(Shape const& shape, QString const& mapSystem) {
  auto const system = SysCarto::makeCoordinateSystem(mapSystem);
  auto const globe = system ? SysCarto::globeOf(*system) : nullptr;
  QString error;
  auto const way = globe ? SysCarto::PointTransform::create(*system, *globe, error) : nullptr;
  if (!way || shape.size() < 2) return false;
  QPointF left = shape.front().front(), right = left;
  for (auto const& part : shape)
    for (QPointF const& point : part) {
      if (point.x() < left.x()) left = point;
      if (point.x() > right.x()) right = point;
    }
  double longitudes[3];
  QPointF const stations[] = {left, (left + right) / 2, right};
  for (int i = 0; i < 3; ++i) {
    double x = stations[i].x(), y = stations[i].y();
    if (!way->apply(x, y)) return false;
    longitudes[i] = x;
  }
  auto const eastward = [](double from, double to) { return std::fmod(to - from + 720, 360); };
  double const reach = eastward(longitudes[0], longitudes[1]) + eastward(longitudes[1], longitudes[2]);
  return reach > farRound && reach <= 360;
}

// The side of the widest gap between its parts that weighs more.
Shape largerSide(Shape const& shape) {
  std::vector<Box> boxes;
  for (auto const& part : shape) boxes.push_back(boxOf(part));
  std::sort(boxes.begin(), boxes.end(), [](Box const& a, Box const& b) { return a.xmin < b.xmin; });
  double reached = boxes.front().xmax, widest = 0, cut = reached;
  for (Box const& box : boxes) {
    if (box.xmin - reached > widest) {
      widest = box.xmin - reached;
      cut = (box.xmin + reached) / 2;
    }
    reached = std::max(reached, box.xmax);
  }
  if (widest < wideGap * (reached - boxes.front().xmin)) return shape;
  double left = 0, right = 0;
  for (Box const& box : boxes) (box.xmax < cut ? left : right) += weightOf(box);
  return kept(shape, [&](Box const& box) { return (box.xmax < cut) == (left > right); });
}

Shape mainPart(Shape const& shape) {
  auto const largest = std::max_element(
      shape.begin(), shape.end(), [](auto const& a, auto const& b) { return weightOf(boxOf(a)) < weightOf(boxOf(b)); });
  Box const main = boxOf(*largest);
  Box const about = main.grown(nearby * std::max(main.xmax - main.xmin, main.ymax - main.ymin));
  return kept(shape, [&](Box const& box) { return about.meets(box); });
}

// Of the longest line, from its first to its last vertex.
double degreesAlong(Shape const& shape) {
  auto const length = [](std::vector<QPointF> const& line) {
    double sum = 0;
    for (size_t i = 1; i < line.size(); ++i) {
      QPointF const step = line[i] - line[i - 1];
      sum += std::hypot(step.x(), step.y());
    }
    return sum;
  };
  auto const longest =
      std::max_element(shape.begin(), shape.end(), [&](auto const& a, auto const& b) { return length(a) < length(b); });
  QPointF const way = longest->back() - longest->front();
  return way.isNull() ? 0 : -std::atan2(way.y(), way.x()) * 180 / M_PI;
}

double scaleAt(SysCarto::Map& map, MapHost::Portion const& portion) {
  MapHost::showInstead(map, portion);
  double const scale = map.GetDisplayTransformation()->GetMapScale();
  MapHost::showInstead(map, std::nullopt);
  return scale;
}

// A point says nothing of a scale; then the map's own is kept.
double scaleFor(SysCarto::SeriesFrame const& frame, MapHost::Portion const& portion, bool isPoint) {
  if (frame.scale > 0) return frame.scale;
  QVector<double> scales = frame.scales;
  std::sort(scales.begin(), scales.end());
  if (isPoint) return !scales.isEmpty() ? scales.first() : frame.map->GetDisplayTransformation()->GetMapScale();
  if (scales.isEmpty()) return 0;
  constexpr double rounding = 1 + 1e-9;
  auto const fitting = std::lower_bound(scales.begin(), scales.end(), scaleAt(*frame.map, portion) / rounding);
  return fitting == scales.end() ? 0 : *fitting;
}

}  // namespace

Shape shapeOf(SysCarto::FeatureStore const& store, qint64 feature, QString const& storeSystem,
              QString const& mapSystem) {
  std::unique_ptr<SysCarto::PointTransform> way;
  if (storeSystem != mapSystem) {
    auto const from = SysCarto::makeCoordinateSystem(storeSystem), to = SysCarto::makeCoordinateSystem(mapSystem);
    QString error;
    if (from && to) way = SysCarto::PointTransform::create(*from, *to, error);
    if (!way) return {};
  }
  Shape shape;
  for (int const number : SysCarto::featuresOf(store, {feature})) {
    auto const& known = store.features[static_cast<size_t>(number)];
    for (int i = known.firstPart; i < known.firstPart + known.partCount; ++i) {
      SysCarto::Part const& part = store.parts[static_cast<size_t>(i)];
      std::vector<QPointF> points;
      for (int vertex = 0; vertex < part.count; ++vertex) {
        double x = part.xy[2 * vertex], y = part.xy[2 * vertex + 1];
        if (!way || way->apply(x, y)) points.emplace_back(x, y);
      }
      if (!points.empty()) shape.push_back(std::move(points));
    }
  }
  return shape;
}

std::optional<MapHost::Portion> portionFor(SysCarto::SeriesFrame const& frame, Shape const& shape, double degrees) {
  if (shape.empty() || !frame.map) return std::nullopt;
  Shape shown = reachesFarRound(shape, frame.map->GetCoordinateSystem()) ? largerSide(shape) : shape;
  if (frame.mainPart) shown = mainPart(shown);
  double const rotation = std::fmod(frame.alongLines ? degreesAlong(shown) + degrees : degrees, 360);
  QTransform turn;
  turn.rotate(rotation);
  Box box;
  for (auto const& part : shown)
    for (QPointF const& point : part) {
      QPointF const turned = turn.map(point);
      box.add(turned.x(), turned.y());
    }
  QPointF const centre = turn.inverted().map(QPointF((box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2));
  double const grown = 1 + 2 * frame.marginPercent / 100;
  double const width = (box.xmax - box.xmin) * grown, height = (box.ymax - box.ymin) * grown;
  double const smallest =
      std::max({SysCarto::minMapExtent, 1e-12 * std::abs(centre.x()), 1e-12 * std::abs(centre.y())});
  bool const isPoint = std::max(width, height) <= 2 * smallest;
  double const x = std::max(width, 2 * smallest) / 2, y = std::max(height, 2 * smallest) / 2;
  MapHost::Portion portion{{centre.x() - x, centre.y() - y, centre.x() + x, centre.y() + y}, rotation, 0};
  portion.lockedScale = scaleFor(frame, portion, isPoint);
  return portion;
}
