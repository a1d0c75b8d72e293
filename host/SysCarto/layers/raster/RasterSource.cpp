#include "RasterSource.h"

#include "OwnFilesOnly.h"

#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DatabaseReach.h"
#include "host/SysCarto/layers/SystemTexts.h"
#include "host/SysCarto/layers/DatabaseBounds.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/Offline.h"
#include "host/SysUtility/FileReach.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <mutex>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterSource)
};

constexpr int maxSide = 20000000, maxBands = 10000;
constexpr qint64 maxBlockBytes = 96 * 1024 * 1024;  // what a file is stored in, which is read as a whole
constexpr qint64 cacheBytes = 64 * 1024 * 1024;
constexpr double farthest = 1e15;
constexpr qint64 jpegTrailer = 16384;  // bytes, that programs add behind a JPEG's end

// clang-format off
QVector<DataFormat> const formats = {
    {"GTiff",       "GeoTIFF",    "tif tiff"},
    {"JP2OpenJPEG", "JPEG 2000",  "jp2 j2k"},
    {"PNG",         "PNG",        "png"},
    {"JPEG",        "JPEG",       "jpg jpeg"},
    {"GPKG",        "GeoPackage", "gpkg"},
    {"MBTiles",     "MBTiles",    "mbtiles"},
};
// clang-format on

void prepareGdal() {
  stayOffline();
  static std::once_flag once;
  std::call_once(once, [] {
    if (!GetGDALDriverManager()->GetDriverByName("GTiff")) GDALAllRegister();
    GDALSetCacheMax64(cacheBytes);
    CPLSetConfigOption("OGR_SQLITE_STATIC_VIRTUAL_OGR", "NO");  // a table of a database that is another file
  });
}

bool hasSuffix(QString const& path, QStringList const& suffixes) {
  return suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

bool isTiff(QString const& path) {
  QFile file(path);
  QByteArray const head = file.open(QIODevice::ReadOnly) ? file.read(4) : QByteArray();
  return head.startsWith("II*") || head.startsWith("II+") || head.startsWith(QByteArray("MM\0*", 4)) ||
         head.startsWith(QByteArray("MM\0+", 4));
}

// The names of the file itself and of those beside it that may be opened with it.
QStringList ownNamesOf(QString const& path) {
  QFileInfo const file(path);
  QString const name = file.fileName(), suffix = file.suffix();
  QStringList const worlds{suffix.left(1) + suffix.right(1) + QLatin1Char('w'), suffix + QLatin1Char('w'),
                           QStringLiteral("wld")};
  QStringList allowed{name};
  for (QString const& other : file.dir().entryList(QDir::Files)) {
    bool const isWorld = other.startsWith(file.completeBaseName() + QLatin1Char('.')) && hasSuffix(other, worlds) &&
                         other.size() == file.completeBaseName().size() + 1 + QFileInfo(other).suffix().size();
    bool const isPart = other == name + QLatin1String(".ovr") || other == name + QLatin1String(".msk");
    bool const isOwn = isPart && isTiff(file.dir().filePath(other)) &&
                       file.dir().entryList({other + QLatin1String(".*")}, QDir::Files).isEmpty();
    if (isWorld || isOwn) allowed << other;
  }
  return allowed;
}

QString refusalOf(QString const& path) {
  if (!DataSource::refusal(path).isEmpty()) return DataSource::refusal(path);
  QFileInfo const file(path);
  QString reason = SysUtility::FileReach::refusal(path, SysUtility::FileReach::With::Companions);
  if (!reason.isEmpty()) return Texts::tr("The raster “%1” can't be opened: %2.").arg(path, reason);
  if (!file.exists())
    reason = Texts::tr("it does not exist; put it there, or name another file in the layer's source");
  else if (!file.isFile())
    reason = Texts::tr("it is not a file; name one in the layer's source");
  else if (file.size() == 0)
    reason = Texts::tr("it is empty");
  else if (hasSuffix(path, {QStringLiteral("vrt")}))
    reason = Texts::tr("it only refers to other files; make one file of it, as by gdal_translate");
  else
    reason = problemOfDatabase(path);
  if (reason.isEmpty()) reason = problemOfSystem(path, path.toUtf8());
  return reason.isEmpty() ? reason : Texts::tr("The raster “%1” can't be opened: %2.").arg(path, reason);
}

QString formatNames() {
  QStringList names;
  for (DataFormat const& format : formats)
    if (GetGDALDriverManager()->GetDriverByName(format.driver)) names << QString::fromUtf8(format.name);
  return names.join(QLatin1String(", "));
}

DatasetPointer openDataset(QString const& path, QString const& table) {
  std::vector<char const*> drivers;
  for (DataFormat const& format : formats) drivers.push_back(format.driver);
  drivers.push_back(nullptr);
  CPLStringList siblings, options;
  for (QString const& name : ownNamesOf(path)) siblings.AddString(name.toUtf8().constData());
  if (hasSuffix(path, {QStringLiteral("tif"), QStringLiteral("tiff")}))
    options.SetNameValue("GEOREF_SOURCES", "INTERNAL,WORLDFILE");
  if (hasSuffix(path, {QStringLiteral("gpkg")}) && !hasLog(path)) options.SetNameValue("IMMUTABLE", "YES");
  if (!table.isEmpty()) options.SetNameValue("TABLE", table.toUtf8().constData());
  QByteArray const name = QFileInfo(path).absoluteFilePath().toUtf8();
  DatabaseBounds const bounds(path, DatabaseBounds::Budget::OfAll);
  return DatasetPointer(GDALDataset::Open(name.constData(), GDAL_OF_RASTER | GDAL_OF_READONLY, drivers.data(),
                                          options.List(), siblings.List()));
}

RasterBand describe(GDALRasterBand& band) {
  RasterBand result;
  switch (band.GetColorInterpretation()) {
    case GCI_RedBand: result.meaning = RasterBand::Meaning::Red; break;
    case GCI_GreenBand: result.meaning = RasterBand::Meaning::Green; break;
    case GCI_BlueBand: result.meaning = RasterBand::Meaning::Blue; break;
    case GCI_AlphaBand: result.meaning = RasterBand::Meaning::Alpha; break;
    case GCI_PaletteIndex: result.meaning = RasterBand::Meaning::Palette; break;
    default: break;
  }
  result.isByte = band.GetRasterDataType() == GDT_Byte;
  if (char const* const bits = band.GetMetadataItem("NBITS", "IMAGE_STRUCTURE"))
    result.bits = std::clamp(QByteArray(bits).toInt(), 1, 8);
  int isGiven = 0;
  double const factor = band.GetScale(&isGiven);
  if (isGiven && std::isfinite(factor) && factor != 0) result.factor = factor;
  double const offset = band.GetOffset(&isGiven);
  if (isGiven && std::isfinite(offset)) result.offset = offset;
  return result;
}

bool isDatabase(GDALDataset& dataset) {
  return EQUAL(dataset.GetDriverName(), "MBTiles") || EQUAL(dataset.GetDriverName(), "GPKG");
}

// GDAL opens the file that such an entry names, with all its drivers, as soon as it is asked for overviews.
bool namesOverviews(GDALDataset& dataset) {
  auto const names = [](GDALMajorObject& object) { return CSLCount(object.GetMetadata("OVERVIEWS")) > 0; };
  bool does = names(dataset);
  for (int i = 1; i <= dataset.GetRasterCount() && !does; ++i) does = names(*dataset.GetRasterBand(i));
  return does;
}

// Overviews and masks beside a file have overviews of their own.
bool companionNamesOverviews(QString const& path) {
  for (QString const& file : RasterSource::companionsOf(path)) {
    if (!isTiff(file)) continue;
    char const *const drivers[] = {"GTiff", nullptr}, *const alone[] = {"", nullptr};
    DatasetPointer const dataset(
        GDALDataset::Open(file.toUtf8(), GDAL_OF_RASTER | GDAL_OF_READONLY, drivers, nullptr, alone));
    if (dataset && namesOverviews(*dataset)) return true;
  }
  return false;
}

bool endsAsJpeg(QString const& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - jpegTrailer));
  return file.readAll().contains("\xff\xd9");
}

// Of pixels whose bands lie side by side, all are decoded at once.
qint64 blockBytes(GDALRasterBand& band) {
  int width, height;
  band.GetBlockSize(&width, &height);
  GDALDataset* const dataset = band.GetDataset();
  char const* const order = dataset ? dataset->GetMetadataItem("INTERLEAVE", "IMAGE_STRUCTURE") : nullptr;
  int const together = order && EQUAL(order, "PIXEL") ? dataset->GetRasterCount() : 1;
  return qint64(width) * height * GDALGetDataTypeSizeBytes(band.GetRasterDataType()) * together;
}

QString problemOfSize(GDALRasterBand& band) {
  qint64 const bytes = blockBytes(band);
  if (bytes <= maxBlockBytes) return {};
  return Texts::tr("it is stored in pieces of %1 MB; save it in tiles, as by gdal_translate -co TILED=YES")
      .arg(bytes / 1024 / 1024);
}

// The last block, where the file holds it.
QString readBlock(GDALRasterBand& band) {
  if (QString const problem = problemOfSize(band); !problem.isEmpty()) return problem;
  int width, height;
  band.GetBlockSize(&width, &height);
  GdalErrors const errors;
  int const column = (band.GetXSize() - 1) / width, row = (band.GetYSize() - 1) / height;
  if (!band.GetMetadataItem(CPLSPrintf("BLOCK_OFFSET_%d_%d", column, row), "TIFF")) return {};
  std::vector<char> block(size_t(width) * size_t(height) * size_t(GDALGetDataTypeSizeBytes(band.GetRasterDataType())));
  if (band.ReadBlock(column, row, block.data()) == CE_None && !errors.hasFailure()) return {};
  return Texts::tr("it is not whole, or damaged; fetch it again");
}

}  // namespace

QVector<DataFormat> const& rasterFormats() { return formats; }

bool isRasterFileName(QString const& path) {
  bool const isPicture = hasSuffix(path, {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg")});
  if (isPicture) return ownNamesOf(path).size() > 1;
  return std::any_of(formats.begin(), formats.end(), [&](DataFormat const& format) {
    return hasSuffix(path, QString::fromLatin1(format.suffixes).split(QLatin1Char(' ')));
  });
}

QStringList RasterSource::companionsOf(QString const& path) {
  QStringList files;
  for (QString const& name : ownNamesOf(path).mid(1)) files << QFileInfo(path).dir().absoluteFilePath(name);
  return files;
}

SysGeometry::Box RasterSource::extent() const {
  QRectF const whole = toWorld_.mapRect(QRectF(QPointF(0, 0), QSizeF(size_)));
  return {whole.left(), whole.top(), whole.right(), whole.bottom()};
}

RasterSource::RasterSource(DatasetPointer dataset) : dataset_(std::move(dataset)) {}
RasterSource::~RasterSource() = default;

std::unique_ptr<RasterSource> RasterSource::open(RasterSourceSettings const& settings, QString& error) {
  prepareGdal();
  error = refusalOf(settings.file);
  if (!error.isEmpty()) return nullptr;
  OwnFilesOnly const own;
  GdalErrors const errors;
  std::unique_ptr<RasterSource> source(new RasterSource(openDataset(settings.file, settings.layer)));
  bool const isOneOfSeveral = source->dataset_ && source->dataset_->GetRasterCount() == 0 && settings.layer.isEmpty();
  if (QStringList const tables = isOneOfSeveral ? tablesOf(settings.file) : QStringList(); !tables.isEmpty())
    source->dataset_ = openDataset(settings.file, tables.first());
  QString reason;
  if (!source->dataset_) {
    reason = Texts::tr("its format is none of those that are known (%1)").arg(formatNames());
    if (errors.hasFailure()) reason += QLatin1String(" (") + errors.reason() + QLatin1Char(')');
  } else if (errors.hasFailure() && isDatabase(*source->dataset_)) {
    reason = errors.reason();  // what could not be asked is guessed, without a word
  } else {
    reason = source->take(settings);
  }
  if (reason.isEmpty()) return source;
  error = Texts::tr("The raster “%1” can't be opened: %2.").arg(settings.file, reason);
  return nullptr;
}

QString RasterSource::take(RasterSourceSettings const& settings) {
  GDALDataset& dataset = *dataset_;
  if (namesOverviews(dataset) || companionNamesOverviews(settings.file))
    return Texts::tr("it names another file for its overviews, which is not opened; save it without that entry");
  if (EQUAL(dataset.GetDriverName(), "JPEG") && !endsAsJpeg(settings.file))
    return Texts::tr("it is not whole, or damaged; fetch it again");
  size_ = {dataset.GetRasterXSize(), dataset.GetRasterYSize()};
  int const count = dataset.GetRasterCount();
  if (count == 0 || size_.isEmpty()) return Texts::tr("it holds no pixels");
  if (std::max(size_.width(), size_.height()) > maxSide || count > maxBands)
    return Texts::tr("it has %1 × %2 pixels in %3 bands; no more than %4 a side in %5 bands are drawn")
        .arg(size_.width())
        .arg(size_.height())
        .arg(count)
        .arg(maxSide)
        .arg(maxBands);
  double world[6];
  constexpr double nowhere[] = {0, 1, 0, 0, 0, 1};
  if (dataset.GetGeoTransform(world) != CE_None || std::equal(world, world + 6, nowhere))
    return Texts::tr("it does not say where it lies; give it coordinates, as by a world file beside it");
  QTransform const toWorld(world[1], world[4], world[2], world[5], world[0], world[3]);
  QPointF const corner = toWorld.map(QPointF(size_.width(), size_.height()));
  bool const isPlaced = toWorld.isInvertible() && std::abs(world[0]) < farthest && std::abs(world[3]) < farthest &&
                        std::abs(corner.x()) < farthest && std::abs(corner.y()) < farthest;
  if (!isPlaced) return Texts::tr("its coordinates make no sense; give it others, as by gdal_edit");
  toWorld_ = toWorld;
  OGRSpatialReference const* const own = dataset.GetSpatialRef();
  if (!settings.coordinateSystem.isEmpty())
    system_ = makeCoordinateSystem(settings.coordinateSystem);
  else if (own && (own->IsGeographic() || own->IsProjected()))
    system_.reset(own->Clone());
  if (system_ && namesPath(*system_))
    return Texts::tr(
        "its coordinate system names a file by its path, which is not opened; give another one in the source's field "
        "“coordinateSystem”");
  if (system_) system_->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  for (int i = 1; i <= count; ++i) bands_.push_back(describe(*dataset.GetRasterBand(i)));
  noData_ = settings.noData;
  return checkEnds();
}

// A file that was cut off lacks what was written last: the end of the pixels or of an overview. Of formats that are
// read from their beginning this would be all of it.
QString RasterSource::checkEnds() const {
  GDALRasterBand& band = *dataset_->GetRasterBand(1);
  if (!EQUAL(dataset_->GetDriverName(), "GTiff")) return problemOfSize(band);
  QString problem = readBlock(band);
  for (int i = 0; i < band.GetOverviewCount() && problem.isEmpty(); ++i)
    problem = band.GetOverview(i) ? readBlock(*band.GetOverview(i)) : Texts::tr("a part of it is missing");
  return problem;
}

QString RasterSource::format() const {
  for (DataFormat const& format : formats)
    if (EQUAL(dataset_->GetDriverName(), format.driver)) return QString::fromUtf8(format.name);
  return QString::fromUtf8(dataset_->GetDriverName());
}

QVector<QColor> RasterSource::palette(int band) const {
  QVector<QColor> colors;
  if (band < 1 || band > dataset_->GetRasterCount()) return colors;
  OwnFilesOnly const own;
  GDALColorTable const* const table = dataset_->GetRasterBand(band)->GetColorTable();
  for (int i = 0; table && i < table->GetColorEntryCount(); ++i) {
    GDALColorEntry entry;
    table->GetColorEntryAsRGB(i, &entry);
    colors << QColor(entry.c1 & 255, entry.c2 & 255, entry.c3 & 255, entry.c4 & 255);
  }
  return colors;
}

QStringList RasterSource::tablesOf(QString const& path) {
  QStringList tables;
  prepareGdal();
  if (!hasSuffix(path, {QStringLiteral("gpkg")}) || !refusalOf(path).isEmpty()) return tables;
  OwnFilesOnly const own;
  GdalErrors const errors;
  DatasetPointer const dataset = openDataset(path, QString());
  if (!dataset) return tables;
  char** const found = dataset->GetMetadata("SUBDATASETS");
  for (int i = 1; char const* name = CSLFetchNameValue(found, CPLSPrintf("SUBDATASET_%d_NAME", i)); ++i)
    tables << QString::fromUtf8(name).section(QLatin1Char(':'), -1);
  if (tables.isEmpty() && dataset->GetRasterCount() > 0) tables << QString();
  return tables;
}

}  // namespace SysCarto
