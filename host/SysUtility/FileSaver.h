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
  ///
  /// A link stays a link, and what it leads to is replaced. A file that is replaced gives its owner, its permissions
  /// and its extended attributes to the new one, as far as the system lets us. Where its folder takes no new file, it
  /// is written over in its place: then alone a power cut may leave a half.
  ///
  /// `remark` gets a sentence where the file is whole and something about it is not as it should be: what belonged to
  /// the old one could not be kept, or its folder not be written to the disk. Labels that the system gives by rules of
  /// its own ("security.…") are not told.
  static QString save(QString const& path, QByteArray const& content, QString* remark = nullptr);

  static constexpr char besidePrefix[] = ".plotvane-new-";

  /// The name that a file which is being saved has for a moment beside its place. A process that is killed just then
  /// leaves it; the next save takes it away.
  static QString besideOf(QString const& path);

  /// What a save there replaces: the path itself, or what it leads to as a link.
  static QString realPath(QString const& path);

  /// Whether a file can be put there: a sentence as `save` answers one where the folder is missing or can't be written,
  /// or where something lies there that must not give way: a folder, a device, a pipe, a write-protected file.
  static QString checkPlace(QString const& path);

  /// The same where the file is written beside its place first, so that its folder must take new files.
  static QString checkFolder(QString const& path);
};

}  // namespace SysUtility
