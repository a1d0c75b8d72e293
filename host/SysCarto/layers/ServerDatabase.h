#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class OGRLayer;

namespace SysCarto {

struct ServerSession;

/// A table of a database, as statements name it.
struct ServerTable {
  QByteArray name;    ///< quoted, with its schema
  QByteArray number;  ///< of the server's own
};

/// A database that a connection leads to. Whatever is asked of its server is asked on another thread and is waited for
/// no longer than the connection says; after that nothing more is asked, and the thread keeps what it uses.
class ServerDatabase {
public:
  /// Whether it is asked for layers, or what there is, which a person alone asks for.
  enum class Use { Layers, Tables };

  /// Empty, with a sentence in `error`, where the connection is not known, is not allowed, or leads nowhere.
  static std::unique_ptr<ServerDatabase> open(QString const& connection, Use use, QString& error);
  ~ServerDatabase();

  /// The tables with geometries that the user may read, each as "schema.table".
  QStringList const& tables() const { return tables_; }

  /// A table of these, by its name; it may outlive the database. Empty, with a sentence in `error`, where there is no
  /// such one.
  std::unique_ptr<OGRLayer> layer(QString const& table, QString& error) const;

private:
  explicit ServerDatabase(std::shared_ptr<ServerSession> session);

  std::shared_ptr<ServerSession> session_;
  QStringList all_, tables_;  // the driver knows them by their numbers among all
  QHash<QString, ServerTable> known_;
};

}  // namespace SysCarto
