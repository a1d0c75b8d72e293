#include "DocumentLock.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSet>

namespace {

// One for all links to the document.
QString lockPath(QString const& document) {
  QFileInfo const info(document);
  QFileInfo const file(info.exists() ? info.canonicalFilePath() : info.absoluteFilePath());
  return file.absolutePath() + QStringLiteral("/.") + file.fileName() + QStringLiteral(".lock");
}

QSet<DocumentLock*>& locks() {
  static QSet<DocumentLock*> all;
  return all;
}

}  // namespace

// A lock is never too old: people work for days.
DocumentLock::DocumentLock(QString const& document)
    : document_(QDir::toNativeSeparators(document)), path_(lockPath(document)), lock_(path_) {
  lock_.setStaleLockTime(0);
  locks() << this;
}

DocumentLock::~DocumentLock() { locks().remove(this); }

void DocumentLock::releaseAll() {
  for (DocumentLock* const lock : qAsConst(locks())) lock->lock_.unlock();
}

bool DocumentLock::take() {
  isForeign_ = !lock_.isLocked() && !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
  return !isForeign_;
}

bool DocumentLock::guards(QString const& document) const { return path_ == lockPath(document); }

QString DocumentLock::holder() const {
  qint64 process = 0;
  QString host, application;
  bool const isTold = lock_.getLockInfo(&process, &host, &application);
  QFileInfo const file(path_);
  QString const user = file.owner().isEmpty() ? tr("somebody") : file.owner();
  QString const since = QLocale().toString(file.lastModified(), QLocale::ShortFormat);
  return tr("%1 is open already: by %2 on %3, since %4. If that is over, delete %5.")
      .arg(document_, user, isTold && !host.isEmpty() ? host : tr("an unknown machine"), since,
           QDir::toNativeSeparators(path_));
}
