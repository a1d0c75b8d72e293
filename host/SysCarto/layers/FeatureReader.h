#pragma once

#include "SourceSettings.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <memory>

namespace SysCarto {

class FeatureStore;
class Renderer;

/// The fields that labels need; empty names for none.
struct LabelFields {
  QString text;      ///< without it, labels need nothing
  QString priority;  ///< numeric
};

struct ReadFeatures {
  std::unique_ptr<FeatureStore> store;  ///< never empty; without features after an error
  QString error;                        ///< a sentence that names file and layer; empty where all went well
  QStringList warnings;                 ///< sentences
};

/// Reads the features that the condition admits, projected to `mapSystem` (empty: not projected), with what renderer
/// and labels need of their attributes.
SYSCARTO_EXPORT ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem,
                                          Renderer const& renderer, LabelFields const& labels);

/// The names of the attributes that the features of a source have; none where it can't be read.
SYSCARTO_EXPORT QStringList attributesOf(SourceSettings const& source);

}  // namespace SysCarto
