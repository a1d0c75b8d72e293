#include "Condition.h"

#include "host/SysCarto/layers/ConditionSql.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <cpl_string.h>
#include <ogr_feature.h>
#include <ogr_swq.h>
#include <ogrsf_frmts.h>

namespace SysCarto {

Condition::Condition() = default;
Condition::Condition(Condition&&) noexcept = default;
Condition::~Condition() = default;

bool Condition::compile(OGRLayer& layer, QString const& text, QString& reason) {
  query_.reset();
  patterns_ = {};
  if (text.isEmpty()) return true;
  GdalErrors const errors;
  query_ = std::make_unique<OGRFeatureQuery>();
  bool const ok = query_->Compile(&layer, text.toUtf8().constData()) == OGRERR_NONE;
  reason = errors.reason();
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

bool Condition::admits(OGRFeature& feature) const {
  return !query_ || (patterns_.admit(feature) && query_->Evaluate(&feature));
}

}  // namespace SysCarto
