#pragma once

#include <SysUtility/Export.h>

#include <QByteArray>
#include <QString>

namespace SysUtility {

/// How every file of ours is written: whole or not at all.
class SYSUTILITY_EXPORT FileSaver {
public:
  /// Replaces the file at `path`, or makes it. On failure nothing at `path` has changed, and the answer is a translated
  /// sentence with the file, the cause and what to do; an empty text means that the file is safely on the disk.
  static QString save(QString const& path, QByteArray const& content);

  /// Whether a file can be put there: a sentence as `save` answers one where the folder is missing or can't be written,
  /// or where something lies there that must not give way: a folder, a device, a pipe, a write-protected file.
  static QString checkPlace(QString const& path);
};

}  // namespace SysUtility
