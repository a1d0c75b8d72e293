#include "Console.h"
#include "Subcommand.h"

#include "host/SysCarto/projection/SystemCatalogue.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int codeWidth = -12, nameWidth = -44;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SystemsSubcommand)
};

QJsonObject jsonOf(SysCarto::KnownSystem const& system) {
  QJsonObject json{{QStringLiteral("code"), system.code},
                   {QStringLiteral("name"), system.name},
                   {QStringLiteral("area"), system.area},
                   {QStringLiteral("geographic"), system.isGeographic},
                   {QStringLiteral("deprecated"), system.isDeprecated}};
  if (!system.use.isEmpty())
    json[QStringLiteral("degrees")] = QJsonArray{system.use.west, system.use.south, system.use.east, system.use.north};
  return json;
}

}  // namespace

ExitStatus runSystems(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("WORDS"),
                               Texts::tr("Words of the name, the code or the area, in any order."));
  QCommandLineOption const json(QStringLiteral("json"), Texts::tr("Print JSON, for programs."));
  QCommandLineOption const all(QStringLiteral("deprecated"), Texts::tr("Deprecated systems, too."));
  parser.addOptions({json, all});
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  auto const& catalogue = SysCarto::SystemCatalogue::instance();
  SysCarto::SystemQuery query;
  query.words = parser.positionalArguments().join(QLatin1Char(' '));
  query.hasDeprecated = parser.isSet(all);
  auto const found = catalogue.search(query);
  if (found.empty()) {
    Console::complain(Texts::tr("systems: no coordinate system has all of \"%1\"; leave a word out.").arg(query.words));
    return WorkFailed;
  }
  QJsonArray list;
  for (int const number : found) {
    SysCarto::KnownSystem const& system = catalogue.systems()[number];
    if (parser.isSet(json))
      list.append(jsonOf(system));
    else
      Console::print(
          QStringLiteral("%1 %2 %3").arg(system.code, codeWidth).arg(system.name, nameWidth).arg(system.area));
  }
  if (parser.isSet(json)) Console::print(QString::fromUtf8(QJsonDocument(list).toJson()).trimmed());
  return Done;
}
