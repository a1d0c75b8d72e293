#pragma once

#include "SourceSettings.h"
#include "WatchedReading.h"

#include "host/SysCarto/layers/FeaturePack.h"
#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace SysCarto {

class FeatureStore;
class Renderer;
using SysGeometry::Box;

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
  std::unique_ptr<FeaturePack> pack;    ///< of a window that was thinned
  QString error;                        ///< a sentence that names file and layer; empty where all went well
  QStringList warnings;                 ///< sentences
  QStringList notes;                    ///< sentences on how it was read, where nothing is wrong
  bool wasStopped = false;

  // Where the source has so many features that they are better read by windows, and can be.
  bool hasWindows = false;
  Box extent;  ///< that they may cover of the map
  qint64 count = -1;
};

/// What is read of a source: the names and kinds of what it has; its features, too, but for those of a large source
/// that has windows; all of them in any case. A layer may do as for its features later, on another thread.
enum class ReadDepth { Schema, Features, All, Later };

/// Reads the features that the condition admits, projected to `mapSystem` (empty: not projected), with what renderer
/// and labels need of their attributes. Of the schema alone: no feature, and what can be said of the source without.
SYSCARTO_EXPORT ReadFeatures readFeatures(SourceSettings const& source, QString const& mapSystem,
                                          Renderer const& renderer, LabelFields const& labels,
                                          ReadProgress const& progress = {}, ReadDepth depth = ReadDepth::Features);

/// Features of a source that has windows.
struct WindowQuery {
  Box area;                          ///< of the map: those that meet it
  double cell = 0;                   ///< to which they are thinned, in map units; 0 to have them as they are
  std::vector<qint64> ids;           ///< instead of an area, those with these numbers in the source
  LabelChoice labels;                ///< of those that are thinned
  std::vector<double> largest = {};  ///< of all features, as `FeatureStore::knownLargest`

  /// Called now and then with what was read of those that are thinned; may be empty.
  std::function<void(FeaturePack const&)> growing = {};
};

/// Reads these alone, else as `readFeatures`; `pack` has them where they are thinned, and the store where not.
SYSCARTO_EXPORT ReadFeatures readWindow(SourceSettings const& source, QString const& mapSystem,
                                        Renderer const& renderer, LabelFields const& labels, WindowQuery const& query,
                                        ReadProgress const& progress = {});

/// How large a source has to be to be read by windows, in bytes of its file and in features; for tests. Answers the
/// former bounds.
struct WindowThreshold {
  qint64 bytes = 32000000, features = 50000;
};
SYSCARTO_EXPORT WindowThreshold setWindowThreshold(WindowThreshold const& threshold);

/// The names of the attributes that the features of a source have; none where it can't be read.
SYSCARTO_EXPORT QStringList attributesOf(SourceSettings const& source);

}  // namespace SysCarto
