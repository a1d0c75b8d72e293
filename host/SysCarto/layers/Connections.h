#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace SysUtility {
class Fields;
}

namespace SysCarto {

/// How a database of PostgreSQL is reached. Documents say its name alone: what that means is a setting of the person
/// who opens them, and no part of it is a password.
struct SYSCARTO_EXPORT Connection {
  enum class Encryption { Prefer, Disable, Require, VerifyCa, VerifyFull };

  QString name;
  QString host;  ///< a computer or the folder of a socket; empty for what libpq takes then
  int port = 5432;
  QString database, user;  ///< empty for what libpq takes then
  Encryption encryption = Encryption::Prefer;
  int seconds = 30;           ///< that the server may take for an answer
  bool forDocuments = false;  ///< whether documents use it in the window without that being asked

  void list(SysUtility::Fields& fields);

  /// For GDAL, each value quoted, with settings of the session that make it read alone and end what takes too long.
  QByteArray forDriver(QString const& password) const;
};

/// Those that this process knows. They may be asked on any thread.
class SYSCARTO_EXPORT Connections {
public:
  /// Instead of those known before. A password is forgotten where its connection is gone or leads elsewhere.
  static void know(std::vector<Connection> connections);
  static QStringList names();
  static std::optional<Connection> find(QString const& name);

  /// From now on layers are read from these alone, and from those that are chosen, before or later.
  static void confine(QStringList const& names);
  static void choose(QString const& name);
  static bool isAllowed(QString const& name);

  /// Why no layer is read from a connection, as a sentence; empty where it is.
  static QString refusal(QString const& name);

  /// For as long as the process runs, and nowhere else. Where none is kept, libpq looks into the environment and into
  /// the person's file of passwords.
  static void keepPassword(QString const& name, QString const& password);
  static QString password(QString const& name);

  /// Whether the last attempt to open it failed for want of the right password.
  static bool wantsPassword(QString const& name);
  static void setWantsPassword(QString const& name, bool wantsPassword);
};

/// A source as people name it on a command line: a file by its path, or "connection:NAME". No path of a document's
/// begins like that.
SYSCARTO_EXPORT QString connectionIn(QString const& origin);  ///< empty for a file
SYSCARTO_EXPORT QString originOf(QString const& connection);

/// Absolute, where it is a file.
SYSCARTO_EXPORT QString absoluteOrigin(QString const& origin);

/// What a person calls it: the name of the file without its folder, or that of the connection.
SYSCARTO_EXPORT QString titleOf(QString const& origin);

}  // namespace SysCarto
