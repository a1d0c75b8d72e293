#pragma once

#include <QStringList>

#include <optional>

class QCommandLineParser;

enum ExitStatus { Done = 0, WorkFailed = 1, WrongArguments = 2 };

/// A row of the table of subcommands.
struct Subcommand {
  char const* name;
  char const* operands;  ///< as the usage line shows them: "DOCUMENT IMAGE"; dots after the last one let it repeat, and
                         ///< one in brackets may be missing
  char const* help;      ///< one line
  ExitStatus (*run)(Subcommand const& self, QStringList const& arguments);
};

// The rows' functions, each in a file of its own.
ExitStatus runNew(Subcommand const& self, QStringList const& arguments);
ExitStatus runExport(Subcommand const& self, QStringList const& arguments);
ExitStatus runInfo(Subcommand const& self, QStringList const& arguments);
ExitStatus runRun(Subcommand const& self, QStringList const& arguments);
ExitStatus runCommands(Subcommand const& self, QStringList const& arguments);
ExitStatus runSchema(Subcommand const& self, QStringList const& arguments);
ExitStatus runReference(Subcommand const& self, QStringList const& arguments);
ExitStatus runConnections(Subcommand const& self, QStringList const& arguments);
ExitStatus runSystems(Subcommand const& self, QStringList const& arguments);

/// Whether the arguments (without the program's name) ask for the window: none, or a document.
bool asksForWindow(QStringList arguments);

/// Runs what the arguments (without the program's name) ask for.
int runCommandLine(QStringList const& arguments);

/// Parses a subcommand's arguments with the options that the parser has; adds `--help`. An answer is the exit status of
/// a command line that is settled: help was shown, or a problem told.
std::optional<ExitStatus> parseArguments(Subcommand const& self, QCommandLineParser& parser,
                                         QStringList const& arguments);
