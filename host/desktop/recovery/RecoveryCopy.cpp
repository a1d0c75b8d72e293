#include "RecoveryCopy.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/ChangeMark.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/DocumentSession.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace {

constexpr char const* suffixes[] = {".json", ".kdx", ".png"};

// A map that is drawn takes as much again of the same turn of the event loop.
constexpr auto sliceTime = std::chrono::milliseconds(8);
constexpr int pauseMs = 8;
constexpr auto longestTime = std::chrono::hours(1);
constexpr int maxOvertaken = 8;

QList<RecoveryCopy*>& copies() {
  static QList<RecoveryCopy*> all;
  return all;
}

QByteArray pngOf(QImage const& image) {
  constexpr int widthPx = 320;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.scaledToWidth(widthPx, Qt::SmoothTransformation).save(&buffer, "PNG");
  return bytes;
}

void removeCopy(QString const& base) {
  for (char const* suffix : suffixes) {
    QFile::remove(base + QLatin1String(suffix));
    QFile::remove(SysUtility::FileSaver::besideOf(base + QLatin1String(suffix)));
  }
}

// No age makes a lock stale: only that its process has gone.
std::unique_ptr<QLockFile> lockOf(QString const& base) {
  auto lock = std::make_unique<QLockFile>(base + QStringLiteral(".lock"));
  lock->setStaleLockTime(0);
  return lock;
}

// What a process has left that died before its copy was whole, or while it was removed.
void sweep(QDir const& folder) {
  constexpr int dead = 3600;  // seconds; a file that is being saved has such a name for a moment
  QSet<QString> bases;
  for (QFileInfo const& file : folder.entryInfoList(QDir::Files | QDir::Hidden)) {
    if (!file.fileName().startsWith(QLatin1String(SysUtility::FileSaver::besidePrefix)))
      bases << file.fileName().section(QLatin1Char('.'), 0, 0);
    else if (file.lastModified().secsTo(QDateTime::currentDateTime()) > dead)
      QFile::remove(file.filePath());
  }
  for (QString const& name : qAsConst(bases)) {
    QString const base = folder.filePath(name);
    bool const isWhole = QFile::exists(base + QStringLiteral(".json")) && QFile::exists(base + QStringLiteral(".kdx"));
    auto const lock = lockOf(base);
    if (!isWhole && lock->tryLock()) removeCopy(base);
  }
}

}  // namespace

QString recoveryFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/recovery");
}

RecoveryCopy::RecoveryCopy(DocumentSession& session, std::function<QImage()> picture)
    : session_(session),
      picture_(std::move(picture)),
      base_(recoveryFolder() + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
  writer_.setMaxThreadCount(1);
  copies() << this;
  connect(&timer_, &QTimer::timeout, this, &RecoveryCopy::update);
  connect(&slices_, &QTimer::timeout, this, &RecoveryCopy::proceed);
  connect(&session, &DocumentSession::replaced, this, &RecoveryCopy::update);
  connect(&session, &DocumentSession::historyChanged, this, [this] { ++moves_; });
  timer_.start(intervalMs);
}

RecoveryCopy::~RecoveryCopy() {
  copies().removeAll(this);
  drop();
  writer_.waitForDone();
  if (lock_) removeCopy(base_);
}

QString RecoveryCopy::path(char const* suffix) const { return base_ + QLatin1String(suffix); }

RecoveryCopy::Moment RecoveryCopy::now() const {
  return {moves_, SysCarto::MapDocumentHost::lastChange(session_.document()), SysUtility::ChangeMark::now()};
}

// To ask a document for its last change takes time where it is large.
bool RecoveryCopy::isOvertaken() {
  if (moves_ != begun_->move) return true;
  if (SysUtility::ChangeMark::now() == begun_->look) return false;
  Moment const latest = now();
  if (latest.change != begun_->change) return true;
  begun_->look = latest.look;
  return false;
}

void RecoveryCopy::drop() {
  slices_.stop();
  work_.reset();
  json_.reset();
  begun_.reset();
}

void RecoveryCopy::update() {
  if (!session_.isModified()) {
    bool const hasCopy = begun_.has_value();
    drop();
    if (!hasCopy) return;
    writer_.start([this] {
      removeCopy(base_);
      written_.clear();
    });
    return;
  }
  if (begun_ && !isOvertaken() && !hasFailed_) return;
  overtaken_ = 0;
  begin();
}

void RecoveryCopy::begin() {
  drop();
  begun_ = now();
  hasFailed_ = false;
  work_ = std::make_unique<SlicedWork>([this](SlicedWork::MayGoOn const& mayGoOn) {
    json_ = SysCarto::MapDocumentHost::jsonForAnywhere(session_.document(), mayGoOn);
  });
  slices_.start(pauseMs);
}

// What was read before a change may not fit to what is read after it. Somebody who changes things all the time does not
// go without a copy: in the end it is made in one go.
void RecoveryCopy::proceed() {
  if (isOvertaken()) {
    ++overtaken_;
    begin();
  }
  if (!work_->proceed(overtaken_ < maxOvertaken ? sliceTime : longestTime)) return;
  slices_.stop();
  work_.reset();
  if (!json_ || !write(*std::exchange(json_, std::nullopt))) hasFailed_ = true;
}

bool RecoveryCopy::keep() {
  update();
  if (!begun_) return false;
  overtaken_ = maxOvertaken;
  if (work_) proceed();
  writer_.waitForDone();
  return !hasFailed_;
}

void RecoveryCopy::keepAll() {
  for (RecoveryCopy* const copy : qAsConst(copies())) copy->keep();
}

void RecoveryCopy::leaveAll() {
  keepAll();
  for (RecoveryCopy* const copy : qAsConst(copies())) {
    copy->writer_.waitForDone();  // also where a copy that is not needed any more is being removed
    copy->lock_.reset();
  }
}

// The files are another thread's business, and the text that they hold. Beside some settings nothing can be kept.
bool RecoveryCopy::write(QJsonObject json) {
  if (!lock_) {
    QDir().mkpath(recoveryFolder());
    lock_ = lockOf(base_);
    if (!lock_->tryLock()) {
      lock_.reset();
      QString const problem = SysUtility::FileSaver::checkPlace(path(".kdx"));
      noteOutcome(problem.isEmpty() ? path(".lock") : problem);
      return false;
    }
  }
  auto const& document = session_.document();
  QString const file = document.GetPath();  // it may be told from a folder that is another one at the next start
  QString const place = file.isEmpty() ? file : QFileInfo(file).absoluteFilePath();
  QByteArray const known =
      QJsonDocument(QJsonObject{{QStringLiteral("file"), place},
                                {QStringLiteral("relativePaths"), document.IsUsesRelativePaths()},
                                {QStringLiteral("digest"), QString::fromLatin1(session_.fileDigest().toHex())}})
          .toJson();
  writer_.start([this, json = std::move(json), known, picture = picture_()] {
    noteOutcome(put(SysUtility::jsonText(json), known, picture));
  });
  return true;
}

// The description comes last: without it there is no copy. What fails is tried again the next time.
QString RecoveryCopy::put(QByteArray const& text, QByteArray const& known, QImage const& picture) {
  QByteArray const digest = QCryptographicHash::hash(text + known, QCryptographicHash::Sha1);
  if (digest == written_) return QString();
  QString problem;
  auto const save = [&](char const* suffix, QByteArray const& content) {
    problem = SysUtility::FileSaver::save(path(suffix), content);
    return problem.isEmpty();
  };
  written_.clear();
  if (save(".kdx", text) && save(".png", pngOf(picture)) && save(".json", known)) written_ = digest;
  return problem;
}

// Of the files' names a person knows nothing: what counts is their folder.
void RecoveryCopy::noteOutcome(QString const& problem) {
  if (!problem.isEmpty()) hasFailed_ = true;
  if (isTold_.exchange(!problem.isEmpty()) || problem.isEmpty()) return;
  QString why = problem;
  for (char const* suffix : suffixes)
    why.replace(QDir::toNativeSeparators(path(suffix)), QDir::toNativeSeparators(recoveryFolder()));
  emit told(tr("What is not saved would be lost in a crash, since no copy of it can be kept. %1").arg(why));
}

namespace {

// A path of the file is relative to its folder, where that of the copy is not; and each says which it has.
bool isSame(QJsonValue const& copy, QJsonValue const& file, QDir const& folder) {
  if (copy == file) return true;
  if (copy.isString() && file.isString())
    return QDir::cleanPath(folder.absoluteFilePath(file.toString())) == QDir::cleanPath(copy.toString());
  if (copy.isArray() && file.isArray()) {
    QJsonArray const one = copy.toArray(), other = file.toArray();
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [&](QJsonValue const& a, QJsonValue const& b) { return isSame(a, b, folder); });
  }
  if (!copy.isObject() || !file.isObject()) return false;
  QJsonObject const one = copy.toObject(), other = file.toObject();
  if (one.keys() != other.keys()) return false;
  for (QString const& key : one.keys())
    if (!isSame(one[key], other[key], folder)) return false;
  return true;
}

QJsonObject objectIn(QString const& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

}  // namespace

// The process may have been killed just after a save, before it removed its copy.
bool LostDocument::isSaved() const {
  QString const setting = QStringLiteral("relativePaths");
  QJsonObject known = objectIn(copy()), saved = file_.isEmpty() ? QJsonObject() : objectIn(file_);
  if (saved.isEmpty() || relativePaths_ != saved[setting].toBool(true)) return false;
  known.remove(setting);
  saved.remove(setting);
  return isSame(known, saved, QFileInfo(file_).absoluteDir());
}

std::vector<LostDocument> LostDocument::all() {
  std::vector<LostDocument> lost;
  QDir const folder(recoveryFolder());
  if (folder.exists()) sweep(folder);
  for (QFileInfo const& file : folder.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time)) {
    LostDocument one;
    one.base_ = file.path() + QLatin1Char('/') + file.completeBaseName();
    one.lock_ = lockOf(one.base_);
    if (!one.lock_->tryLock() || !QFile::exists(one.copy())) continue;
    QJsonObject const known = objectIn(file.filePath());
    if (known.isEmpty()) continue;
    one.file_ = known[QStringLiteral("file")].toString();
    one.relativePaths_ = known[QStringLiteral("relativePaths")].toBool(true);
    one.digest_ = QByteArray::fromHex(known[QStringLiteral("digest")].toString().toLatin1());
    one.time_ = file.lastModified();
    if (one.isSaved()) {
      one.discard();
      continue;
    }
    lost.push_back(std::move(one));
  }
  return lost;
}

QString LostDocument::copy() const { return base_ + QStringLiteral(".kdx"); }
QImage LostDocument::picture() const { return QImage(base_ + QStringLiteral(".png")); }
void LostDocument::discard() const {
  removeCopy(base_);
  lock_->unlock();
}

bool LostDocument::recover(DocumentSession& session) const {
  return session.recover(copy(), file_, relativePaths_, digest_);
}
