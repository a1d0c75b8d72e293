#include "FeatureTable.h"

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/DataSource.h"
#include "host/SysCarto/layers/DerivedLayer.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <ogr_feature.h>
#include <ogrsf_frmts.h>

#include <set>

namespace SysCarto {

namespace {

constexpr int betweenLooks = 64;  // features, at the clock

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FeatureTable)
};

bool isNumber(OGRFieldType type) { return type == OFTInteger || type == OFTInteger64 || type == OFTReal; }

// As ISO 8601 has them.
QString momentOf(OGRFeature const& feature, int field, OGRFieldType type) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, zone = 0;
  float second = 0;
  feature.GetFieldAsDateTime(field, &year, &month, &day, &hour, &minute, &second, &zone);
  QString const date = QString::asprintf("%04d-%02d-%02d", year, month, day);
  bool const isWhole = second == static_cast<float>(static_cast<int>(second));
  QString const time =
      QString::asprintf(isWhole ? "%02d:%02d:%02.0f" : "%02d:%02d:%06.3f", hour, minute, static_cast<double>(second));
  if (type == OFTDate) return date;
  return type == OFTTime ? time : date + QLatin1Char(' ') + time;
}

QVariant valueOf(OGRFeature const& feature, int field) {
  if (!feature.IsFieldSetAndNotNull(field)) return QVariant();
  OGRFieldType const type = const_cast<OGRFeature&>(feature).GetFieldDefnRef(field)->GetType();
  switch (type) {
    case OFTInteger: return feature.GetFieldAsInteger(field);
    case OFTInteger64: return static_cast<qlonglong>(feature.GetFieldAsInteger64(field));
    case OFTReal: return feature.GetFieldAsDouble(field);
    case OFTDate:
    case OFTTime:
    case OFTDateTime: return momentOf(feature, field, type);
    default: return QString::fromUtf8(const_cast<OGRFeature&>(feature).GetFieldAsString(field));
  }
}

TableRow rowOf(OGRFeature const& feature) {
  TableRow row;
  for (int i = 0; i < feature.GetFieldCount(); ++i) row << valueOf(feature, i);
  return row;
}

}  // namespace

std::unique_ptr<FeatureTable> FeatureTable::open(SourceSettings const& source, QString& error) {
  auto data = DataSource::open(source, error);
  return data ? std::unique_ptr<FeatureTable>(new FeatureTable(std::move(data), source.origin())) : nullptr;
}

FeatureTable::FeatureTable(std::unique_ptr<DataSource> data, QString const& origin)
    : data_(std::move(data)), origin_(origin) {
  GdalErrors const quiet;
  OGRFeatureDefn& definition = *data_->layer().GetLayerDefn();
  for (int i = 0; i < definition.GetFieldCount(); ++i) {
    OGRFieldDefn const& field = *definition.GetFieldDefn(i);
    fields_.push_back({QString::fromUtf8(field.GetNameRef()), isNumber(field.GetType())});
  }
  static char const* ignored[] = {"OGR_GEOMETRY", "OGR_STYLE", nullptr};
  if (data_->layer().TestCapability(OLCIgnoreFields)) data_->layer().SetIgnoredFields(ignored);
}

FeatureTable::~FeatureTable() = default;

void FeatureTable::note(GdalErrors const& errors) const {
  if (errors.hasFailure() && problem_.isEmpty())
    problem_ = Texts::tr("Not all of %1 could be read: %2.").arg(QDir::toNativeSeparators(origin_), errors.reason());
}

bool FeatureTable::isRandom() const { return data_->layer().TestCapability(OLCRandomRead); }

TableRow FeatureTable::row(qint64 id) const {
  GdalErrors const errors;
  OGRFeatureUniquePtr const feature(data_->layer().GetFeature(id));
  note(errors);
  return feature ? rowOf(*feature) : TableRow();
}

QHash<qint64, TableRow> FeatureTable::rows(std::vector<qint64> const& ids) const {
  QHash<qint64, TableRow> rows;
  if (isRandom()) {
    for (qint64 const id : ids)
      if (TableRow const found = row(id); !found.isEmpty()) rows[id] = found;
    return rows;
  }
  GdalErrors const errors;
  OGRLayer& layer = data_->layer();
  std::set<qint64> left(ids.begin(), ids.end());
  layer.ResetReading();
  while (!left.empty()) {
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    if (!feature) break;
    if (left.erase(feature->GetFID()) > 0) rows[feature->GetFID()] = rowOf(*feature);
  }
  note(errors);
  return rows;
}

FeatureScan::FeatureScan() = default;
FeatureScan::~FeatureScan() = default;

std::unique_ptr<FeatureScan> FeatureScan::open(SourceSettings const& source, Wanted const& wanted, QString& error) {
  std::unique_ptr<FeatureScan> scan(new FeatureScan);
  scan->table_ = FeatureTable::open(source, error);
  if (!scan->table_) return nullptr;
  GdalErrors const quiet;
  OGRLayer& layer = scan->table_->data_->layer();
  scan->own_ = std::make_unique<Condition>();
  scan->more_ = std::make_unique<Condition>();
  QString reason;
  for (auto const& [condition, text] :
       {std::make_pair(scan->own_.get(), source.filter), std::make_pair(scan->more_.get(), wanted.condition)})
    if (!condition->compile(layer, text, reason)) {
      error = Texts::tr("The condition “%1” is not understood: %2.").arg(text, reason);
      return nullptr;
    }
  scan->wanted_ = wanted;
  scan->total_ = layer.GetFeatureCount(FALSE);
  QStringList needed = scan->own_->fields() + scan->more_->fields();
  for (size_t i = 0; i < scan->table_->fields().size(); ++i)
    if (wanted.hasRows || wanted.field == static_cast<int>(i)) needed << scan->table_->fields()[i].name;
  for (Condition const* const condition : {scan->own_.get(), scan->more_.get()})
    condition->narrow(layer, Condition::Narrowed::Servers);
  readOnly(layer, needed);
  layer.ResetReading();
  return scan;
}

bool FeatureScan::advance(int ms, std::function<void(qint64, TableRow const&)> const& take) {
  GdalErrors const errors;
  QElapsedTimer clock;
  clock.start();
  OGRLayer& layer = table_->data_->layer();
  TableRow values;
  for (int untilLook = betweenLooks;; --untilLook) {
    if (untilLook == 0) {
      if (clock.elapsed() >= ms) return true;
      untilLook = betweenLooks;
    }
    OGRFeatureUniquePtr const feature(layer.GetNextFeature());
    if (!feature) {
      table_->note(errors);
      return false;
    }
    ++read_;
    if (!own_->admits(*feature) || !more_->admits(*feature)) continue;
    values.clear();
    if (wanted_.hasRows)
      values = rowOf(*feature);
    else if (wanted_.field >= 0)
      values << valueOf(*feature, wanted_.field);
    take(feature->GetFID(), values);
  }
}

double FeatureScan::progress() const {
  return total_ > 0 ? std::min(1.0, static_cast<double>(read_) / static_cast<double>(total_)) : -1;
}

}  // namespace SysCarto
