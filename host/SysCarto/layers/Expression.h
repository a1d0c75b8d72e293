#pragma once

#include "host/SysCarto/layers/PatternBounds.h"

#include <QString>

#include <memory>

class OGRFeature;
class OGRLayer;
class swq_expr_node;

namespace SysCarto {

/// A value made of the attributes of a feature, as in OGR SQL: `population / 1000`, `'#ff0000'`. It is parsed and
/// evaluated by OGR itself, knows the layer's fields and no others, and never reaches a database. One object serves one
/// thread at a time.
class Expression {
public:
  Expression();
  Expression(Expression&&) noexcept;
  ~Expression();

  /// Where it is not understood it answers false, and `reason` says why.
  bool compile(OGRLayer& layer, QString const& text, QString& reason);

  // Of a feature: not a number, or null, where there is no value, or none of that kind.

  double number(OGRFeature& feature) const;
  QString text(OGRFeature& feature) const;

private:
  std::unique_ptr<swq_expr_node> value(OGRFeature& feature) const;

  std::unique_ptr<swq_expr_node> root_;
  mutable PatternBounds patterns_;
};

}  // namespace SysCarto
