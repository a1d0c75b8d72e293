#pragma once

#include <SysUtility/Export.h>

#include <QString>
#include <QStringList>

namespace SysUtility {

/// Folders of which a file may lie in one, or below it.
///
/// Documents come from strangers and name files. Where a path leads is what the system would open, with `..` and
/// symbolic links followed, whether there is something or not.
class SYSUTILITY_EXPORT FileReach {
public:
  explicit FileReach(QStringList const& folders);

  /// Of a document's file: its folder, and those that this process may reach besides.
  static FileReach ofDocument(QString const& path, QStringList const& allowed = {});

  /// What is opened with a file: nothing else, or what belongs to it by its name ("roads.dbf" and "roads.shp.xml" to
  /// "roads.shp").
  enum class With { Nothing, Companions };

  /// Where the file or one that is opened with it leads to, if the folders do not hold that; empty where they hold all.
  QString outside(QString const& file, With with) const;

  /// From now on, this process opens for documents only what lies in these folders. To be called before anything is
  /// read, as `allow`.
  static void confine(QStringList const& folders);

  /// One more folder; where the process is not confined, it makes no difference.
  static void allow(QString const& folder);

  /// Why this process does not open a file for a document, to go on after "the file can't be opened: "; empty where it
  /// does. Whoever opens a file that a document names asks here.
  static QString refusal(QString const& file, With with = With::Nothing);

private:
  QStringList folders_;  // as they are found, each with a slash at its end
};

}  // namespace SysUtility
