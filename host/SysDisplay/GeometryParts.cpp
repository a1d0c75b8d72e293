#include "GeometryParts.h"

#include "host/SysGeometry/Box.h"

#include <SysGeometry/MultiPolyline.h>
#include <SysGeometry/Polygon.h>
#include <SysGeometry/Polyline.h>

#include <QPainterPath>
#include <QPolygonF>

#include <cmath>

namespace SysDisplay {

using namespace SysGeometry;

namespace {

static_assert(sizeof(QPointF) == 2 * sizeof(double), "points are handed on as flat arrays");

GeometryPart partOf(QPointF const* points, int count, bool closed) {
  return {{reinterpret_cast<double const*>(points), count}, closed};
}

// A line that ends where it began counts as closed: it has a corner there like its others.
bool isClosed(QVector<QPointF> const& run) { return run.size() > 3 && run.first() == run.last(); }

void visitRuns(QVector<QVector<QPointF>> const& runs, bool closed,
               std::function<void(GeometryPart const&)> const& visit) {
  for (QVector<QPointF> const& run : runs)
    if (!run.isEmpty()) visit(partOf(run.constData(), run.size(), closed || isClosed(run)));
}

}  // namespace

bool visitParts(Geometry const* geometry, std::function<void(GeometryPart const&)> const& visit) {
  if (auto const* line = dynamic_cast<Polyline const*>(geometry)) {
    visitRuns({line->GetPoints()}, false, visit);
  } else if (auto const* lines = dynamic_cast<MultiPolyline const*>(geometry)) {
    visitRuns(lines->GetPaths(), false, visit);
  } else if (auto const* polygon = dynamic_cast<Polygon const*>(geometry)) {
    visitRuns(polygon->GetRings(), true, visit);
  } else if (auto const* envelope = dynamic_cast<Envelope const*>(geometry)) {
    if (envelope->IsEmpty()) return false;
    double x1, y1, x2, y2;
    envelope->QueryCoords(x1, y1, x2, y2);
    QPointF const corners[] = {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
    visit(partOf(corners, 4, true));
  } else {
    return false;
  }
  return true;
}

void visitParts(QPainterPath const& path, std::function<void(GeometryPart const&)> const& visit) {
  for (QPolygonF const& run : path.toSubpathPolygons())
    if (!run.isEmpty()) visit(partOf(run.constData(), run.size(), run.size() > 2 && run.isClosed()));
}

bool isArea(Geometry const* geometry) {
  return dynamic_cast<Polygon const*>(geometry) || dynamic_cast<Envelope const*>(geometry);
}

std::optional<QPointF> placeOf(Geometry const* geometry) {
  if (!geometry) return std::nullopt;
  auto const point = geometry->GetAnchorPoint();
  if (!point || !std::isfinite(point->GetX()) || !std::isfinite(point->GetY())) return std::nullopt;
  return QPointF(point->GetX(), point->GetY());
}

std::optional<QRectF> deviceBounds(DisplayTransformation const& transformation, Geometry const* geometry) {
  Box covered;
  QTransform const toDevice = transformation.ToDevice();
  visitParts(geometry, [&](GeometryPart const& part) {
    for (int i = 0; i < part.run.count; ++i) {
      QPointF const point = toDevice.map(QPointF(part.run.xy[2 * i], part.run.xy[2 * i + 1]));
      if (std::isfinite(point.x()) && std::isfinite(point.y())) covered.add(point.x(), point.y());
    }
  });
  if (covered.isEmpty()) return std::nullopt;
  return QRectF(QPointF(covered.xmin, covered.ymin), QPointF(covered.xmax, covered.ymax));
}

SysUtility::_ptr_t<Envelope> toWorld(DisplayTransformation const& transformation, std::optional<QRectF> const& device) {
  if (!device) return nullptr;
  QRectF const world = transformation.ToDevice().inverted().mapRect(*device);
  return SysUtility::make<Envelope>(world.left(), world.top(), world.right(), world.bottom());
}

}  // namespace SysDisplay
