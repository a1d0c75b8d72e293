#include "FeatureReader.h"

#include "host/SysCarto/layers/AdmittedFeatures.h"
#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/layers/FeatureEvaluator.h"
#include "host/SysCarto/layers/FeatureIntake.h"
#include "host/SysCarto/layers/LabelReader.h"
#include "host/SysCarto/layers/LargestNumbers.h"
#include "host/SysCarto/layers/LocalDataset.h"
#include "host/SysCarto/layers/Renderer.h"
#include "host/SysCarto/layers/ServerLayer.h"
#include "host/SysCarto/layers/SourceBounds.h"
#include "host/SysCarto/layers/SourceSystem.h"
#include "host/SysCarto/layers/SourceWindow.h"
#include "host/SysCarto/layers/ThinningGrid.h"
#include "host/SysCarto/layers/indexed/SourceIndexes.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>

#include <ogr_api.h>
#include <ogr_feature.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <deque>
#include <limits>
#include <optional>
#include <set>
#include <utility>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FeatureReader)
};

QString describeSource(SourceSettings const& source) {
  if (source.data == SourceSettings::Data::Globe) return Texts::tr("the globe");
  if (!source.connection.isEmpty())
    return Texts::tr("the table “%1” of the connection “%2”").arg(source.layer, source.connection);
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

// Of a table without rows no coordinate system is missed.
bool hasFeatures(OGRLayer& layer) {
  layer.ResetReading();
  OGRFeatureUniquePtr const first(layer.GetNextFeature());
  layer.ResetReading();
  return first != nullptr;
}

std::unique_ptr<GeometryProjector> makeProjector(DataSource const& data, SourceSettings const& source,
                                                 QString const& mapSystem, ReadFeatures& result) {
  OGRLayer& layer = data.layer();
  auto const target = makeCoordinateSystem(mapSystem);
  auto const given = makeCoordinateSystem(source.coordinateSystem);
  if (!source.coordinateSystem.isEmpty() && !given) {
    result.error = Texts::tr("The coordinate system of %1 %2.")
                       .arg(describeSource(source), checkCoordinateSystem(source.coordinateSystem));
    return nullptr;
  }
  bool const isGlobe = source.data == SourceSettings::Data::Globe;
  auto const globe = isGlobe && target ? globeOf(*target) : nullptr;  // the globe is the map's own
  GdalErrors const errors;
  bool const saysItself = !isGlobe && !given;
  auto const said = saysItself ? systemOf(layer, !source.connection.isEmpty()) : SourceSystem();
  OGRSpatialReference const* const own = isGlobe ? globe.get() : given ? given.get() : said.system;
  // A database names the column of its keys; it knows a system that it fails to tell. What a file beside the data says
  // may be nonsense.
  if (!own && errors.hasFailure() && *layer.GetFIDColumn() != '\0') {
    result.error = Texts::tr(
                       "The coordinate system of %1 can't be read: %2. Mend the file, or give the system in the "
                       "source's field “coordinateSystem”.")
                       .arg(describeSource(source), errors.reason());
    return nullptr;
  }
  bool const isMissed = !own && target && (!source.connection.isEmpty() || hasFeatures(layer));
  QString const warning = saysItself ? said.warning(describeSource(source), data.complaint(), isMissed) : QString();
  if (!warning.isEmpty()) result.warnings << warning;
  QString reason;
  auto projector = GeometryProjector::create(own, target.get(), reason);
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

WindowThreshold& threshold() {
  static WindowThreshold own;
  return own;
}

// As the source says itself, which of a server is an estimate.
WindowThreshold toldSize(OGRLayer& layer, SourceSettings const& source) {
  if (auto const* const table = dynamic_cast<ServerLayer*>(&layer)) return {table->toldBytes(), table->toldCount()};
  return {dataSizeOf(source.file), knownCount(layer)};
}

bool isMuch(WindowThreshold const& size) {
  return size.features >= threshold().features || size.bytes >= threshold().bytes;
}

// Whether windows are worth it. Only tables of an index of their own have one.
bool isLarge(OGRLayer& layer, SourceSettings const& source) {
  if (source.data == SourceSettings::Data::Globe || !layer.TestCapability(OLCFastSpatialFilter)) return false;
  return isMuch(toldSize(layer, source));
}

// Hands on the parts of a feature that can be seen, and of an area of which none can, where it lies: a place, or the
// ends of a strip. There it is drawn in the least size.
class ThinningSink final : public PartSink {
public:
  ThinningSink(ThinningGrid const& grid, bool keepsSmall, FeatureStore& store)
      : grid_(grid), keepsSmall_(keepsSmall), store_(store) {}

  void startPolygon() override { store_.startPolygon(); }
  void addPart(PartKind kind, double const* xy, int count) override {
    kept_.resize(2 * static_cast<size_t>(count));
    int const left = grid_.thin(kind, xy, count, kept_.data());
    bool const isArea = kind == PartKind::Ring || kind == PartKind::FilledRing;
    if (left >= (keepsSmall_ ? 1 : ThinningGrid::minVertices(kind))) {
      store_.addPart(kind, kept_.data(), left);
      isSeen_ = isSeen_ || kind != PartKind::Outline;
    } else if (isArea && left > 0 && !unseen_) {
      unseen_ = {kind, left, {kept_[0], kept_[1], kept_[2 * left - 2], kept_[2 * left - 1]}};
    }
  }

  void finish() {
    if (isSeen_ || !unseen_) return;
    store_.startPolygon();
    store_.addPart(unseen_->kind, unseen_->ends.data(), unseen_->count);
  }

private:
  struct Spot {
    PartKind kind;
    int count;
    std::array<double, 4> ends;
  };

  ThinningGrid const& grid_;
  bool const keepsSmall_;
  FeatureStore& store_;
  std::vector<double> kept_;
  bool isSeen_ = false;
  std::optional<Spot> unseen_;
};

// The features of a layer in turn, each once.
class Selection {
public:
  Selection(OGRLayer& layer, WindowQuery const* query, GeometryProjector const& projector) : layer_(layer) {
    bool const isByNumber = query && !query->ids.empty();
    if (isByNumber) ids_.assign(query->ids.begin(), query->ids.end());
    if (isByNumber) return;
    auto const extent = query ? toldExtent(layer, projector) : std::nullopt;
    if (extent) rectangles_ = sourceWindow(*extent, query->area, projector);
    isAll_ = !extent || isMost(*extent);
    begin();
  }

  bool isAll() const { return isAll_; }

  // An empty pointer behind the last one.
  OGRFeatureUniquePtr next() {
    for (; !ids_.empty(); ids_.pop_front())
      if (OGRFeatureUniquePtr feature{layer_.GetFeature(ids_.front())}) return ids_.pop_front(), std::move(feature);
    for (; isAll_ || now_ < rectangles_.size(); ++now_, begin()) {
      while (OGRFeatureUniquePtr feature{layer_.GetNextFeature()})
        if (isNew(*feature)) return feature;
      if (isAll_) return nullptr;
    }
    return nullptr;
  }

private:
  // To follow an index to many features takes longer than to read all.
  bool isMost(Box const& extent) const {
    constexpr double much = 0.25;
    double share = 0;
    for (Box const& one : rectangles_) {
      double const width = std::min(one.xmax, extent.xmax) - std::max(one.xmin, extent.xmin);
      double const height = std::min(one.ymax, extent.ymax) - std::max(one.ymin, extent.ymin);
      double const whole = std::max(extent.xmax - extent.xmin, 1e-12) * std::max(extent.ymax - extent.ymin, 1e-12);
      if (width > 0 && height > 0) share += width * height / whole;
    }
    return share > much;
  }

  void begin() {
    if (!isAll_ && now_ < rectangles_.size()) {
      Box const& own = rectangles_[now_];
      layer_.SetSpatialFilterRect(own.xmin, own.ymin, own.xmax, own.ymax);
    }
    if (isAll_ || now_ < rectangles_.size()) layer_.ResetReading();
  }

  // What several rectangles meet is given for each.
  bool isNew(OGRFeature& feature) {
    if (isAll_ || rectangles_.size() < 2 || !feature.GetGeometryRef()) return true;
    OGREnvelope told;
    feature.GetGeometryRef()->getEnvelope(&told);
    Box const box{told.MinX, told.MinY, told.MaxX, told.MaxY};
    auto const meeting =
        std::count_if(rectangles_.begin(), rectangles_.end(), [&](Box const& one) { return one.meets(box); });
    return meeting < 2 || seen_.insert(feature.GetFID()).second;
  }

  OGRLayer& layer_;
  std::deque<GIntBig> ids_;
  std::vector<Box> rectangles_;
  std::set<GIntBig> seen_;
  size_t now_ = 0;
  bool isAll_ = false;
};

// What only costs time to be read, of a layer that can leave it out, is left out. Expressions may name any field.
void leaveOut(OGRLayer& layer, Condition const& condition, Renderer const& renderer, LabelFields const& labels) {
  bool const hasRules = renderer.settings().kind == RendererSettings::Kind::Rules;
  if (hasRules || !renderer.varied().empty() || !labels.expression.isEmpty()) return;
  QStringList needed = condition.fields() + QStringList{renderer.field(), labels.text, labels.priority, labels.key};
  for (QString const& separator : {QStringLiteral(":"), QStringLiteral("_")})
    needed << labels.text + separator + labels.language;
  readOnly(layer, needed << QStringLiteral("OGR_GEOMETRY"));
}

struct ReadTask {
  SourceSettings const& source;
  Renderer const& renderer;
  LabelFields const& labels;
  ReadDepth depth;
  WindowQuery const* query;  // or null
};

void readAll(OGRLayer& layer, GeometryProjector const& projector, Condition const& condition, ReadTask const& task,
             ReadWatch& watch, ReadFeatures& result) {
  auto const& [source, renderer, labels, depth, query] = task;
  Field const classField(layer, renderer.field(), source, result.warnings);
  Field(layer, labels.text, source, result.warnings);
  LabelReader const labelReader(layer, labels, describeSource(source), result.warnings);
  Field const keyField(layer, labels.key, source, result.warnings);
  Field const priorityField(layer, labels.priority, source, result.warnings);
  FeatureStore& store = *result.store;
  FeatureEvaluator const evaluator(layer, renderer, describeSource(source), result.warnings);
  store.keepsLabels = !labels.text.isEmpty();
  store.valuesPerFeature = static_cast<int>(renderer.varied().size());
  if (query) store.knowLargest(query->largest);
  bool const isMarked = renderer.settings().kind == RendererSettings::Kind::Proportional;
  ThinningGrid const grid(query ? query->cell : 0);
  if (query && query->cell > 0) {
    result.pack = std::make_unique<FeaturePack>(query->area, query->cell, query->labels);
    result.pack->form().takeForm(store);
  }
  auto const keyOf = [&, &keyName = labels.key](OGRFeature const& feature) {
    if (!store.keepsLabels) return QString();
    return keyName.isEmpty() ? QString::number(feature.GetFID()) : keyField.text(feature);
  };
  auto const addGeometry = [&](OGRGeometry const& geometry, GeometryProjector const& own, FeatureStore& to) {
    if (!result.pack) return own.add(geometry, to);
    ThinningSink sink(grid, store.keepsLabels, to);
    own.add(geometry, sink);
    sink.finish();
  };
  std::atomic<bool> isGarbled = false;
  auto const place = [&, &rendering = renderer](OGRFeature& feature, GeometryProjector const& own, FeatureStore& to) {
    to.beginFeature(feature.GetFID());
    auto const mark = isMarked ? markedPlace(*feature.GetGeometryRef()) : nullptr;
    addGeometry(mark ? *mark : *feature.GetGeometryRef(), own, to);
    double const priority = priorityField.number(feature);
    int const fitting = evaluator.place(feature, to);
    int const symbolClass =
        evaluator.hasRules() ? fitting : rendering.classOf(classField.text(feature), classField.number(feature));
    QString const text = labelReader.text(feature);
    if (text.contains(QChar::ReplacementCharacter)) isGarbled = true;
    to.endFeature(symbolClass, text, std::isnan(priority) ? -std::numeric_limits<double>::infinity() : priority,
                  keyOf(feature));
  };
  FeatureIntake intake(projector, store, place, [&, wanted = query](FeatureStore& placed) {
    if (!result.pack) return store.append(placed);
    result.pack->add(placed);
    if (wanted->growing) wanted->growing(*result.pack);
  });
  bool const isReadNow = depth == ReadDepth::Features;
  if (!query && isLarge(layer, source) && (isReadNow || !followsLargest(renderer))) {
    auto const extent = toldExtent(layer, projector);
    result.hasWindows = extent.has_value();
    if (extent) result.extent = coveredMap(*extent, projector);
    result.count = toldSize(layer, source).features;
  }
  if (depth == ReadDepth::Schema) return;
  bool const isOfServer = !source.connection.isEmpty();
  SourceBounds bounds = isOfServer ? SourceBounds::ofServer() : SourceBounds(source.file);
  AdmittedFeatures admitted(describeSource(source), projector);
  QStringList unseen;
  QString unplaced;
  if (result.hasWindows && isReadNow) {
    condition.narrow(layer, Condition::Narrowed::All);
    if (followsLargest(renderer))
      store.knowLargest(largestNumbers(layer, condition, renderer, evaluator, isOfServer ? nullptr : &bounds, watch));
    result.wasStopped = watch.wasStopped();
    if (result.extent.isEmpty()) unseen << AdmittedFeatures::nowhere(describeSource(source));
  } else {
    leaveOut(layer, condition, renderer, labels);
    if (query) readInAnyOrder(layer);  // those of a window are sorted when they are drawn
    Selection selection(layer, query, projector);
    if (!selection.isAll()) watch.countNone();
    condition.narrow(layer, Condition::Narrowed::All);
    bool const isBounded = !isOfServer || !result.pack;
    while (OGRFeatureUniquePtr feature = selection.next()) {
      if (isBounded && !bounds.admits(*feature)) break;
      if (condition.admits(*feature)) {
        if (!query) admitted.add(*feature);
        if (feature->GetGeometryRef()) intake.add(std::move(feature));
      }
      result.wasStopped = !watch.goesOn();
      if (result.wasStopped) return;
    }
    result.wasStopped = watch.wasStopped();
    if (result.wasStopped) return;
    unplaced = intake.finish();
    store.finish();
    if (result.pack) result.pack->finish();
    if (!query) unseen = admitted.warnings(!source.filter.isEmpty(), store, renderer);
  }
  result.warnings += unseen;
  if (isGarbled)
    result.warnings << Texts::tr(
                           "Texts of %1 are not encoded as its format has it, so that � stands for letters; save "
                           "it anew, as UTF-8 where there is a choice.")
                           .arg(describeSource(source));
  if (unseen.isEmpty() && !unplaced.isEmpty())
    result.warnings << Texts::tr("Not all of %1 could be placed on the map: %2.").arg(describeSource(source), unplaced);
}

// A large source without an index gets one. What can't have one is read as it is.
std::unique_ptr<DataSource> withIndex(std::unique_ptr<DataSource> data, QString const& state, ReadTask const& task,
                                      ReadProgress const& progress, ReadFeatures& result) {
  SourceSettings const& source = task.source;
  OGRLayer& layer = data->layer();
  if (task.depth != ReadDepth::Features || !isMuch(toldSize(layer, source)) || !SourceIndexes::isMissing(layer, source))
    return data;
  auto const made = SourceIndexes::make(layer, source, state, progress);
  result.wasStopped = made.wasStopped;
  if (made.wasStopped) return nullptr;
  if (made.isThere)
    result.notes << Texts::tr(
                        "To read of %1 only what a map shows, it was indexed in “%2”; that is done once, and again "
                        "where the file changes.")
                        .arg(describeSource(source), made.folder);
  else if (!made.problem.isEmpty())
    result.notes << Texts::tr("%1 is read whole, since it can't be indexed in “%2”: %3.")
                        .arg(describeSource(source), made.folder, made.problem);
  data.reset();
  return openWatched(source, progress, result.error);
}

ReadFeatures readTask(ReadTask const& task, QString const& mapSystem, ReadProgress const& progress) {
  SourceSettings const& source = task.source;
  ReadFeatures result;
  result.store = std::make_unique<FeatureStore>();
  QString const state = SourceIndexes::stateOf(source);
  auto data = openWatched(source, progress, result.error);
  if (data) data = withIndex(std::move(data), state, task, progress, result);
  result.wasStopped = !data && result.error.isEmpty();
  if (result.wasStopped) result.error = stopped(source);
  if (!data) return result;
  if (data->layer().GetGeomType() == wkbNone) {
    result.error = placeless(data->layer(), source);
    return result;
  }
  auto const projector = makeProjector(*data, source, mapSystem, result);
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
  readAll(data->layer(), *projector, condition, task, watch, result);
  if (result.wasStopped) {
    result.store = std::make_unique<FeatureStore>();
    result.pack.reset();
    result.error = stopped(source);
    return result;
  }
  result.error = data->joinProblem();
  result.warnings += data->notes();
  QString const table = !task.query && !source.file.isEmpty() ? missingTableOf(source.file) : QString();
  if (!table.isEmpty())
    result.warnings << Texts::tr(
                           "The table of %1, “%2”, is missing, so that its features have no attributes; put it "
                           "beside the file.")
                           .arg(describeSource(source), table);
  if (!task.query && source.connection.isEmpty() && hasGuessedEncoding(source.file))
    result.notes
        << Texts::tr(
               "How the texts of %1 are encoded is not said, or not truly; they are taken as Windows-1252. A file "
               "beside "
               "the table, with its name and the suffix “.cpg”, would say so with the name of the encoding in it.")
               .arg(describeSource(source));
  if (errors.hasFailure())
    result.error = Texts::tr("Not all of %1 could be read: %2.").arg(describeSource(source), errors.reason());
  return result;
}

}  // namespace

WindowThreshold setWindowThreshold(WindowThreshold const& wanted) { return std::exchange(threshold(), wanted); }

ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem, Renderer const& renderer,
                          LabelFields const& labels, ReadProgress const& progress, ReadDepth depth) {
  return readTask({source, renderer, labels, depth, nullptr}, mapSystem, progress);
}

ReadFeatures readWindow(SourceSettings const& source, QString const& mapSystem, Renderer const& renderer,
                        LabelFields const& labels, WindowQuery const& query, ReadProgress const& progress) {
  return readTask({source, renderer, labels, ReadDepth::All, &query}, mapSystem, progress);
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
