#include "RecoveryCopy.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/ChangeMark.h"
#include "host/SysUtility/FileSaver.h"
#include "host/desktop/DocumentSession.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUndoStack>
#include <QUuid>

#include <algorithm>

namespace {

constexpr char const* suffixes[] = {".json", ".kdx", ".png"};

QByteArray pngOf(QImage const& image) {
  constexpr int widthPx = 320;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.scaledToWidth(widthPx, Qt::SmoothTransformation).save(&buffer, "PNG");
  return bytes;
}

void removeCopy(QString const& base) {
  for (char const* suffix : suffixes) QFile::remove(base + QLatin1String(suffix));
}

// No age makes a lock stale: only that its process has gone.
std::unique_ptr<QLockFile> lockOf(QString const& base) {
  auto lock = std::make_unique<QLockFile>(base + QStringLiteral(".lock"));
  lock->setStaleLockTime(0);
  return lock;
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
  connect(&timer_, &QTimer::timeout, this, &RecoveryCopy::update);
  connect(&session, &DocumentSession::replaced, this, &RecoveryCopy::update);
  timer_.start(intervalMs);
}

RecoveryCopy::~RecoveryCopy() {
  finish();
  if (lock_) removeCopy(base_);
}

QString RecoveryCopy::path(char const* suffix) const { return base_ + QLatin1String(suffix); }

bool RecoveryCopy::finish() {
  writer_.waitForDone();
  return !begun_.isEmpty() && !hasFailed_;
}

// What is written is text of the document as it is now; that takes time where it is large, and so is done only where
// something has changed. The files themselves are another thread's business.
void RecoveryCopy::update() {
  if (!session_.isModified()) {
    if (!begun_.isEmpty()) writer_.start([base = base_] { removeCopy(base); });
    begun_.clear();
    return;
  }
  auto const& document = session_.document();
  quint64 const now = SysUtility::ChangeMark::now();
  int const step = SysCarto::MapDocumentHost::history(document)->index();
  if (!begun_.isEmpty() && !hasFailed_ && now == lookedAt_ && step == step_) return;
  lookedAt_ = now;
  step_ = step;
  QByteArray const text = SysCarto::MapDocumentHost::textForAnywhere(document);
  if (text.isEmpty()) hasFailed_ = true;
  if (text.isEmpty() || (text == begun_ && !hasFailed_)) return;
  if (!lock_) {
    QDir().mkpath(recoveryFolder());
    lock_ = lockOf(base_);
    if (!lock_->tryLock()) lock_.reset();
    if (!lock_) return;  // beside such settings nothing can be kept
  }
  begun_ = text;
  hasFailed_ = false;
  QByteArray const known =
      QJsonDocument(QJsonObject{{QStringLiteral("file"), document.GetPath()},
                                {QStringLiteral("relativePaths"), document.IsUsesRelativePaths()},
                                {QStringLiteral("digest"), QString::fromLatin1(session_.fileDigest().toHex())}})
          .toJson();
  // The description comes last: without it there is no copy. What fails is tried again the next time.
  writer_.start([this, text, known, picture = picture_()] {
    auto const put = [this](char const* suffix, QByteArray const& content) {
      return SysUtility::FileSaver::save(path(suffix), content).isEmpty();
    };
    hasFailed_ = !(put(".kdx", text) && put(".png", pngOf(picture)) && put(".json", known));
  });
}

std::vector<LostDocument> LostDocument::all() {
  std::vector<LostDocument> lost;
  QDir const folder(recoveryFolder());
  for (QFileInfo const& file : folder.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time)) {
    LostDocument one;
    one.base_ = file.path() + QLatin1Char('/') + file.completeBaseName();
    one.lock_ = lockOf(one.base_);
    if (!one.lock_->tryLock() || !QFile::exists(one.copy())) continue;
    QFile description(file.filePath());
    if (!description.open(QIODevice::ReadOnly)) continue;
    QJsonObject const known = QJsonDocument::fromJson(description.readAll()).object();
    one.file_ = known[QStringLiteral("file")].toString();
    one.relativePaths_ = known[QStringLiteral("relativePaths")].toBool(true);
    one.digest_ = QByteArray::fromHex(known[QStringLiteral("digest")].toString().toLatin1());
    one.time_ = file.lastModified();
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
