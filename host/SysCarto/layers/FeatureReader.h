#pragma once

#include "SourceSettings.h"
#include "WatchedReading.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <memory>

namespace SysCarto {

class FeatureStore;
class Renderer;

/// What labels need of the attributes; empty for none.
struct LabelFields {
  QString text;                ///< a field; without it, labels need nothing
  QString priority;            ///< a numeric field
  QString expression;          ///< what the text is made of, where it has a value
  QString language;            ///< a code: `name:de` or `name_de` come before a field `name`
  bool groupsNumbers = false;  ///< as people of the user's language write them
  QString key;                 ///< a field that tells features apart; empty for the number that the file gives them
};
inline bool operator==(LabelFields const& a, LabelFields const& b) {
  return a.text == b.text && a.priority == b.priority && a.expression == b.expression && a.language == b.language &&
         a.groupsNumbers == b.groupsNumbers && a.key == b.key;
}

struct ReadFeatures {
  std::unique_ptr<FeatureStore> store;  ///< never empty; without features after an error
  QString error;                        ///< a sentence that names file and layer; empty where all went well
  QStringList warnings;                 ///< sentences
  bool wasStopped = false;
};

/// What is read of a source: the names and kinds of what it has, or its features, too.
enum class ReadDepth { Schema, Features };

/// Reads the features that the condition admits, projected to `mapSystem` (empty: not projected), with what renderer
/// and labels need of their attributes. Of the schema alone: no feature, and what can be said of the source without.
SYSCARTO_EXPORT ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem,
                                          Renderer const& renderer, LabelFields const& labels,
                                          ReadProgress const& progress = {}, ReadDepth depth = ReadDepth::Features);

/// The names of the attributes that the features of a source have; none where it can't be read.
SYSCARTO_EXPORT QStringList attributesOf(SourceSettings const& source);

}  // namespace SysCarto
