#include "Condition.h"

#include "host/SysCarto/layers/ConditionSql.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <cpl_string.h>
#include <ogr_feature.h>
#include <ogr_swq.h>
#include <ogrsf_frmts.h>

#include <algorithm>

namespace SysCarto {

Condition::Condition() = default;
Condition::Condition(Condition&&) noexcept = default;
Condition::~Condition() = default;

bool Condition::compile(OGRLayer& layer, QString const& text, QString& reason) {
  query_.reset();
  patterns_ = {};
  dates_.clear();
  if (text.isEmpty()) return true;
  GdalErrors const errors;
  query_ = std::make_unique<OGRFeatureQuery>();
  bool const ok = query_->Compile(&layer, text.toUtf8().constData()) == OGRERR_NONE;
  reason = errors.reason();
  for (QString const& name : fields()) {
    int const index = layer.GetLayerDefn()->GetFieldIndex(name.toUtf8().constData());
    OGRFieldType const type = index < 0 ? OFTString : layer.GetLayerDefn()->GetFieldDefn(index)->GetType();
    if (type == OFTDate || type == OFTTime || type == OFTDateTime) dates_.push_back(index);
  }
  if (ok) patterns_ = PatternBounds(*static_cast<swq_expr_node*>(query_->GetSWQExpr()));
  return ok;
}

QStringList Condition::fields() const {
  QStringList names;
  if (!query_) return names;
  char** const used = query_->GetUsedFields();
  for (int i = 0; i < CSLCount(used); ++i) names << QString::fromUtf8(used[i]);
  CSLDestroy(used);
  return names;
}

void Condition::narrow(OGRLayer& layer) const {
  auto* const source = dynamic_cast<Narrowing*>(&layer);
  if (!query_ || !source) return;
  QByteArray const sql = impliedSql(*static_cast<swq_expr_node*>(query_->GetSWQExpr()), *source);
  if (!sql.isEmpty()) source->narrow(sql);
}

// A comparison with a date that there is none of fails in the evaluation, where one with another value is not true.
bool Condition::admits(OGRFeature& feature) const {
  if (!query_) return true;
  if (!patterns_.admit(feature)) return false;
  bool const lacksDate =
      std::any_of(dates_.begin(), dates_.end(), [&](int date) { return !feature.IsFieldSetAndNotNull(date); });
  if (!lacksDate) return query_->Evaluate(&feature);
  GdalErrors const errors;
  return query_->Evaluate(&feature) && !errors.hasFailure();
}

}  // namespace SysCarto
