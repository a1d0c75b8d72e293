#pragma once

#include "host/desktop/Supervision.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// A hidden folder beside a file that is being written, which goes with this object, or with the process that it
/// belongs to. What a process left that was killed, or a power cut, is swept out by the next one that works there.
class WorkFolder {
public:
  /// Beside `path`; `name` is the file's as people know it.
  WorkFolder(QString const& path, QString const& name);
  WorkFolder(WorkFolder const&) = delete;
  WorkFolder& operator=(WorkFolder const&) = delete;

  /// Empty where it is there.
  QString const& problem() const { return problem_; }

  QString filePath(QString const& name) const { return folder_->filePath(name); }

private:
  std::unique_ptr<Leftover> leftover_;  // until the folder has gone
  std::unique_ptr<QTemporaryDir> folder_;
  QFile lock_;  // locked as long as the process lives
  QString problem_;
};
