#include "LayerHost.h"

namespace SysCarto {

struct AnnotationProperties::Private {
  ScaleRange scales;
  int priority = 0;
};

AnnotationProperties::AnnotationProperties() : d(std::make_unique<Private>()) {}
AnnotationProperties::~AnnotationProperties() = default;

double AnnotationProperties::GetMinScale() const { return d->scales.comparedMin(); }
double AnnotationProperties::GetMaxScale() const { return d->scales.comparedMax(); }
int AnnotationProperties::GetPriority() const { return d->priority; }
void AnnotationProperties::SetScaleRange(double minDenominator, double maxDenominator) {
  d->scales.set(minDenominator, maxDenominator);
}
void AnnotationProperties::SetPriority(int priority) { d->priority = priority; }

ScaleRange LayerHost::scales(AnnotationProperties const& labels) { return labels.d->scales; }

FeatureLayer::FeatureLayer() = default;
FeatureLayer::~FeatureLayer() = default;

int FeatureLayer::GetType() const { return LayerType::Feature; }

}  // namespace SysCarto
