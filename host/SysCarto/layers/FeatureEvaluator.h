#pragma once

#include "host/SysCarto/layers/Condition.h"
#include "host/SysCarto/layers/Expression.h"
#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/layers/Renderer.h"
#include "host/SysCarto/layers/ToolPool.h"

#include <memory>
#include <vector>

namespace SysCarto {

/// What a renderer asks of features beyond a field: which of its rules fit, and what varied symbols follow. Features
/// may be asked on several threads at once; each is served by conditions and expressions of its own.
class FeatureEvaluator {
public:
  /// What is not understood is told in `warnings`: such a rule fits nothing, and such a symbol keeps what it has.
  FeatureEvaluator(OGRLayer& layer, Renderer const& renderer, QString const& source, QStringList& warnings);

  bool hasRules() const { return renderer_.settings().kind == RendererSettings::Kind::Rules; }

  /// Adds the values of a feature that was begun and has not ended. Answers its symbol class, that of a set of rules;
  /// without rules −1.
  int place(OGRFeature& feature, FeatureStore& store) const;

private:
  struct Tools {
    std::vector<std::pair<int, Condition>> rules;  // with the class
    std::vector<Expression> varied;
  };
  static double valueOf(VariedProperty const& property, Expression const& expression, OGRFeature& feature);
  std::unique_ptr<Tools> make(OGRLayer& layer, QString const& source, QStringList& warnings) const;

  Renderer const& renderer_;
  bool const isNeeded_;
  ToolPool<Tools> tools_;
};

}  // namespace SysCarto
