#include "MapSteps.h"
#include "LayerTree.h"
#include "MapHost.h"
#include "ValueStep.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/layers/LayerHost.h"

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
template <class Switched>
void takeSwitch(Switched& switched, QString const& step, void (*put)(Switched&, bool const&), bool visible) {
  takeStep(std::make_unique<ValueStep<Switched, bool>>(step, apart, switched, !visible, visible, put));
}

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

// Of a layer that lies between two of a group; others stay in theirs.
LayerGroups groupsBetween(LayerGroups const& below, QList<SysUtility::_ptr_t<Layer>> const& layers, int place) {
  LayerGroups const own = LayerHost::groups(*layers[place]);
  if (!own.isEmpty()) return own;
  int above = place + 1;
  while (above < layers.size() && LayerHost::groups(*layers[above]).isEmpty()) ++above;
  LayerGroups shared;
  for (int i = 0; above < layers.size() && i < below.size(); ++i) {
    if (LayerHost::groups(*layers[above]).value(i) != below[i]) break;
    shared << below[i];
  }
  return shared;
}

class LayersStep final : public QUndoCommand {
public:
  LayersStep(QString const& name, QVector<LayerList> before, QVector<LayerList> after)
      : QUndoCommand(name), before_(std::move(before)), after_(std::move(after)) {}
  void undo() override { put(before_); }
  void redo() override { put(after_); }

private:
  static void put(QVector<LayerList> const& lists) {
    SysUtility::ChangeMark::Step const step;
    for (LayerList const& list : lists) {
      MapHost::setLayers(*list.map, list.layers);
      for (int i = 0; i < list.layers.size(); ++i) LayerHost::setGroups(*list.layers[i], list.groups[i]);
    }
  }

  QVector<LayerList> const before_, after_;
};

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
  if (visible == LayerHost::isSwitchedOn(layer)) return;
  QString const name = visible ? tr("Show the layer “%1”") : tr("Hide the layer “%1”");
  takeSwitch<Layer>(
      layer, name.arg(layer.GetName()), [](Layer& one, bool const& on) { one.SetVisible(on); }, visible);
}

void MapSteps::setVisible(LayerGroup& group, bool visible) {
  if (visible == group.isVisible()) return;
  QString const name = visible ? tr("Show the group “%1”") : tr("Hide the group “%1”");
  takeSwitch<LayerGroup>(
      group, name.arg(group.name()), [](LayerGroup& one, bool const& on) { one.setVisible(on); }, visible);
}

void MapSteps::changeLayers(QString const& name, QVector<LayerList> const& wanted) {
  QVector<LayerList> before, after = wanted;
  bool isChange = false;
  for (LayerList& list : after) {
    before << layersOf(*list.map);
    if (list.groups.isEmpty())
      for (int i = 0; i < list.layers.size(); ++i)
        list.groups << groupsBetween(list.groups.value(i - 1), list.layers, i);
    isChange = isChange || list.layers != before.last().layers || list.groups != before.last().groups;
  }
  if (isChange) takeStep(std::make_unique<LayersStep>(name, before, after));
}

}  // namespace SysCarto
