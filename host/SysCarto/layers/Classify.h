#pragma once

#include "host/SysCarto/layers/Classification.h"
#include "host/SysCarto/layers/FieldValues.h"
#include "host/SysCarto/layers/Renderer.h"

#include <QCoreApplication>

#include <optional>

namespace SysCarto {

/// How the classes of a layer are made of the values of a field.
struct SYSCARTO_EXPORT ClassifySettings {
  /// One of `ClassMethod`, breaks of one's own, a class for each value, or none: markers in proportion.
  enum class Method {
    EqualIntervals,
    Quantiles,
    NaturalBreaks,
    StandardDeviation,
    Pretty,
    OwnBreaks,
    UniqueValues,
    Proportional
  };

  QString field;
  Method method = Method::NaturalBreaks;
  int classes = 5;             ///< of numbers; of values, the most there may be
  std::vector<double> breaks;  ///< of one's own: where one class ends and the next begins
  QString ramp;                ///< of the colours; empty for a usual one
  bool reversed = false;
  bool inOrder = false;      ///< values sorted, and not the most frequent first
  bool sized = false;        ///< sizes of markers or widths of lines from one to the other, and not colours
  double from = 4, to = 20;  ///< points; of markers in proportion the smallest and that of the largest number

  static constexpr int maxClasses = 100, maxValues = 1000;
  static std::optional<Method> methodOf(QString const& name);
  static QStringList methodNames();
};

/// Classes, and what is to be said of them.
struct Classes {
  RendererSettings renderer;
  std::vector<double> bounds;  ///< of classes of numbers, one more than there are classes
  std::vector<int> counts;     ///< of features, by class
  int missing = 0;             ///< features without a value
  QString problem;             ///< a sentence, and then there are no classes; empty where all went well
};

/// A bound as labels have it: grouped, and legible however small it is.
SYSCARTO_EXPORT QString boundText(double bound);

/// Classes of the values of a field. Symbols are the one that draws features now, in other colours or sizes; what
/// becomes of features in no class stays as it is.
SYSCARTO_EXPORT Classes classify(FieldValues const& values, RendererSettings const& now,
                                 ClassifySettings const& wanted);

}  // namespace SysCarto
