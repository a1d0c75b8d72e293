#include "Console.h"
#include "FieldReference.h"
#include "StoredFormat.h"
#include "Subcommand.h"

#include <QCommandLineParser>

ExitStatus runReference(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  describeFormatOperand(parser);
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;
  auto const format = formatOf(parser, self.name);
  if (!format) return WrongArguments;
  Console::print(fieldReference(*format).trimmed());
  return Done;
}
