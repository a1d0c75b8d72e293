#include "Condition.h"

#include "host/SysCarto/layers/ConditionSql.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <cpl_string.h>
#include <ogr_feature.h>
#include <ogr_swq.h>
#include <ogrsf_frmts.h>

#include <algorithm>

namespace SysCarto {

namespace {

// A field of a feature, as OGR's evaluation asks for it.
swq_expr_node* fetched(swq_expr_node* field, void* record) {
  OGRFeature& feature = *static_cast<OGRFeature*>(record);
  int const index = field->field_index;
  std::unique_ptr<swq_expr_node> value;
  switch (field->field_type) {
    case SWQ_INTEGER:
    case SWQ_BOOLEAN: value = std::make_unique<swq_expr_node>(feature.GetFieldAsInteger(index)); break;
    case SWQ_INTEGER64: value = std::make_unique<swq_expr_node>(feature.GetFieldAsInteger64(index)); break;
    case SWQ_FLOAT: value = std::make_unique<swq_expr_node>(feature.GetFieldAsDouble(index)); break;
    case SWQ_GEOMETRY: return new swq_expr_node(feature.GetGeomFieldRef(0));
    default: value = std::make_unique<swq_expr_node>(feature.GetFieldAsString(index));
  }
  value->is_null = !feature.IsFieldSetAndNotNull(index);
  return value.release();
}

bool lacksDate(swq_expr_node const& node, OGRFeature const& feature) {
  bool const isDate = node.field_type == SWQ_DATE || node.field_type == SWQ_TIME || node.field_type == SWQ_TIMESTAMP;
  if (node.eNodeType == SNT_COLUMN) return isDate && !feature.IsFieldSetAndNotNull(node.field_index);
  if (node.eNodeType != SNT_OPERATION || node.nOperation == SWQ_ISNULL) return false;
  return std::any_of(node.papoSubExpr, node.papoSubExpr + node.nSubExprCount,
                     [&](swq_expr_node const* part) { return lacksDate(*part, feature); });
}

// A comparison with a date that there is none of is not true. OGR would give up all of the condition instead.
bool isTrue(swq_expr_node& node, OGRFeature& feature) {
  bool const isOperation = node.eNodeType == SNT_OPERATION;
  if (isOperation && node.nOperation == SWQ_AND)
    return isTrue(*node.papoSubExpr[0], feature) && isTrue(*node.papoSubExpr[1], feature);
  if (isOperation && node.nOperation == SWQ_OR)
    return isTrue(*node.papoSubExpr[0], feature) || isTrue(*node.papoSubExpr[1], feature);
  if (isOperation && node.nOperation == SWQ_NOT) return !isTrue(*node.papoSubExpr[0], feature);
  if (lacksDate(node, feature)) return false;
  std::unique_ptr<swq_expr_node> const value(node.Evaluate(fetched, &feature));
  return value && !value->is_null && value->int_value != 0;
}

}  // namespace

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

bool Condition::admits(OGRFeature& feature) const {
  if (!query_) return true;
  if (!patterns_.admit(feature)) return false;
  bool const isDateless =
      std::any_of(dates_.begin(), dates_.end(), [&](int date) { return !feature.IsFieldSetAndNotNull(date); });
  return isDateless ? isTrue(*static_cast<swq_expr_node*>(query_->GetSWQExpr()), feature) : query_->Evaluate(&feature);
}

}  // namespace SysCarto
