#include "DataSurvey.h"
#include "FeatureScan.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"

#include <ogr_feature.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <memory>

using SysCarto::FieldDescription;
using SysCarto::GeometryKind;

namespace {

constexpr int edgeSteps = 24;  // by which the sides of an extent are followed

GeometryKind kindOf(OGRGeometry const& geometry) {
  OGRwkbGeometryType const type = wkbFlatten(geometry.getGeometryType());
  if (OGR_GT_IsSubClassOf(type, wkbGeometryCollection) && type != wkbMultiPoint &&
      !OGR_GT_IsSubClassOf(type, wkbMultiCurve) && !OGR_GT_IsSubClassOf(type, wkbMultiSurface))
    return GeometryKind::Mixed;
  switch (geometry.getDimension()) {
    case 0: return GeometryKind::Points;
    case 1: return GeometryKind::Lines;
    default: return GeometryKind::Areas;
  }
}

// Where the features are on the globe. Those of a geographic system say it themselves; of others the rectangle about
// them all is followed, so that nothing but its edge has to be transformed.
class GlobeFinder {
public:
  explicit GlobeFinder(QString const& definition) {
    auto const system = SysCarto::makeCoordinateSystem(definition);
    isGeographic_ = system && system->IsGeographic();
    auto const globe = system && !isGeographic_ ? SysCarto::globeOf(*system) : nullptr;
    QString error;
    if (globe) toGlobe_ = SysCarto::PointTransform::create(*system, *globe, error);
  }

  void add(OGRGeometry const& geometry, GlobeExtent& extent) {
    OGREnvelope box;
    geometry.getEnvelope(&box);
    box_.Merge(box);
    if (isGeographic_) addDegrees(geometry, extent);
  }

  SysGeometry::Box box() const {
    return box_.IsInit() ? SysGeometry::Box{box_.MinX, box_.MinY, box_.MaxX, box_.MaxY} : SysGeometry::Box();
  }

  void finish(GlobeExtent& extent) const {
    if (!toGlobe_ || !box_.IsInit()) return;
    for (int i = 0; i <= edgeSteps; ++i)
      for (int j = 0; j <= edgeSteps; ++j) {
        double x = box_.MinX + (box_.MaxX - box_.MinX) * i / edgeSteps;
        double y = box_.MinY + (box_.MaxY - box_.MinY) * j / edgeSteps;
        if (toGlobe_->apply(x, y)) extent.addPlace(x, y);
      }
    // The places are apart: what lies between two of a row belongs to it.
    GlobeArea const area = extent.isEmpty() ? GlobeArea() : extent.area();
    if (!extent.isEmpty()) extent.add(area);
  }

private:
  static void addRun(OGRSimpleCurve const& curve, GlobeExtent& extent) {
    for (int i = 0; i < curve.getNumPoints(); ++i)
      if (i == 0)
        extent.addPlace(curve.getX(i), curve.getY(i));
      else
        extent.addLine(curve.getX(i - 1), curve.getY(i - 1), curve.getX(i), curve.getY(i));
  }
  static void addDegrees(OGRGeometry const& geometry, GlobeExtent& extent) {
    if (auto const* const point = dynamic_cast<OGRPoint const*>(&geometry)) {
      if (!point->IsEmpty()) extent.addPlace(point->getX(), point->getY());
    } else if (auto const* const curve = dynamic_cast<OGRSimpleCurve const*>(&geometry)) {
      addRun(*curve, extent);
    } else if (auto const* const polygon = dynamic_cast<OGRPolygon const*>(&geometry)) {
      if (polygon->getExteriorRing()) addRun(*polygon->getExteriorRing(), extent);
    } else if (auto const* const collection = dynamic_cast<OGRGeometryCollection const*>(&geometry)) {
      for (auto const* const member : *collection) addDegrees(*member, extent);
    } else {
      std::unique_ptr<OGRGeometry> const linear(geometry.getLinearGeometry());
      if (linear && wkbFlatten(linear->getGeometryType()) != wkbFlatten(geometry.getGeometryType()))
        addDegrees(*linear, extent);
    }
  }

  bool isGeographic_ = false;
  std::unique_ptr<SysCarto::PointTransform> toGlobe_;
  OGREnvelope box_;
};

void note(OGRFeature const& feature, int index, FieldSurvey& field) {
  if (!feature.IsFieldSetAndNotNull(index)) return;
  QString const text = QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(index));
  if (text.trimmed().isEmpty()) return;
  if (field.isNumber()) {
    double const number = feature.GetFieldAsDouble(index);
    field.minimum = field.given == 0 ? number : std::min(field.minimum, number);
    field.maximum = field.given == 0 ? number : std::max(field.maximum, number);
  } else {
    field.letters += std::count_if(text.begin(), text.end(), [](QChar one) { return one.isLetter(); });
    field.length += text.size();
  }
  ++field.given;
  if (field.values.size() < FieldSurvey::maxValues || field.values.contains(text))
    ++field.values[text];
  else
    field.hasMoreValues = true;
}

}  // namespace

FieldSurvey const* LayerSurvey::field(QString const& name) const {
  auto const found =
      std::find_if(fields.begin(), fields.end(), [&](FieldSurvey const& one) { return one.name == name; });
  return found == fields.end() ? nullptr : &*found;
}

bool isPartOfTrack(QString const& layer, SysCarto::DataFile const& file) {
  return std::any_of(file.layers.begin(), file.layers.end(), [&](SysCarto::LayerDescription const& other) {
    return other.name.endsWith(QLatin1Char('s')) && layer == other.name.chopped(1) + QLatin1String("_points");
  });
}

std::optional<LayerSurvey> surveyLayer(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer,
                                       QString& problem) {
  LayerSurvey survey;
  survey.source = source;
  survey.description = layer;
  for (FieldDescription const& field : layer.fields) {
    survey.fields.emplace_back();
    survey.fields.back().name = field.name;
    survey.fields.back().kind = field.kind;
  }
  GlobeFinder finder(layer.coordinateSystem);
  std::vector<int> indices;
  bool const isRead = scanFeatures(source, problem, [&](OGRFeature const& feature) {
    OGRGeometry const& geometry = *feature.GetGeometryRef();
    ++survey.counts[kindOf(geometry)];
    ++survey.count;
    finder.add(geometry, survey.extent);
    for (FieldSurvey const& field : survey.fields)  // once
      if (indices.size() < survey.fields.size()) indices.push_back(feature.GetFieldIndex(field.name.toUtf8()));
    for (size_t i = 0; i < indices.size(); ++i)
      if (indices[i] >= 0) note(feature, indices[i], survey.fields[i]);
  });
  if (!isRead) return std::nullopt;
  finder.finish(survey.extent);
  survey.box = finder.box();
  return survey;
}
