#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <vector>

namespace SysCarto {

/// What the features of a source have in one of their fields.
struct FieldValues {
  struct Text {
    QString text;  ///< as a renderer compares it
    int count;
  };
  std::vector<double>
      numbers;                ///< by feature; not a number for a value that is missing, 0 for a text that is no number
  std::vector<Text> texts;    ///< the different values, the most frequent first, equal counts in order
  bool hasMoreTexts = false;  ///< than `maxTexts` different ones; those that came later are left out
  int missing = 0;            ///< features without a value
  bool isNumeric = false;     ///< whether the field holds numbers
  QString error;              ///< a sentence, with nothing read; empty where all went well

  static constexpr int maxTexts = 100000;
};

/// Reads one field of the features that the source's condition admits, and where that allows it nothing else of them;
/// features without a geometry count, too.
SYSCARTO_EXPORT FieldValues readValues(SourceSettings const& source, QString const& field);

/// The fields that hold numbers; none where the source can't be read.
SYSCARTO_EXPORT QStringList numericAttributesOf(SourceSettings const& source);

}  // namespace SysCarto
