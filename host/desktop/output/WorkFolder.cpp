#include "WorkFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

QString const lockName = QStringLiteral("lock");

bool isLocked(QFile& file) { return flock(file.handle(), LOCK_EX | LOCK_NB) == 0; }

// Whose lock can be had belongs to nobody any more; one without a lock has just been made, or is not ours. Links lead
// to what others have put there, and are not followed.
void sweep(QDir const& place) {
  auto const filter = QDir::Dirs | QDir::Hidden | QDir::NoSymLinks;
  for (QFileInfo const& folder : place.entryInfoList({QLatin1String(Leftover::prefix) + QLatin1Char('*')}, filter)) {
    if (folder.ownerId() != getuid()) continue;
    QFile lock(folder.filePath() + QLatin1Char('/') + lockName);
    if (!QFileInfo(lock).isSymLink() && lock.exists() && lock.open(QIODevice::ReadWrite) && isLocked(lock))
      QDir(folder.filePath()).removeRecursively();
  }
}

}  // namespace

// The lock gets its name when it is held, so that no sweep takes the folder of somebody who is about to take it.
WorkFolder::WorkFolder(QString const& path, QString const& name) {
  constexpr mode_t ownOnly = 0700;
  constexpr int letters = 12;
  QDir const place(QFileInfo(path).absolutePath());
  sweep(place);
  path_ = place.filePath(QLatin1String(Leftover::prefix) + QUuid::createUuid().toString(QUuid::Id128).left(letters));
  leftover_ = std::make_unique<Leftover>(path_, name);
  if (mkdir(QFile::encodeName(path_).constData(), ownOnly) != 0) {
    problem_ = qt_error_string(errno);
    return;
  }
  lock_.setFileName(filePath(lockName + QStringLiteral(".new")));
  if (lock_.open(QIODevice::ReadWrite) && isLocked(lock_)) QFile::rename(lock_.fileName(), filePath(lockName));
}

WorkFolder::~WorkFolder() {
  if (problem_.isEmpty()) QDir(path_).removeRecursively();
}
