#include "DataSource.h"

#include "JoinedLayer.h"
#include "LocalDataset.h"
#include "ServerDatabase.h"
#include "TableLayer.h"
#include "indexed/SourceIndexes.h"

#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/RectangleArea.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

QString layerNames(GDALDataset& dataset) {
  QStringList names;
  for (int i = 0; i < dataset.GetLayerCount() && i < 20; ++i)
    names << QString::fromUtf8(dataset.GetLayer(i)->GetName());
  return names.join(QLatin1String(", "));
}

bool hasFeatures(OGRLayer& layer) {
  GIntBig const count = layer.GetFeatureCount(FALSE);
  if (count >= 0) return count > 0;
  layer.ResetReading();
  bool const isOne = OGRFeatureUniquePtr(layer.GetNextFeature()) != nullptr;
  layer.ResetReading();
  return isOne;
}

// Where none is named. A file of tracks alone begins with a layer of waypoints all the same. One that can't be looked
// into is taken, so that it is told why.
OGRLayer* firstWithFeatures(GDALDataset& dataset) {
  GdalErrors const errors;
  int const count = dataset.GetLayerCount();
  for (int i = 0; count > 1 && i < count; ++i)
    if (hasFeatures(*dataset.GetLayer(i)) || errors.hasFailure()) return dataset.GetLayer(i);
  return dataset.GetLayer(0);
}

// One area, from pole to pole and once round, in degrees.
DatasetPointer globe() {
  GDALAllRegister();
  DatasetPointer dataset(GetGDALDriverManager()->GetDriverByName("Memory")->Create("", 0, 0, 0, GDT_Unknown, nullptr));
  OGRLayer* const layer = dataset->CreateLayer("globe", nullptr, wkbPolygon);
  OGRPolygon area = areaOf({-180, -90, 180, 90});
  OGRFeatureUniquePtr const feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
  feature->SetGeometry(&area);
  if (layer->CreateFeature(feature.get()) != OGRERR_NONE) dataset.reset();
  return dataset;
}

}  // namespace

QString DataSource::refusal(QString const& path) {
  if (path.isEmpty()) return Texts::tr("The source names no file; give the path of a local file.");
  if (path.startsWith(QLatin1String("/vsi"), Qt::CaseInsensitive))
    return Texts::tr("The source “%1” is not a local file: virtual file systems are not opened.").arg(path);
  if (path.contains(QLatin1String("://")))
    return Texts::tr("The source “%1” is not a local file: addresses are not opened.").arg(path);
  static QRegularExpression const prefix(QStringLiteral("^[A-Za-z][A-Za-z0-9_+.-]*:"));
  if (prefix.match(path).hasMatch())
    return Texts::tr("The source “%1” is not a plain path: leave out the prefix before the colon.").arg(path);
  if (path.contains(QChar(0)) || path.trimmed().startsWith(QLatin1Char('{')) || path.startsWith(QLatin1Char('<')))
    return Texts::tr("The source “%1” is not a path.").arg(path.left(40));
  return QString();
}

struct DataSource::Opened {
  DatasetPointer dataset;                              // of a file
  std::unique_ptr<OGRLayer> table;                     // of a connection, or a file's index
  std::vector<std::unique_ptr<DerivedLayer>> derived;  // each of the one before
};

std::unique_ptr<DataSource> DataSource::open(QString const& path, QString const& layerName, QString& error) {
  return open(SourceSettings{path, layerName, {}, {}}, error);
}

std::unique_ptr<DataSource> DataSource::open(SourceSettings const& source, QString& error) {
  bool const isGlobe = source.data == SourceSettings::Data::Globe;
  bool const isTable = !isGlobe && !source.connection.isEmpty();
  error = isGlobe || isTable ? QString() : refusal(source.file);
  if (!error.isEmpty()) return nullptr;
  auto opened = std::make_unique<Opened>();
  if (isTable) {
    auto const database = ServerDatabase::open(source.connection, ServerDatabase::Use::Layers, error);
    if (database) opened->table = database->layer(source.layer, error);
  } else if (!isGlobe) {
    opened->table = SourceIndexes::find(source);
  }
  QString complaint;
  if (!isTable && !opened->table)
    opened->dataset = isGlobe ? globe() : openLocalDataset(source.file, error, &complaint);
  if (!opened->dataset && !opened->table) return nullptr;
  std::unique_ptr<DataSource> data(new DataSource(std::move(opened)));
  error = data->take(isGlobe ? SourceSettings() : source);
  if (!error.isEmpty()) return nullptr;
  data->complaint_ = complaint;
  return data;
}

DataSource::DataSource(std::unique_ptr<Opened> opened) : opened_(std::move(opened)), layer_(nullptr) {}

DataSource::~DataSource() = default;

// The layer that the source names, and what is made of it.
QString DataSource::take(SourceSettings const& source) {
  QString error;
  layer_ = opened_->table.get();
  if (!layer_) error = takeOfFile(*opened_->dataset, source);
  if (!layer_) return error;
  for (TableJoin const& join : source.joins) {
    QString problem;
    put(JoinedLayer::create(*layer_, join, problem));
    if (!problem.isEmpty()) joinProblem_ = problem;
  }
  return error;
}

QString DataSource::takeOfFile(GDALDataset& dataset, SourceSettings const& source) {
  layer_ =
      source.layer.isEmpty() ? firstWithFeatures(dataset) : dataset.GetLayerByName(source.layer.toUtf8().constData());
  if (!layer_ && dataset.GetLayerCount() == 0) return Texts::tr("The file “%1” holds no layer.").arg(source.file);
  if (!layer_)
    return Texts::tr("The file “%1” has no layer “%2”; it has: %3.")
        .arg(source.file, source.layer, layerNames(dataset));
  QString error;
  if (isTextTable(dataset)) put(TableLayer::create(*layer_, source, error));
  return error;
}

void DataSource::put(std::unique_ptr<DerivedLayer> layer) {
  if (!layer) return;
  opened_->derived.push_back(std::move(layer));
  layer_ = opened_->derived.back().get();
}

QStringList DataSource::notes() const {
  QStringList notes;
  for (auto const& layer : opened_->derived) notes += layer->notes();
  return notes;
}

}  // namespace SysCarto
