#include "CommandCatalogue.h"
#include "Console.h"
#include "PluginLibrary.h"
#include "Subcommand.h"

#include <SysUI/ITool.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject commandJson(CommandEntry const& entry, PluginLibrary const& plugin) {
  auto const command = plugin.createCommand(entry.identifier);
  bool const isTool = SysUtility::ptr_cast<SysUI::ITool>(command) != nullptr;
  return QJsonObject{
      {QStringLiteral("identifier"), entry.identifier},
      {QStringLiteral("caption"), entry.caption},
      {QStringLiteral("toolTip"), entry.toolTip},
      {QStringLiteral("icon"), entry.icon},
      {QStringLiteral("shortcut"), entry.shortcut},
      {QStringLiteral("menu"), entry.menu},
      {QStringLiteral("toolbar"), entry.toolbar},
      {QStringLiteral("needs"), entry.needs},
      {QStringLiteral("built"), static_cast<bool>(command)},
      {QStringLiteral("tool"), isTool},
  };
}

QString commandsText(QJsonArray const& commands) {
  QString text;
  int built = 0;
  for (QJsonValue const& value : commands) {
    QJsonObject const command = value.toObject();
    bool const isBuilt = command[QStringLiteral("built")].toBool();
    built += isBuilt ? 1 : 0;
    text += QStringLiteral("%1  %2  %3\n")
                .arg(command[QStringLiteral("identifier")].toString(), -40)
                .arg(isBuilt ? QStringLiteral("built") : QStringLiteral("-"), -5)
                .arg(command[QStringLiteral("caption")].toString());
  }
  return text + QStringLiteral("%1 of %2 commands built").arg(built).arg(commands.size());
}

QString markdownTable(QVector<CommandEntry> const& entries) {
  QString text =
      QStringLiteral("| command | identifier | what it does | needs | shortcut | menu |\n|---|---|---|---|---|---|\n");
  for (CommandEntry const& entry : entries)
    text += QStringLiteral("| %1 | `%2` | %3 | %4 | %5 | %6 |\n")
                .arg(entry.caption, entry.identifier, entry.toolTip, entry.needs, entry.shortcut,
                     QString(entry.menu).replace(QLatin1Char('/'), QStringLiteral(" › ")));
  return text;
}

// The reference in docs/commands.md.
QString commandsMarkdown() {
  return QStringLiteral(
             "# The commands\n\nPrinted by `plotvane commands --markdown`.\n\n"
             "## Of the plug-in\n\n%1\n## Of the host\n\n%2")
      .arg(markdownTable(commandCatalogue()), markdownTable(hostCatalogue()))
      .trimmed();
}

}  // namespace

ExitStatus runCommands(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  QCommandLineOption const json(QStringLiteral("json"),
                                QCoreApplication::translate("CommandsSubcommand", "Print JSON, for programs."));
  QCommandLineOption const markdown(
      QStringLiteral("markdown"),
      QCoreApplication::translate("CommandsSubcommand", "Print the reference of all commands, the host's included."));
  parser.addOptions({json, markdown});
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  if (parser.isSet(markdown)) {
    Console::print(commandsMarkdown());
    return Done;
  }
  PluginLibrary plugin;
  plugin.load();
  QJsonArray commands;
  for (CommandEntry const& entry : commandCatalogue()) commands.append(commandJson(entry, plugin));
  QJsonObject const report{
      {QStringLiteral("plugin"), QJsonObject{{QStringLiteral("path"), plugin.path()},
                                             {QStringLiteral("state"), plugin.stateName()},
                                             {QStringLiteral("reason"), plugin.reason()}}},
      {QStringLiteral("commands"), commands},
  };
  Console::print(parser.isSet(json) ? QString::fromUtf8(QJsonDocument(report).toJson()).trimmed()
                                    : commandsText(commands));
  if (plugin.state() == PluginLibrary::State::Loaded) return Done;
  Console::complain(plugin.reason());
  return WorkFailed;
}
