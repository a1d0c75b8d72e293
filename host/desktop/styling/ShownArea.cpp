#include "ShownArea.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"
#include "host/SysGeometry/Box.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double smallScale = 1500000;
constexpr double cmPerMetre = 100, metresPerDegree = 111200;
constexpr int steps = 20;

// Calls `use` with the places of a lattice over a rectangle of one coordinate system in the other; with none where one
// of the systems is missing.
template <class Use>
void forEachPlace(OGRSpatialReference const* from, OGRSpatialReference const* to, QRectF const& area, Use const& use) {
  QString error;
  auto const transform = from && to ? SysCarto::PointTransform::create(*from, *to, error) : nullptr;
  for (int i = 0; transform && i <= steps; ++i)
    for (int j = 0; j <= steps; ++j) {
      double x = area.left() + area.width() * i / steps, y = area.top() + area.height() * j / steps;
      if (from->IsGeographic()) x = std::remainder(x, 360.0);
      if (transform->apply(x, y)) use(x, y);
    }
}

}  // namespace

QRectF mapAreaOf(QString const& definition, GlobeArea const& area) {
  auto const system = SysCarto::makeCoordinateSystem(definition);
  auto const globe = system ? SysCarto::globeOf(*system) : nullptr;
  SysGeometry::Box all;
  forEachPlace(globe.get(), system.get(), {{area.west, area.south}, QPointF(area.east, area.north)},
               [&](double x, double y) { all.add(x, y); });
  return all.isEmpty() ? QRectF() : QRectF(QPointF(all.xmin, all.ymin), QPointF(all.xmax, all.ymax));
}

GlobeArea globeAreaOf(QString const& definition, QRectF const& rectangle) {
  auto const system = SysCarto::makeCoordinateSystem(definition);
  auto const globe = system ? SysCarto::globeOf(*system) : nullptr;
  GlobeExtent shown;
  forEachPlace(system.get(), globe.get(), rectangle, [&](double x, double y) { shown.addPlace(x, y); });
  return shown.isEmpty() ? GlobeArea() : shown.area();
}

ShownArea ShownArea::of(QString const& definition, QRectF const& shape, QSizeF const& frameCm, double room) {
  auto const system = SysCarto::makeCoordinateSystem(definition);
  if (!system || !shape.isValid() || frameCm.isEmpty()) return {};
  double const scale = (1 + 2 * room) * std::max(shape.width() / frameCm.width(), shape.height() / frameCm.height());
  QRectF whole(QPointF(), frameCm * scale);
  whole.moveCenter(shape.center());
  double const metres = system->IsProjected() ? system->GetLinearUnits() : metresPerDegree;
  return {globeAreaOf(definition, whole), shape.width() / frameCm.width() * metres * cmPerMetre > smallScale};
}
