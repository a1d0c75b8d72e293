#include "SourceIndexes.h"

#include "IndexWriter.h"

#include "host/SysCarto/layers/SourceBounds.h"
#include "host/SysCarto/layers/SourceSettings.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/SysCarto/projection/Offline.h"
#include "host/SysUtility/FileReach.h"
#include "host/SysUtility/JsonFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMutex>
#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>
#include <QUuid>
#include <QWaitCondition>

#include <gdal_priv.h>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SourceIndexes)
};

constexpr char version[] = "2";  // of how features are stored
constexpr int maxDaysUnused = 30;
constexpr int shareOfDisk = 10;  // all of them take at most one in so many bytes of what would be free without them
constexpr int secondsBetweenMarks = 3600;
QString const unfitKey = QStringLiteral("unfit"), sourceKey = QStringLiteral("source");
constexpr QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
QString const hidden = QStringLiteral(".new-");  // before it is whole, or when it is about to be removed

QString folderOfIndexes(QString const* changed = nullptr) {
  static QMutex mutex;
  static QString folder;
  QMutexLocker const locker(&mutex);
  if (changed) folder = *changed;
  return folder;
}

QString hashed(QStringList const& texts) {
  constexpr int length = 20;
  QByteArray const text = texts.join(QLatin1Char('\n')).toUtf8();
  return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().left(length));
}

// What could not be indexed is not tried again by this process, nor told.
bool isGivenUp(QString const& index, bool isFromNow = false) {
  static QMutex mutex;
  static QSet<QString> known;
  QMutexLocker const locker(&mutex);
  if (isFromNow) known << index;
  return known.contains(index);
}

// While one lives, no other thread of this process makes that index: several layers of one file begin to be read
// together.
class OnlyMaker {
public:
  OnlyMaker(QString index, ReadProgress const& progress) : index_(std::move(index)) {
    while (isWanted_ && !begins()) isWanted_ = !progress || progress(0, -1);
  }
  ~OnlyMaker() {
    QMutexLocker const locker(&makers().mutex);
    if (isWanted_) makers().indexes.remove(index_);
    makers().ended.wakeAll();
  }
  OnlyMaker(OnlyMaker const&) = delete;
  OnlyMaker& operator=(OnlyMaker const&) = delete;

  bool isWanted() const { return isWanted_; }

private:
  struct Makers {
    QMutex mutex;
    QWaitCondition ended;
    QSet<QString> indexes;
  };
  static Makers& makers() {
    static auto& own = *new Makers;  // threads may outlive whatever is taken down at the end
    return own;
  }

  bool begins() {
    constexpr unsigned long betweenQuestionsMs = 50;
    auto& [mutex, ended, indexes] = makers();
    QMutexLocker const locker(&mutex);
    if (indexes.contains(index_)) ended.wait(&mutex, betweenQuestionsMs);
    bool const isFirst = !indexes.contains(index_);
    indexes << index_;
    return isFirst;
  }

  QString const index_;
  bool isWanted_ = true;
};

// What features of a file may be in: the file and those of its name that drivers look at.
QStringList filesOf(QString const& file) {
  static QStringList const known =
      QStringLiteral("shp shx dbf prj cpg dat map id mid mif csvt gpkg-wal gpkg-journal").split(QLatin1Char(' '));
  QFileInfo const own(file);
  QString const base = own.absolutePath() + QLatin1Char('/') + own.completeBaseName() + QLatin1Char('.');
  QStringList files{own.absoluteFilePath()};
  for (QString const& suffix : known) files << base + suffix << base + suffix.toUpper();
  return files;
}

QStringList stampsOf(QString const& file) {
  QStringList stamps;
  for (QString const& one : filesOf(file)) {
    struct stat status = {};
    if (stat(QFile::encodeName(one).constData(), &status) != 0) continue;
    stamps << QStringLiteral("%1 %2 %3.%4")
                  .arg(QFileInfo(one).fileName())
                  .arg(qint64(status.st_size))
                  .arg(qint64(status.st_mtim.tv_sec))
                  .arg(qint64(status.st_mtim.tv_nsec));
  }
  return stamps;
}

bool mayHaveIndex(SourceSettings const& source) {
  bool const isFile = source.data == SourceSettings::Data::File && source.connection.isEmpty();
  return isFile && source.joins.empty() && !folderOfIndexes().isEmpty();
}

// Where the index of a source lies: what it is of, and what that is like now.
struct IndexName {
  QString place, state;

  static IndexName of(SourceSettings const& source) {
    return {hashed({QFileInfo(source.file).absoluteFilePath(), source.layer, source.xField, source.yField,
                    source.geometryField}),
            hashed(QStringList{QLatin1String(version), QLatin1String(GDALVersionInfo("RELEASE_NAME"))} +
                   stampsOf(source.file))};
  }
  QString path() const { return QDir(folderOfIndexes()).filePath(place + QLatin1Char('-') + state); }
};

QString aboutIn(QString const& folder) { return QDir(folder).filePath(QLatin1String(IndexFiles::about)); }

bool hasIndex(QString const& index) { return QFileInfo::exists(aboutIn(index)); }

// A file that is locked while its index is in use; an empty pointer where it is not there, or to be removed.
std::unique_ptr<QFile> lockedAbout(QString const& folder, int kind) {
  auto file = std::make_unique<QFile>(aboutIn(folder));
  bool const isLocked = file->open(QIODevice::ReadOnly) && flock(file->handle(), kind | LOCK_NB) == 0;
  return isLocked && file->exists() ? std::move(file) : nullptr;
}

void markUsed(QString const& folder) {
  QString const file = aboutIn(folder);
  if (QFileInfo(file).lastModified().secsTo(QDateTime::currentDateTime()) > secondsBetweenMarks)
    utimensat(AT_FDCWD, QFile::encodeName(file).constData(), nullptr, 0);
}

QJsonObject readAbout(QFile& file) { return QJsonDocument::fromJson(file.readAll()).object(); }

qint64 sizeOf(QString const& folder) {
  qint64 bytes = 0;
  for (QFileInfo const& file : QDir(folder).entryInfoList(QDir::Files)) bytes += file.size();
  return bytes;
}

// Nothing else that may lie there.
QFileInfoList indexes() {
  static QRegularExpression const name(QStringLiteral("^[0-9a-f]{20}-[0-9a-f]{20}$"));
  auto all = QDir(folderOfIndexes()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
  auto const isOther = [](QFileInfo const& one) { return !name.match(one.fileName()).hasMatch(); };
  all.erase(std::remove_if(all.begin(), all.end(), isOther), all.end());
  return all;
}

bool remove(QString const& folder) {
  auto const lock = lockedAbout(folder, LOCK_EX);
  if (!lock && QFileInfo::exists(aboutIn(folder))) return false;
  QString const aside = QDir(folderOfIndexes()).filePath(hidden + QUuid::createUuid().toString(QUuid::WithoutBraces));
  return QDir().rename(folder, aside) && QDir(aside).removeRecursively();
}

qint64 allowedBytes() {
  qint64 bytes = QStorageInfo(folderOfIndexes()).bytesAvailable();
  for (QFileInfo const& index : indexes()) bytes += sizeOf(index.filePath());
  return bytes / shareOfDisk;
}

// What nobody used for long, what others of the same source are newer than, and of the rest the least used ones.
void makeRoom(IndexName const& kept, qint64 allowed) {
  auto all = indexes();
  std::sort(all.begin(), all.end(), [](QFileInfo const& a, QFileInfo const& b) {
    return QFileInfo(aboutIn(a.filePath())).lastModified() > QFileInfo(aboutIn(b.filePath())).lastModified();
  });
  qint64 bytes = sizeOf(kept.path());
  QDateTime const oldest = QDateTime::currentDateTime().addDays(-maxDaysUnused);
  for (QFileInfo const& one : qAsConst(all)) {
    if (one.filePath() == kept.path()) continue;
    bytes += sizeOf(one.filePath());
    bool const isOld = QFileInfo(aboutIn(one.filePath())).lastModified() < oldest;
    if (isOld || bytes > allowed || one.fileName().startsWith(kept.place)) remove(one.filePath());
  }
}

// A folder that is filled before it is an index. While it lives, it is locked; what was left unlocked is removed.
class UnfinishedIndex {
public:
  UnfinishedIndex()
      : path_(QDir(folderOfIndexes()).filePath(hidden + QUuid::createUuid().toString(QUuid::WithoutBraces))),
        lock_(path_ + QLatin1String("/lock")) {
    sweep();
    isThere_ = QDir().mkpath(path_) && QFile::setPermissions(folderOfIndexes(), owner) &&
               lock_.open(QIODevice::WriteOnly) && flock(lock_.handle(), LOCK_EX | LOCK_NB) == 0;
  }
  ~UnfinishedIndex() { QDir(path_).removeRecursively(); }
  UnfinishedIndex(UnfinishedIndex const&) = delete;
  UnfinishedIndex& operator=(UnfinishedIndex const&) = delete;

  bool isThere() const { return isThere_; }
  QString const& path() const { return path_; }

  // One that another process has made meanwhile is as good. A crash of the system leaves a whole one or none.
  bool becomes(QString const& path) {
    for (QFileInfo const& file : QDir(path_).entryInfoList(QDir::Files)) {
      QFile written(file.filePath());
      if (!written.open(QIODevice::ReadWrite) || fsync(written.handle()) != 0) return false;
    }
    lock_.remove();
    return QDir().rename(path_, path) || hasIndex(path);
  }

private:
  static void sweep() {
    constexpr int secondsToLock = 60;
    for (QFileInfo const& one :
         QDir(folderOfIndexes()).entryInfoList({hidden + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden)) {
      QFile lock(one.filePath() + QLatin1String("/lock"));
      bool const isFree = !lock.open(QIODevice::ReadOnly) || flock(lock.handle(), LOCK_EX | LOCK_NB) == 0;
      if (isFree && one.lastModified().secsTo(QDateTime::currentDateTime()) > secondsToLock)
        QDir(one.filePath()).removeRecursively();
    }
  }

  QString const path_;
  QFile lock_;
  bool isThere_ = false;
};

// Refused: the source, by its bounds; whoever reads it whole tells that.
enum class Writing { Done, Stopped, Refused, Failed };

Writing writeAll(OGRLayer& layer, SourceSettings const& source, IndexWriter& writer, ReadProgress const& progress) {
  ReadWatch watch(layer, progress);
  SourceBounds bounds(source.file);
  layer.ResetReading();
  while (OGRFeatureUniquePtr const feature{layer.GetNextFeature()}) {
    if (!bounds.admits(*feature)) return Writing::Refused;
    if (!writer.add(*feature)) return Writing::Failed;
    if (!watch.goesOn()) return Writing::Stopped;
  }
  if (watch.wasStopped()) return Writing::Stopped;
  return writer.finish({{sourceKey, source.file}}) ? Writing::Done : Writing::Failed;
}

// So that it is not tried again as long as the source stays as it is.
void noteUnfit(IndexName const& name, QString const& file) {
  UnfinishedIndex note;
  QByteArray const text = SysUtility::jsonText({{unfitKey, true}, {sourceKey, file}});
  QFile about(aboutIn(note.path()));
  bool const isWritten = note.isThere() && about.open(QIODevice::WriteOnly) && about.write(text) == text.size();
  about.close();
  if (isWritten) note.becomes(name.path());
}

// Why there is no index; empty where its source alone is the reason.
QString problemOf(Writing writing, IndexWriter const& writer, GdalErrors const& errors) {
  if (writing != Writing::Failed || (writer.isUnfit() && !errors.hasFailure())) return QString();
  if (writer.isTooLarge()) return Texts::tr("it would take more than a tenth of the room that is free there");
  return errors.hasFailure() ? errors.reason() : Texts::tr("it could not be written");
}

SourceIndexes::Made filled(UnfinishedIndex& unfinished, IndexName const& name, OGRLayer& layer,
                           SourceSettings const& source, ReadProgress const& progress) {
  SourceIndexes::Made made;
  auto const form = StoredForm::of(layer);
  if (!form) return made;
  qint64 const allowed = allowedBytes();
  GdalErrors const errors;
  IndexWriter writer(unfinished.path(), *form, allowed);
  Writing writing = writeAll(layer, source, writer, progress);
  made.wasStopped = writing == Writing::Stopped;
  bool const isSame = name.state == IndexName::of(source).state;
  if (made.wasStopped || !isSame) return made;
  if (writing == Writing::Done && !errors.hasFailure()) {
    made.isThere = unfinished.becomes(name.path());
    writing = made.isThere ? Writing::Done : Writing::Failed;
  }
  if (made.isThere) makeRoom(name, allowed);
  if (writer.isUnfit() && !errors.hasFailure()) noteUnfit(name, source.file);
  made.problem = problemOf(writing, writer, errors);
  return made;
}

}  // namespace

void SourceIndexes::use(QString const& folder) { folderOfIndexes(&folder); }

std::unique_ptr<OGRLayer> SourceIndexes::find(SourceSettings const& source) {
  using SysUtility::FileReach;
  bool const isReadable = mayHaveIndex(source) && QFileInfo(source.file).isReadable() &&
                          FileReach::refusal(source.file, FileReach::With::Companions).isEmpty();
  if (!isReadable) return nullptr;
  QString const folder = IndexName::of(source).path();
  auto use = lockedAbout(folder, LOCK_SH);
  if (!use) return nullptr;
  stayOffline();
  if (!GetGDALDriverManager()->GetDriverByName("FlatGeobuf")) GDALAllRegister();
  GdalErrors const quiet;
  QJsonObject const about = readAbout(*use);
  auto layer = IndexedLayer::open(folder, about, std::move(use));
  if (layer) markUsed(folder);
  if (!layer && !about.contains(unfitKey)) remove(folder);  // damaged: it is made anew
  return layer;
}

bool SourceIndexes::isMissing(OGRLayer& layer, SourceSettings const& source) {
  bool const isWanted = mayHaveIndex(source) && !layer.TestCapability(OLCFastSpatialFilter) &&
                        layer.GetLayerDefn()->GetGeomFieldCount() > 0;
  if (!isWanted || !StoredForm::of(layer)) return false;
  QString const index = IndexName::of(source).path();
  return !isGivenUp(index) && !hasIndex(index);
}

QString SourceIndexes::stateOf(SourceSettings const& source) {
  return mayHaveIndex(source) ? IndexName::of(source).state : QString();
}

SourceIndexes::Made SourceIndexes::make(OGRLayer& layer, SourceSettings const& source, QString const& state,
                                        ReadProgress const& progress) {
  IndexName const name = IndexName::of(source);
  Made made;
  if (name.state != state) return made;
  OnlyMaker const maker(name.path(), progress);
  made.wasStopped = !maker.isWanted();
  if (made.wasStopped || hasIndex(name.path()) || isGivenUp(name.path())) return made;
  UnfinishedIndex unfinished;
  if (unfinished.isThere())
    made = filled(unfinished, name, layer, source, progress);
  else
    made.problem = Texts::tr("nothing can be written there");
  made.folder = QDir::toNativeSeparators(folderOfIndexes());
  if (!made.isThere && !made.wasStopped) isGivenUp(name.path(), true);
  return made;
}

void readInAnyOrder(OGRLayer& layer) {
  if (auto* const indexed = dynamic_cast<IndexedLayer*>(&layer)) indexed->readInAnyOrder();
}

}  // namespace SysCarto
