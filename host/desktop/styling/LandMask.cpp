#include "LandMask.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

namespace {

constexpr double cellsPerDegree = 2;
constexpr int maxFeatures = 20000;

// Areas drawn as on the picture: degrees of longitude to the right, of latitude upwards.
class PlateCarree {
public:
  PlateCarree(QString const& definition, QSize const& size) : image_(size, QImage::Format_Grayscale8) {
    image_.fill(Qt::black);
    auto const system = SysCarto::makeCoordinateSystem(definition);
    auto const globe = system && !system->IsGeographic() ? SysCarto::globeOf(*system) : nullptr;
    QString error;
    if (globe) toGlobe_ = SysCarto::PointTransform::create(*system, *globe, error);
  }

  void add(OGRGeometry const& geometry) {
    QPainterPath path;
    addTo(path, geometry);
    QPainter painter(&image_);
    painter.fillPath(path, Qt::white);
  }

  QImage const& image() const { return image_; }

private:
  void addTo(QPainterPath& path, OGRGeometry const& geometry) const {
    if (auto const* const collection = dynamic_cast<OGRGeometryCollection const*>(&geometry)) {
      for (auto const* const member : *collection) addTo(path, *member);
    } else if (auto const* const polygon = dynamic_cast<OGRPolygon const*>(&geometry)) {
      for (auto const* const ring : *polygon) {
        QPolygonF outline;
        for (auto const& point : *ring) {
          double x = point.getX(), y = point.getY();
          if (toGlobe_ && !toGlobe_->apply(x, y)) continue;
          outline << QPointF((x + 180) * cellsPerDegree, (90 - y) * cellsPerDegree);
        }
        path.addPolygon(outline);
      }
    }
  }

  QImage image_;
  std::unique_ptr<SysCarto::PointTransform> toGlobe_;
};

}  // namespace

bool showsLand(LayerSurvey const& layer, GlobeArea const& area) {
  constexpr double smallest = 3;  // degrees: below that, the cells are too coarse
  if (layer.count > maxFeatures || area.width() < smallest || area.height() < smallest) return false;
  QImage const land(QStringLiteral(":/desktop/land.png"));
  PlateCarree drawn(layer.description.coordinateSystem, land.size());
  layer.forEachFeature({}, [&](OGRGeometry const& geometry, QString const&) { drawn.add(geometry); });
  int cells[2][2] = {};  // by whether there is land, and whether it is drawn
  for (double latitude = area.south + 0.25; latitude < area.north; latitude += 1 / cellsPerDegree)
    for (double longitude = area.west + 0.25; longitude < area.east; longitude += 1 / cellsPerDegree) {
      int const x = static_cast<int>((std::remainder(longitude, 360.0) + 180) * cellsPerDegree) % land.width();
      int const y = qBound(0, static_cast<int>((90 - latitude) * cellsPerDegree), land.height() - 1);
      ++cells[qGray(land.pixel(x, y)) > 127][qGray(drawn.image().pixel(x, y)) > 127];
    }
  int const sea = cells[0][0] + cells[0][1], ground = cells[1][0] + cells[1][1];
  return sea * 50 > sea + ground && cells[0][1] < 0.05 * sea && ground > 0 && cells[1][1] > 0.9 * ground;
}
