#include "Console.h"
#include "ImageFormat.h"
#include "ImageTarget.h"
#include "Interrupt.h"
#include "OffscreenDesktop.h"
#include "ProgressLine.h"
#include "Subcommand.h"

#include "export/ExportCommand.h"
#include "export/LayoutRenderer.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/projection/GdalErrors.h"
#include "host/desktop/vector/VectorExport.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <gdal_priv.h>

#include <algorithm>
#include <optional>

using Plugin::ExportCommand;
using SysCarto::MapDocument;

namespace {

constexpr int defaultDpi = 300;
constexpr int maxDpi = 100000;
constexpr int maxVectorDpi = 2400;  // of pictures in place of what can't be shapes

// Where GDAL's block cache does not hold a whole row of tiles, each tile of the row makes it read and write all the
// rows of pixels anew. The fourth part more is for its book-keeping.
void reserveBlockCache(int imageWidthPx) {
  constexpr GIntBig bytesPerColumn = GIntBig{3} * Plugin::LayoutRenderer::tileSize;
  GDALSetCacheMax64(std::max(GDALGetCacheMax64(), bytesPerColumn * imageWidthPx * 5 / 4));
}

struct Request {
  QString document;
  QString image;
  ImageFormat const* format = nullptr;
  int dpi = defaultDpi;
  bool quiet = false;
  bool allowMissing = false;
};

class ExportSubcommand {
  Q_DECLARE_TR_FUNCTIONS(ExportSubcommand)

public:
  static std::optional<ExitStatus> parse(Subcommand const& self, QStringList const& arguments, Request& request);

  explicit ExportSubcommand(Request const& request);

  /// An empty text, or what went wrong.
  QString run();

private:
  QString checkFormat() const;
  QString openDocument();
  QString imageSize(QSize& size) const;
  QString draw(ImageTarget const& target, QSize const& size, Interrupt const& interrupt);
  QString drawShapes(ImageTarget const& target, Interrupt const& interrupt);
  bool drawWithProgress(ExportCommand& command, Interrupt const& interrupt, QString const& path) const;

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
                               tr("Pixels per inch of paper, 1 to %1; %2 if not given.").arg(maxDpi).arg(defaultDpi),
                               QStringLiteral("N"), QString::number(defaultDpi));
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
             parser.value(dpi).toInt(&isNumber),
             parser.isSet(quiet),
             parser.isSet(missing)};
  QString problem;
  if (!isNumber || request.dpi < 1 || request.dpi > maxDpi)
    problem = tr("export: --dpi takes a whole number from 1 to %1, not \"%2\".")
                  .arg(QString::number(maxDpi), parser.value(dpi));
  else if (request.format && request.format->isVector && request.dpi > maxVectorDpi)
    problem = tr("export: a PDF takes a --dpi of at most %1; its shapes are as fine at any.").arg(maxVectorDpi);
  else if (!request.format && parser.isSet(format))
    problem = tr("export: --format takes one of %1, not \"%2\".").arg(ImageFormat::names(), name);
  else if (!request.format)
    problem = tr("export: %1: \".%2\" names no image format; use one of %3, or pass --format tiff or another.")
                  .arg(image, suffix, ImageFormat::allSuffixes());
  if (problem.isEmpty()) return std::nullopt;
  Console::complain(problem);
  return WrongArguments;
}

ExportSubcommand::ExportSubcommand(Request const& request) : request_(request) {}

QString ExportSubcommand::run() {
  Interrupt const interrupt;  // before the working folder is made, and until it has gone
  ImageTarget target(request_.image, *request_.format);
  QSize size;
  QString problem = checkFormat();
  if (problem.isEmpty()) problem = target.checkPlace();
  if (problem.isEmpty()) problem = openDocument();
  if (problem.isEmpty()) problem = target.checkAgainst(document_);
  if (problem.isEmpty()) problem = imageSize(size);
  if (problem.isEmpty()) problem = target.checkSize(size);
  if (problem.isEmpty()) problem = target.prepare();
  if (problem.isEmpty())
    problem = request_.format->isVector ? drawShapes(target, interrupt) : draw(target, size, interrupt);
  if (problem.isEmpty()) problem = target.checkResult(size);
  if (problem.isEmpty()) problem = target.commit();
  return problem;
}

QString ExportSubcommand::checkFormat() const {
  if (request_.format->isVector) return QString();
  for (char const* driver : {request_.format->driver, "GTiff"})
    if (!GetGDALDriverManager()->GetDriverByName(driver))
      return tr("%1: this GDAL can't write %2; choose another format, or install a GDAL that can.")
          .arg(request_.image, QLatin1String(driver));
  return QString();
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

QString ExportSubcommand::imageSize(QSize& size) const {
  auto const layout = document_.GetPageLayout();
  if (!layout || !layout->GetPage())
    return tr("%1: the document has no page to draw; give it one, such as \"page\": {\"form\": \"A4\"}.")
        .arg(request_.document);
  layout->QueryOutputSize(request_.dpi, size.rwidth(), size.rheight());
  return QString();
}

QString ExportSubcommand::drawShapes(ImageTarget const& target, Interrupt const& interrupt) {
  QString const problem = writePdf(document_, target.workingPath(), request_.dpi, interrupt.cancel());
  if (interrupt.cancel()->IsCanced()) return tr("%1 was not written: interrupted.").arg(request_.image);
  return problem.isEmpty() ? QString() : tr("%1 was not written: %2.").arg(request_.image, problem);
}

QString ExportSubcommand::draw(ImageTarget const& target, QSize const& size, Interrupt const& interrupt) {
  reserveBlockCache(size.width());
  auto const desktop = SysUtility::make<OffscreenDesktop>(document_);
  auto const command = SysUtility::make<ExportCommand>();
  command->OnCreate(desktop->hook());

  SysCarto::GdalErrors const errors;
  bool const reached = drawWithProgress(*command, interrupt, target.workingPath());
  if (interrupt.cancel()->IsCanced()) return tr("%1 was not written: interrupted.").arg(request_.image);
  return reached && !errors.hasFailure() ? QString() : target.failure(errors);
}

bool ExportSubcommand::drawWithProgress(ExportCommand& command, Interrupt const& interrupt, QString const& path) const {
  QProgressDialog& dialog = *command.GetProgressBar();
  dialog.setRange(0, 100);
  std::optional<ProgressLine> line;
  if (!request_.quiet && Console::hasTerminal()) line.emplace(dialog);
  return command.OutputOtherPicture(path, request_.dpi, interrupt.cancel(), ExportCommand::DrawProgressCallback,
                                    &command);
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
