#pragma once

#include "host/SysCarto/elements/Placeholders.h"
#include "host/SysCarto/layout/DocumentInformation.h"

#include <SysCarto/MapDocument.h>
#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What the placeholders in the texts of a page stand for. `[map]`, `[scale]` and `[crs]` speak of the focus map, or of
/// the map whose name follows a colon; `[credits]` of all maps, or of that one. While a page of a
/// series is shown it is asked first: `[page]`, `[field:name]`. The layout is borrowed until they end.
std::shared_ptr<Placeholders> pageTexts(PageLayout const& layout, std::function<QString()> const& documentPath);

/// What a file that is made of a document says about it.
struct SYSCARTO_EXPORT FileInformation : DocumentInformation {  ///< with a title, if need be the name of the document
  QString credits;                                              ///< whom the data come from

  /// The document has a layout.
  static FileInformation of(MapDocument const& document);
};

}  // namespace SysCarto
