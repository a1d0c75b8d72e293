#pragma once

#include "host/desktop/Leftover.h"

#include <QFile>

#include <memory>

/// A hidden folder beside a file that is being written, which goes with this object, or with the process that it
/// belongs to. What a process left that was killed, or a power cut, is swept out by the next one that starts or works
/// there.
class WorkFolder {
public:
  /// Beside `path`; `name` is the file's as people know it.
  WorkFolder(QString const& path, QString const& name);
  ~WorkFolder();
  WorkFolder(WorkFolder const&) = delete;
  WorkFolder& operator=(WorkFolder const&) = delete;

  /// Empty where it is there.
  QString const& problem() const { return problem_; }

  QString filePath(QString const& name) const { return path_ + QLatin1Char('/') + name; }

  /// What was made in it is in its place.
  void setWritten() { leftover_->setWritten(); }

private:
  QString path_;
  std::unique_ptr<Leftover> leftover_;
  QFile lock_;  // locked as long as the process lives
  QString problem_;
};
