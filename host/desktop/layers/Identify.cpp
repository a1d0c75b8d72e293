#include "Identify.h"

#include "TableOpening.h"

#include "host/SysCarto/layers/FeatureSearch.h"
#include "host/SysCarto/layers/raster/RasterLayer.h"
#include "host/SysCarto/projection/GlobeBox.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <cmath>

using SysUtility::_ptr_t;

namespace {

constexpr size_t mostOfALayer = 50;
constexpr int mostInLabel = 16;  // bands
constexpr int significantDigits = 7;

// The label where the layer has labels, else a name, else the first text that there is.
QString labelOf(SysCarto::FeatureStore const& store, int number, Identified::Feature const& feature) {
  auto const& labels = store.labels;
  if (static_cast<size_t>(number) < labels.size() && !labels[static_cast<size_t>(number)].isEmpty())
    return labels[static_cast<size_t>(number)];
  QString first;
  for (auto const& field : feature.fields) {
    QString const text = field.second.type() == QVariant::String ? field.second.toString() : QString();
    if (!text.isEmpty() && field.first.contains(QLatin1String("name"), Qt::CaseInsensitive)) return text;
    if (first.isEmpty()) first = text;
  }
  return first.isEmpty() ? QStringLiteral("#%1").arg(feature.id) : first;
}

void identifyIn(_ptr_t<SysCarto::VectorLayer> const& layer, QPointF const& place, double reach, OpenTables& tables,
                SysCarto::ReadProgress const& progress, Identified& found) {
  QString problem = layer->problem();
  auto const store =
      layer->featuresIn(SysCarto::Box{place.x(), place.y(), place.x(), place.y()}.grown(reach), &problem);
  if (!problem.isEmpty()) found.problems << problem;
  auto numbers = SysCarto::featuresAt(*store, place.x(), place.y(), reach);
  if (numbers.empty()) return;
  if (numbers.size() > mostOfALayer) {
    found.isAll = false;
    numbers.resize(mostOfALayer);
  }
  std::vector<qint64> ids;
  for (int const number : numbers) ids.push_back(store->ids[static_cast<size_t>(number)]);
  problem.clear();
  SysCarto::FeatureTable const* const table = tables.of(layer, progress, problem);
  auto const rows = table ? table->rows(ids) : QHash<qint64, SysCarto::TableRow>();
  if (table) problem = table->problem();
  if (!problem.isEmpty()) found.problems << problem;
  for (size_t at = 0; at < ids.size(); ++at) {
    Identified::Feature feature{layer, ids[at], {}, {}};
    SysCarto::TableRow const row = rows.value(feature.id);
    for (int i = 0; i < row.size(); ++i)
      feature.fields << qMakePair(table->fields()[static_cast<size_t>(i)].name, row[i]);
    feature.label = labelOf(*store, numbers[at], feature);
    found.features << feature;
  }
}

// A hillshade over the heights that it is made of tells nothing more.
bool isToldBelow(SysCarto::Map& map, int i, SysCarto::RasterLayer const& layer, double scale) {
  while (layer.look().renderer.isRelief() && --i >= 0) {
    auto const below = SysUtility::ptr_cast<SysCarto::RasterLayer>(map.GetLayer(i));
    if (below && below->showsAt(scale) && below->source() == layer.source()) return true;
  }
  return false;
}

void identifyIn(_ptr_t<SysCarto::RasterLayer> const& layer, QPointF const& place, Identified& found) {
  std::vector<double> const values = layer->valuesAt(place);
  if (values.empty()) return;
  Identified::Feature feature{layer, -1, {}, {}};
  QStringList texts;
  for (double const value : values) {
    bool const isThere = !std::isnan(value);
    texts << (isThere ? QLocale().toString(value, 'g', significantDigits)
                      : QCoreApplication::translate("Identify", "no data"));
    feature.fields << qMakePair(
        QCoreApplication::translate("Identify", "Band %1").arg(texts.size()),
        isThere ? QVariant(QString::number(value, 'g', significantDigits).toDouble()) : QVariant(texts.last()));
  }
  feature.label = texts.mid(0, mostInLabel).join(QStringLiteral("; "));
  if (texts.size() > mostInLabel) feature.label += QStringLiteral("; …");
  found.features << feature;
}

}  // namespace

SysCarto::FeatureTable const* OpenTables::of(_ptr_t<SysCarto::VectorLayer> const& layer,
                                             SysCarto::ReadProgress const& progress, QString& problem) {
  constexpr size_t mostOpen = 16;
  auto const known = std::find_if(tables_.begin(), tables_.end(), [&](Table const& one) { return one.layer == layer; });
  FileStamp const stamp = FileStamp::of(layer->source().file);
  bool const isGood = known != tables_.end() && known->source == layer->source() && known->stamp == stamp &&
                      known->table->problem().isEmpty();
  if (isGood) return known->table.get();
  if (known != tables_.end()) tables_.erase(known);
  auto table = openTable(layer->source(), progress, problem);
  if (!table) return nullptr;
  if (tables_.size() >= mostOpen) tables_.erase(tables_.begin());
  tables_.push_back({layer, layer->source(), stamp, std::move(table)});
  return tables_.back().table.get();
}

Identified identify(_ptr_t<SysCarto::Map> const& map, QPointF const& place, double reach, OpenTables& tables,
                    SysCarto::ReadProgress const& progress) {
  Identified found;
  found.map = map;
  found.place = place;
  found.degrees = SysCarto::degreesAt(place, map->GetCoordinateSystem());
  double const scale = map->GetDisplayTransformation()->GetMapScale();
  for (int i = map->GetLayerCount() - 1; i >= 0; --i) {
    auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(map->GetLayer(i));
    bool const isGlobe = layer && layer->source().data == SysCarto::SourceSettings::Data::Globe;  // it is everywhere
    if (layer && !isGlobe && layer->showsAt(scale)) identifyIn(layer, place, reach, tables, progress, found);
    auto const raster = SysUtility::ptr_cast<SysCarto::RasterLayer>(map->GetLayer(i));
    if (raster && raster->showsAt(scale) && !isToldBelow(*map, i, *raster, scale)) identifyIn(raster, place, found);
  }
  return found;
}

QJsonObject jsonOf(Identified const& found) {
  QJsonArray features;
  for (Identified::Feature const& feature : found.features) {
    QJsonObject fields;
    for (auto const& field : feature.fields) fields[field.first] = QJsonValue::fromVariant(field.second);
    features.append(QJsonObject{{QStringLiteral("layer"), feature.layer->GetName()},
                                {QStringLiteral("id"), static_cast<double>(feature.id)},
                                {QStringLiteral("label"), feature.label},
                                {QStringLiteral("fields"), fields}});
  }
  QJsonObject json{{QStringLiteral("map"), found.map->GetName()},
                   {QStringLiteral("place"), QJsonArray{found.place.x(), found.place.y()}},
                   {QStringLiteral("features"), features}};
  if (!found.problems.isEmpty()) json[QStringLiteral("problems")] = QJsonArray::fromStringList(found.problems);
  if (found.degrees) json[QStringLiteral("degrees")] = QJsonArray{found.degrees->x(), found.degrees->y()};
  return json;
}
