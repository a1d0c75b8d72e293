#include "Console.h"
#include "DocumentReport.h"
#include "OffscreenDesktop.h"
#include "Subcommand.h"
#include "layers/DataReport.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layers/LocalDataset.h"

#include <SysCarto/MapDocument.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <chrono>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(InfoSubcommand)
};

constexpr std::chrono::seconds patience(5);  // for the count and the extent of a layer whose file does not say

void printJson(QJsonObject const& json) { Console::print(QString::fromUtf8(QJsonDocument(json).toJson()).trimmed()); }

// Neither by its name nor by how it begins; what can't be read may be one.
bool isNoDocument(QString const& path) {
  constexpr int beginning = 4096;
  QFileInfo const info(path);
  if (!info.isFile() || info.suffix().compare(QLatin1String("kdx"), Qt::CaseInsensitive) == 0) return false;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && !file.read(beginning).trimmed().startsWith('{');
}

void measure(SysCarto::DataFile& file) {
  for (SysCarto::LayerDescription& layer : file.layers) {
    bool const isKnown =
        layer.count >= 0 && (layer.count == 0 || layer.kind == SysCarto::GeometryKind::None || !layer.extent.isEmpty());
    QString problem;
    if (isKnown) continue;
    auto const whole = SysCarto::describeLayer(SysCarto::sourceOf(file, layer), patience, problem);
    if (!problem.isEmpty()) continue;
    layer.kind = whole.kind;
    layer.count = whole.count;
    layer.extent = whole.extent;
  }
}

// Leaves one table of a connection.
void keepTable(SysCarto::DataFile& file, QString const& table) {
  auto const all = std::move(file.layers);
  file.layers.clear();
  QStringList names;
  for (auto const& layer : all) {
    names << layer.name;
    if (layer.name == table) file.layers.push_back(layer);
  }
  if (file.error.isEmpty() && file.layers.empty())
    file.error = Texts::tr("%1 has no table \"%2\" that its user may read; it has: %3.")
                     .arg(file.path, table, names.join(QStringLiteral(", ")));
}

ExitStatus tellData(QString const& path, bool asJson) {
  QString const table = SysCarto::connectionIn(path).section(QLatin1Char('|'), 1);
  auto file = SysCarto::describeFile(
      SysCarto::absoluteOrigin(table.isEmpty() ? path : path.left(path.indexOf(QLatin1Char('|')))));
  if (!table.isEmpty()) keepTable(file, table);
  if (!file.error.isEmpty()) {
    Console::complain(file.error);
    return WorkFailed;
  }
  measure(file);
  if (asJson)
    printJson(dataJson(file));
  else
    Console::print(dataText(file));
  return Done;
}

bool isWhole(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  auto const sources = layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>();
  return std::all_of(sources.begin(), sources.end(), [](auto const& source) { return source.problem.isEmpty(); });
}

ExitStatus tellFolder(QString const& path, bool asJson) {
  auto const files = SysCarto::dataFilesIn(path);
  if (files.isEmpty()) {
    Console::complain(Texts::tr("%1: the folder holds no file of data.").arg(path));
    return WorkFailed;
  }
  ExitStatus status = Done;
  for (QString const& file : files)
    if (tellData(file, asJson) != Done) status = WorkFailed;
  return status;
}

}  // namespace

ExitStatus runInfo(Subcommand const& self, QStringList const& arguments) {
  QCommandLineParser parser;
  parser.addPositionalArgument(QStringLiteral("DOCUMENT"),
                               Texts::tr("The .kdx document, a file or folder of data, or connection:NAME."));
  QCommandLineOption const json(QStringLiteral("json"), Texts::tr("Print JSON, for programs."));
  parser.addOption(json);
  QCommandLineOption const labels(
      QStringLiteral("labels"),
      Texts::tr("Tell of each layer how many of its labels find a place. It reads all features."));
  parser.addOption(labels);
  if (auto const settled = parseArguments(self, parser, arguments)) return *settled;

  QString const path = parser.positionalArguments().at(0);
  if (QFileInfo(path).isDir()) return tellFolder(path, parser.isSet(json));
  if (SysCarto::isDataFileName(path) || !SysCarto::connectionIn(path).isEmpty())
    return tellData(path, parser.isSet(json));
  SysCarto::MapDocument document;
  bool const opened = SysCarto::MapDocumentHost::open(document, path, SysCarto::ReadDepth::Schema);
  if (!opened && isNoDocument(path)) {
    Console::complain(
        Texts::tr("%1: this is neither a map document (.kdx) nor a file of data by its name; name one of these.")
            .arg(path));
    return WorkFailed;
  }
  for (QString const& sentence : document.GetWarnings() + document.GetErrors()) Console::complain(sentence);
  if (!opened) return WorkFailed;

  auto const desktop = SysUtility::make<OffscreenDesktop>(document);
  QJsonObject const report = documentJson(document, parser.isSet(labels));
  for (QString const& sentence : SysCarto::laterWarnings(document)) Console::complain(sentence);
  if (parser.isSet(json))
    printJson(report);
  else
    Console::print(documentText(report));
  return isWhole(document) ? Done : WorkFailed;
}
