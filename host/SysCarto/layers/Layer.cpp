#include "LayerHost.h"

#include "host/SysUtility/ChangeMark.h"

#include <algorithm>
#include <utility>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysUtility::_ptr_t;

struct Layer::Private {
  QString name;
  bool visible = true;
  ScaleRange scales;
  LayerEffects effects;
  QString credits;
  LayerGroups groups;
  QList<Layer*> fellows;
  int labelEffort = 0;
  SysUtility::ChangeMark change;
  quint64 look = 1;
};

Layer::Layer() : d(std::make_unique<Private>()) {}
Layer::~Layer() = default;

bool Layer::IsVisible() const {
  return d->visible &&
         std::all_of(d->groups.begin(), d->groups.end(), [](auto const& group) { return group->isVisible(); });
}
double Layer::GetMinScale() const { return d->scales.comparedMin(); }
double Layer::GetMaxScale() const { return d->scales.comparedMax(); }

bool Layer::showsAt(double scale) const { return IsVisible() && d->scales.contains(scale); }

QList<LegendClass> Layer::legendClasses() const { return {}; }
QVector<bool> Layer::classesWithin(_ptr_t<DisplayTransformation> const&) const {
  return QVector<bool>(legendClasses().size(), true);
}

QString Layer::GetName() const { return d->name; }
void Layer::SetName(QString const& name) { d->change.set(d->name, name); }
void Layer::SetVisible(bool visible) {
  if (visible != d->visible) LayerHost::changeLook(*this);
  d->change.set(d->visible, visible);
}
void Layer::SetScaleRange(double minDenominator, double maxDenominator) {
  ScaleRange scales;
  scales.set(minDenominator, maxDenominator);
  if (scales.min != d->scales.min || scales.max != d->scales.max) LayerHost::changeLook(*this);
  d->change.set(d->scales.min, scales.min);
  d->change.set(d->scales.max, scales.max);
}

ScaleRange LayerHost::scales(Layer const& layer) { return layer.d->scales; }
LayerEffects LayerHost::effects(Layer const& layer) { return layer.d->effects; }
void LayerHost::setEffects(Layer& layer, LayerEffects const& effects) {
  layer.d->change.set(layer.d->effects.opacityPercent, effects.opacityPercent);
  layer.d->change.set(layer.d->effects.blend, effects.blend);
  changeLook(layer);
}
QString LayerHost::credits(Layer const& layer) { return layer.d->credits; }
void LayerHost::setCredits(Layer& layer, QString const& credits) { layer.d->change.set(layer.d->credits, credits); }
bool LayerHost::isSwitchedOn(Layer const& layer) { return layer.d->visible; }
LayerGroups LayerHost::groups(Layer const& layer) { return layer.d->groups; }
void LayerHost::setGroups(Layer& layer, LayerGroups const& groups) {
  if (groups != layer.d->groups) changeLook(layer);
  layer.d->change.set(layer.d->groups, groups);
}

QList<Layer*> const& LayerHost::fellows(Layer const& layer) { return layer.d->fellows; }
void LayerHost::setFellows(Layer& layer, QList<Layer*> const& fellows) { layer.d->fellows = fellows; }

int LayerHost::labelEffort(Layer const& layer) { return layer.d->labelEffort; }
void LayerHost::setLabelEffort(Layer& layer, int effort) {
  if (std::exchange(layer.d->labelEffort, effort) != effort) changeLook(layer);
}

quint64 LayerHost::lastChange(Layer const& layer) {
  quint64 last = layer.d->change.time();
  for (auto const& group : qAsConst(layer.d->groups)) last = std::max(last, group->lastChange());
  return last;
}
quint64 LayerHost::look(Layer const& layer) {
  quint64 latest = layer.d->look;
  for (auto const& group : qAsConst(layer.d->groups)) latest = std::max(latest, group->look());
  return latest;
}

QVector<bool> LayerHost::classesWithin(Layer const& layer, _ptr_t<DisplayTransformation> const& transformation) {
  return layer.classesWithin(transformation);
}

quint64 LayerHost::nextLook() {
  static quint64 latest = 1;
  return ++latest;
}

void LayerHost::changeLook(Layer const& layer) { layer.d->look = nextLook(); }

}  // namespace SysCarto
