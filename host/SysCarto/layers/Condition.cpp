#include "Condition.h"

#include "host/SysCarto/layers/ConditionSql.h"
#include "host/SysCarto/layers/GeoPackageRows.h"
#include "host/SysCarto/projection/GdalErrors.h"

#include <cpl_string.h>
#include <ogr_feature.h>
#include <ogr_swq.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <optional>

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
  if (field->field_type == SWQ_DATE || field->field_type == SWQ_TIMESTAMP) value->MarkAsTimestamp();
  value->is_null = !feature.IsFieldSetAndNotNull(index);
  return value.release();
}

bool isDate(swq_expr_node const& node) {
  return node.field_type == SWQ_DATE || node.field_type == SWQ_TIME || node.field_type == SWQ_TIMESTAMP;
}

bool isOperation(swq_expr_node const& node, swq_op operation) {
  return node.eNodeType == SNT_OPERATION && node.nOperation == operation;
}

template <class Is>
bool anyPart(swq_expr_node const& node, Is const& is) {
  return std::any_of(node.papoSubExpr, node.papoSubExpr + node.nSubExprCount,
                     [&](swq_expr_node const* part) { return is(*part); });
}

bool lacksDate(swq_expr_node const& node, OGRFeature const& feature) {
  if (node.eNodeType == SNT_COLUMN) return isDate(node) && !feature.IsFieldSetAndNotNull(node.field_index);
  if (node.eNodeType != SNT_OPERATION || node.nOperation == SWQ_ISNULL) return false;
  bool const isNull = anyPart(node, isDate) && anyPart(node, [](swq_expr_node const& part) {
                        return part.eNodeType == SNT_CONSTANT && part.is_null;
                      });
  return isNull || anyPart(node, [&](swq_expr_node const& part) { return lacksDate(part, feature); });
}

// OGR knows what is equal to a date however it is written, but not what is unequal.
void expressByEqual(swq_expr_node& node) {
  for (int i = 0; i < node.nSubExprCount && node.eNodeType == SNT_OPERATION; ++i) expressByEqual(*node.papoSubExpr[i]);
  if (!isOperation(node, SWQ_NE) || !anyPart(node, isDate)) return;
  auto equal = std::make_unique<swq_expr_node>(SWQ_EQ);
  equal->field_type = SWQ_BOOLEAN;
  for (int i = 0; i < node.nSubExprCount; ++i) equal->PushSubExpression(node.papoSubExpr[i]);
  node.nSubExprCount = 0;
  node.nOperation = SWQ_NOT;
  node.PushSubExpression(equal.release());
}

// Of SQL's three values; a comparison with a date that there is none of is neither true nor false. OGR would give up
// all of the condition instead.
std::optional<bool> truth(swq_expr_node& node, OGRFeature& feature) {
  bool const isAnd = isOperation(node, SWQ_AND);
  if (isAnd || isOperation(node, SWQ_OR)) {
    auto const first = truth(*node.papoSubExpr[0], feature);
    if (first == !isAnd) return first;
    auto const second = truth(*node.papoSubExpr[1], feature);
    if (second == !isAnd) return second;
    return first && second ? std::optional<bool>(isAnd) : std::nullopt;
  }
  if (isOperation(node, SWQ_NOT)) {
    auto const inner = truth(*node.papoSubExpr[0], feature);
    return inner ? std::optional<bool>(!*inner) : std::nullopt;
  }
  if (lacksDate(node, feature)) return std::nullopt;
  std::unique_ptr<swq_expr_node> const value(node.Evaluate(fetched, &feature));
  return value && !value->is_null ? std::optional<bool>(value->int_value != 0) : std::nullopt;
}

}  // namespace

Condition::Condition() = default;
Condition::Condition(Condition&&) noexcept = default;
Condition::~Condition() = default;

bool Condition::compile(OGRLayer& layer, QString const& text, QString& reason) {
  query_.reset();
  patterns_ = {};
  namesDates_ = false;
  if (text.isEmpty()) return true;
  GdalErrors const errors;
  query_ = std::make_unique<OGRFeatureQuery>();
  bool const ok = query_->Compile(&layer, text.toUtf8().constData()) == OGRERR_NONE;
  reason = errors.reason();
  for (QString const& name : fields()) {
    int const index = layer.GetLayerDefn()->GetFieldIndex(name.toUtf8().constData());
    OGRFieldType const type = index < 0 ? OFTString : layer.GetLayerDefn()->GetFieldDefn(index)->GetType();
    namesDates_ = namesDates_ || type == OFTDate || type == OFTTime || type == OFTDateTime;
  }
  if (ok && namesDates_) expressByEqual(*static_cast<swq_expr_node*>(query_->GetSWQExpr()));
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

void Condition::narrow(OGRLayer& layer, Narrowed which) const {
  if (!query_) return;
  std::optional<GeoPackageRows> rows;
  auto* source = dynamic_cast<Narrowing*>(&layer);
  if (!source && which == Narrowed::All && GeoPackageRows::areThoseOf(layer)) source = &rows.emplace(layer);
  if (!source) return;
  QByteArray const sql = impliedSql(*static_cast<swq_expr_node*>(query_->GetSWQExpr()), *source);
  if (!sql.isEmpty()) source->narrow(sql);
}

bool Condition::admits(OGRFeature& feature) const {
  if (!query_) return true;
  if (!patterns_.admit(feature)) return false;
  if (!namesDates_) return query_->Evaluate(&feature);
  return truth(*static_cast<swq_expr_node*>(query_->GetSWQExpr()), feature).value_or(false);
}

}  // namespace SysCarto
