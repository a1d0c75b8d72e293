#include "MapSettings.h"

#include "host/SysCarto/maps/LayerData.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/maps/MapLimits.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace SysCarto {

using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

constexpr double maxScale = 1e15;
constexpr int maxLabelEffort = 20;
constexpr double sameScale = 1e-9;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapDocument)
};

Box layersOf(Map const& map) {
  Box box;
  for (auto const& layer : map.GetLayers()) box.add(boxOf(*layer));
  return box;
}

bool showsLayers(Map const& map) {
  auto const shown = map.GetExtent();
  return layersOf(map).meets({shown->GetXMin(), shown->GetYMin(), shown->GetXMax(), shown->GetYMax()});
}

// A single point has no extent; one of no layers says nothing.
void showLayers(Map& map) {
  Box const box = layersOf(map);
  if (!box.isEmpty()) map.SetExtent(box.envelope());
}

}  // namespace

MapSettings MapSettings::of(Map const& map) {
  MapSettings settings;
  settings.name = map.GetName();
  settings.coordinateSystem = map.GetCoordinateSystem();
  MapHost::storedBounds(map).QueryCoords(settings.bounds[0], settings.bounds[1], settings.bounds[2],
                                         settings.bounds[3]);
  settings.boundsSystem = settings.coordinateSystem;
  for (auto const& layer : map.GetLayers())
    if (auto const vector = SysUtility::ptr_cast<VectorLayer>(layer); vector && !vector->labelSettings().pinned.empty())
      settings.pins.emplace_back(vector, vector->labelSettings().pinned);
  settings.rotation = MapHost::storedRotation(map);
  settings.scaleLocked = MapHost::lockedScale(map) > 0;
  settings.scale = MapHost::storedScale(map);
  settings.labelEffort = MapHost::labelEffort(map);
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
  if (fields.isReading()) rotation = std::fmod(rotation, 360);
  listScale(fields);
  listLabels(fields);
  if (!fields.isReading() || !fields.ok()) return;
  if (bounds[2] - bounds[0] < minMapExtent || bounds[3] - bounds[1] < minMapExtent)
    fields.fail("bounds", Texts::tr("must be xmin, ymin, xmax, ymax, with xmin < xmax and ymin < ymax"));
}

void MapSettings::listScale(Fields& fields) {
  bool const isOnPaper = scale > 0;
  fields.flag(
      {"scaleLocked", QT_TRANSLATE_NOOP("Fields", "Scale is locked"),
       QT_TRANSLATE_NOOP("Fields",
                         "Whether the map keeps its scale and shows more or less where its frame becomes larger "
                         "or smaller. The extent then gives the centre alone.")},
      scaleLocked, false);
  fields.derivedNumber({"scale", QT_TRANSLATE_NOOP("Fields", "Scale"),
                        QT_TRANSLATE_NOOP("Fields",
                                          "How many times smaller the map is than the ground at its centre. It is "
                                          "stored where it is locked; otherwise the extent decides, and another scale "
                                          "changes that.")},
                       scale, {0, maxScale, SysUtility::Unit::ScaleDenominator},
                       fields.isReading() || !scaleLocked ? std::optional<double>(scale) : std::nullopt);
  if (!fields.isReading() || !fields.ok()) return;
  if (scale == 0 && (scaleLocked || isOnPaper))
    fields.fail("scale", Texts::tr("must be more than 0, as in 25000 for a map of 1:25,000"));
  if (scale > 0 && !scaleLocked && !isOnPaper)
    fields.fail("scale", Texts::tr("is for a map with “scaleLocked”; without it the bounds say what is shown"));
}

void MapSettings::listLabels(Fields& fields) {
  int effort = std::max(labelEffort, 1);
  bool const isThere = fields.optionalObject(
      {"labels", QT_TRANSLATE_NOOP("Fields", "Label placement"),
       QT_TRANSLATE_NOOP("Fields", "How the labels of all layers are placed against each other."), "mapLabels"},
      labelEffort > 0, [&](Fields& own) {
        own.integer(
            {"effort", QT_TRANSLATE_NOOP("Fields", "Effort"),
             QT_TRANSLATE_NOOP("Fields",
                               "How many times as long as usual the search for their places may take. More labels "
                               "find a place, where many are in each other's way.")},
            effort, 1, maxLabelEffort, 1);
      });
  if (fields.isReading()) labelEffort = isThere ? effort : 0;
}

namespace {

// What a system does not have a place for is left out.
std::vector<PinnedLabel> moved(std::vector<PinnedLabel> const& pins, PointTransform const& way) {
  std::vector<PinnedLabel> there;
  for (PinnedLabel pin : pins)
    if (pin.hidden || way.apply(pin.x, pin.y)) there.push_back(pin);
  return there;
}

}  // namespace

void MapSettings::applyTo(Map& map, QStringList& warnings) const {
  MapSettings const former = of(map);
  bool const hasSameBounds = std::equal(bounds, bounds + 4, former.bounds);
  bool const isElsewhere = coordinateSystem.trimmed() != former.coordinateSystem;
  double shown[4];
  std::copy(bounds, bounds + 4, shown);
  bool const keepsPlace = isElsewhere && hasSameBounds && boundsSystem != coordinateSystem.trimmed();
  bool const isKept = !keepsPlace || transformBounds(shown, former.coordinateSystem, coordinateSystem);
  bool const metLayers = keepsPlace && showsLayers(map);
  map.SetName(name);
  map.SetCoordinateSystem(coordinateSystem);
  MapHost::setRotation(map, rotation);
  MapHost::setLabelEffort(map, labelEffort);
  MapHost::lockScale(map, scaleLocked ? scale : 0);
  map.SetExtent(SysUtility::make<SysGeometry::Envelope>(shown[0], shown[1], shown[2], shown[3]));
  double const factor = scale / MapHost::storedScale(map);
  if (!isElsewhere && hasSameBounds && factor > 0 && std::abs(factor - 1) > sameScale) {
    MapHost::showInstead(map, std::nullopt);
    auto const extent = map.GetExtent();
    extent->Expand(factor, factor, true);
    map.SetExtent(extent);
  }
  if (!isElsewhere) return;
  auto const from = makeCoordinateSystem(boundsSystem), to = makeCoordinateSystem(coordinateSystem);
  bool const isOtherSystem = boundsSystem != coordinateSystem.trimmed();
  QString unknown;
  auto const way = isOtherSystem && from && to ? PointTransform::create(*from, *to, unknown) : nullptr;
  for (auto const& [layer, own] : pins) {
    LabelSettings labels = layer->labelSettings();
    labels.pinned = way ? moved(own, *way) : own;
    layer->setLabelSettings(labels);
  }
  for (auto const& layer : map.GetLayers()) {
    QString const problem = readAgain(*layer, coordinateSystem, warnings);
    if (!problem.isEmpty()) warnings << problem;
  }
  if (!isKept || (metLayers && !showsLayers(map))) showLayers(map);
}

}  // namespace SysCarto
