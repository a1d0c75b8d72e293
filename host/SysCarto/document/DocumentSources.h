#pragma once

#include "host/SysCarto/layers/WatchedReading.h"

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace SysUtility {
class FileReach;
}

namespace SysCarto {

class MapDocument;
class PageLayout;

/// A file that a layout draws from.
struct SYSCARTO_EXPORT DocumentSource {
  enum class Use { Layer, Table, Picture, Series };  ///< a table is joined to a layer or to the series

  QString file;  ///< absolute, or what may not be opened, as it was written; empty for a connection
  Use use;
  QString user;             ///< the name of the layer or the picture's element; may be empty
  QString problem;          ///< why it could not be read, as a sentence that names who draws it; empty where it was
  QString connection = {};  ///< stands in for the file
  QString table = {};       ///< of the connection

  /// Where it leads outside of what the reach holds; empty where it does not.
  QString outside(SysUtility::FileReach const& reach) const;
};

/// One for each use, in no particular order. Pictures and symbols that lie in the document itself have no file.
SYSCARTO_EXPORT QVector<DocumentSource> sourcesOf(PageLayout const& layout);

/// What is to be said of data that were read after the document was opened, since they are read where they are drawn:
/// sentences that name the layer.
SYSCARTO_EXPORT QStringList laterWarnings(MapDocument const& document);

/// The same of layers that were opened to be read later (`ReadDepth::Later`) and have been: what else
/// `MapDocument::Open` would have added to the document's warnings.
SYSCARTO_EXPORT QStringList readingWarnings(MapDocument const& document);

/// Whether layers that were opened to be read later have not been yet.
SYSCARTO_EXPORT bool isBeingRead(PageLayout const& layout);

/// Waits until they have been, or `progress` wants no more. Answers whether they have.
SYSCARTO_EXPORT bool waitForData(PageLayout const& layout, ReadProgress const& progress);

/// Reads these files and connections (as `SourceSettings::origin`) anew, for all that draw them.
SYSCARTO_EXPORT void readAgain(PageLayout const& layout, QStringList const& files);

}  // namespace SysCarto
