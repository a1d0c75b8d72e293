#include "AttributeReport.h"

#include "LayerActions.h"

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QCoreApplication>

using SysCarto::FeatureScan;
using SysUtility::_ptr_t;

namespace {

constexpr int sliceMs = 1000;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(AttributeReport)
};

_ptr_t<SysCarto::VectorLayer> layerCalled(SysCarto::MapDocument const& document, QString const& name) {
  for (auto const& row : LayerActions::named(document, QStringLiteral("layer:") + name))
    if (auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(row.layer)) return layer;
  return nullptr;
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
  return scan->problem();
}
