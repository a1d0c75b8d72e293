#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <SysCarto/Map.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace SysCarto {

constexpr int maxMaps = 1000;

/// What the parts of a document need to know of the whole while they are read or written.
struct DocumentContext {
  QString folder;                       ///< absolute; data sources are relative to it
  bool relativePaths = true;            ///< when writing
  QList<SysUtility::_ptr_t<Map>> maps;  ///< elements refer to them by their place in this list
  QSet<ElementHandle> handles;          ///< read so far: a handle is used once
  QSet<int> framedMaps;                 ///< of the data frames so far, by number: no two show the same map
  QStringList warnings;                 ///< sentences: what could not be read and was passed over
  int unreadableSources = 0;
  ReadProgress progress;                  ///< asked while sources are read; may be empty
  ReadDepth depth = ReadDepth::Features;  ///< how far sources are read before something asks for more
  bool wasStopped = false;                ///< by it; what comes then is not read any more
};

}  // namespace SysCarto
