#include "FeatureScan.h"

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

// The condition is OGR's own to evaluate, never a database's.
bool scanFeatures(QString const& file, QString const& layer, QString const& where, QString& problem,
                  std::function<void(OGRFeature const&)> const& use) {
  auto const source = SysCarto::DataSource::open(file, layer, problem);
  if (!source) return false;
  SysCarto::GdalErrors const errors;
  OGRFeatureQuery query;
  if (!where.isEmpty() && query.Compile(&source->layer(), where.toUtf8().constData()) != OGRERR_NONE) {
    problem = Texts::tr("%1: the filter “%2” is not understood: %3.").arg(file, where, errors.reason());
    return false;
  }
  source->layer().ResetReading();
  while (OGRFeatureUniquePtr const feature{source->layer().GetNextFeature()}) {
    OGRGeometry const* const geometry = feature->GetGeometryRef();
    if (geometry && !geometry->IsEmpty() && (where.isEmpty() || query.Evaluate(feature.get()))) use(*feature);
  }
  if (errors.hasFailure()) problem = Texts::tr("Not all of %1 could be read: %2.").arg(file, errors.reason());
  return !errors.hasFailure();
}
