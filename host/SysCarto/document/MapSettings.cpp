#include "MapSettings.h"

#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/MapLimits.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <algorithm>

namespace SysCarto {

using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapDocument)
};

}  // namespace

MapSettings MapSettings::of(Map const& map) {
  MapSettings settings{map.GetName(), map.GetCoordinateSystem()};
  MapHost::storedBounds(map).QueryCoords(settings.bounds[0], settings.bounds[1], settings.bounds[2],
                                         settings.bounds[3]);
  settings.rotation = map.GetRotation();
  return settings;
}

void MapSettings::list(Fields& fields) {
  fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"), QT_TRANSLATE_NOOP("Fields", "What the map is called.")},
              name, TextKind::Line);
  fields.text(
      {"coordinateSystem", QT_TRANSLATE_NOOP("Fields", "Coordinate system"),
       QT_TRANSLATE_NOOP(
           "Fields",
           "That of the map: a code as in “EPSG:8857”, WKT or a PROJ text; empty for plain coordinates in metres.")},
      coordinateSystem, TextKind::CoordinateSystem, QString());
  QString const problem = fields.isReading() && fields.ok() ? checkCoordinateSystem(coordinateSystem) : QString();
  if (!problem.isEmpty()) fields.fail("coordinateSystem", problem);
  fields.numbers({"bounds", QT_TRANSLATE_NOOP("Fields", "Extent"),
                  QT_TRANSLATE_NOOP("Fields",
                                    "What the map shows: its left, lower, right and upper side. It is centred in the "
                                    "data frame and widened to its shape. Of a map that is turned, what it would show "
                                    "straight, about the same centre.")},
                 bounds, SysUtility::NumbersKind::Rectangle,
                 {-maxMapCoordinate, maxMapCoordinate, SysUtility::Unit::MapUnit});
  fields.number({"rotation", QT_TRANSLATE_NOOP("Fields", "Rotation"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "How far the map is turned counterclockwise about its centre. The frame stays, and "
                                   "letters, pictures and the patterns of areas stay upright.")},
                rotation, {-360, 360, SysUtility::Unit::Degree}, 0.0);
  if (!fields.isReading() || !fields.ok()) return;
  if (bounds[2] - bounds[0] < minMapExtent || bounds[3] - bounds[1] < minMapExtent)
    fields.fail("bounds", Texts::tr("must be xmin, ymin, xmax, ymax, with xmin < xmax and ymin < ymax"));
}

void MapSettings::applyTo(Map& map, QStringList& warnings) const {
  MapSettings const former = of(map);
  bool const isElsewhere = coordinateSystem.trimmed() != former.coordinateSystem;
  double shown[4];
  std::copy(bounds, bounds + 4, shown);
  if (isElsewhere && std::equal(bounds, bounds + 4, former.bounds))
    transformBounds(shown, former.coordinateSystem, coordinateSystem);
  map.SetName(name);
  map.SetCoordinateSystem(coordinateSystem);
  MapHost::setRotation(map, rotation);
  map.SetExtent(SysUtility::make<SysGeometry::Envelope>(shown[0], shown[1], shown[2], shown[3]));
  if (!isElsewhere) return;
  for (auto const& layer : map.GetLayers()) {
    auto const vector = SysUtility::ptr_cast<VectorLayer>(layer);
    QString const problem = vector ? vector->open(vector->source(), coordinateSystem, warnings) : QString();
    if (!problem.isEmpty()) warnings << problem;
  }
}

}  // namespace SysCarto
