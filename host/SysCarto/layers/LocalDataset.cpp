#include "LocalDataset.h"

#include "DatabaseBounds.h"
#include "DatabaseReach.h"
#include "DrawingBlocks.h"
#include "SourceBounds.h"
#include "raster/RasterSource.h"
#include "SystemTexts.h"

#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/Offline.h"
#include "host/SysUtility/FileReach.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCodec>
#include <QtEndian>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <tuple>
#include <utility>
#include <vector>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

constexpr int headLength = 64 * 1024;
constexpr int maxTableLength = 1024 * 1024;  // of a .tab, whose every line may lead elsewhere

// What leads elsewhere (VRT, CSVT, WFS, PostgreSQL and the like) is not among them. Of two drivers for a format the
// first is asked first.
// clang-format off
QVector<DataFormat> const formats = {
    {"GPKG",           "GeoPackage",                     "gpkg"},
    {"GeoJSON",        "GeoJSON",                        "geojson json"},
    {"ESRI Shapefile", "Shapefile",                      "shp dbf shz zip"},
    {"FlatGeobuf",     "FlatGeobuf",                     "fgb"},
    {"GeoJSONSeq",     "GeoJSON Sequence",               "geojsonl geojsons ndjson"},
    {"GPX",            "GPX",                            "gpx"},
    {"LIBKML",         "KML",                            "kml kmz"},
    {"KML",            "KML",                            "kml"},
    {"MapInfo File",   "MapInfo",                        "tab mif"},
    {"DXF",            "DXF",                            "dxf"},
    {"CSV",            "CSV",                            "csv tsv"},
    {"Parquet",        "Parquet",                        "parquet"},
    {"Arrow",          "Arrow",                          "arrow feather"},
};
// clang-format on

char const* const tableOptions[] = {"AUTODETECT_TYPE=YES", "KEEP_GEOM_COLUMNS=YES", nullptr};
char const* const immutableOptions[] = {"IMMUTABLE=YES", nullptr};
char const* const guessedOptions[] = {"ENCODING=CP1252", nullptr};

bool hasSuffix(QString const& path, char const* suffix) {
  return path.endsWith(QLatin1Char('.') + QLatin1String(suffix), Qt::CaseInsensitive);
}

void registerDrivers() {
  static std::once_flag once;
  std::call_once(once, [] {
    if (!GetGDALDriverManager()->GetDriverByName(formats.first().driver)) GDALAllRegister();
    CPLSetConfigOption("OGR_SQLITE_STATIC_VIRTUAL_OGR", "NO");  // a table of a database that is another file
    CPLSetConfigOption("LIBKML_EXTERNAL_STYLE", "NO");          // whatever the environment says: styles at an address
    CPLSetConfigOption("LIBKML_RESOLVE_STYLE", "NO");
    CPLSetConfigOption("OGR_SQLITE_ALLOW_EXTERNAL_ACCESS", "NO");  // functions of a view that open rasters
  });
}

std::vector<char const*> driverNames() {
  std::vector<char const*> names;
  for (DataFormat const& format : formats) names.push_back(format.driver);
  names.push_back(nullptr);
  return names;
}

QString formatNames() {
  QStringList names;
  for (DataFormat const& format : formats)
    if (GetGDALDriverManager()->GetDriverByName(format.driver)) names << QString::fromUtf8(format.name);
  names.removeDuplicates();
  return names.join(QLatin1String(", "));
}

QString cannotOpen(QString const& path, QString const& reason) {
  return Texts::tr("The file “%1” can't be opened: %2.").arg(path, reason);
}

// Immutable, SQLite takes no lock and makes no journal, so a read-only folder will do. What another program has written
// to a log would go unseen, so where there is one the database is opened as usual; and so is one in whose path the
// driver leaves what SQLite would read as a character in hexadecimal.
char const* const* optionsFor(QString const& path) {
  static QRegularExpression const coded(QStringLiteral("%[0-9A-Fa-f]{2}"));
  if (hasSuffix(path, "gpkg") && !hasLog(path) && !coded.match(path).hasMatch()) return immutableOptions;
  if (hasGuessedEncoding(path)) return guessedOptions;
  return hasSuffix(path, "csv") || hasSuffix(path, "tsv") ? tableOptions : nullptr;
}

// Of a Shapefile, with its suffix in whichever letters.
QFileInfo companionOf(QString const& path, char const* suffix) {
  QString const base = path.left(path.size() - QFileInfo(path).suffix().size());
  QFileInfo const upper(base + QString::fromLatin1(suffix).toUpper());
  return upper.exists() ? upper : QFileInfo(base + QLatin1String(suffix));
}

// Of a file, or of one within an archive.
QByteArray headOf(QByteArray const& path, int length) {
  QByteArray head(length, '\0');
  VSILFILE* const file = VSIFOpenL(path.constData(), "rb");
  head.resize(file ? static_cast<int>(VSIFReadL(head.data(), 1, static_cast<size_t>(length), file)) : 0);
  if (file) VSIFCloseL(file);
  return head;
}

bool isUtf16(QByteArray const& head) { return head.startsWith("\xff\xfe") || head.startsWith("\xfe\xff"); }

QString isEncodedAsUtf16() { return Texts::tr("its text is encoded as UTF-16; save it as UTF-8"); }

// What the head of a file, or all of a .tab, betrays before any driver looks at it: a file that is made of others, or
// lacks one, or texts that the driver would take for bytes.
QString refusalOfHead(QString const& path) {
  if (hasSuffix(path, "dxf") && !SourceBounds::allows(entitiesOf(path), QFileInfo(path).size()))
    return Texts::tr("its blocks repeat themselves or each other without end; explode them");
  if (hasSuffix(path, "shp") && !companionOf(path, "shx").isFile())
    return Texts::tr("the index that belongs to it, “%1”, is missing; put it beside it")
        .arg(companionOf(path, "shx").fileName());
  bool const isTab = hasSuffix(path, "tab");
  if (!isTab && !hasSuffix(path, "csv") && !hasSuffix(path, "tsv")) return QString();
  if (isTab && QFileInfo(path).size() > maxTableLength)
    return Texts::tr("it is longer than 1 MB, too long to describe a table; name a MapInfo table's .tab file");
  QByteArray const head = headOf(path.toUtf8(), isTab ? maxTableLength : headLength);
  if (isUtf16(head)) return isEncodedAsUtf16();
  QByteArray const words = head.toLower().simplified();
  if (isTab && (words.contains("create view") || words.contains("\"\\isseamless\"")))
    return Texts::tr("it only refers to other tables; name one of those");
  return QString();
}

// Whether a table of a Shapefile is as long as its head says.
bool isTableOfSize(QByteArray const& path, double size) {
  constexpr double maxPadding = 512;  // bytes
  constexpr int headSize = 12;
  uchar head[headSize] = {};
  VSILFILE* const file = VSIFOpenL(path.constData(), "rb");
  bool const isRead = file && VSIFReadL(head, headSize, 1, file) == 1;
  if (file) VSIFCloseL(file);
  double const records = qFromLittleEndian<quint32>(head + 4);
  double const said = qFromLittleEndian<quint16>(head + 8) + records * qFromLittleEndian<quint16>(head + 10);
  return isRead && size >= said && size <= said + maxPadding;
}

// Entries may share their bytes, and each says in the archive's directory how long it is: the drivers read no more. Of
// a folder with Shapefiles they read only what belongs to these. The records of a table are read one at a time and are
// mostly blanks, so that it may be long.
double unpackedSizeOf(QByteArray const& folder, bool isWhole) {
  static QStringList const suffixes = QStringLiteral("shp shx dbf prj cpg qix sbn sbx idm ind").split(QLatin1Char(' '));
  constexpr double maxTables = 1e9;  // bytes
  std::unique_ptr<VSIDIR, decltype(&VSICloseDir)> const entries(
      VSIOpenDir(folder.constData(), isWhole ? -1 : 0, nullptr), VSICloseDir);
  double bytes = 0, tables = 0;
  while (VSIDIREntry const* const entry = entries ? VSIGetNextDirEntry(entries.get()) : nullptr) {
    auto const size = static_cast<double>(entry->nSize);
    QByteArray const name = entry->pszName;
    QString const suffix = QFileInfo(QString::fromUtf8(name)).suffix().toLower();
    bool const isTable = !isWhole && suffix == QLatin1String("dbf") && isTableOfSize(folder + '/' + name, size);
    if (isWhole || suffixes.contains(suffix)) (isTable ? tables : bytes) += size;
  }
  return tables <= maxTables ? bytes : bytes + tables;
}

// `name` is what is to be opened, and empty where there is nothing.
QString refusalOfArchive(QString const& path, QByteArray const& name) {
  bool const isWhole = hasSuffix(path, "kmz"), isFolder = hasSuffix(path, "zip");
  if (name.isEmpty() || (!isWhole && !isFolder && !hasSuffix(path, "shz"))) return QString();
  auto const reading = isWhole ? SourceBounds::Reading::Whole : SourceBounds::Reading::ByFeature;
  double const unpacked = unpackedSizeOf(isFolder ? name : "/vsizip/{" + name + "}", isWhole);
  if (SourceBounds::allowsUnpacked(unpacked, QFileInfo(path).size(), reading)) return QString();
  return Texts::tr("it holds far more than an archive of its size should; unpack it, and name the file in it");
}

// What would have other files opened as soon as a driver looks at it. `name` is empty where there is nothing to open.
QString refusalOfContent(QString const& path, QByteArray const& name) {
  QString const problem = name.isEmpty() ? QString() : problemOfSystem(path, name);
  return problem.isEmpty() ? problemOfDatabase(path) : problem;
}

// The folder within an archive that holds a Shapefile; empty where none does.
QByteArray folderWithShapes(QString const& archive) {
  if (archive.contains(QLatin1Char('{')) || archive.contains(QLatin1Char('}'))) return QByteArray();
  QByteArray const root = "/vsizip/{" + archive.toUtf8() + "}";
  char** const entries = VSIReadDirRecursive(root.constData());
  QStringList folders;
  for (int i = 0; i < CSLCount(entries); ++i) {
    QString const entry = QString::fromUtf8(entries[i]);
    bool const leavesArchive = entry.startsWith(QLatin1Char('/')) || entry.contains(QLatin1String(".."));
    if (hasSuffix(entry, "shp") && !leavesArchive) folders << entry.section(QLatin1Char('/'), 0, -2);
  }
  CSLDestroy(entries);
  if (folders.isEmpty()) return QByteArray();
  folders.sort();
  return folders.first().isEmpty() ? root : root + '/' + folders.first().toUtf8();
}

QString missing(QString const& path) {
  QFileInfo const file(path);
  if (!file.exists()) return Texts::tr("it does not exist; put it there, or name another file in the layer's source");
  if (!file.isFile()) return Texts::tr("it is not a file; name one in the layer's source");
  if (!file.isReadable()) return Texts::tr("reading it is not permitted; make it readable");
  return QString();
}

QString nameOf(QString const& driver) {
  for (DataFormat const& format : formats)
    if (driver == QLatin1String(format.driver)) return QString::fromUtf8(format.name);
  return driver;
}

// Of a file that no driver opens; `name` is what they were given.
QString whyUnread(QString const& path, QByteArray const& name) {
  if (QFileInfo(path).size() == 0) return Texts::tr("it is empty");
  if (hasSuffix(path, "kmz"))
    return Texts::tr("there is no KML in this archive that can be read; unpack it, and name the file in it");
  if (hasSuffix(path, "zip"))
    return Texts::tr("there is no Shapefile in this archive that is whole, with its parts .shp and .shx");
  if (isUtf16(headOf(path.toUtf8(), 2))) return isEncodedAsUtf16();
  GDALDriverH const driver =
      name.isEmpty() ? nullptr : GDALIdentifyDriverEx(name.constData(), GDAL_OF_VECTOR, driverNames().data(), nullptr);
  if (driver)
    return Texts::tr("it begins as a file of the format %1 does, and is not whole, or damaged; fetch it again")
        .arg(nameOf(QString::fromUtf8(GDALGetDriverShortName(driver))));
  return Texts::tr("its format is none of those that are known (%1)").arg(formatNames());
}

// The columns of texts of a table: where in a record, and how long.
std::vector<std::pair<int, int>> textColumns(QByteArray const& table, int headSize) {
  constexpr int first = 32, size = 32, kind = 11, length = 16;
  std::vector<std::pair<int, int>> columns;
  int place = 1;  // behind the mark of deleted records
  for (int at = first; at + size <= headSize && at + size <= table.size() && table[at] != '\r'; at += size) {
    int const bytes = static_cast<uchar>(table[at + length]);
    if (table[at + kind] == 'C') columns.emplace_back(place, bytes);
    place += bytes;
  }
  return columns;
}

// Whether more of the letters in a table are none of UTF-8 than are. Many programs cut a text that is too long for its
// column, so that its last letter may be half of one.
bool isNoUtf8(QByteArray const& table) {
  constexpr int leastHead = 32;
  if (table.size() < leastHead) return false;
  auto const number = [&](int at) {
    return static_cast<int>(qFromLittleEndian<quint16>(reinterpret_cast<uchar const*>(table.constData()) + at));
  };
  int const headSize = number(8), recordSize = number(10);
  auto const columns = textColumns(table, headSize);
  QTextCodec const* const utf8 = QTextCodec::codecForName("UTF-8");
  int good = 0, bad = 0;
  for (int record = headSize; recordSize > 0 && record + recordSize <= table.size(); record += recordSize)
    for (auto const& [place, length] : columns) {
      if (place + length > recordSize) break;
      char const* const text = table.constData() + record + place;
      int size = length;
      while (size > 0 && (text[size - 1] == ' ' || text[size - 1] == '\0')) --size;
      auto const begins = [](char letter) { return (letter & '\xc0') == '\xc0'; };
      auto const letters = static_cast<int>(std::count_if(text, text + size, begins));
      QTextCodec::ConverterState state;
      utf8->toUnicode(text, size, &state);
      bool const isHalf = state.remainingChars > 0;
      bad += state.invalidChars + (isHalf && size < length);
      good += std::max(letters - state.invalidChars - isHalf, 0);
    }
  return bad > good;
}

// Whether neither a file of its own nor the table's head (the byte for its code page) says truly how the texts of a
// table are encoded, and they can't be UTF-8.
bool needsGuess(QByteArray const& table, QByteArray const& said) {
  constexpr int codePage = 29, lookedAt = 8 * 1024 * 1024, longestName = 64;
  QByteArray const name = headOf(said, longestName).trimmed().toUpper();
  bool const isUtf8 = name == "UTF-8" || name == "UTF8" || name == "65001";
  bool const isKnown = name.toInt() > 0 || name.startsWith("LDID/") || QTextCodec::codecForName(name);
  if (isKnown && !isUtf8) return false;
  QByteArray const head = headOf(table, lookedAt);
  bool const isSaidByTable = !isUtf8 && head.size() > codePage && head[codePage] != 0;
  return !isSaidByTable && isNoUtf8(head);
}

// Of the Shapefiles in an archive, the first one's.
bool needsGuessWithin(QByteArray const& folder) {
  QStringList names;
  char** const entries = VSIReadDir(folder.constData());
  for (int i = 0; i < CSLCount(entries); ++i) names << QString::fromUtf8(entries[i]);
  CSLDestroy(entries);
  names.sort();
  auto const table =
      std::find_if(names.begin(), names.end(), [](QString const& name) { return hasSuffix(name, "dbf"); });
  if (table == names.end()) return false;
  int const said =
      names.indexOf(QRegularExpression(QRegularExpression::escape(table->chopped(3)) + QStringLiteral("cpg"),
                                       QRegularExpression::CaseInsensitiveOption));
  return needsGuess(folder + '/' + table->toUtf8(), said < 0 ? QByteArray() : folder + '/' + names[said].toUtf8());
}

}  // namespace

QVector<DataFormat> const& dataFormats() { return formats; }

bool hasGuessedEncoding(QString const& path) {
  bool const isShapes = hasSuffix(path, "shp") || hasSuffix(path, "dbf");
  bool const isFolder = hasSuffix(path, "zip"), isArchive = isFolder || hasSuffix(path, "shz");
  if (!isShapes && !isArchive) return false;
  QFileInfo const table = isShapes ? companionOf(path, "dbf") : QFileInfo(path);
  QFileInfo const said = isShapes ? companionOf(path, "cpg") : QFileInfo();
  using Stamp = std::tuple<QString, QDateTime, qint64, qint64>;
  static std::mutex mutex;
  static std::map<Stamp, bool> known;
  std::lock_guard<std::mutex> const lock(mutex);
  QString const absolute = table.absoluteFilePath();
  auto const [place, isNew] = known.try_emplace({absolute, table.lastModified(), table.size(), said.size()}, false);
  if (!isNew) return place->second;
  if (isShapes)
    place->second = needsGuess(absolute.toUtf8(), said.isFile() ? said.absoluteFilePath().toUtf8() : QByteArray());
  else
    place->second = needsGuessWithin(isFolder ? folderWithShapes(absolute) : "/vsizip/{" + absolute.toUtf8() + "}");
  return place->second;
}

QString missingTableOf(QString const& path) {
  QFileInfo const table = hasSuffix(path, "shp") ? companionOf(path, "dbf") : QFileInfo(path);
  return table.exists() ? QString() : table.fileName();
}

bool isDataFileName(QString const& path) {
  return isRasterFileName(path) || std::any_of(formats.begin(), formats.end(), [&](DataFormat const& format) {
           QStringList const suffixes = QString::fromLatin1(format.suffixes).split(QLatin1Char(' '));
           return suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
         });
}

void CloseDataset::operator()(GDALDataset* dataset) const {
  GdalErrors const quiet;
  GDALClose(dataset);
}

DatasetPointer openLocalDataset(QString const& path, QString& error, QString* complaint) {
  stayOffline();
  registerDrivers();
  QString reason = SysUtility::FileReach::refusal(path, SysUtility::FileReach::With::Companions);
  if (reason.isEmpty()) reason = missing(path);
  if (reason.isEmpty()) reason = refusalOfHead(path);
  if (!reason.isEmpty()) {
    error = cannotOpen(path, reason);
    return nullptr;
  }
  GdalErrors const errors;
  DatabaseBounds const bounds(path);
  QString const absolute = QFileInfo(path).absoluteFilePath();
  bool const isArchive = hasSuffix(path, "zip");
  QByteArray const name = isArchive ? folderWithShapes(absolute) : absolute.toUtf8();
  reason = refusalOfArchive(absolute, name);
  if (reason.isEmpty()) reason = refusalOfContent(absolute, name);
  if (!reason.isEmpty()) {
    error = cannotOpen(path, reason);
    return nullptr;
  }
  char const* const shapes[] = {"ESRI Shapefile", nullptr};
  auto const drivers = driverNames();
  DatasetPointer dataset;
  if (!name.isEmpty())
    dataset.reset(GDALDataset::Open(name.constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY,
                                    isArchive ? shapes : drivers.data(), optionsFor(path), nullptr));
  if (dataset && isArchive && dataset->GetLayerCount() == 0) dataset.reset();
  if (dataset && complaint && errors.hasFailure()) *complaint = errors.reason();
  if (dataset) return dataset;
  if (errors.hasFailure()) reason = QLatin1String(" (") + errors.reason() + QLatin1Char(')');
  reason.prepend(whyUnread(path, name));
  error = cannotOpen(path, reason);
  return nullptr;
}

QString formatOf(GDALDataset& dataset) { return nameOf(QString::fromUtf8(dataset.GetDriverName())); }

bool isTextTable(GDALDataset& dataset) { return EQUAL(dataset.GetDriverName(), "CSV"); }

}  // namespace SysCarto
