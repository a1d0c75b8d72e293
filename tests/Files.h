#pragma once

#include "Test.h"

#include <QDirIterator>

#include <sys/resource.h>
#include <unistd.h>

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

/// A copy of a sample in a folder, with the data of all samples.
inline QString sampleIn(QString const& folder, QString const& name) {
  QDir const samples(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples"));
  QDir(folder).mkdir("data");
  for (QString const& file : QDir(samples.filePath("data")).entryList(QDir::Files))
    put(folder + "/data/" + file, contentOf(samples.filePath("data/" + file)));
  return put(folder + '/' + name, contentOf(samples.filePath(name)));
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

/// While it lives, root is nobody, who may not write anywhere.
class WithoutPrivileges {
public:
  WithoutPrivileges() {
    constexpr uid_t nobody = 65534;
    if (isRoot_ && setresuid(nobody, nobody, 0) != 0) qFatal("can't become nobody");
  }
  ~WithoutPrivileges() {
    if (isRoot_ && setresuid(0, 0, 0) != 0) qFatal("can't become root again");
  }

private:
  bool const isRoot_ = geteuid() == 0;
};

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
