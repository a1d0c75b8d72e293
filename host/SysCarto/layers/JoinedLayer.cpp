#include "JoinedLayer.h"

#include "DataSource.h"
#include "SourceBounds.h"

#include <QCoreApplication>

#include <cmath>
#include <optional>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

QString keyIn(OGRFeature& feature, int field) {
  return feature.IsFieldSetAndNotNull(field) ? QString::fromUtf8(feature.GetFieldAsString(field)).trimmed() : QString();
}

std::optional<double> numberOf(QString const& key) {
  bool ok = false;
  double const number = key.toDouble(&ok);
  return ok && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

QString nameOfTable(TableJoin const& join) {
  return join.layer.isEmpty() ? join.file : join.file + QLatin1String(", ") + join.layer;
}

}  // namespace

std::unique_ptr<JoinedLayer> JoinedLayer::create(OGRLayer& features, TableJoin const& join, QString& error) {
  auto const table = DataSource::open(join.file, join.layer, error);
  if (!table) return nullptr;
  std::unique_ptr<JoinedLayer> joined(new JoinedLayer(features, join));
  joined->key_ = fieldIndex(features, join.key);
  if (joined->key_ < 0)
    error = Texts::tr("There is no field “%1” by which “%2” could be joined; the features have: %3.")
                .arg(join.key, nameOfTable(join), fieldNames(features));
  else if (fieldIndex(table->layer(), join.tableKey) < 0)
    error = Texts::tr("The table “%1” has no field “%2” to be joined by; it has: %3.")
                .arg(nameOfTable(join), join.tableKey, fieldNames(table->layer()));
  if (!error.isEmpty()) return nullptr;
  joined->addFields(table->layer());
  joined->readTable(table->layer());
  return joined;
}

JoinedLayer::JoinedLayer(OGRLayer& features, TableJoin join) : DerivedLayer(features), join_(std::move(join)) {
  OGRFeatureDefn& own = *features.GetLayerDefn();
  for (int i = 0; i < own.GetFieldCount(); ++i) definition().AddFieldDefn(own.GetFieldDefn(i));
  definition().SetGeomType(own.GetGeomType());
  if (own.GetGeomFieldCount() > 0)
    definition().GetGeomFieldDefn(0)->SetSpatialRef(own.GetGeomFieldDefn(0)->GetSpatialRef());
}

void JoinedLayer::addFields(OGRLayer& table) {
  OGRFeatureDefn& columns = *table.GetLayerDefn();
  for (int i = 0; i < columns.GetFieldCount(); ++i) {
    OGRFieldDefn field(columns.GetFieldDefn(i));
    QString name = join_.prefix + QString::fromUtf8(field.GetNameRef());
    auto const isTaken = [&] { return definition().GetFieldIndex(name.toUtf8().constData()) >= 0; };
    if (isTaken()) name = QString::fromUtf8(table.GetName()) + QLatin1Char('_') + name;
    if (isTaken()) continue;
    field.SetName(name.toUtf8().constData());
    definition().AddFieldDefn(&field);
    tableFields_.push_back(i);
  }
}

void JoinedLayer::readTable(OGRLayer& table) {
  int const field = fieldIndex(table, join_.tableKey);
  table.ResetReading();
  SourceBounds bounds(join_.file);
  while (OGRFeatureUniquePtr row{table.GetNextFeature()}) {
    if (!bounds.admits(*row)) break;
    QString const key = keyIn(*row, field);
    if (key.isEmpty()) continue;
    if (byText_.contains(key)) {
      duplicates_.add(key);
      continue;
    }
    row->SetGeometryDirectly(nullptr);
    if (rows_.empty()) tableExample_ = key;
    byText_.insert(key, row.get());
    if (auto const number = numberOf(key); number && !byNumber_.contains(*number)) byNumber_.insert(*number, row.get());
    rows_.push_back(std::move(row));
  }
}

OGRFeature* JoinedLayer::rowOf(QString const& key) const {
  if (OGRFeature* const row = byText_.value(key)) return row;
  auto const number = numberOf(key);
  return number ? byNumber_.value(*number) : nullptr;
}

void JoinedLayer::ResetReading() {
  missing_ = {};
  features_ = 0;
  DerivedLayer::ResetReading();
}

void JoinedLayer::derive(OGRFeature& from, OGRFeature& to) {
  int const own = from.GetFieldCount();
  for (int i = 0; i < own; ++i)
    if (from.IsFieldSetAndNotNull(i)) to.SetField(i, from.GetRawFieldRef(i));
  if (definition().GetGeomFieldCount() > 0) to.SetGeometryDirectly(from.StealGeometry());
  QString const key = keyIn(from, key_);
  OGRFeature* const row = rowOf(key);
  ++features_;
  if (!row) return missing_.add(key);
  for (size_t i = 0; i < tableFields_.size(); ++i)
    if (row->IsFieldSetAndNotNull(tableFields_[i]))
      to.SetField(own + static_cast<int>(i), row->GetRawFieldRef(tableFields_[i]));
}

QStringList JoinedLayer::notes() const {
  QStringList notes;
  QString const table = nameOfTable(join_);
  if (features_ > 0 && missing_.count == features_)
    notes << Texts::tr(
                 "No feature found a row in “%1”: no value of “%2”, such as “%3”, is a value of “%4”, such as “%5”.")
                 .arg(table, join_.key, missing_.example, join_.tableKey, tableExample_);
  else if (missing_.count > 0)
    notes << Texts::tr("%1 of %2 features found no row in “%3”, such as the one with “%4” in “%5”.")
                 .arg(missing_.count)
                 .arg(features_)
                 .arg(table, missing_.example, join_.key);
  if (duplicates_.count > 0)
    notes << Texts::tr("Rows of “%1” whose key an earlier row has, such as “%2”, are not used: %3 in all.")
                 .arg(table, duplicates_.example)
                 .arg(duplicates_.count);
  return notes;
}

}  // namespace SysCarto
