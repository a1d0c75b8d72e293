#include "Subcommand.h"

#include "Confinement.h"
#include "Console.h"
#include "IndexCache.h"
#include "Language.h"
#include "Supervision.h"

#include "host/SysUtility/FileReach.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

// clang-format off
constexpr Subcommand subcommands[] = {
    {"new",      "DOCUMENT [DATA]...", QT_TRANSLATE_NOOP("Subcommand", "Make a map of data, with a page around it"),     runNew},
    {"export",   "DOCUMENT IMAGE", QT_TRANSLATE_NOOP("Subcommand", "Draw the page of a document into an image file"),   runExport},
    {"info",     "DOCUMENT|DATA",  QT_TRANSLATE_NOOP("Subcommand", "Tell what is on the page of a document, or in a file of data"), runInfo},
    {"run",      "DOCUMENT STEP...", QT_TRANSLATE_NOOP("Subcommand", "Work on a document step by step, without a window"), runRun},
    {"commands", "",               QT_TRANSLATE_NOOP("Subcommand", "List the commands and whether the plug-in builds them"), runCommands},
    {"schema",   "[FORMAT]",       QT_TRANSLATE_NOOP("Subcommand", "Print the format of documents or styles as a JSON Schema"), runSchema},
    {"reference", "[FORMAT]",      QT_TRANSLATE_NOOP("Subcommand", "Print tables of all fields of documents or styles"), runReference},
    {"systems",  "WORDS...",       QT_TRANSLATE_NOOP("Subcommand", "Search for coordinate systems by name, code or area"), runSystems},
    {"connections", "ACTION [NAME]", QT_TRANSLATE_NOOP("Subcommand", "List, add, remove or test connections to PostGIS databases"), runConnections},
};
// clang-format on

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Subcommand)
};

void printHelp() {
  QString text = Texts::tr(
                     "Usage: plotvane [DOCUMENT]              opens the window\n       plotvane "
                     "SUBCOMMAND [options]   works without one") +
                 QStringLiteral("\n\n");
  for (Subcommand const& subcommand : subcommands)
    text += QStringLiteral("  %1 %2\n").arg(QLatin1String(subcommand.name), -11).arg(Texts::tr(subcommand.help));
  text += Texts::tr(
      "\nplotvane SUBCOMMAND --help tells about one of them; plotvane "
      "--version tells the version. --language LANG, on any of these lines, names the "
      "language of the texts, such as de; it is the user's own otherwise.");
  Console::print(text);
}

ExitStatus runWithoutSubcommand(QStringList const& arguments) {
  QString const first = arguments.value(0);
  if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
    printHelp();
    return Done;
  }
  if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
    Console::print(QStringLiteral("plotvane ") + QCoreApplication::applicationVersion());
    return Done;
  }
  if (arguments.size() == 1 && first.endsWith(QLatin1String(".kdx"), Qt::CaseInsensitive)) {
    Console::complain(Texts::tr("%1: there is no such document; check the name and the folder.").arg(first));
    return WorkFailed;
  }
  Console::complain(Texts::tr("\"%1\" is neither a subcommand nor a document; plotvane "
                              "--help lists the subcommands.")
                        .arg(first));
  return WrongArguments;
}

ExitStatus dispatch(QStringList const& arguments) {
  for (Subcommand const& subcommand : subcommands)
    if (arguments.value(0) == QLatin1String(subcommand.name)) return subcommand.run(subcommand, arguments.mid(1));
  return runWithoutSubcommand(arguments);
}

// The parser's own usage line names the executable's path and not the subcommand.
QString helpText(Subcommand const& self, QCommandLineParser const& parser) {
  QString const text = parser.helpText();
  return Texts::tr("Usage: plotvane %1 [options] %2")
             .arg(QLatin1String(self.name), QLatin1String(self.operands))
             .trimmed() +
         text.mid(text.indexOf(QLatin1Char('\n'))).trimmed().prepend(QStringLiteral("\n"));
}

}  // namespace

bool asksForWindow(QStringList arguments) {
  // Options of Qt, such as -style and -geometry, have a value each.
  while (arguments.size() > 1 && arguments.first().size() > 2 && arguments.first().startsWith(QLatin1Char('-')) &&
         !arguments.first().startsWith(QLatin1String("--")))
    arguments = arguments.mid(2);
  if (arguments.isEmpty()) return true;
  for (Subcommand const& subcommand : subcommands)
    if (arguments.first() == QLatin1String(subcommand.name)) return false;
  return arguments.size() == 1 && QFileInfo::exists(arguments.first());
}

int runCommandLine(QStringList const& arguments) {
  ExitStatus const status = dispatch(arguments);
  if (Console::finish()) return status;
  Console::complain(Texts::tr("The result could not be written to standard output."));
  return status == Done ? WorkFailed : status;
}

std::optional<ExitStatus> parseArguments(Subcommand const& self, QCommandLineParser& parser,
                                         QStringList const& arguments) {
  QCommandLineOption const help({QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Show this help."));
  // These were taken out of the arguments before; here they are for the help.
  QCommandLineOption const language(QLatin1String(languageOption),
                                    Texts::tr("The language of the texts, such as de; the user's own if not given."),
                                    QStringLiteral("LANG"));
  QCommandLineOption const confine(
      QLatin1String(Confinement::option),
      Texts::tr("Open for the document only files in its folder, below it, and in folders that --allow names."));
  QCommandLineOption const allow(QLatin1String(Confinement::folderOption),
                                 Texts::tr("A folder for --confine; may be given several times."),
                                 QStringLiteral("FOLDER"));
  QCommandLineOption const connection(QLatin1String(Confinement::connectionOption),
                                      Texts::tr("A connection for --confine, by its name; may be given several times."),
                                      QStringLiteral("NAME"));
  QCommandLineOption const seconds(QLatin1String(ResourceLimits::secondsOption),
                                   Texts::tr("End it, cleaned up, after so many seconds."), QStringLiteral("N"));
  QCommandLineOption const memory(QLatin1String(ResourceLimits::memoryOption),
                                  Texts::tr("End it where it takes more than so many megabytes."), QStringLiteral("N"));
  QCommandLineOption const cache(QLatin1String(IndexCache::option),
                                 Texts::tr("Make and use no indexes of large files in the user's cache."));
  bool const opensFiles = QLatin1String(self.operands).startsWith(QLatin1String("DOCUMENT"));
  if (opensFiles) parser.addOptions({confine, allow, connection, cache});
  parser.addOptions({seconds, memory, language, help});
  parser.setApplicationDescription(Texts::tr("%1.").arg(Texts::tr(self.help)));
  bool const understood = parser.parse(QStringList(QStringLiteral("plotvane")) + arguments);
  if (parser.isSet(help)) {
    Console::print(helpText(self, parser));
    return Done;
  }

  QString problem = understood ? QString() : parser.errorText();
  QStringList const operands = QString::fromLatin1(self.operands).split(QLatin1Char(' '), Qt::SkipEmptyParts);
  int const given = parser.positionalArguments().size();
  bool const isMissing = given < operands.size() && !operands.at(given).startsWith(QLatin1Char('['));
  if (problem.isEmpty() && isMissing) problem = Texts::tr("%1 is missing.").arg(operands.at(given));
  bool const takesMore = !operands.isEmpty() && operands.last().endsWith(QLatin1String("..."));
  if (problem.isEmpty() && given > operands.size() && !takesMore)
    problem = Texts::tr("\"%1\" is one argument too many.").arg(parser.positionalArguments().at(operands.size()));
  if (problem.isEmpty()) {
    QFileInfo const named(parser.positionalArguments().value(0));
    if (opensFiles) SysUtility::FileReach::allow(named.isDir() ? named.filePath() : named.path());
    return std::nullopt;
  }
  Console::complain(QStringLiteral("%1: %2 ").arg(QLatin1String(self.name), problem) +
                    Texts::tr("plotvane %1 --help tells how.").arg(QLatin1String(self.name)));
  return WrongArguments;
}
