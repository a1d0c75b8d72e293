#include "AttributeReport.h"

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Map.h>

#include <QCoreApplication>

using SysCarto::FeatureScan;
using SysUtility::_ptr_t;

namespace {

constexpr int sliceMs = 1000;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(AttributeReport)
};

template <class T>
_ptr_t<T> called(QList<_ptr_t<T>> const& all, QString const& name) {
  for (int i = 0; i < all.size(); ++i)
    if (all.at(i)->GetName() == name || name == QStringLiteral("#%1").arg(i)) return all.at(i);
  return nullptr;
}

_ptr_t<SysCarto::VectorLayer> layerCalled(SysCarto::MapDocument const& document, QString const& name) {
  QList<_ptr_t<SysCarto::Map>> maps;
  document.GetMaps(maps);
  auto const map = called(maps, name.section(QLatin1Char('/'), 0, 0));
  auto const layer = map ? called(map->GetLayers(), name.section(QLatin1Char('/'), 1)) : nullptr;
  return SysUtility::ptr_cast<SysCarto::VectorLayer>(layer);
}

}  // namespace

QString reportAttributes(SysCarto::MapDocument const& document, QString const& name, QString const& condition,
                         std::function<void(QJsonObject const&)> const& take) {
  auto const layer = layerCalled(document, name);
  if (!layer)
    return Texts::tr("there is no layer \"%1\"; write layer:MAP/LAYER, as plotvane info lists them.").arg(name);
  QString problem;
  auto const table = SysCarto::FeatureTable::open(layer->source(), problem);
  FeatureScan::Wanted wanted;
  wanted.condition = condition;
  wanted.hasRows = true;
  auto const scan = table ? FeatureScan::open(layer->source(), wanted, problem) : nullptr;
  if (!scan) return problem;
  auto const print = [&](qint64 id, SysCarto::TableRow const& row) {
    QJsonObject fields;
    for (int i = 0; i < row.size(); ++i)
      fields[table->fields()[static_cast<size_t>(i)].name] = QJsonValue::fromVariant(row[i]);
    take({{QStringLiteral("id"), static_cast<double>(id)}, {QStringLiteral("fields"), fields}});
  };
  while (scan->advance(sliceMs, print)) continue;
  return QString();
}
