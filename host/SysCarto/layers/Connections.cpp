#include "Connections.h"

#include "host/SysUtility/Fields.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <tuple>
#include <utility>

namespace SysCarto {

using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

QString const prefix = QStringLiteral("connection:");
constexpr int maxPort = 65535;
constexpr int maxSeconds = 3600;
constexpr int maxConnectSeconds = 5;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Connections)
};

// By the names that libpq has for them.
constexpr Choice encryptions[] = {
    {Connection::Encryption::Prefer, "prefer", QT_TRANSLATE_NOOP("Fields", "Where the server can")},
    {Connection::Encryption::Disable, "disable", QT_TRANSLATE_NOOP("Fields", "Never")},
    {Connection::Encryption::Require, "require", QT_TRANSLATE_NOOP("Fields", "Always")},
    {Connection::Encryption::VerifyCa, "verify-ca", QT_TRANSLATE_NOOP("Fields", "Always, by a known authority")},
    {Connection::Encryption::VerifyFull, "verify-full",
     QT_TRANSLATE_NOOP("Fields", "Always, by a known authority and for this host")},
};

struct Known {
  std::mutex mutex;
  std::vector<Connection> all;
  std::optional<QSet<QString>> allowed;
  QSet<QString> chosen;
  QHash<QString, QString> passwords;
  QSet<QString> wanting;
};

Known& known() {
  static Known one;
  return one;
}

std::optional<Connection> found(Known const& in, QString const& name) {
  auto const at = std::find_if(in.all.begin(), in.all.end(), [&](Connection const& one) { return one.name == name; });
  return at == in.all.end() ? std::nullopt : std::optional<Connection>(*at);
}

// What a password belongs to.
auto leadsTo(Connection const& one) { return std::tie(one.host, one.port, one.database, one.user); }

// An equals sign could begin a setting of the driver's own.
void checkText(Fields& fields, char const* key, QString const& text) {
  static QRegularExpression const unfit(QStringLiteral("['\"\\\\=\\x00-\\x1f]"));
  if (fields.isReading() && fields.ok() && unfit.match(text).hasMatch())
    fields.fail(key, Texts::tr("holds a quote, a backslash, an equals sign or a control character; leave it out"));
}

QByteArray quoted(char const* key, QString const& text) {
  QByteArray value = text.toUtf8();
  value.replace('\\', "\\\\").replace('\'', "\\'");
  return QByteArray(key) + "='" + value + "' ";
}

}  // namespace

void Connection::list(Fields& fields) {
  Connection const usual;
  fields.filledText({"name", QT_TRANSLATE_NOOP("Fields", "Name"),
                     QT_TRANSLATE_NOOP("Fields", "What documents call it: letters, digits, “-”, “_” and “.”.")},
                    name, TextKind::Line);
  static QRegularExpression const fit(QStringLiteral("^[\\w.-]{1,60}$"),
                                      QRegularExpression::UseUnicodePropertiesOption);
  if (fields.isReading() && fields.ok() && !fit.match(name).hasMatch())
    fields.fail("name", Texts::tr("takes up to 60 letters, digits, “-”, “_” and “.”, not “%1”").arg(name));
  fields.text({"host", QT_TRANSLATE_NOOP("Fields", "Host"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The computer that the server runs on, or the folder of its socket; empty for this "
                                 "computer's own.")},
              host, TextKind::Line, QString());
  checkText(fields, "host", host);
  fields.integer(
      {"port", QT_TRANSLATE_NOOP("Fields", "Port"), QT_TRANSLATE_NOOP("Fields", "At which the server listens.")}, port,
      1, maxPort, usual.port);
  fields.text({"database", QT_TRANSLATE_NOOP("Fields", "Database"),
               QT_TRANSLATE_NOOP("Fields", "Its name on the server; that of the user where it is empty.")},
              database, TextKind::Line, QString());
  checkText(fields, "database", database);
  fields.text({"user", QT_TRANSLATE_NOOP("Fields", "User"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The server's user, best one that may only read; your own name where it is empty. "
                                 "The password is asked for, or stands in the file .pgpass.")},
              user, TextKind::Line, QString());
  checkText(fields, "user", user);
  fields.choice<Encryption>(
      {"sslmode", QT_TRANSLATE_NOOP("Fields", "Encrypted"),
       QT_TRANSLATE_NOOP("Fields",
                         "Whether what is read is encrypted on its way, and whether the server must prove "
                         "who it is.")},
      encryption, encryptions, usual.encryption);
  fields.integer({"timeout", QT_TRANSLATE_NOOP("Fields", "Timeout in seconds"),
                  QT_TRANSLATE_NOOP("Fields", "So many seconds the server may take for an answer.")},
                 seconds, 1, maxSeconds, usual.seconds);
  fields.flag({"documents", QT_TRANSLATE_NOOP("Fields", "Open to documents"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether documents that are opened in the window may read from it without that "
                                 "being asked, whoever made them.")},
              forDocuments, usual.forDocuments);
}

QByteArray Connection::forDriver(QString const& password) const {
  constexpr int milli = 1000;
  auto const mode = std::find_if(std::begin(encryptions), std::end(encryptions),
                                 [this](Choice const& choice) { return choice.value == static_cast<int>(encryption); });
  QByteArray text = "PG:";
  for (auto const& [key, value] :
       {std::make_pair("host", host), {"dbname", database}, {"user", user}, {"password", password}})
    if (!value.isEmpty()) text += quoted(key, value);
  text += quoted("port", QString::number(port)) + quoted("sslmode", QLatin1String(mode->name));
  text += quoted("connect_timeout", QString::number(std::min(seconds, maxConnectSeconds)));
  text += quoted("tcp_user_timeout", QString::number(seconds * milli));
  text += quoted("keepalives_idle", QString::number(seconds));
  text += quoted("application_name", QStringLiteral("plotvane"));
  // A scan that begins where another one is would give the same rows in another order.
  text += quoted("options", QStringLiteral("-c default_transaction_read_only=on -c statement_timeout=%1 "
                                           "-c lock_timeout=%1 -c synchronize_seqscans=off")
                                .arg(seconds * milli));
  return text.trimmed();
}

void Connections::know(std::vector<Connection> connections) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  auto const before = std::exchange(known().all, std::move(connections));
  for (Connection const& one : before) {
    auto const now = found(known(), one.name);
    if (now && leadsTo(*now) == leadsTo(one)) continue;
    known().passwords.remove(one.name);
    known().wanting.remove(one.name);
  }
}

QStringList Connections::names() {
  std::lock_guard<std::mutex> const lock(known().mutex);
  QStringList names;
  for (Connection const& one : known().all) names << one.name;
  return names;
}

std::optional<Connection> Connections::find(QString const& name) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  return found(known(), name);
}

void Connections::confine(QStringList const& names) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  known().allowed = QSet<QString>(names.begin(), names.end());
}

void Connections::choose(QString const& name) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  known().chosen.insert(name);
}

bool Connections::isAllowed(QString const& name) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  return !known().allowed || known().allowed->contains(name) || known().chosen.contains(name);
}

QString Connections::refusal(QString const& name) {
  if (!find(name))
    return Texts::tr(
               "The connection “%1” is not known on this computer; add it in Edit › Connections…, or with plotvane "
               "connections add %1.")
        .arg(name.left(60));
  if (!isAllowed(name))
    return Texts::tr(
               "The connection “%1” is not open to documents; allow it when the window asks or in Edit › "
               "Connections…, or pass --allow-connection %1.")
        .arg(name);
  return QString();
}

void Connections::keepPassword(QString const& name, QString const& password) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  known().passwords[name] = password;
}

QString Connections::password(QString const& name) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  return known().passwords.value(name);
}

bool Connections::wantsPassword(QString const& name) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  return known().wanting.contains(name);
}

void Connections::setWantsPassword(QString const& name, bool wantsPassword) {
  std::lock_guard<std::mutex> const lock(known().mutex);
  if (wantsPassword)
    known().wanting.insert(name);
  else
    known().wanting.remove(name);
}

QString connectionIn(QString const& origin) {
  return origin.startsWith(prefix) ? origin.mid(prefix.size()) : QString();
}
QString originOf(QString const& connection) { return prefix + connection; }

QString absoluteOrigin(QString const& origin) {
  return connectionIn(origin).isEmpty() ? QFileInfo(origin).absoluteFilePath() : origin;
}

QString titleOf(QString const& origin) {
  QString const connection = connectionIn(origin);
  return connection.isEmpty() ? QFileInfo(origin).fileName() : connection;
}

}  // namespace SysCarto
