#pragma once

#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/Archive.h"

#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QJsonObject>

namespace SysDisplay {

/// Describes a colour: "#rrggbb", or "#aarrggbb" where it shines through.
SYSDISPLAY_EXPORT void describeColor(SysUtility::Archive& archive, char const* key, QColor& color);
SYSDISPLAY_EXPORT void describeColor(SysUtility::Archive& archive, char const* key, QColor& color,
                                     QColor const& byDefault);

/// Describes a symbol that must be there, as a nested object with its kind in the field "type". Reading makes a new
/// symbol; after a problem the pointer is as before.
SYSDISPLAY_EXPORT void describeSymbol(SysUtility::Archive& archive, char const* key,
                                      SysUtility::_ptr_t<Symbol>& symbol);
SYSDISPLAY_EXPORT void describeSymbol(SysUtility::Archive& archive, char const* key,
                                      SysUtility::_ptr_t<LineSymbol>& symbol);
SYSDISPLAY_EXPORT void describeSymbol(SysUtility::Archive& archive, char const* key,
                                      SysUtility::_ptr_t<FillSymbol>& symbol);
SYSDISPLAY_EXPORT void describeSymbol(SysUtility::Archive& archive, char const* key,
                                      SysUtility::_ptr_t<MarkerSymbol>& symbol);
SYSDISPLAY_EXPORT void describeSymbol(SysUtility::Archive& archive, char const* key,
                                      SysUtility::_ptr_t<TextSymbol>& symbol);

/// Describes a symbol that may be missing: an empty pointer is left out, and a missing field reads as one.
template <class T>
void describeOptionalSymbol(SysUtility::Archive& archive, char const* key, SysUtility::_ptr_t<T>& symbol) {
  bool const present = archive.reading() ? archive.has(key) : symbol != nullptr;
  if (present)
    describeSymbol(archive, key, symbol);
  else
    symbol = nullptr;
}

/// Describes a symbol of any kind in the archive's own object, not a nested one.
SYSDISPLAY_EXPORT void describeSymbolHere(SysUtility::Archive& archive, SysUtility::_ptr_t<Symbol>& symbol);

/// The JSON operations of the symbols. `symbol` is changed only where the JSON is a symbol of the same kind.
SYSDISPLAY_EXPORT bool importSymbol(QJsonObject const& json, Symbol& symbol);
SYSDISPLAY_EXPORT bool importSymbol(QString const& json, Symbol& symbol);
SYSDISPLAY_EXPORT QString exportSymbol(Symbol const& symbol);

}  // namespace SysDisplay
