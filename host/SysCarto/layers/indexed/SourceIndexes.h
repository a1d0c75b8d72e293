#pragma once

#include "host/SysCarto/layers/WatchedReading.h"

#include <SysCarto/Export.h>

#include <QString>

#include <memory>

class OGRLayer;

namespace SysCarto {

struct SourceSettings;

/// Indexes of sources that have none of their own, so that these can be read by windows, too: FlatGeobuf files with the
/// features as they were, each in a folder named after where the source lies and what it was like. Several processes
/// may share them: one shows up when it is whole, and none is removed while it is read. The least used make room.
class SYSCARTO_EXPORT SourceIndexes {
public:
  /// The folder for them from now on; empty, as it is in the beginning, for no indexes at all.
  static void use(QString const& folder);

  /// The source as a layer, where there is an index of what it is now; else an empty pointer.
  static std::unique_ptr<OGRLayer> find(SourceSettings const& source);

  /// Whether a source may have an index, but has none yet, and could be given back by one.
  static bool isMissing(OGRLayer& layer, SourceSettings const& source);

  struct Made {
    bool isThere = false, wasStopped = false;
    QString folder;
    QString problem;  ///< to go on after "it can't be indexed: "; empty, too, where only this source does not fit
  };

  /// What a source is like now, for `make`; to be asked before it is opened.
  static QString stateOf(SourceSettings const& source);

  /// Reads all of a source, whose layer this is, for an index. What has changed since it was opened gets none.
  static Made make(OGRLayer& layer, SourceSettings const& source, QString const& state, ReadProgress const& progress);
};

/// Has a layer give its features in the order that costs least.
void readInAnyOrder(OGRLayer& layer);

}  // namespace SysCarto
