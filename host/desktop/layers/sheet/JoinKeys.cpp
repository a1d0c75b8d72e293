#include "JoinKeys.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/layers/FeatureTable.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>

#include <tuple>

using SysCarto::SourceSettings;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(JoinKeys)
};

constexpr int sliceMs = 50;

// The values of a column, and how many rows have each.
using Values = QHash<QString, int>;

QVector<Values> columnsOf(TableSample const& sample) {
  QVector<Values> columns(sample.fields.size());
  for (QStringList const& row : sample.rows)
    for (int i = 0; i < row.size(); ++i)
      if (QString const value = row[i].trimmed(); !value.isEmpty()) ++columns[i][value];
  return columns;
}

int sharedBy(Values const& own, Values const& table) {
  int shared = 0;
  for (auto value = own.begin(); value != own.end(); ++value)
    if (table.value(value.key()) == 1) ++shared;
  return shared;
}

}  // namespace

TableSample TableSample::of(SourceSettings const& source, int rows, QString& problem) {
  SysCarto::FeatureScan::Wanted wanted;
  wanted.hasRows = true;
  auto const table = SysCarto::FeatureTable::open(source, problem);
  auto const scan = table ? SysCarto::FeatureScan::open(source, wanted, problem) : nullptr;
  if (!scan) return {};
  TableSample sample;
  for (SysCarto::TableField const& field : table->fields()) sample.fields << field.name;
  auto const take = [&](qint64, SysCarto::TableRow const& values) {
    if (sample.rows.size() >= rows) return;
    QStringList row;
    for (QVariant const& value : values) row << value.toString();
    sample.rows << row;
  };
  while (sample.rows.size() < rows && scan->advance(sliceMs, take)) continue;
  return sample;
}

JoinKeys JoinKeys::guess(TableSample const& features, TableSample const& table) {
  auto const own = columnsOf(features), columns = columnsOf(table);
  JoinKeys best;
  auto bestRank = std::make_tuple(0, false);
  for (int i = 0; i < own.size(); ++i)
    for (int j = 0; j < columns.size(); ++j) {
      bool const isSameName = features.fields[i].compare(table.fields[j], Qt::CaseInsensitive) == 0;
      auto const rank = std::make_tuple(sharedBy(own[i], columns[j]), isSameName);
      if (rank <= bestRank) continue;
      bestRank = rank;
      best = {features.fields[i], table.fields[j]};
    }
  return best;
}

SysCarto::TableJoin guessJoin(SourceSettings const& features, QString const& file, QString const& layer,
                              QString& problem) {
  SysCarto::TableJoin join{file, layer, {}, {}, {}};
  TableSample const own = TableSample::of(features, JoinKeys::rowsLookedAt, problem);
  if (!problem.isEmpty()) return join;
  TableSample const table = TableSample::of({file, layer, {}, {}}, JoinKeys::rowsLookedAt, problem);
  if (!problem.isEmpty()) return join;
  JoinKeys const keys = JoinKeys::guess(own, table);
  join.key = keys.own;
  join.tableKey = keys.table;
  if (keys.own.isEmpty())
    problem =
        Texts::tr("No field of “%1” has the name or the values of a field of the layer; name the keys.").arg(file);
  return join;
}

QString giveJoin(SysCarto::MapDocument const& document, SysCarto::LayerRow const& layer,
                 SysCarto::TableJoin const& join, int place, QStringList& warnings) {
  QJsonObject json;
  for (auto const& [key, text] :
       {std::make_pair("file", &join.file), std::make_pair("layer", &join.layer), std::make_pair("key", &join.key),
        std::make_pair("tableKey", &join.tableKey), std::make_pair("prefix", &join.prefix)})
    if (!text->isEmpty()) json[QLatin1String(key)] = *text;
  QStringList const path{QStringLiteral("source"), QStringLiteral("joins"),
                         place < 0 ? QStringLiteral("-") : QString::number(place)};
  return SysCarto::Editable::set(
      document, {SysCarto::Editable::layer(layer.map, layer.layer)}, path, [&](QJsonValue const&) { return json; },
      warnings);
}
