#include "LayerClip.h"

#include "LayerSettings.h"

#include "host/SysUtility/JsonFields.h"
#include "host/SysUtility/JsonFile.h"

#include <QJsonDocument>

namespace SysCarto {

using SysUtility::Fields;

namespace {

constexpr char const* formatName = "plotvane-layers";
constexpr int version = 1;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerClip)
};

void listClip(Fields& fields, std::vector<LayerEntry>& entries, Map const& map, DocumentContext& context) {
  listFormat(fields, {formatName, QT_TRANSLATE_NOOP("Fields", "Layers"), version,
                      Texts::tr("is not “%1”, so these are no layers"),
                      Texts::tr("the layers were copied by a newer version of Plotvane, as version %1")});
  if (fields.ok()) listLayerEntries(fields, entries, map, context);
}

QString tooLarge(qint64 bytes) {
  constexpr int mebibyte = 1024 * 1024;
  return Texts::tr("The layers take %1 MB, and the clipboard takes %2; copy fewer of them.")
      .arg(bytes / mebibyte + 1)
      .arg(LayerClip::maxBytes / mebibyte);
}

QJsonObject written(std::vector<LayerEntry> entries, QString& problem) {
  DocumentContext context;
  context.relativePaths = false;
  SysUtility::JsonWriter writer;
  listClip(writer, entries, Map(), context);
  problem = writer.ok() ? QString() : Texts::tr("The layers can't be copied: %1.").arg(writer.error());
  return writer.json();
}

std::vector<LayerEntry> made(QJsonObject const& json, Map const& map, QString& error, QStringList& warnings,
                             ReadProgress const& progress = {}) {
  std::vector<LayerEntry> entries;
  DocumentContext context;
  context.progress = progress;
  SysUtility::JsonReader reader(json);
  listClip(reader, entries, map, context);
  error = reader.error();
  if (!reader.ok() || context.wasStopped) return {};
  warnings += context.warnings;
  return entries;
}

}  // namespace

QByteArray LayerClip::of(std::vector<LayerEntry> const& entries, QString& problem) {
  QJsonObject const json = written(entries, problem);
  QByteArray const text = problem.isEmpty() ? SysUtility::jsonText(json) : QByteArray();
  if (text.size() <= maxBytes) return text;
  problem = tooLarge(text.size());
  return {};
}

bool LayerClip::isOne(QByteArray const& text) { return text.trimmed().startsWith('{') && text.contains(formatName); }

std::vector<LayerEntry> LayerClip::read(QByteArray const& text, Map const& map, QString& problem,
                                        QStringList& warnings) {
  if (text.size() > maxBytes) {
    problem = tooLarge(text.size());
    return {};
  }
  QJsonParseError parsing;
  QJsonDocument const json = QJsonDocument::fromJson(text, &parsing);
  QString wrong = parsing.errorString();
  std::vector<LayerEntry> entries;
  if (json.isObject()) entries = made(json.object(), map, wrong, warnings);
  if (!wrong.isEmpty())
    problem = Texts::tr("The layers on the clipboard can't be read: %1; copy them anew.").arg(wrong);
  return entries;
}

std::vector<LayerEntry> LayerClip::make(QJsonArray const& layers, Map const& map, QString& problem,
                                        QStringList& warnings, ReadProgress const& progress) {
  return made({{"format", formatName}, {"version", version}, {"layers", layers}}, map, problem, warnings, progress);
}

std::vector<LayerEntry> LayerClip::copy(std::vector<LayerEntry> const& entries, Map const& map, QString& problem,
                                        QStringList& warnings) {
  QJsonObject const json = written(entries, problem);
  return problem.isEmpty() ? made(json, map, problem, warnings) : std::vector<LayerEntry>();
}

}  // namespace SysCarto
