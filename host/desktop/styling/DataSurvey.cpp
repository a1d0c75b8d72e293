#include "DataSurvey.h"

#include "Bulk.h"
#include "DrawingOrder.h"
#include "FeatureScan.h"

#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/PointTransform.h"
#include "host/SysCarto/projection/RectangleArea.h"

#include <QCoreApplication>

#include <ogr_api.h>
#include <ogr_feature.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <optional>

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

// Of a geographic system, whose unit need not be a degree, nor its meridian that of Greenwich.
class Degrees {
public:
  explicit Degrees(OGRSpatialReference const& system)
      : unit_(system.GetAngularUnits() * 180 / M_PI), meridian_(system.GetPrimeMeridian()) {}

  double longitude(double x) const { return x * unit_ + meridian_; }
  double latitude(double y) const { return y * unit_; }
  double turn() const { return 360 / unit_; }
  GlobeArea area(SysGeometry::Box const& box) const {
    return {longitude(box.xmin), latitude(box.ymin), longitude(box.xmax), latitude(box.ymax)};
  }

  void add(OGRGeometry const& geometry, GlobeExtent& extent) const {
    if (auto const* const point = dynamic_cast<OGRPoint const*>(&geometry)) {
      if (!point->IsEmpty()) extent.addPlace(longitude(point->getX()), latitude(point->getY()));
    } else if (auto const* const curve = dynamic_cast<OGRSimpleCurve const*>(&geometry)) {
      addLines(*curve, extent);
    } else if (auto const* const polygon = dynamic_cast<OGRPolygon const*>(&geometry)) {
      if (polygon->getExteriorRing()) addLines(*polygon->getExteriorRing(), extent);
    } else if (auto const* const collection = dynamic_cast<OGRGeometryCollection const*>(&geometry)) {
      for (auto const* const member : *collection) add(*member, extent);
    } else {
      std::unique_ptr<OGRGeometry> const linear(geometry.getLinearGeometry());
      if (linear && wkbFlatten(linear->getGeometryType()) != wkbFlatten(geometry.getGeometryType()))
        add(*linear, extent);
    }
  }

private:
  void addLines(OGRSimpleCurve const& curve, GlobeExtent& extent) const {
    for (int i = 0; i < curve.getNumPoints(); ++i) {
      double const x = longitude(curve.getX(i)), y = latitude(curve.getY(i));
      if (i == 0)
        extent.addPlace(x, y);
      else
        extent.addLine(longitude(curve.getX(i - 1)), latitude(curve.getY(i - 1)), x, y);
    }
  }

  double const unit_, meridian_;
};

// Where the features are. Those of a geographic system say it themselves; of others the rectangle about them all is
// followed, so that nothing but its edge has to be transformed.
class Finder {
public:
  explicit Finder(QString const& definition) : system_(SysCarto::makeCoordinateSystem(definition)) {
    if (system_ && system_->IsGeographic()) degrees_.emplace(*system_);
  }

  void add(OGRGeometry const& geometry) {
    OGREnvelope envelope;
    geometry.getEnvelope(&envelope);
    Box const box{envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY};
    sample_.add(box);
    largestKm2_ = std::max(largestKm2_, squareKm(box, system_.get()));
    if (geometry.getDimension() == 2)
      coveredKm2_ += squareKm(OGR_G_Area(OGRGeometry::ToHandle(const_cast<OGRGeometry*>(&geometry))),
                              (box.ymin + box.ymax) / 2, system_.get());
    if (degrees_) degrees_->add(geometry, extent_);
  }

  void finish(LayerSurvey& survey) const {
    survey.largestKm2 = largestKm2_;
    if (sample_.all().isEmpty()) return;
    // Of a geographic system, along the globe from where there is the most room: what is about the antimeridian stays
    // together.
    double const west = extent_.isEmpty() ? -180 : extent_.area().west;
    BoxSample turned;
    if (degrees_)
      for (Box box : sample_.boxes()) {
        double const turn =
            degrees_->turn() * std::floor(((degrees_->area(box).west + degrees_->area(box).east) / 2 - west) / 360);
        turned.add({box.xmin - turn, box.ymin, box.xmax - turn, box.ymax});
      }
    Bulk const bulk = Bulk::of(degrees_ && sample_.step() == 1 ? turned : sample_);
    survey.outliers = bulk.outliers;
    survey.box = bulk.outliers > 0 ? bulk.box : sample_.all();
    if (degrees_ && bulk.outliers == 0) {
      survey.extent = extent_;
    } else if (degrees_) {
      for (Box const& box : bulk.boxes) survey.extent.add(degrees_->area(box));
    } else if (system_) {
      addTransformed(survey.box, survey.extent);
    }
    GlobeArea const area = survey.extent.isEmpty() ? GlobeArea() : survey.extent.area();
    double const wholeKm2 = system_ ? area.widthKm() * area.heightKm() : squareKm(survey.box, nullptr);
    if (wholeKm2 > 0) survey.covered = coveredKm2_ / wholeKm2;
    survey.typical = typicalShare(survey.box);
  }

private:
  using Box = SysGeometry::Box;

  double typicalShare(Box const& whole) const {
    std::vector<double> sizes;
    for (Box const& box : sample_.boxes())
      if (double const size = (box.xmax - box.xmin) * (box.ymax - box.ymin); size > 0) sizes.push_back(size);
    if (sizes.empty()) return 1;
    auto const middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return std::min(1.0, *middle / ((whole.xmax - whole.xmin) * (whole.ymax - whole.ymin)));
  }

  void addTransformed(Box const& box, GlobeExtent& extent) const {
    auto const globe = SysCarto::globeOf(*system_);
    QString error;
    auto const toGlobe = globe ? SysCarto::PointTransform::create(*system_, *globe, error) : nullptr;
    for (int i = 0; toGlobe && i <= edgeSteps; ++i)
      for (int j = 0; j <= edgeSteps; ++j) {
        double x = box.xmin + (box.xmax - box.xmin) * i / edgeSteps;
        double y = box.ymin + (box.ymax - box.ymin) * j / edgeSteps;
        if (toGlobe->apply(x, y)) extent.addPlace(x, y);
      }
    // The places are apart: what lies between two of a row belongs to it.
    GlobeArea const area = extent.isEmpty() ? GlobeArea() : extent.area();
    if (!extent.isEmpty()) extent.add(area);
  }

  std::unique_ptr<OGRSpatialReference> const system_;
  std::optional<Degrees> degrees_;  // of a geographic system
  GlobeExtent extent_;
  BoxSample sample_;
  double largestKm2_ = 0, coveredKm2_ = 0;
};

void note(OGRFeature const& feature, int index, FieldSurvey& field) {
  if (!feature.IsFieldSetAndNotNull(index)) return;
  QString const text = QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(index));
  if (text.trimmed().isEmpty()) return;
  if (field.isNumber()) {
    double const number = feature.GetFieldAsDouble(index);
    if (field.numbers.size() < FieldSurvey::maxNumbers) field.numbers.push_back(number);
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

QStringList textsOf(OGRFeature const& feature, std::vector<int> const& fields) {
  QStringList texts;
  for (int const field : fields)
    texts << (field >= 0 && feature.IsFieldSetAndNotNull(field)
                  ? QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(field))
                  : QString());
  return texts;
}

}  // namespace

// Of areas, as long as they are few.
struct LayerSurvey::Kept {
  struct Area {
    std::unique_ptr<OGRGeometry> geometry;
    QStringList texts;  // by field
  };
  std::vector<Area> areas;
  size_t bytes = 0;
  bool isWhole = true;

  void add(OGRFeature const& feature, std::vector<int> const& fields) {
    constexpr size_t mostAreas = 20000, mostBytes = size_t{64} << 20;
    OGRGeometry const& geometry = *feature.GetGeometryRef();
    isWhole = isWhole && geometry.getDimension() == 2 && areas.size() < mostAreas;
    QStringList const texts = isWhole ? textsOf(feature, fields) : QStringList();
    bytes += isWhole ? geometry.WkbSize() : 0;
    for (QString const& text : texts) bytes += text.size() * sizeof(QChar);
    isWhole = isWhole && bytes < mostBytes;
    if (isWhole)
      areas.push_back({std::unique_ptr<OGRGeometry>(geometry.clone()), texts});
    else
      areas.clear();
  }
};

std::optional<SysCarto::FieldValues> FieldSurvey::numbersOf(int features) const {
  if (!isNumber() || static_cast<int>(numbers.size()) != given) return std::nullopt;
  SysCarto::FieldValues known;
  known.numbers = numbers;
  known.isNumeric = true;
  known.missing = features - given;
  for (auto it = values.cbegin(); it != values.cend(); ++it) known.texts.push_back({it.key(), it.value()});
  return known;
}

void LayerSurvey::forEachFeature(QString const& field,
                                 std::function<void(OGRGeometry const&, QString const& text)> const& use) const {
  if (kept && kept->isWhole) {
    auto const own = std::find_if(fields.begin(), fields.end(), [&](auto const& one) { return one.name == field; });
    for (Kept::Area const& area : kept->areas)
      use(*area.geometry, area.texts.value(static_cast<int>(own - fields.begin())));
    return;
  }
  QString problem;
  scanFeatures(source, {}, problem, [&](OGRFeature const& feature) {
    use(*feature.GetGeometryRef(), textsOf(feature, {feature.GetFieldIndex(field.toUtf8())}).first());
  });
}

DataPlace DataPlace::of(std::vector<LayerSurvey> const& layers) {
  DataPlace place;
  GlobeExtent extent;
  for (LayerSurvey const& layer : layers) {
    if (!layer.extent.isEmpty()) extent.add(layer.extent.area());
    QString const& system = layer.description.coordinateSystem;
    if (!system.isEmpty() && !place.systems.contains(system)) place.systems << system;
    place.hasFeatures = place.hasFeatures || layer.count > 0;
    place.outliers += layer.outliers;
  }
  place.isKnown = !extent.isEmpty();
  if (place.isKnown) place.area = extent.area();
  return place;
}

QString DataPlace::outlierText() const {
  return outliers == 0 ? QString()
                       : QCoreApplication::translate("DataSurvey",
                                                     "Some features (%1) lie far from all others, perhaps by wrong "
                                                     "coordinates: they are drawn, but the map does not reach so far.")
                             .arg(outliers);
}

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

namespace {

// As an area that it covers.
LayerSurvey surveyedRaster(LayerSurvey survey) {
  Finder finder(survey.description.coordinateSystem);
  finder.add(SysCarto::areaOf(survey.description.extent));
  survey.count = 1;
  finder.finish(survey);
  return survey;
}

}  // namespace

std::optional<LayerSurvey> surveyLayer(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer,
                                       SysCarto::ReadProgress const& progress, QString& problem) {
  LayerSurvey survey;
  survey.source = source;
  survey.description = layer;
  if (layer.kind == SysCarto::GeometryKind::Raster) return surveyedRaster(survey);
  for (FieldDescription const& field : layer.fields) {
    survey.fields.emplace_back();
    survey.fields.back().name = field.name;
    survey.fields.back().kind = field.kind;
  }
  Finder finder(layer.coordinateSystem);
  auto const kept = std::make_shared<LayerSurvey::Kept>();
  std::vector<int> indices;
  problem.clear();
  bool const isRead = scanFeatures(source, progress, problem, [&](OGRFeature const& feature) {
    OGRGeometry const& geometry = *feature.GetGeometryRef();
    ++survey.counts[kindOf(geometry)];
    ++survey.count;
    finder.add(geometry);
    for (FieldSurvey const& field : survey.fields)  // once
      if (indices.size() < survey.fields.size()) indices.push_back(feature.GetFieldIndex(field.name.toUtf8()));
    for (size_t i = 0; i < indices.size(); ++i)
      if (indices[i] >= 0) note(feature, indices[i], survey.fields[i]);
    kept->add(feature, indices);
  });
  bool const isPart = !isRead && !problem.isEmpty() && survey.count > 0;
  if (!isRead && !isPart) return std::nullopt;
  finder.finish(survey);
  survey.kept = kept;
  return survey;
}
