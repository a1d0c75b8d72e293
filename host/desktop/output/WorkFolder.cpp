#include "WorkFolder.h"

#include <QDir>
#include <QFileInfo>

#include <sys/file.h>
#include <unistd.h>

namespace {

QString const prefix = QStringLiteral(".plotvane-");
QString const lockName = QStringLiteral("lock");

bool isLocked(QFile& file) { return flock(file.handle(), LOCK_EX | LOCK_NB) == 0; }

// Whose lock can be had belongs to nobody any more; one without a lock has just been made, or is not ours. Links lead
// to what others have put there, and are not followed.
void sweep(QDir const& place) {
  auto const filter = QDir::Dirs | QDir::Hidden | QDir::NoSymLinks;
  for (QFileInfo const& folder : place.entryInfoList({prefix + QLatin1Char('*')}, filter)) {
    if (folder.ownerId() != getuid()) continue;
    QFile lock(folder.filePath() + QLatin1Char('/') + lockName);
    if (!QFileInfo(lock).isSymLink() && lock.exists() && lock.open(QIODevice::ReadWrite) && isLocked(lock))
      QDir(folder.filePath()).removeRecursively();
  }
}

}  // namespace

// The lock gets its name when it is held, so that no sweep takes the folder of somebody who is about to take it.
WorkFolder::WorkFolder(QString const& path, QString const& name) {
  QDir const place(QFileInfo(path).absolutePath());
  sweep(place);
  folder_ = std::make_unique<QTemporaryDir>(place.filePath(prefix + QStringLiteral("XXXXXX")));
  if (!folder_->isValid()) {
    problem_ = folder_->errorString();
    return;
  }
  leftover_ = std::make_unique<Leftover>(folder_->path(), name);
  lock_.setFileName(folder_->filePath(lockName + QStringLiteral(".new")));
  if (lock_.open(QIODevice::ReadWrite) && isLocked(lock_)) QFile::rename(lock_.fileName(), folder_->filePath(lockName));
}
