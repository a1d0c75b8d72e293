#include "Console.h"
#include "DocumentReport.h"
#include "OffscreenDesktop.h"
#include "Subcommand.h"

#include <SysCarto/MapDocument.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>

ExitStatus runInfo(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("DOCUMENT"),
                               QCoreApplication::translate("InfoSubcommand", "The .kdx document."));
  QCommandLineOption const json(QStringLiteral("json"),
                                QCoreApplication::translate("InfoSubcommand", "Print JSON, for programs."));
  parser.addOption(json);
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  SysCarto::MapDocument document;
  bool const opened = document.Open(parser.positionalArguments().at(0));
  for (QString const& sentence : document.GetWarnings() + document.GetErrors()) Console::complain(sentence);
  if (!opened) return WorkFailed;

  auto const desktop = SysUtility::make<OffscreenDesktop>(document);
  QJsonObject const report = documentJson(document);
  Console::print(parser.isSet(json) ? QString::fromUtf8(QJsonDocument(report).toJson()).trimmed()
                                    : documentText(report));
  return Done;
}
