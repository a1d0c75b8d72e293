#include "MapSteps.h"
#include "MapHost.h"

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/elements/Placement.h"
#include "host/SysUtility/ChangeMark.h"

#include <QUndoStack>

#include <cmath>
#include <memory>
#include <utility>

namespace SysCarto {

using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

constexpr int apart = -1, joinsZooms = 1;  // what QUndoCommand::id says of steps that are merged

void put(Map& map, Envelope const& bounds) { map.SetExtent(SysUtility::make<Envelope>(bounds)); }
void put(Layer& layer, bool visible) { layer.SetVisible(visible); }

// Something of a map that stays where it is has another value.
template <class Target, class Value>
class ValueStep final : public QUndoCommand {
public:
  ValueStep(QString const& name, int joining, Target& target, Value before, Value after)
      : QUndoCommand(name),
        joining_(joining),
        target_(SysUtility::retain(&target)),
        before_(std::move(before)),
        after_(std::move(after)) {}

  void undo() override { set(before_); }
  void redo() override { set(after_); }
  int id() const override { return joining_; }
  bool mergeWith(QUndoCommand const* next) override {
    auto const* const step = static_cast<ValueStep const*>(next);
    if (step->target_ != target_) return false;
    after_ = step->after_;
    return true;
  }

private:
  void set(Value const& value) {
    SysUtility::ChangeMark::Step const step;
    put(*target_, value);
  }

  int const joining_;
  _ptr_t<Target> const target_;
  Value const before_;
  Value after_;
};

// The history redoes what it is given.
void take(std::unique_ptr<QUndoCommand> step) {
  if (QUndoStack* const history = EditorHost::history())
    history->push(step.release());
  else
    step->redo();
}

// What the map makes of the extent is known when it shows it.
bool change(QString const& name, int joining, Map& map, Envelope const& extent) {
  Envelope const before = MapHost::storedBounds(map);
  {
    SysUtility::ChangeMark::Step const step;
    put(map, extent);
  }
  Envelope const after = MapHost::storedBounds(map);
  if (haveSameCorners(before, after)) return haveSameCorners(before, extent);
  take(std::make_unique<ValueStep<Map, Envelope>>(name, joining, map, before, after));
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
  take(std::make_unique<ValueStep<Layer, bool>>(name.arg(layer.GetName()), apart, layer, !visible, visible));
}

}  // namespace SysCarto
