#pragma once

#include "host/SysCarto/layers/FeatureReader.h"

#include <SysCarto/MapDocument.h>

#include <QJsonObject>

#include <functional>
#include <optional>

class QUndoStack;

namespace SysCarto {

struct SYSCARTO_EXPORT MapDocumentHost {
  /// The document's own, borrowed; cleared whenever it gets another layout.
  static QUndoStack* history(MapDocument const& document);
  static void setPageLayout(MapDocument& document, SysUtility::_ptr_t<PageLayout> const& layout);

  /// Makes it a new document without a file, of what a file in that folder would hold; without a folder, of absolute
  /// paths. It counts as modified. Otherwise as `MapDocument::Open`; problems name no file.
  /// Where `progress` wants no more, the document is as it was, and there is no problem to be told.
  static bool read(MapDocument& document, QJsonObject const& json, QString const& folder = QString(),
                   ReadProgress const& progress = {});

  /// Gives a document what another one has become, which is empty then. It is a new one, without a file, and counts as
  /// modified.
  static void takeOver(MapDocument& document, MapDocument& made);

  /// As `MapDocument::Open`. Of the schema alone, each layer reads its features once something asks for them; what is
  /// wrong with these is then told by the layer. Later, too; `readingWarnings` tells it of all of them.
  static bool open(MapDocument& document, QString const& path, ReadDepth depth);

  /// What a save to the document's file would write now; empty where there is nothing that can be saved.
  static QByteArray text(MapDocument const& document);

  /// The same with absolute paths, to be read from anywhere, and not yet as text. Between its parts `goesOn` is asked;
  /// where that answers false, there is nothing, and the document is not looked at any more.
  static std::optional<QJsonObject> jsonForAnywhere(MapDocument const& document,
                                                    std::function<bool()> const& goesOn = {});

  /// When it was last changed outside the steps of its history (`ChangeMark`).
  static quint64 lastChange(MapDocument const& document);

  /// Reads the text of what `jsonForAnywhere` gave of a document of that file, or of none. It counts as modified.
  /// Otherwise as `open` of the copy, with its data later.
  static bool recover(MapDocument& document, QString const& copy, QString const& file, bool relativePaths);

  /// How many data sources the last `Open` could not read.
  static int unreadableSources(MapDocument const& document);

  /// Why the latest `Open` or `Save` of any document failed, empty where none has since the last call: a command tells
  /// no more than that it did.
  static QString takeLastFailure();

  /// What is to be told of the latest `Save` of any document that went well, as `FileSaver::save` remarks it; empty
  /// where that is nothing, or where it was told.
  static QString takeLastRemark();
};

}  // namespace SysCarto
