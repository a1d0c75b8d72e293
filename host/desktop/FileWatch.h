#pragma once

#include "FileStamp.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QStringList>
#include <QTimer>

/// Tells when files are changed, replaced, removed or put back, whoever does it.
class FileWatch final : public QObject {
  Q_OBJECT

public:
  FileWatch();
  ~FileWatch() override;

  /// Watches these files, whether they exist or not, and no others. One that was not watched before is taken as it is.
  void follow(QStringList const& paths);

  /// Looks now: not every file system tells of what is changed from afar.
  void look();

signals:
  /// Each change is told once.
  void changed(QStringList const& paths);

private:
  void watchAll();

  QFileSystemWatcher watcher_;
  QTimer soon_;
  QMap<QString, FileStamp> stamps_;
};
