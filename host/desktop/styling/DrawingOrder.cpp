#include "DrawingOrder.h"

#include "GlobeArea.h"

#include "host/SysCarto/layers/raster/RasterLayer.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/CoordinateSystem.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>

using SysCarto::GeometryKind;
using Subject = Theme::Subject;

namespace {

enum Height { Unknown, Ground, Tints, Relief, Areas, LowLines, Lines, Points };

GeometryKind kindDrawn(SysCarto::Renderer const& renderer) {
  if (renderer.classes().empty() || !renderer.classes().front().symbol) return GeometryKind::Areas;
  switch (renderer.classes().front().symbol->GetType()) {
    case SysDisplay::SymbolType::Marker: return GeometryKind::Points;
    case SysDisplay::SymbolType::Line: return GeometryKind::Lines;
    default: return GeometryKind::Areas;
  }
}

}  // namespace

// A single area of which nothing is known is a frame or a ground.
DrawingOrder DrawingOrder::of(GeometryKind kind, Theme theme, int count, double largestKm2) {
  if (kind == GeometryKind::Points) return {Points, 0};
  bool const isLow = theme.subject == Subject::Water || theme.subject == Subject::Contour;
  if (kind == GeometryKind::Lines) return {isLow ? LowLines : Lines, 0};
  bool const isGround = theme.subject == Subject::Land || (theme.subject == Subject::Unknown && count == 1);
  return {isGround ? Ground : Areas, largestKm2};
}

DrawingOrder DrawingOrder::ofRaster(bool isRelief) { return {isRelief ? Relief : Tints, 0}; }

DrawingOrder DrawingOrder::of(SysCarto::Layer const& layer, QString const& mapSystem) {
  if (auto const* const raster = dynamic_cast<SysCarto::RasterLayer const*>(&layer))
    return ofRaster(raster->look().renderer.isRelief());
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(&layer);
  if (!vector || vector->source().data == SysCarto::SourceSettings::Data::Globe) return {};
  GeometryKind const kind = kindDrawn(vector->renderer());
  auto const system = SysCarto::makeCoordinateSystem(mapSystem);
  double largest = 0;
  if (vector->hasWindows())  // of very many none is larger than its share by much
    largest = squareKm(vector->extent(), system.get()) / static_cast<double>(std::max<qint64>(1, vector->count()));
  else if (kind == GeometryKind::Areas)
    for (SysCarto::Feature const& feature : vector->features().features)
      largest = std::max(largest, squareKm(feature.box, system.get()));
  return of(kind, Theme::of(layer.GetName(), kind),
            static_cast<int>(std::min<qint64>(vector->count(), std::numeric_limits<int>::max())), largest);
}

double squareKm(double area, double y, OGRSpatialReference const* system) {
  if (system && system->IsGeographic())
    return area * GlobeArea::kmPerDegree * GlobeArea::kmPerDegree * std::cos(y * M_PI / 180);
  double const km = system && system->IsProjected() ? system->GetLinearUnits() / 1000 : 0.001;
  return area * km * km;
}

double squareKm(SysGeometry::Box const& box, OGRSpatialReference const* system) {
  return squareKm((box.xmax - box.xmin) * (box.ymax - box.ymin), (box.ymin + box.ymax) / 2, system);
}
