#include "Console.h"
#include "JsonSchema.h"
#include "StoredFormat.h"
#include "Subcommand.h"

#include <QCommandLineParser>
#include <QJsonDocument>

ExitStatus runSchema(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  describeFormatOperand(parser);
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;
  auto const format = formatOf(parser, self.name);
  if (!format) return WrongArguments;
  Console::print(QString::fromUtf8(QJsonDocument(jsonSchema(*format)).toJson()).trimmed());
  return Done;
}
