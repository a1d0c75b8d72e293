#include <SysCarto/Layer.h>

#include "host/SysCarto/layers/ScaleRange.h"

namespace SysCarto {

struct Layer::Private {
  QString name;
  bool visible = true;
  ScaleRange scales;
};

Layer::Layer() : d(std::make_unique<Private>()) {}
Layer::~Layer() = default;

bool Layer::IsVisible() const { return d->visible; }
double Layer::GetMinScale() const { return d->scales.comparedMin(); }
double Layer::GetMaxScale() const { return d->scales.comparedMax(); }

bool Layer::showsAt(double scale) const { return IsVisible() && d->scales.contains(scale); }

QList<LegendClass> Layer::legendClasses() const { return {}; }

QString Layer::GetName() const { return d->name; }
void Layer::SetName(QString const& name) { d->name = name; }
void Layer::SetVisible(bool visible) { d->visible = visible; }
void Layer::SetScaleRange(double minDenominator, double maxDenominator) {
  d->scales.set(minDenominator, maxDenominator);
}
double Layer::storedMinScale() const { return d->scales.min; }
double Layer::storedMaxScale() const { return d->scales.max; }

}  // namespace SysCarto
