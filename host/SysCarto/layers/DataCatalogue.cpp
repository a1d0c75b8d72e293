#include "DataCatalogue.h"

#include "DataSource.h"
#include "DerivedLayer.h"
#include "LocalDataset.h"
#include "raster/RasterSource.h"
#include "ServerDatabase.h"
#include "ServerLayer.h"
#include "SourceSystem.h"
#include "TableLayer.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSet>

#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

constexpr int featuresToCount = 1000;
constexpr qint64 patienceForKindMs = 1000;
constexpr int featuresForValues = 100000;
constexpr int betweenLooksAtTheClock = 256;

// Formats that have layers whether a file holds anything for them or not.
bool mayHaveEmptyLayers(GDALDataset& dataset) {
  QString const format = formatOf(dataset);
  return format == QLatin1String("GPX") || format == QLatin1String("DXF") || format == QLatin1String("KML");
}

std::optional<GeometryKind> kindOf(OGRwkbGeometryType type) {
  switch (wkbFlatten(type)) {
    case wkbNone: return GeometryKind::None;
    case wkbPoint:
    case wkbMultiPoint: return GeometryKind::Points;
    case wkbLineString:
    case wkbCircularString:
    case wkbCompoundCurve:
    case wkbCurve:
    case wkbMultiCurve:
    case wkbMultiLineString: return GeometryKind::Lines;
    case wkbPolygon:
    case wkbCurvePolygon:
    case wkbSurface:
    case wkbPolyhedralSurface:
    case wkbTIN:
    case wkbTriangle:
    case wkbMultiSurface:
    case wkbMultiPolygon: return GeometryKind::Areas;
    default: return std::nullopt;
  }
}

FieldDescription::Kind kindOf(OGRFieldType type) {
  switch (type) {
    case OFTString: return FieldDescription::Kind::Text;
    case OFTInteger:
    case OFTInteger64: return FieldDescription::Kind::Integer;
    case OFTReal: return FieldDescription::Kind::Real;
    case OFTDate:
    case OFTTime:
    case OFTDateTime: return FieldDescription::Kind::DateTime;
    default: return FieldDescription::Kind::Other;
  }
}

struct ReleaseSystem {
  void operator()(OGRSpatialReference* system) const { system->Release(); }
};
using System = std::unique_ptr<OGRSpatialReference, ReleaseSystem>;

// The system of PROJ's database that one without a code is; formats that store parameters alone have such.
System knownAs(OGRSpatialReference const& system) {
  constexpr int minConfidence = 70;  // percent: all is equal but the name
  if (system.GetAuthorityCode(nullptr)) return nullptr;
  System match(system.FindBestMatch(minConfidence));
  char const* const options[] = {"CRITERION=EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS",
                                 "IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", nullptr};
  return match && match->IsSame(&system, options) ? std::move(match) : nullptr;
}

void describeSystem(OGRSpatialReference const* system, LayerDescription& layer) {
  if (!system) return;
  System const known = knownAs(*system);
  if (known) system = known.get();
  layer.coordinateSystemName = QString::fromUtf8(system->GetName());
  char const* const authority = system->GetAuthorityName(nullptr);
  char const* const code = system->GetAuthorityCode(nullptr);
  if (authority && code) {
    layer.coordinateSystem = QString::fromUtf8(authority) + QLatin1Char(':') + QString::fromUtf8(code);
    return;
  }
  char* text = nullptr;
  char const* const options[] = {"FORMAT=WKT2_2019", nullptr};
  if (system->exportToWkt(&text, options) == OGRERR_NONE) layer.coordinateSystem = QString::fromUtf8(text);
  CPLFree(text);
}

// What features that are looked at one by one tell of their layer.
struct Look {
  qint64 count = 0;
  SysGeometry::Box extent;
  QSet<int> kinds;

  void at(OGRFeature& feature) {
    ++count;
    OGRGeometry const* const geometry = feature.GetGeometryRef();
    if (!geometry || geometry->IsEmpty()) return;
    OGREnvelope one;
    geometry->getEnvelope(&one);
    extent.add(one.MinX, one.MinY);
    extent.add(one.MaxX, one.MaxY);
    kinds << static_cast<int>(kindOf(geometry->getGeometryType()).value_or(GeometryKind::Mixed));
  }
  GeometryKind kind() const {
    if (kinds.isEmpty()) return GeometryKind::None;
    return kinds.size() == 1 ? static_cast<GeometryKind>(*kinds.begin()) : GeometryKind::Mixed;
  }
};

// Answers whether it came to the end.
bool lookAt(OGRLayer& layer, Look& look, std::function<bool(qint64)> const& goesOn) {
  layer.ResetReading();
  bool isEnd = false;
  while (!isEnd && goesOn(look.count)) {
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    isEnd = !feature;
    if (feature) look.at(*feature);
  }
  layer.ResetReading();
  return isEnd;
}

void take(Look const& look, LayerDescription& layer) {
  layer.count = look.count;
  layer.extent = look.extent;
}

// As far as a person reads on.
Metadata metadataOf(GDALMajorObject& object) {
  constexpr size_t maxItems = 100;
  constexpr int maxCharacters = 1000;
  Metadata metadata;
  for (char const* const domain : {"", "SHAPEFILE"})
    for (char** item = object.GetMetadata(domain); item && *item && metadata.size() < maxItems; ++item) {
      QString const text = QString::fromUtf8(*item);
      int const sign = text.indexOf(QLatin1Char('='));
      if (sign > 0) metadata.emplace_back(text.left(sign), text.mid(sign + 1, maxCharacters));
    }
  return metadata;
}

std::vector<FieldDescription> fieldsOf(OGRLayer& layer) {
  std::vector<FieldDescription> fields;
  OGRFeatureDefn& definition = *layer.GetLayerDefn();
  for (int i = 0; i < definition.GetFieldCount(); ++i) {
    OGRFieldDefn* const field = definition.GetFieldDefn(i);
    fields.push_back({QString::fromUtf8(field->GetNameRef()), kindOf(field->GetType())});
  }
  return fields;
}

// What is known without a look at more than the first features.
LayerDescription describeSchema(OGRLayer& from) {
  LayerDescription layer;
  layer.name = QString::fromUtf8(from.GetName());
  layer.fields = fieldsOf(from);
  layer.metadata = metadataOf(from);
  layer.count = knownCount(from);
  auto const kind = kindOf(from.GetGeomType());
  layer.kind = kind.value_or(GeometryKind::Mixed);
  if (layer.kind != GeometryKind::None)
    describeSystem(systemOf(from, dynamic_cast<ServerLayer*>(&from) != nullptr).system, layer);
  return layer;
}

LayerDescription describe(OGRLayer& from) {
  LayerDescription layer = describeSchema(from);
  auto const kind = kindOf(from.GetGeomType());
  OGREnvelope extent;
  bool const hasExtent = layer.kind != GeometryKind::None && layer.count != 0 &&
                         from.TestCapability(OLCFastGetExtent) && from.GetExtent(&extent, FALSE) == OGRERR_NONE &&
                         extent.IsInit();
  if (hasExtent) layer.extent = {extent.MinX, extent.MinY, extent.MaxX, extent.MaxY};
  bool const isKnown = layer.count >= 0 && (hasExtent || layer.kind == GeometryKind::None);
  if (kind && isKnown) return layer;
  Look look;
  QElapsedTimer clock;
  clock.start();
  bool const isWhole = lookAt(from, look, [&](qint64 count) {
    bool const mayBePure = !kind && look.kinds.size() < 2;
    return count < featuresToCount || (mayBePure && clock.elapsed() < patienceForKindMs);
  });
  if (isWhole) take(look, layer);
  if (isWhole && !kind) layer.kind = look.kind();
  return layer;
}

// It counts much faster than its features are read.
void measureOnServer(OGRLayer& from, LayerDescription& layer) {
  OGREnvelope extent;
  if (from.GetExtent(&extent, TRUE) == OGRERR_NONE && extent.IsInit())
    layer.extent = {extent.MinX, extent.MinY, extent.MaxX, extent.MaxY};
  layer.count = from.GetFeatureCount(TRUE);
}

// By the name of a file.
bool mayHoldRasters(QString const& path) {
  QString const suffix = QFileInfo(path).suffix().toLower();
  return isRasterFileName(path) || QStringList{"png", "jpg", "jpeg", "vrt"}.contains(suffix);
}
bool mayHoldFeatures(QString const& path) {
  return !mayHoldRasters(path) || path.endsWith(QLatin1String(".gpkg"), Qt::CaseInsensitive);
}

void describeFeatures(DataFile& file) {
  DatasetPointer const dataset = openLocalDataset(file.path, file.error);
  if (!dataset) return;
  GdalErrors const errors;
  file.format = formatOf(*dataset);
  file.metadata = metadataOf(*dataset);
  for (int i = 0; i < dataset->GetLayerCount(); ++i) {
    OGRLayer& layer = *dataset->GetLayer(i);
    if (!isTextTable(*dataset)) {
      LayerDescription const described = describe(layer);
      if (described.count != 0 || !mayHaveEmptyLayers(*dataset)) file.layers.push_back(described);
      continue;
    }
    auto const table = TableLayer::create(layer, {file.path, {}, {}, {}}, file.error);
    file.layers.push_back(describe(*table));
    file.layers.back().xField = table->columns().x;
    file.layers.back().yField = table->columns().y;
    file.layers.back().geometryField = table->columns().geometry;
  }
  if (file.layers.empty()) file.error = Texts::tr("The file “%1” holds no features.").arg(file.path);
}

// The rasters that a file holds, of which a GeoPackage may have several.
void addRasters(DataFile& file) {
  if (!mayHoldRasters(file.path)) return;
  QStringList tables = RasterSource::tablesOf(file.path);
  bool const isDatabase = file.path.endsWith(QLatin1String(".gpkg"), Qt::CaseInsensitive);
  if (tables.isEmpty() && !isDatabase) tables << QString();
  for (QString const& table : qAsConst(tables)) {
    QString problem;
    auto const raster = RasterSource::open({file.path, table, {}, {}}, problem);
    if (!raster) {
      file.error = problem;
      continue;
    }
    file.error.clear();
    if (file.format.isEmpty()) file.format = raster->format();
    LayerDescription layer;
    layer.name = table.isEmpty() ? QFileInfo(file.path).completeBaseName() : table;
    layer.kind = GeometryKind::Raster;
    layer.count = 1;
    describeSystem(raster->system(), layer);
    layer.extent = raster->extent();
    for (size_t i = 1; i <= raster->bands().size(); ++i)
      layer.fields.push_back({Texts::tr("Band %1").arg(i), FieldDescription::Kind::Real});
    layer.metadata = {
        {Texts::tr("Pixels"), QStringLiteral("%1 × %2").arg(raster->size().width()).arg(raster->size().height())}};
    file.layers.push_back(layer);
  }
}

// Each table costs the server some small questions, so that none of its features are looked at.
void describeTables(DataFile& file) {
  constexpr int maxTables = 1000;
  auto const database = ServerDatabase::open(connectionIn(file.path), ServerDatabase::Use::Tables, file.error);
  if (!database) return;
  GdalErrors const quiet;
  file.format = QStringLiteral("PostGIS");
  for (QString const& table : database->tables().mid(0, maxTables)) {
    auto const layer = database->layer(table, file.error);
    if (!layer) return;
    file.layers.push_back(describeSchema(*layer));
    file.layers.back().name = table;
  }
  if (file.layers.empty())
    file.error = Texts::tr("The connection “%1” has no table with geometries that its user may read.")
                     .arg(connectionIn(file.path));
}

}  // namespace

SourceSettings sourceOf(DataFile const& file, LayerDescription const& layer) {
  SourceSettings source = SourceSettings::of(file.path, layer.name);
  source.xField = layer.xField;
  source.yField = layer.yField;
  source.geometryField = layer.geometryField;
  return source;
}

DataFile describeFile(QString const& path) {
  if (!connectionIn(path).isEmpty()) {
    DataFile tables{path, {}, {}, {}};
    describeTables(tables);
    return tables;
  }
  DataFile file{path, {}, {}, DataSource::refusal(path)};
  if (!file.error.isEmpty()) return file;
  if (mayHoldFeatures(path)) describeFeatures(file);
  addRasters(file);
  return file;
}

LayerDescription describeLayer(SourceSettings const& source, std::chrono::milliseconds limit, QString& error) {
  auto const data = DataSource::open(source, error);
  if (!data) return {};
  GdalErrors const errors;
  LayerDescription layer = describe(data->layer());
  if (!source.connection.isEmpty()) {
    measureOnServer(data->layer(), layer);
    if (layer.count >= 0 && layer.kind != GeometryKind::Mixed) return layer;
  }
  Look look;
  QElapsedTimer clock;
  clock.start();
  bool const isWhole = lookAt(data->layer(), look, [&](qint64 count) {
    return count % betweenLooksAtTheClock != 0 || clock.elapsed() < limit.count();
  });
  if (isWhole) take(look, layer);
  if (isWhole && !kindOf(data->layer().GetGeomType())) layer.kind = look.kind();
  if (!source.connection.isEmpty() && errors.hasFailure())
    error = Texts::tr("The table “%1” of the connection “%2” can't be read: %3.")
                .arg(source.layer, source.connection, errors.reason());
  return layer;
}

std::vector<FieldDescription> fieldsOf(SourceSettings const& source, QString& error) {
  auto const data = DataSource::open(source, error);
  GdalErrors const quiet;
  return data ? fieldsOf(data->layer()) : std::vector<FieldDescription>();
}

QStringList sampleValues(SourceSettings const& source, QString const& field, int limit) {
  QString error;
  auto const data = DataSource::open(source, error);
  int const index = data ? data->layer().GetLayerDefn()->GetFieldIndex(field.toUtf8().constData()) : -1;
  if (index < 0) return {};
  GdalErrors const errors;
  QStringList values;
  QSet<QString> known;
  data->layer().ResetReading();
  for (int i = 0; i < featuresForValues && values.size() < limit; ++i) {
    OGRFeatureUniquePtr const feature(data->layer().GetNextFeature());
    if (!feature) break;
    if (!feature->IsFieldSetAndNotNull(index)) continue;
    QString const value = QString::fromUtf8(feature->GetFieldAsString(index));
    if (known.contains(value)) continue;
    known << value;
    values << value;
  }
  return values;
}

QVector<QString> dataFilesIn(QString const& folder) {
  QDir const files(folder);
  QStringList const names = files.entryList(QDir::Files, QDir::Name);
  auto const isCompanion = [&](QString const& name) {
    QString const whole = name.section(QLatin1Char('.'), 0, -2);
    return name.endsWith(QLatin1String(".dbf"), Qt::CaseInsensitive) &&
           (names.contains(whole + QLatin1String(".shp"), Qt::CaseInsensitive) ||
            names.contains(whole + QLatin1String(".tab"), Qt::CaseInsensitive));
  };
  QVector<QString> found;
  for (QString const& name : names)
    if (isDataFileName(name) && !isCompanion(name)) found << files.absoluteFilePath(name);
  return found;
}

QStringList filesOf(QString const& path) {
  QStringList files{path, path + QStringLiteral("-wal")};
  QString problem;
  if (isRasterFileName(path)) files << RasterSource::companionsOf(path);
  bool const mayOpen = mayHoldFeatures(path) && isDataFileName(path) && DataSource::refusal(path).isEmpty();
  auto const dataset = mayOpen ? openLocalDataset(path, problem) : nullptr;
  char** const list = dataset ? dataset->GetFileList() : nullptr;
  for (char** one = list; one && *one; ++one) files << QString::fromUtf8(*one);
  CSLDestroy(list);
  return files;
}

}  // namespace SysCarto
