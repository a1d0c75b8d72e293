#include "FeatureScan.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>

#include <ogr_feature.h>
#include <ogrsf_frmts.h>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FeatureScan)
};

}  // namespace

bool scanFeatures(SysCarto::SourceSettings const& source, SysCarto::ReadProgress const& progress, QString& problem,
                  std::function<void(OGRFeature const&)> const& use) {
  auto const data = SysCarto::openWatched(source, progress, problem);
  if (!data) return false;
  SysCarto::Condition condition;
  QString reason;
  if (!condition.compile(data->layer(), source.filter, reason)) {
    problem = Texts::tr("%1: the filter “%2” is not understood: %3.").arg(source.origin(), source.filter, reason);
    return false;
  }
  SysCarto::GdalErrors const errors;
  SysCarto::ReadWatch watch(data->layer(), progress);
  data->layer().ResetReading();
  while (OGRFeatureUniquePtr const feature{data->layer().GetNextFeature()}) {
    OGRGeometry const* const geometry = feature->GetGeometryRef();
    if (geometry && !geometry->IsEmpty() && condition.admits(*feature)) use(*feature);
    if (!watch.goesOn()) return false;
  }
  if (watch.wasStopped()) return false;
  if (errors.hasFailure())
    problem = Texts::tr("Not all of %1 could be read: %2.").arg(source.origin(), errors.reason());
  return !errors.hasFailure();
}
