#include "FeatureReader.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/layers/FeatureEvaluator.h"
#include "host/SysCarto/layers/FeatureIntake.h"
#include "host/SysCarto/layers/LabelReader.h"
#include "host/SysCarto/layers/Renderer.h"
#include "host/SysCarto/layers/SourceBounds.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>

#include <ogr_api.h>
#include <ogr_feature.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <limits>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FeatureReader)
};

QString describeSource(SourceSettings const& source) {
  if (source.data == SourceSettings::Data::Globe) return Texts::tr("the globe");
  return source.layer.isEmpty() ? Texts::tr("the file “%1”").arg(source.file)
                                : Texts::tr("layer “%2” of the file “%1”").arg(source.file, source.layer);
}

QString stopped(SourceSettings const& source) {
  return Texts::tr("The reading of %1 was stopped.").arg(describeSource(source));
}

// A field of the layer, or none.
class Field {
public:
  Field(OGRLayer& layer, QString const& name, SourceSettings const& source, QStringList& warnings)
      : index_(name.isEmpty() ? -1 : layer.GetLayerDefn()->GetFieldIndex(name.toUtf8().constData())) {
    if (!name.isEmpty() && index_ < 0)
      warnings << Texts::tr("There is no field “%1” in %2; it has: %3.")
                      .arg(name, describeSource(source), fieldNames(layer));
  }

  QString text(OGRFeature const& feature) const {
    return isGiven(feature) ? QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(index_)) : QString();
  }
  double number(OGRFeature const& feature) const {
    return isGiven(feature) ? feature.GetFieldAsDouble(index_) : std::numeric_limits<double>::quiet_NaN();
  }

private:
  bool isGiven(OGRFeature const& feature) const { return index_ >= 0 && feature.IsFieldSetAndNotNull(index_); }

  int const index_;
};

QString placeless(OGRLayer& layer, SourceSettings const& source) {
  return Texts::tr(
             "There is nothing to draw in %1: its rows have no geometry, and no columns of coordinates are known. Name "
             "such columns in “xField” and “yField”, or one of well-known text in “geometryField”, or join it as a "
             "table to a layer; it has: %2.")
      .arg(describeSource(source), fieldNames(layer));
}

std::unique_ptr<GeometryProjector> makeProjector(OGRLayer& layer, SourceSettings const& source,
                                                 QString const& mapSystem, ReadFeatures& result) {
  auto const target = makeCoordinateSystem(mapSystem);
  auto const given = makeCoordinateSystem(source.coordinateSystem);
  if (!source.coordinateSystem.isEmpty() && !given) {
    result.error = Texts::tr("The coordinate system of %1 %2.")
                       .arg(describeSource(source), checkCoordinateSystem(source.coordinateSystem));
    return nullptr;
  }
  bool const isGlobe = source.data == SourceSettings::Data::Globe;
  auto const globe = isGlobe && target ? globeOf(*target) : nullptr;  // the globe is the map's own
  OGRSpatialReference const* const own = isGlobe ? globe.get() : given ? given.get() : layer.GetSpatialRef();
  if (!own && target)
    result.warnings << Texts::tr(
                           "No coordinate system is known for %1; its coordinates are taken as those of the map. "
                           "Give one in the source's field “coordinateSystem”.")
                           .arg(describeSource(source));
  QString reason;
  auto projector = GeometryProjector::remembered(own, target.get(), reason);
  if (!projector)
    result.error = Texts::tr("The coordinates of %1 can't be projected to the map's coordinate system: %2.")
                       .arg(describeSource(source), reason);
  return projector;
}

// Where a marker of a line or an area stands; null for points, which are places themselves.
std::unique_ptr<OGRGeometry> markedPlace(OGRGeometry const& geometry) {
  if (geometry.getDimension() == 0) return nullptr;
  return std::unique_ptr<OGRGeometry>(
      OGRGeometry::FromHandle(OGR_G_PointOnSurface(OGRGeometry::ToHandle(const_cast<OGRGeometry*>(&geometry)))));
}

void readAll(OGRLayer& layer, GeometryProjector const& projector, Condition const& condition, Renderer const& renderer,
             SourceSettings const& source, LabelFields const& labels, ReadWatch& watch, ReadDepth depth,
             ReadFeatures& result) {
  Field const classField(layer, renderer.field(), source, result.warnings);
  Field(layer, labels.text, source, result.warnings);
  LabelReader const labelReader(layer, labels, describeSource(source), result.warnings);
  Field const keyField(layer, labels.key, source, result.warnings);
  Field const priorityField(layer, labels.priority, source, result.warnings);
  FeatureStore& store = *result.store;
  FeatureEvaluator const evaluator(layer, renderer, describeSource(source), result.warnings);
  store.keepsLabels = !labels.text.isEmpty();
  store.valuesPerFeature = static_cast<int>(renderer.varied().size());
  bool const isMarked = renderer.settings().kind == RendererSettings::Kind::Proportional;
  auto const keyOf = [&](OGRFeature const& feature) {
    if (!store.keepsLabels) return QString();
    return labels.key.isEmpty() ? QString::number(feature.GetFID()) : keyField.text(feature);
  };
  FeatureIntake intake(projector, store, [&](OGRFeature& feature, GeometryProjector const& own, FeatureStore& to) {
    to.beginFeature(feature.GetFID());
    auto const place = isMarked ? markedPlace(*feature.GetGeometryRef()) : nullptr;
    own.add(place ? *place : *feature.GetGeometryRef(), to);
    double const priority = priorityField.number(feature);
    int const fitting = evaluator.place(feature, to);
    int const symbolClass =
        evaluator.hasRules() ? fitting : renderer.classOf(classField.text(feature), classField.number(feature));
    to.endFeature(symbolClass, labelReader.text(feature),
                  std::isnan(priority) ? -std::numeric_limits<double>::infinity() : priority, keyOf(feature));
  });
  if (depth == ReadDepth::Schema) return;
  layer.ResetReading();
  SourceBounds bounds(source.file);
  bool isEmpty = true;
  while (OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
    if (!bounds.admits(*feature)) break;
    if (feature->GetGeometryRef() && condition.admits(*feature)) {
      isEmpty = isEmpty && feature->GetGeometryRef()->IsEmpty();
      intake.add(std::move(feature));
    }
    result.wasStopped = !watch.goesOn();
    if (result.wasStopped) return;
  }
  QString const unplaced = intake.finish();
  store.finish();
  if (!isEmpty && store.parts.empty())
    result.warnings << Texts::tr(
                           "Nothing of %1 lies where the map's coordinate system shows the globe, so that the layer is "
                           "empty; give the map another coordinate system, or the source the one that it has in truth.")
                           .arg(describeSource(source));
  else if (!unplaced.isEmpty())
    result.warnings << Texts::tr("Not all of %1 could be placed on the map: %2.").arg(describeSource(source), unplaced);
}

}  // namespace

ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem, Renderer const& renderer,
                          LabelFields const& labels, ReadProgress const& progress, ReadDepth depth) {
  ReadFeatures result;
  result.store = std::make_unique<FeatureStore>();
  auto const data = openWatched(source, progress, result.error);
  result.wasStopped = !data && result.error.isEmpty();
  if (result.wasStopped) result.error = stopped(source);
  if (!data) return result;
  if (data->layer().GetGeomType() == wkbNone) {
    result.error = placeless(data->layer(), source);
    return result;
  }
  auto const projector = makeProjector(data->layer(), source, mapSystem, result);
  if (!projector) return result;
  Condition condition;
  QString reason;
  if (!condition.compile(data->layer(), source.filter, reason)) {
    result.error =
        Texts::tr("The filter “%1” of %2 is not understood: %3.").arg(source.filter, describeSource(source), reason);
    return result;
  }
  GdalErrors const errors;
  ReadWatch watch(data->layer(), progress);
  readAll(data->layer(), *projector, condition, renderer, source, labels, watch, depth, result);
  if (result.wasStopped) {
    result.store = std::make_unique<FeatureStore>();
    result.error = stopped(source);
    return result;
  }
  result.error = data->joinProblem();
  result.warnings += data->notes();
  if (errors.hasFailure())
    result.error = Texts::tr("Not all of %1 could be read: %2.").arg(describeSource(source), errors.reason());
  return result;
}

QStringList attributesOf(SourceSettings const& source) {
  QString error;
  QStringList names;
  auto const data = DataSource::open(source, error);
  OGRFeatureDefn* const definition = data ? data->layer().GetLayerDefn() : nullptr;
  for (int i = 0; definition && i < definition->GetFieldCount(); ++i)
    names << QString::fromUtf8(definition->GetFieldDefn(i)->GetNameRef());
  return names;
}

}  // namespace SysCarto
