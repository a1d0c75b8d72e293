#include "KeptConnections.h"

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysUtility/JsonFields.h"
#include "host/desktop/Console.h"
#include "host/desktop/Subcommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

using SysCarto::Connection;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ConnectionsSubcommand)
};

// An option for each field of a connection that is a text or a number; its key is the field's.
struct Setting {
  char const* option;
  char const* help;
  char const* value;
};
// clang-format off
constexpr Setting settings[] = {
    {"host",     QT_TRANSLATE_NOOP("ConnectionsSubcommand", "The computer of the server, or the folder of its socket."), "HOST"},
    {"port",     QT_TRANSLATE_NOOP("ConnectionsSubcommand", "Its port; 5432 if not given."), "PORT"},
    {"database", QT_TRANSLATE_NOOP("ConnectionsSubcommand", "The database."), "NAME"},
    {"user",     QT_TRANSLATE_NOOP("ConnectionsSubcommand", "The user, best one that may only read."), "NAME"},
    {"sslmode",  QT_TRANSLATE_NOOP("ConnectionsSubcommand", "prefer, disable, require, verify-ca or verify-full."), "MODE"},
    {"timeout",  QT_TRANSLATE_NOOP("ConnectionsSubcommand", "How many seconds it may take for an answer; 30 if not given."), "N"},
};
// clang-format on
QString const documentsOption = QStringLiteral("documents");

QString notKnown(QString const& name) {
  return Texts::tr("connections: there is no connection \"%1\"; plotvane connections list tells which there are.")
      .arg(name);
}

QString jsonOf(Connection connection, QJsonObject& json) {
  SysUtility::JsonWriter writer;
  connection.list(writer);
  json = writer.json();
  return writer.error();
}

QString tellAll(bool asJson) {
  QJsonArray list;
  KeptConnections const kept = KeptConnections::kept();
  for (Connection const& one : kept.connections) {
    QJsonObject json;
    jsonOf(one, json);
    list << json;
    QString const host = one.host.isEmpty() ? Texts::tr("this computer") : one.host;
    QString const open = one.forDocuments ? Texts::tr("open to documents") : QString();
    if (!asJson)
      Console::print(QStringLiteral("%1  %2:%3  %4  %5  %6")
                         .arg(one.name, -16)
                         .arg(host)
                         .arg(one.port)
                         .arg(one.database, one.user, open)
                         .trimmed());
  }
  if (asJson) Console::print(QString::fromUtf8(QJsonDocument(list).toJson()).trimmed());
  if (!asJson && kept.connections.empty() && kept.problems.isEmpty())
    Console::print(Texts::tr("There are no connections; plotvane connections add NAME makes one."));
  return QString();
}

// Whether the arguments are to blame is told, too.
QString add(QString const& name, QCommandLineParser const& parser, bool& isWrong) {
  KeptConnections all = KeptConnections::kept();
  isWrong = true;
  if (all.has(name))
    return Texts::tr("connections: there is a connection \"%1\" already; remove it first, or take another name.")
        .arg(name);
  QJsonObject json{{QStringLiteral("name"), name}, {documentsOption, parser.isSet(documentsOption)}};
  for (Setting const& setting : settings) {
    QString const option = QLatin1String(setting.option);
    if (!parser.isSet(option)) continue;
    bool isNumber = false;
    int const number = parser.value(option).toInt(&isNumber);
    bool const isText = setting.value != QLatin1String("PORT") && setting.value != QLatin1String("N");
    json[option] = isText || !isNumber ? QJsonValue(parser.value(option)) : QJsonValue(number);
  }
  Connection made;
  QString const problem = SysUtility::readJson(json, made);
  if (!problem.isEmpty()) return QStringLiteral("connections: %1").arg(problem);
  isWrong = false;
  all.connections.push_back(made);
  return all.keep();
}

QString remove(QString const& name) {
  KeptConnections all = KeptConnections::kept();
  if (!all.has(name)) return notKnown(name);
  all.remove(name);
  return all.keep();
}

QString test(QString const& name) {
  if (!KeptConnections::kept().find(name)) return notKnown(name);
  auto const tables = SysCarto::describeFile(SysCarto::originOf(name));
  if (!tables.error.isEmpty()) return tables.error;
  QStringList names;
  for (auto const& table : tables.layers) names << table.name;
  Console::print(Texts::tr("%1 answers, and has these tables: %2.").arg(name, names.join(QStringLiteral(", "))));
  return QString();
}

}  // namespace

ExitStatus runConnections(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("ACTION"), Texts::tr("list, add, remove or test."));
  parser.addPositionalArgument(QStringLiteral("NAME"), Texts::tr("What documents call the connection."));
  for (Setting const& setting : settings)
    parser.addOption({QLatin1String(setting.option), Texts::tr(setting.help), QLatin1String(setting.value)});
  parser.addOption({documentsOption, Texts::tr("Documents that are opened in the window may use it unasked.")});
  parser.addOption({QStringLiteral("json"), Texts::tr("Print JSON, for programs.")});
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  QString const action = parser.positionalArguments().first(), name = parser.positionalArguments().value(1);
  bool const isList = action == QLatin1String("list");
  bool const isKnown = QStringList{"list", "add", "remove", "test"}.contains(action);
  QString wrong;
  if (!isKnown) wrong = Texts::tr("connections: \"%1\" is none of list, add, remove and test.").arg(action);
  if (isKnown && !isList && name.isEmpty()) wrong = Texts::tr("connections: the name of the connection is missing.");
  if (isList && !name.isEmpty()) wrong = Texts::tr("connections: list takes no name, such as \"%1\".").arg(name);
  if (!wrong.isEmpty()) {
    Console::complain(wrong);
    return WrongArguments;
  }
  bool isWrong = false;
  QString const problem = isList                            ? tellAll(parser.isSet(QStringLiteral("json")))
                          : action == QLatin1String("add")  ? add(name, parser, isWrong)
                          : action == QLatin1String("test") ? test(name)
                                                            : remove(name);
  for (QString const& left : KeptConnections::kept().problems)
    if (left != problem) Console::complain(left);
  if (problem.isEmpty()) return Done;
  Console::complain(problem);
  return isWrong ? WrongArguments : WorkFailed;
}
