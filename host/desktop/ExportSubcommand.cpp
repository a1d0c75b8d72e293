#include "Console.h"
#include "Interrupt.h"
#include "Subcommand.h"

#include "output/ImageFormat.h"
#include "output/PageExport.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QCommandLineParser>
#include <QFileInfo>

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
  QCommandLineOption const format(QStringLiteral("format"),
                                  tr("The format, whatever the suffix: %1.").arg(ImageFormat::names()),
                                  QStringLiteral("FORMAT"));
  QCommandLineOption const dpi(QStringLiteral("dpi"),
                               tr("Pixels per inch of paper, 1 to %1; %2 if not given.")
                                   .arg(ExportOptions::maxDpi)
                                   .arg(ExportOptions::defaultDpi),
                               QStringLiteral("N"), QString::number(ExportOptions::defaultDpi));
  QCommandLineOption const quiet(QStringLiteral("quiet"), tr("Print neither the path nor the progress."));
  QCommandLineOption const missing(
      QStringLiteral("allow-missing"),
      tr("Draw the page also where a data source or a picture can't be read, or not to its end."));
  parser.addOptions({format, dpi, quiet, missing});
  if (auto const settled = parseArguments(self, parser, arguments)) return settled;

  bool isNumber = false;
  QString const image = parser.positionalArguments().at(1);
  QString const name = parser.value(format), suffix = QFileInfo(image).suffix();
  request = {parser.positionalArguments().at(0),
             image,
             !parser.isSet(format) ? suffix.isEmpty() ? &ImageFormat::writtenAt(image) : ImageFormat::withSuffix(suffix)
                                   : ImageFormat::named(name),
             {parser.value(dpi).toInt(&isNumber)},
             parser.isSet(quiet),
             parser.isSet(missing)};
  QString problem;
  if (!isNumber || request.options.dpi < 1 || request.options.dpi > ExportOptions::maxDpi)
    problem = tr("export: --dpi takes a whole number from 1 to %1, not \"%2\".")
                  .arg(QString::number(ExportOptions::maxDpi), parser.value(dpi));
  else if (request.format && request.format->isVector && request.options.dpi > ExportOptions::maxVectorDpi)
    problem = tr("export: a PDF takes a --dpi of at most %1; its shapes are as fine at any.")
                  .arg(ExportOptions::maxVectorDpi);
  else if (!request.format && parser.isSet(format))
    problem = tr("export: --format takes one of %1, not \"%2\".").arg(ImageFormat::names(), name);
  else if (!request.format)
    problem = tr("export: %1: \".%2\" names no image format; use one of %3, or pass --format tiff or another.")
                  .arg(image, suffix, ImageFormat::allSuffixes());
  if (problem.isEmpty()) return std::nullopt;
  Console::complain(problem);
  return WrongArguments;
}

QString ExportSubcommand::run() {
  Interrupt const interrupt;  // before the working folder is made, and until it has gone
  PageExport page(request_.image, *request_.format, request_.options);
  QString problem = page.checkPlace();
  if (problem.isEmpty()) problem = openDocument();
  if (!problem.isEmpty()) return problem;
  PageExport::Progress progress;
  if (!request_.quiet && Console::hasTerminal())
    progress = [](QString const& what, int percent) {
      Console::showStatus(QStringLiteral("%1 %2 %").arg(what).arg(percent, 3));
    };
  problem = page.write(document_, interrupt.cancel(), progress);
  if (progress) Console::showStatus(QString());
  return problem;
}

QString ExportSubcommand::openDocument() {
  bool const opened = document_.Open(request_.document);
  for (QString const& warning : document_.GetWarnings()) Console::complain(warning);
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
  if (!request.quiet) Console::print(request.image);
  return Done;
}
