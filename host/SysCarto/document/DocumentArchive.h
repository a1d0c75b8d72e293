#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysUtility/Archive.h"

#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What a file holds of a document.
struct DocumentContent {
  SysUtility::_ptr_t<PageLayout> layout;  ///< reading makes a new one
  bool relativePaths = true;
};

/// The whole document. Reading fills `content.layout`; when the archive is not `ok` afterwards, it is to be dropped.
/// Before writing, `context.maps` lists the maps; reading fills it.
void describeDocument(SysUtility::Archive& archive, DocumentContent& content, DocumentContext& context);

/// The maps to which the elements of a layout refer: those of the data frames first, in their order.
QList<SysUtility::_ptr_t<Map>> mapsOf(PageLayout const& layout);

/// One map with its layers and graphics.
void describeMap(SysUtility::Archive& archive, Map& map, DocumentContext& context);

}  // namespace SysCarto
