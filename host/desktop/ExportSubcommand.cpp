#include "Console.h"
#include "Interrupt.h"
#include "Subcommand.h"

#include "output/ExportArguments.h"
#include "output/ImageFormat.h"
#include "output/PageExport.h"
#include "series/FileNames.h"
#include "series/SeriesExport.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/document/MapDocumentHost.h"

#include <QCommandLineParser>

#include <optional>

using SysCarto::MapDocument;

namespace {

struct Request {
  QString document;
  QString image;
  ImageFormat const* format = nullptr;
  ExportOptions options;
  bool quiet = false;
  bool allowMissing = false;
  SeriesOptions series;
  QStringList arguments;  // as they were given
};

class ExportSubcommand {
  Q_DECLARE_TR_FUNCTIONS(ExportSubcommand)

public:
  static std::optional<ExitStatus> parse(Subcommand const& self, QStringList const& arguments, Request& request);

  explicit ExportSubcommand(Request const& request) : request_(request) {}

  /// An empty text, or what went wrong.
  QString run();

private:
  QString openDocument();

  Request request_;
  MapDocument document_;
};

std::optional<ExitStatus> ExportSubcommand::parse(Subcommand const& self, QStringList const& arguments,
                                                  Request& request) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("DOCUMENT"), tr("The .kdx document."));
  parser.addPositionalArgument(QStringLiteral("IMAGE"),
                               tr("The file to write; its suffix names the format: %1. Without one it is a TIFF.")
                                   .arg(ImageFormat::allSuffixes()));
  ExportArguments page;
  parser.addOptions(page.options());
  QCommandLineOption const quiet(QStringLiteral("quiet"), tr("Print neither the path nor the progress."));
  QCommandLineOption const missing(
      QStringLiteral("allow-missing"),
      tr("Draw the page also where a data source or a picture can't be read, or not to its end."));
  parser.addOptions({quiet, missing});
  parser.addOptions(SeriesOptions::all());
  if (auto const settled = parseArguments(self, parser, arguments)) return settled;
  QString const document = parser.positionalArguments().at(0), image = parser.positionalArguments().at(1);
  SeriesOptions series;
  QString problem = page.read(parser, image);
  if (problem.isEmpty()) problem = series.read(parser);
  if (problem.isEmpty()) {
    ExportOptions options = page.chosen();
    options.allowMissing = parser.isSet(missing);
    request = {document, image, &page.format(), options, parser.isSet(quiet), parser.isSet(missing), series, arguments};
    return std::nullopt;
  }
  Console::complain(problem);
  return WrongArguments;
}

QString ExportSubcommand::run() {
  Interrupt const interrupt;  // before the working folder is made, and until it has gone
  PageExport page(request_.image, *request_.format, request_.options);
  QString problem = FileNames::isPattern(request_.image) ? QString() : page.checkPlace();
  if (problem.isEmpty()) problem = openDocument();
  if (!problem.isEmpty()) return problem;
  SeriesExport::Request const series{request_.document, request_.image,     *request_.format, request_.options,
                                     request_.series,   request_.arguments, request_.quiet};
  if (SeriesExport::isWanted(series, document_)) return SeriesExport(series, document_, interrupt.cancel()).run();
  ExportProgress progress;
  if (!request_.quiet && Console::hasTerminal())
    progress = [](QString const& what, int percent) {
      Console::showStatus(QStringLiteral("%1 %2 %").arg(what).arg(percent, 3));
    };
  problem = page.write(document_, interrupt.cancel(), progress);
  if (progress) Console::showStatus(QString());
  for (QString const& warning : SysCarto::laterWarnings(document_) + page.notes()) Console::remark(warning);
  if (problem.isEmpty() && !request_.quiet) Console::print(request_.image);
  return problem;
}

QString ExportSubcommand::openDocument() {
  bool const opened = document_.Open(request_.document);
  for (QString const& warning : document_.GetWarnings()) Console::remark(warning);
  if (!opened) return document_.GetErrors().join(QLatin1Char('\n'));
  if (SysCarto::MapDocumentHost::unreadableSources(document_) > 0 && !request_.allowMissing)
    return tr("%1: data sources could not be read, so the page would not be whole; mend them, or pass --allow-missing.")
        .arg(request_.document);
  return QString();
}

}  // namespace

ExitStatus runExport(Subcommand const& self, QStringList const& arguments) {
  Request request;
  if (auto const settled = ExportSubcommand::parse(self, arguments, request)) return *settled;
  QString const problem = ExportSubcommand(request).run();
  if (!problem.isEmpty()) {
    Console::complain(problem);
    return WorkFailed;
  }
  return Done;
}
