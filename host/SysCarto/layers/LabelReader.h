#pragma once

#include "host/SysCarto/layers/Expression.h"
#include "host/SysCarto/layers/FeatureReader.h"
#include "host/SysCarto/layers/ToolPool.h"

#include <vector>

namespace SysCarto {

/// The texts of labels. Features may be asked on several threads at once.
class LabelReader {
public:
  /// An expression that is not understood is told in `warnings`; the field alone is then read.
  LabelReader(OGRLayer& layer, LabelFields const& labels, QString const& source, QStringList& warnings);

  /// Empty for a feature that has none.
  QString text(OGRFeature& feature) const;

private:
  QString wholeText(OGRFeature& feature) const;
  QString fieldText(OGRFeature& feature, int field) const;
  QString numberText(double number) const;

  bool const groupsNumbers_;
  std::vector<int> fields_;  // those that are there, the most wanted first
  ToolPool<Expression> expressions_;
};

}  // namespace SysCarto
