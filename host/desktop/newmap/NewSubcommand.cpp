#include "NewMap.h"

#include "host/desktop/Console.h"
#include "host/desktop/DocumentLock.h"
#include "host/desktop/OffscreenDesktop.h"
#include "host/desktop/Subcommand.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/FileSaver.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NewSubcommand)
};

// Before minutes are spent on the data.
QString problemOfPlace(QString const& path, bool mayReplace) {
  if (QFileInfo::exists(path) && !mayReplace)
    return Texts::tr("%1: there is such a file; name another one, or pass --force to replace it.").arg(path);
  return SysUtility::FileSaver::checkPlace(path);
}

QString write(SysCarto::MapDocument& document, QString const& path) {
  DocumentLock lock(path);
  if (!lock.take()) return lock.holder();
  if (!document.SaveAs(path, true, false)) return SysCarto::MapDocumentHost::takeLastFailure();
  QString const remark = SysCarto::MapDocumentHost::takeLastRemark();
  if (!remark.isEmpty()) Console::complain(remark);
  return QString();
}

}  // namespace

ExitStatus runNew(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("DOCUMENT"), Texts::tr("The .kdx document to make."));
  parser.addPositionalArgument(QStringLiteral("DATA"), Texts::tr("More data, as for --data."));
  QCommandLineOption const data(
      QStringLiteral("data"),
      Texts::tr("A file of data, all its layers or one of them, or a folder; may be given several times."),
      QStringLiteral("FILE[|LAYER]"));
  QCommandLineOption const title(QStringLiteral("title"), Texts::tr("The title; the name of the data if not given."),
                                 QStringLiteral("TEXT"));
  QCommandLineOption const paper(QStringLiteral("paper"), Texts::tr("The paper, such as A3; A4 if not given."),
                                 QStringLiteral("FORM"));
  QCommandLineOption const landscape(
      QStringLiteral("landscape"), Texts::tr("Let the sheet lie. The shape of the data decides if neither is given."));
  QCommandLineOption const portrait(QStringLiteral("portrait"), Texts::tr("Let the sheet stand upright."));
  QCommandLineOption const crs(QStringLiteral("crs"),
                               Texts::tr("The coordinate system of the map, such as EPSG:3035; one that suits the data "
                                         "if not given."),
                               QStringLiteral("SYSTEM"));
  QCommandLineOption const pattern(
      QStringLiteral("template"),
      Texts::tr("A document whose page is taken, with all that lies on it; the map goes into "
                "its largest data frame."),
      QStringLiteral("DOCUMENT"));
  QCommandLineOption const where(QStringLiteral("where"),
                                 Texts::tr("Only features of which this is true, such as \"population > 100000\"."),
                                 QStringLiteral("FILTER"));
  QCommandLineOption const image(QStringLiteral("export"), Texts::tr("Draw the page into an image, too, at 300 DPI."),
                                 QStringLiteral("IMAGE"));
  QCommandLineOption const explain(QStringLiteral("explain"), Texts::tr("Print what was chosen, and why."));
  QCommandLineOption const force(QStringLiteral("force"), Texts::tr("Replace a document of that name."));
  parser.addOptions({data, title, paper, landscape, portrait, crs, pattern, where, image, explain, force});
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  QStringList const operands = parser.positionalArguments();
  NewMapRequest request;
  for (QString const& text : parser.values(data) + operands.mid(1)) request.data << NewMapRequest::Data::of(text);
  request.title = parser.value(title);
  request.paper = parser.value(paper);
  if (parser.isSet(landscape) || parser.isSet(portrait)) request.isLandscape = parser.isSet(landscape);
  request.coordinateSystem = parser.value(crs);
  request.templateFile = parser.value(pattern);
  request.where = parser.value(where);
  QString wrong =
      request.data.isEmpty() ? Texts::tr("new: data are missing; name a file with --data.") : request.problem();
  if (!operands.first().endsWith(QLatin1String(".kdx"), Qt::CaseInsensitive))
    wrong = Texts::tr("new: \"%1\" is no name of a map document; name a .kdx file.").arg(operands.first());
  if (parser.isSet(landscape) && parser.isSet(portrait))
    wrong = Texts::tr("new: --landscape and --portrait exclude each other.");
  bool const hasPage = parser.isSet(paper) || parser.isSet(landscape) || parser.isSet(portrait);
  if (parser.isSet(pattern) && hasPage)
    wrong = Texts::tr("new: the page is that of the template; leave out --paper, --landscape and --portrait.");
  if (!wrong.isEmpty()) {
    Console::complain(wrong);
    return WrongArguments;
  }

  QString problem = problemOfPlace(operands.first(), parser.isSet(force));
  SysCarto::MapDocument document;
  if (problem.isEmpty()) {
    auto const desktop = SysUtility::make<OffscreenDesktop>(document);
    NewMapResult const made = makeNewMap(request, document);
    for (QString const& warning : made.warnings + SysCarto::laterWarnings(document)) {
      Console::remark(warning);
      Console::passOver(operands.first() + QLatin1String(": ") + warning);  // as the export of the document has it
    }
    problem = made.problem;
    if (problem.isEmpty() && parser.isSet(explain)) Console::print(made.explanation.join(QLatin1Char('\n')));
    if (problem.isEmpty()) problem = write(document, operands.first());
  }
  if (!problem.isEmpty()) {
    Console::complain(problem);
    return WorkFailed;
  }
  if (!parser.isSet(image)) return Done;
  ExitStatus const status = runExport(self, {operands.first(), parser.value(image), QStringLiteral("--quiet")});
  if (status != Done) Console::complain(Texts::tr("%1 was made all the same.").arg(operands.first()));
  return status;
}
