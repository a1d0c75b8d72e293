#include "Expression.h"

#include "host/SysCarto/projection/GdalErrors.h"

#include <ogr_feature.h>
#include <ogr_swq.h>
#include <ogrsf_frmts.h>

#include <limits>
#include <vector>

namespace SysCarto {

namespace {

swq_field_type typeOf(OGRFieldDefn const& field) {
  switch (field.GetType()) {
    case OFTInteger: return field.GetSubType() == OFSTBoolean ? SWQ_BOOLEAN : SWQ_INTEGER;
    case OFTInteger64: return SWQ_INTEGER64;
    case OFTReal: return SWQ_FLOAT;
    default: return SWQ_STRING;
  }
}

swq_expr_node* fetch(swq_expr_node* column, void* record) {
  auto& feature = *static_cast<OGRFeature*>(record);
  int const field = column->field_index;
  std::unique_ptr<swq_expr_node> value;
  switch (column->field_type) {
    case SWQ_INTEGER:
    case SWQ_BOOLEAN: value = std::make_unique<swq_expr_node>(feature.GetFieldAsInteger(field)); break;
    case SWQ_INTEGER64: value = std::make_unique<swq_expr_node>(feature.GetFieldAsInteger64(field)); break;
    case SWQ_FLOAT: value = std::make_unique<swq_expr_node>(feature.GetFieldAsDouble(field)); break;
    default: value = std::make_unique<swq_expr_node>(feature.GetFieldAsString(field)); break;
  }
  value->field_type = column->field_type;
  value->is_null = !feature.IsFieldSetAndNotNull(field);
  return value.release();
}

}  // namespace

Expression::Expression() = default;
Expression::Expression(Expression&&) noexcept = default;
Expression::~Expression() = default;

bool Expression::compile(OGRLayer& layer, QString const& text, QString& reason) {
  OGRFeatureDefn& definition = *layer.GetLayerDefn();
  std::vector<char*> names;
  std::vector<swq_field_type> types;
  for (int i = 0; i < definition.GetFieldCount(); ++i) {
    names.push_back(const_cast<char*>(definition.GetFieldDefn(i)->GetNameRef()));
    types.push_back(typeOf(*definition.GetFieldDefn(i)));
  }
  GdalErrors const errors;
  swq_expr_node* root = nullptr;
  bool const ok = swq_expr_compile(text.toUtf8().constData(), static_cast<int>(names.size()), names.data(),
                                   types.data(), 1, nullptr, &root) == CE_None;
  root_.reset(ok ? root : nullptr);
  patterns_ = root_ ? PatternBounds(*root_) : PatternBounds();
  if (!ok) reason = errors.reason();
  return ok;
}

std::unique_ptr<swq_expr_node> Expression::value(OGRFeature& feature) const {
  if (!patterns_.admit(feature)) return nullptr;
  GdalErrors const quiet;  // a division by zero
  std::unique_ptr<swq_expr_node> value(root_ ? root_->Evaluate(fetch, &feature) : nullptr);
  return value && !value->is_null ? std::move(value) : nullptr;
}

double Expression::number(OGRFeature& feature) const {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  auto const result = value(feature);
  if (!result) return none;
  if (result->field_type == SWQ_FLOAT) return result->float_value;
  if (result->field_type == SWQ_STRING) {  // fields of texts hold numbers, too
    bool isNumber = false;
    double const number = QByteArray(result->string_value).toDouble(&isNumber);
    return isNumber ? number : none;
  }
  bool const isWhole = SWQ_IS_INTEGER(result->field_type) || result->field_type == SWQ_BOOLEAN;
  return isWhole ? static_cast<double>(result->int_value) : none;
}

QString Expression::text(OGRFeature& feature) const {
  auto const result = value(feature);
  return result && result->field_type == SWQ_STRING ? QString::fromUtf8(result->string_value) : QString();
}

}  // namespace SysCarto
