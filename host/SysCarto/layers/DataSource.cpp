#include "DataSource.h"

#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/Offline.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <mutex>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

// Formats whose files hold their data themselves. VRT, CSVT, WFS, PostgreSQL and the like lead elsewhere.
char const* const allowedDrivers[] = {"GPKG", "GeoJSON", "ESRI Shapefile", "FlatGeobuf", nullptr};

void registerDrivers() {
  static std::once_flag once;
  std::call_once(once, [] {
    if (!GetGDALDriverManager()->GetDriverByName(allowedDrivers[0])) GDALAllRegister();
  });
}

bool isGeoPackage(QString const& path) { return path.endsWith(QLatin1String(".gpkg"), Qt::CaseInsensitive); }

// Immutable, SQLite takes no lock and makes no journal, so a read-only folder will do. What another program has
// written to a write-ahead log would go unseen, so where there is one the database is opened as usual.
bool opensImmutable(QString const& path) {
  return isGeoPackage(path) && QFileInfo(path + QLatin1String("-wal")).size() == 0;
}

GDALDataset* openDataset(QString const& path) {
  char const* const immutable[] = {"IMMUTABLE=YES", nullptr};
  return GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY, allowedDrivers,
                           opensImmutable(path) ? immutable : nullptr, nullptr);
}

QString layerNames(GDALDataset& dataset) {
  QStringList names;
  for (int i = 0; i < dataset.GetLayerCount() && i < 20; ++i)
    names << QString::fromUtf8(dataset.GetLayer(i)->GetName());
  return names.join(QLatin1String(", "));
}

QString cannotOpen(QString const& path, QString const& reason) {
  return Texts::tr("The file “%1” can't be opened: %2.").arg(path, reason);
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

std::unique_ptr<DataSource> DataSource::open(QString const& path, QString const& layerName, QString& error) {
  error = refusal(path);
  if (!error.isEmpty()) return nullptr;
  QFileInfo const file(path);
  if (!file.exists())
    error = cannotOpen(path, Texts::tr("it does not exist; put it there, or name another file in the layer's source"));
  else if (!file.isFile())
    error = cannotOpen(path, Texts::tr("it is not a file; name one in the layer's source"));
  else if (!file.isReadable())
    error = cannotOpen(path, Texts::tr("reading it is not permitted; make it readable"));
  if (!error.isEmpty()) return nullptr;

  stayOffline();
  registerDrivers();
  GdalErrors const errors;
  GDALDataset* const dataset = openDataset(file.absoluteFilePath());
  if (!dataset) {
    QString const known = Texts::tr("it is not a GeoPackage, GeoJSON, Shapefile or FlatGeobuf file");
    error = cannotOpen(path,
                       errors.hasFailure() ? known + QLatin1String(" (") + errors.reason() + QLatin1Char(')') : known);
    return nullptr;
  }
  OGRLayer* const layer =
      layerName.isEmpty() ? dataset->GetLayer(0) : dataset->GetLayerByName(layerName.toUtf8().constData());
  if (!layer) {
    error = Texts::tr("The file “%1” has no layer “%2”; it has: %3.").arg(path, layerName, layerNames(*dataset));
    GDALClose(dataset);
    return nullptr;
  }
  return std::unique_ptr<DataSource>(new DataSource(dataset, layer));
}

DataSource::DataSource(GDALDataset* dataset, OGRLayer* layer) : dataset_(dataset), layer_(layer) {}

DataSource::~DataSource() {
  GdalErrors const quiet;
  GDALClose(dataset_);
}

}  // namespace SysCarto
