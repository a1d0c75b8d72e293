#include "Console.h"
#include "RunSteps.h"
#include "Subcommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RunSubcommand)
};

}  // namespace

ExitStatus runRun(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("DOCUMENT"), Texts::tr("The .kdx document."));
  parser.addPositionalArgument(QStringLiteral("STEP..."),
                               Texts::tr("What to do, in order: a command's identifier, or one of\n%1")
                                   .arg(RunSteps::names().join(QLatin1Char('\n'))));
  QCommandLineOption const force(QStringLiteral("force"),
                                 Texts::tr("Save also over a document that somebody else has opened or changed."));
  parser.addOption(force);
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  RunSteps steps(parser.isSet(force));
  QStringList const given = parser.positionalArguments().mid(1);
  QString const wrong = steps.check(given);
  if (!wrong.isEmpty()) {
    Console::complain(wrong);
    return WrongArguments;
  }
  QString problem = steps.open(parser.positionalArguments().at(0));
  for (int i = 0; i < given.size() && problem.isEmpty(); ++i) problem = steps.run(given.at(i));
  if (problem.isEmpty()) problem = steps.unusedAnswers();
  if (problem.isEmpty()) return Done;
  Console::complain(problem);
  return WorkFailed;
}
