#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysUtility/Fields.h"

#include <SysCarto/IMapGrid.h>
#include <SysCarto/MapSurround.h>

namespace SysCarto {

/// The number of a map in the document: −1 for an empty pointer, and one that can't be stored for a map of another.
int mapNumber(SysUtility::_ptr_t<Map> const& map, DocumentContext const& context);
/// The highest number that a map may have where the visitor is: of those that there are, when reading.
int lastMap(SysUtility::Fields const& fields, DocumentContext const& context);
void listMapNumber(SysUtility::Fields& fields, int& number, DocumentContext const& context, char const* help,
                   bool isRequired);

/// A surround in the visitor's own object, its kind in the field "kind". Reading makes a new one.
void listSurround(SysUtility::Fields& fields, SysUtility::_ptr_t<MapSurround>& surround,
                  DocumentContext const& context);

/// A grid in the visitor's own object. Reading makes a new one.
void listGrid(SysUtility::Fields& fields, SysUtility::_ptr_t<IMapGrid>& grid);

/// A sentence on what can't be shown as it is set, and the fix; empty for other elements.
QString problemOf(Element const& element);

}  // namespace SysCarto
