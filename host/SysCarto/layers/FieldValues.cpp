#include "FieldValues.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCollator>
#include <QCoreApplication>
#include <QHash>
#include <QVector>

#include <ogr_feature.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <limits>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FieldValues)
};

bool isNumeric(OGRFieldDefn const& field) {
  OGRFieldType const type = field.GetType();
  return type == OFTInteger || type == OFTInteger64 || type == OFTReal;
}

// A condition may ask for any field, and for the geometry.
void ignoreOthers(OGRLayer& layer, int wanted) {
  OGRFeatureDefn& definition = *layer.GetLayerDefn();
  QVector<char const*> ignored{"OGR_GEOMETRY", "OGR_STYLE"};
  for (int i = 0; i < definition.GetFieldCount(); ++i)
    if (i != wanted) ignored << definition.GetFieldDefn(i)->GetNameRef();
  ignored << nullptr;
  GdalErrors const quiet;
  layer.SetIgnoredFields(ignored.data());
}

class Collector {
public:
  explicit Collector(FieldValues& values) : values_(values) {}

  void add(OGRFeature const& feature, int field) {
    if (!feature.IsFieldSetAndNotNull(field)) {
      ++values_.missing;
      values_.numbers.push_back(std::numeric_limits<double>::quiet_NaN());
      return;
    }
    values_.numbers.push_back(feature.GetFieldAsDouble(field));
    QString const text = QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(field));
    auto const known = counts_.find(text);
    if (known != counts_.end())
      ++*known;
    else if (counts_.size() < FieldValues::maxTexts)
      counts_.insert(text, 1);
    else
      values_.hasMoreTexts = true;
  }

  void finish() {
    for (auto one = counts_.constBegin(); one != counts_.constEnd(); ++one)
      values_.texts.push_back({one.key(), one.value()});
    QCollator order;
    order.setNumericMode(true);
    std::sort(values_.texts.begin(), values_.texts.end(), [&](auto const& a, auto const& b) {
      if (a.count != b.count) return a.count > b.count;
      int const way = order.compare(a.text, b.text);
      return way != 0 ? way < 0 : a.text < b.text;
    });
  }

private:
  FieldValues& values_;
  QHash<QString, int> counts_;
};

}  // namespace

FieldValues readValues(SourceSettings const& source, QString const& field) {
  FieldValues values;
  auto const data = DataSource::open(source, values.error);
  if (!data) return values;
  OGRLayer& layer = data->layer();
  int const index = layer.GetLayerDefn()->GetFieldIndex(field.toUtf8().constData());
  if (index < 0) {
    values.error = Texts::tr("There is no field “%1”; choose one of: %2.")
                       .arg(field, attributesOf(source).join(QLatin1String(", ")));
    return values;
  }
  values.isNumeric = isNumeric(*layer.GetLayerDefn()->GetFieldDefn(index));
  Condition condition;
  QString reason;
  if (!condition.compile(layer, source.filter, reason)) {
    values.error =
        Texts::tr("The layer's filter “%1” is not understood: %2; correct it first.").arg(source.filter, reason);
    return values;
  }
  if (source.filter.isEmpty()) ignoreOthers(layer, index);
  GdalErrors const errors;
  Collector collector(values);
  layer.ResetReading();
  while (OGRFeatureUniquePtr feature{layer.GetNextFeature()})
    if (condition.admits(*feature)) collector.add(*feature, index);
  collector.finish();
  if (errors.hasFailure())
    return {{}, {}, false, 0, false, Texts::tr("The layer's values can't be read: %1.").arg(errors.reason())};
  return values;
}

QStringList numericAttributesOf(SourceSettings const& source) {
  QString error;
  QStringList names;
  auto const data = DataSource::open(source, error);
  OGRFeatureDefn* const definition = data ? data->layer().GetLayerDefn() : nullptr;
  for (int i = 0; definition && i < definition->GetFieldCount(); ++i)
    if (isNumeric(*definition->GetFieldDefn(i))) names << QString::fromUtf8(definition->GetFieldDefn(i)->GetNameRef());
  return names;
}

}  // namespace SysCarto
