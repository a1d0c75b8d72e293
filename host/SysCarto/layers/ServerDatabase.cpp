#include "ServerDatabase.h"

#include "ServerLayer.h"
#include "ServerSession.h"

#include "host/SysCarto/projection/Offline.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Connections)
};

// The driver's own words and marks have no place in a sentence.
QString cannotOpen(Connection const& connection, QString reason) {
  reason = reason.remove(QLatin1String("PQconnectdb failed.")).simplified();
  while (reason.endsWith(QLatin1Char('?')) || reason.endsWith(QLatin1Char('.'))) reason.chop(1);
  return Texts::tr("The connection “%1” can't be opened: %2. Try it with plotvane connections test %1.")
      .arg(connection.name, reason);
}

// The driver hands on a sentence alone, in the server's language. The names in it, between quotes, may be any words.
bool isAboutPassword(QString reason) {
  static QRegularExpression const names(QStringLiteral("\"[^\"]*\"|«[^»]*»|»[^«]*«|“[^”]*”|„[^“]*“|「[^」]*」"));
  reason.remove(names);
  static QString const words[] = {
      QStringLiteral("passwor"),  // English, German, Italian
      QStringLiteral("mot de passe"), QStringLiteral("contraseña"), QStringLiteral("senha"),
      QStringLiteral("парол"),        QStringLiteral("hasł"),       QStringLiteral("heslo"),
      QStringLiteral("lösenord"),     QStringLiteral("parola"),     QStringLiteral("パスワード"),
      QStringLiteral("암호"),         QStringLiteral("密码"),       QStringLiteral("口令")};
  return std::any_of(std::begin(words), std::end(words),
                     [&](QString const& word) { return reason.contains(word, Qt::CaseInsensitive); });
}

struct Tables {
  QStringList all, readable;
  QHash<QString, ServerTable> known;
  QString problem;
};

// As the person's own session would look for names, and where PostGIS has its own.
constexpr char searchPath[] =
    "SELECT set_config('search_path', concat_ws(', ', nullif(s.reset_val, ''), (SELECT quote_ident(n.nspname) FROM "
    "pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace WHERE p.proname = 'postgis_version' LIMIT 1)), false), "
    "pg_backend_pid() FROM pg_settings s WHERE s.name = 'search_path'";

// Where the server can, it ends what it is at once this process is gone.
constexpr char endsWithUs[] =
    "SELECT set_config('client_connection_check_interval', '2000', false) FROM pg_settings WHERE name = "
    "'client_connection_check_interval'";

// The driver lists tables that the user may not read, too.
constexpr char relations[] =
    "SELECT n.nspname || '.' || c.relname AS told, quote_ident(n.nspname) || '.' || quote_ident(c.relname) AS quoted, "
    "c.oid::int8 AS number, (has_schema_privilege(n.oid, 'USAGE') AND has_table_privilege(c.oid, 'SELECT'))::int4 AS "
    "readable FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace WHERE c.relkind IN ('r', 'v', 'm', 'f', "
    "'p') ORDER BY c.oid";

void list(ServerSession& session, Tables& tables) {
  QStringList const own = session.rows(searchPath).value(0);
  session.process = own.value(1).toInt();
  QStringList closed;
  for (QStringList const& row : session.rows(relations)) {
    if (row.value(3).toInt() == 0) closed << row[0];
    if (!tables.known.contains(row[0])) tables.known[row[0]] = {row[1].toUtf8(), row[2].toUtf8()};
  }
  for (int i = 0; i < session.dataset->GetLayerCount(); ++i) {
    tables.all << QString::fromUtf8(session.dataset->GetLayer(i)->GetName());
    if (!closed.contains(tables.all.last())) tables.readable << tables.all.last();
  }
}

Tables openedTables(ServerSession& session) {
  Tables tables;
  stayOffline();
  GDALAllRegister();
  if (!GetGDALDriverManager()->GetDriverByName("PostgreSQL")) {
    tables.problem = Texts::tr("this GDAL reads no PostgreSQL");
    return tables;
  }
  FirstFailure const failure;
  session.dataset = connectWithTables(session.connection);
  if (session.dataset) list(session, tables);
  tables.problem = failure.text();
  if (!session.dataset && tables.problem.isEmpty()) tables.problem = Texts::tr("GDAL does not say why");
  FirstFailure const quiet;
  if (session.dataset) session.rows(endsWithUs);
  return tables;
}

}  // namespace

ServerDatabase::ServerDatabase(std::shared_ptr<ServerSession> session) : session_(std::move(session)) {}

ServerDatabase::~ServerDatabase() { leave(session_); }

std::unique_ptr<ServerDatabase> ServerDatabase::open(QString const& connection, Use use, QString& error) {
  auto const known = Connections::find(connection);
  error = known && use == Use::Tables ? QString() : Connections::refusal(connection);
  if (!error.isEmpty() || !known) return nullptr;
  std::unique_ptr<ServerDatabase> database(new ServerDatabase(std::make_shared<ServerSession>()));
  auto& session = database->session_;
  session->connection = *known;
  auto const tables = asked(session, openedTables);
  if (!tables && !isStillWanted()) return nullptr;
  QString problem = tables ? tables->problem : session->silence();
  bool const wantsPassword = isAboutPassword(problem);
  Connections::setWantsPassword(connection, wantsPassword);
  if (wantsPassword) problem = Texts::tr("%1; write it into ~/.pgpass, or pass it in PGPASSWORD").arg(problem);
  if (!problem.isEmpty()) {
    error = cannotOpen(*known, problem);
    return nullptr;
  }
  database->all_ = tables->all;
  database->tables_ = tables->readable;
  database->known_ = tables->known;
  return database;
}

std::unique_ptr<OGRLayer> ServerDatabase::layer(QString const& table, QString& error) const {
  QString const& name = session_->connection.name;
  int const number = all_.indexOf(table);
  if (number >= 0 && !tables_.contains(table)) {
    error = Texts::tr(
                "The user of the connection “%1” has no permission to read the table “%2”; have its owner grant "
                "that user SELECT.")
                .arg(name, table);
    return nullptr;
  }
  if (number < 0) {
    constexpr int maxNames = 30;
    error = tables_.isEmpty()
                ? Texts::tr("The connection “%1” has no table with geometries that its user may read.").arg(name)
                : Texts::tr("The connection “%1” has no table “%2” with geometries; it has: %3.")
                      .arg(name, table, QStringList(tables_.mid(0, maxNames)).join(QLatin1String(", ")));
    return nullptr;
  }
  struct Described {
    OGRLayer* layer = nullptr;
    OGRFeatureDefn* definition = nullptr;
    QByteArray key;
    QString problem;
  };
  auto const described = asked(session_, [number](ServerSession& session) {
    FirstFailure const failure;
    Described own;
    own.layer = session.dataset->GetLayer(number);
    own.definition = own.layer->GetLayerDefn()->Clone();
    own.key = own.layer->GetFIDColumn();
    own.problem = failure.text();
    return own;
  });
  if (!described && !isStillWanted()) return nullptr;
  QString const problem = described ? described->problem : session_->silence();
  if (!problem.isEmpty()) {
    error = Texts::tr("The table “%1” of the connection “%2” can't be read: %3.").arg(table, name, problem);
    if (described) delete described->definition;
    return nullptr;
  }
  return std::make_unique<ServerLayer>(session_, known_.value(table), *described->layer, described->definition,
                                       described->key);
}

}  // namespace SysCarto
