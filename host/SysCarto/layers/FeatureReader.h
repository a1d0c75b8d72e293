#pragma once

#include "SourceSettings.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <functional>
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
  bool wasStopped = false;
};

/// Told now and then how many features were read, of how many; −1 where the file does not say. Answers whether the
/// reading goes on.
using ReadProgress = std::function<bool(qint64 read, qint64 count)>;

/// Reads the features that the condition admits, projected to `mapSystem` (empty: not projected), with what renderer
/// and labels need of their attributes.
SYSCARTO_EXPORT ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem,
                                          Renderer const& renderer, LabelFields const& labels,
                                          ReadProgress const& progress = {});

/// The names of the attributes that the features of a source have; none where it can't be read.
SYSCARTO_EXPORT QStringList attributesOf(SourceSettings const& source);

}  // namespace SysCarto
