#pragma once

#include <QDirIterator>
#include <QFile>
#include <QMap>

#include <sys/resource.h>

#include <csignal>

inline QByteArray contentOf(QString const& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file, and answers its path.
inline QString put(QString const& path, QByteArray const& content) {
  QFile file(path);
  file.remove();  // a file system may write one that is replaced to the disk at once
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("can't write a test file");
  return path;
}

/// Every file below a folder, with its content.
inline QMap<QString, QByteArray> contents(QString const& folder) {
  QMap<QString, QByteArray> all;
  QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QString const path = it.next();
    all[path] = it.fileInfo().isFile() ? contentOf(path) : QByteArray();
  }
  return all;
}

/// While it lives, no file of this process can grow beyond a size. A write then comes back short, as on a full disk.
class FileSizeLimit {
public:
  explicit FileSizeLimit(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit const limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
  rlimit before_;
};
