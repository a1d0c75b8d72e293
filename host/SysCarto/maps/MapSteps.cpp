#include "MapSteps.h"
#include "MapHost.h"
#include "ValueStep.h"

#include "host/SysCarto/elements/Placement.h"

#include <cmath>
#include <memory>
#include <utility>

namespace SysCarto {

using SysGeometry::Envelope;

namespace {

constexpr int apart = -1, joinsZooms = 1;  // what QUndoCommand::id says of steps that are merged

// What decides on how much of the world a map shows.
struct Portion {
  Envelope bounds;
  double lockedScale;

  bool operator==(Portion const& other) const {
    return haveSameCorners(bounds, other.bounds) && lockedScale == other.lockedScale;
  }
};

Portion portionOf(Map const& map) { return {MapHost::storedBounds(map), MapHost::lockedScale(map)}; }
void putPortion(Map& map, Portion const& portion) {
  MapHost::lockScale(map, portion.lockedScale);
  map.SetExtent(SysUtility::make<Envelope>(portion.bounds));
}
void putVisible(Layer& layer, bool const& visible) { layer.SetVisible(visible); }

// What the map makes of it is known when it shows it.
bool change(QString const& name, int joining, Map& map, Portion const& wanted) {
  Portion const before = portionOf(map);
  {
    SysUtility::ChangeMark::Step const step;
    putPortion(map, wanted);
  }
  Portion const after = portionOf(map);
  if (before == after) return before == wanted;
  takeStep(std::make_unique<ValueStep<Map, Portion>>(name, joining, map, before, after, putPortion));
  return true;
}

bool change(QString const& name, int joining, Map& map, Envelope const& extent) {
  return change(name, joining, map, Portion{extent, MapHost::lockedScale(map)});
}

}  // namespace

bool MapSteps::zoom(Map& map, Envelope const& extent) { return change(tr("Zoom the map"), joinsZooms, map, extent); }
bool MapSteps::pan(Map& map, Envelope const& extent) {
  return change(tr("Move the map in its frame"), apart, map, extent);
}
bool MapSteps::setExtent(Map& map, Envelope const& extent) {
  return change(tr("Set the map's extent"), apart, map, extent);
}

bool MapSteps::setScale(Map& map, double denominator) {
  double const factor = denominator / map.GetDisplayTransformation()->GetMapScale();
  if (!std::isfinite(factor) || factor <= 0) return false;
  Portion wanted = portionOf(map);
  if (wanted.lockedScale > 0) {
    wanted.lockedScale = denominator;
  } else {
    wanted.bounds = *map.GetExtent();
    wanted.bounds.Expand(factor, factor, true);
  }
  return change(tr("Set the map's scale"), apart, map, wanted);
}

void MapSteps::setVisible(Layer& layer, bool visible) {
  if (visible == layer.IsVisible()) return;
  QString const name = visible ? tr("Show the layer “%1”") : tr("Hide the layer “%1”");
  takeStep(
      std::make_unique<ValueStep<Layer, bool>>(name.arg(layer.GetName()), apart, layer, !visible, visible, putVisible));
}

}  // namespace SysCarto
