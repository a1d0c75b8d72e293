#include "PinnedLabels.h"

#include "host/SysCarto/maps/VectorLayer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVector>

#include <algorithm>
#include <memory>

namespace {

using SysCarto::FeatureStore;

// Has the feature of that key, where there is one. One that is known by its number is found without reading others.
std::shared_ptr<FeatureStore const> searched(SysCarto::VectorLayer const& layer, QString const& key) {
  bool isNumber = false;
  qint64 const number = key.toLongLong(&isNumber);
  if (isNumber && layer.labelSettings().keyField.isEmpty()) return layer.featuresNumbered({number});
  return {std::shared_ptr<void>(), &layer.features()};
}

}  // namespace

std::optional<PinnedLabels> PinnedLabels::read(QString const& key, QString const& text) {
  PinnedLabels read;
  read.label.key = key;
  read.isFree = text == QLatin1String("free");
  read.label.hidden = text == QLatin1String("hidden");
  if (read.isFree || read.label.hidden) return read;
  QVector<double> numbers;
  for (QString const& one : text.split(QLatin1Char(','))) {
    bool isNumber = false;
    numbers << one.trimmed().toDouble(&isNumber);
    if (!isNumber) return std::nullopt;
  }
  if (numbers.size() < 2 || numbers.size() > 3) return std::nullopt;
  read.label.x = numbers[0];
  read.label.y = numbers[1];
  read.label.angle = numbers.value(2);
  return read;
}

QString PinnedLabels::giveTo(SysCarto::MapDocument const& document, SysCarto::Editable::Pointer const& thing,
                             QStringList& warnings) const {
  auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(thing->layer());
  if (!layer) return tr("Only a layer of features has labels; write layer:MAP/LAYER.");
  auto const store = searched(*layer, label.key);
  auto const& keys = store->keys;
  if (!store->keepsLabels) return tr("The layer “%1” has no labels; give it some first.").arg(layer->GetName());
  if (!isFree && std::find(keys.begin(), keys.end(), label.key) == keys.end())
    return tr("No feature of the layer “%1” has the key “%2”.").arg(layer->GetName(), label.key);
  QString const problem = SysCarto::Editable::set(
      document, {thing}, {QStringLiteral("labels"), QStringLiteral("pinned")},
      [this](QJsonValue const& now) {
        QJsonArray pins;
        for (QJsonValue const& pin : now.toArray())
          if (pin.toObject()[QStringLiteral("key")].toString() != label.key) pins.append(pin);
        QJsonObject own{{QStringLiteral("key"), label.key}};
        if (label.hidden)
          own[QStringLiteral("hidden")] = true;
        else
          for (auto const& [name, value] :
               {std::make_pair("x", label.x), std::make_pair("y", label.y), std::make_pair("angle", label.angle)})
            own[QLatin1String(name)] = value;
        if (!isFree) pins.append(own);
        return QJsonValue(pins);
      },
      warnings);
  return problem.isEmpty() ? problem : problem + QLatin1Char('.');
}
