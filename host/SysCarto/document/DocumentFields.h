#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/PageLayout.h>

namespace SysCarto {

/// What a file holds of a document.
struct SYSCARTO_EXPORT DocumentContent {
  SysUtility::_ptr_t<PageLayout> layout;  ///< reading makes a new one
  bool relativePaths = true;

  /// Where the visitor is not `ok` afterwards, the content is to be dropped. Before writing, `context.maps` lists the
  /// maps; reading fills it.
  void list(SysUtility::Fields& fields, DocumentContext& context);
};

/// The maps that a surround, or an overview of a data frame, follows. They keep them when the maps' own data frames are
/// deleted.
QList<SysUtility::_ptr_t<Map>> mapsFollowedBy(Element const& element);

/// The maps to which the elements of a layout refer: those of the data frames first, in their order.
QList<SysUtility::_ptr_t<Map>> mapsOf(PageLayout const& layout);

/// One map with its layers and graphics, in the visitor's own object. Reading makes a new one.
void listMap(SysUtility::Fields& fields, SysUtility::_ptr_t<Map>& map, DocumentContext& context);

}  // namespace SysCarto
