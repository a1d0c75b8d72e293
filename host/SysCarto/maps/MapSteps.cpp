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

void putExtent(Map& map, Envelope const& bounds) { map.SetExtent(SysUtility::make<Envelope>(bounds)); }
void putVisible(Layer& layer, bool const& visible) { layer.SetVisible(visible); }

// What the map makes of the extent is known when it shows it.
bool change(QString const& name, int joining, Map& map, Envelope const& extent) {
  Envelope const before = MapHost::storedBounds(map);
  {
    SysUtility::ChangeMark::Step const step;
    putExtent(map, extent);
  }
  Envelope const after = MapHost::storedBounds(map);
  if (haveSameCorners(before, after)) return haveSameCorners(before, extent);
  takeStep(std::make_unique<ValueStep<Map, Envelope>>(name, joining, map, before, after, putExtent));
  return true;
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
  auto const extent = map.GetExtent();
  extent->Expand(factor, factor, true);
  return change(tr("Set the map's scale"), apart, map, *extent);
}

void MapSteps::setVisible(Layer& layer, bool visible) {
  if (visible == layer.IsVisible()) return;
  QString const name = visible ? tr("Show the layer “%1”") : tr("Hide the layer “%1”");
  takeStep(
      std::make_unique<ValueStep<Layer, bool>>(name.arg(layer.GetName()), apart, layer, !visible, visible, putVisible));
}

}  // namespace SysCarto
