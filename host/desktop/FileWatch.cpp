#include "FileWatch.h"

#include <QFileInfo>

namespace {

constexpr int settleMs = 300;  // a program that replaces a file takes several steps

}  // namespace

FileWatch::FileWatch() {
  soon_.setSingleShot(true);
  soon_.setInterval(settleMs);
  connect(&soon_, &QTimer::timeout, this, &FileWatch::look);
  auto const lookSoon = [this] {
    if (!soon_.isActive()) soon_.start();
  };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, lookSoon);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, lookSoon);
}

FileWatch::~FileWatch() = default;

void FileWatch::follow(QStringList const& paths) {
  QMap<QString, FileStamp> stamps;
  for (QString const& path : paths) stamps[path] = stamps_.value(path, FileStamp::of(path));
  stamps_ = stamps;
  watchAll();
}

// The folders, too: a file that was replaced or removed is no longer watched itself.
void FileWatch::watchAll() {
  QStringList wanted;
  for (auto it = stamps_.constBegin(); it != stamps_.constEnd(); ++it)
    for (QString const& path : {it.key(), QFileInfo(it.key()).absolutePath()})
      if (QFileInfo::exists(path) && !wanted.contains(path)) wanted << path;
  QStringList const watched = watcher_.files() + watcher_.directories();
  for (QString const& path : watched)
    if (!wanted.contains(path)) watcher_.removePath(path);
  for (QString const& path : qAsConst(wanted))
    if (!watched.contains(path)) watcher_.addPath(path);
}

void FileWatch::look() {
  QStringList changed;
  for (auto it = stamps_.begin(); it != stamps_.end(); ++it) {
    FileStamp const now = FileStamp::of(it.key());
    if (now == it.value()) continue;
    it.value() = now;
    watcher_.removePath(it.key());  // it may be the former file that is watched
    changed << it.key();
  }
  watchAll();
  if (!changed.isEmpty()) emit this->changed(changed);
}
