#pragma once

#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/Fields.h"

#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QJsonObject>

namespace SysDisplay {

/// A colour: "#rrggbb", or "#aarrggbb" where it shines through.
SYSDISPLAY_EXPORT void listColor(SysUtility::Fields& fields, SysUtility::Field const& field, QColor& color,
                                 QColor const& byDefault);

template <class Wanted>
bool isA(Symbol const* symbol) {
  return dynamic_cast<Wanted const*>(symbol) != nullptr;
}

/// What the description of a document calls symbols of a class.
template <class Wanted>
constexpr char const* typeOfSymbols = "symbol";
template <>
inline constexpr char const* typeOfSymbols<LineSymbol> = "lineSymbol";
template <>
inline constexpr char const* typeOfSymbols<FillSymbol> = "fillSymbol";
template <>
inline constexpr char const* typeOfSymbols<MarkerSymbol> = "markerSymbol";
template <>
inline constexpr char const* typeOfSymbols<TextSymbol> = "textSymbol";

/// The same for a class that a function tells.
SYSDISPLAY_EXPORT void listSymbolOf(SysUtility::Fields& fields, SysUtility::Field const& field,
                                    SysUtility::_ptr_t<Symbol>& symbol, bool (*isWanted)(Symbol const*),
                                    bool isRequired);

/// A symbol as a nested object with its kind in the field "type". One that must be there, or one that may be missing:
/// an empty pointer is then left out, and a missing field reads as one. Reading makes a new symbol of the class
/// `Wanted`: `Symbol`, `LineSymbol`, `FillSymbol`, `MarkerSymbol` or `TextSymbol`. After a problem the pointer is as
/// before.
template <class Wanted>
void listSymbol(SysUtility::Fields& fields, SysUtility::Field const& field, SysUtility::_ptr_t<Wanted>& symbol) {
  SysUtility::_ptr_t<Symbol> any = symbol;
  listSymbolOf(fields, {field.key, field.caption, field.help, typeOfSymbols<Wanted>}, any, isA<Wanted>, true);
  symbol = SysUtility::ptr_cast<Wanted>(any);
}
template <class Wanted>
void listOptionalSymbol(SysUtility::Fields& fields, SysUtility::Field const& field,
                        SysUtility::_ptr_t<Wanted>& symbol) {
  SysUtility::_ptr_t<Symbol> any = symbol;
  listSymbolOf(fields, {field.key, field.caption, field.help, typeOfSymbols<Wanted>}, any, isA<Wanted>, false);
  symbol = SysUtility::ptr_cast<Wanted>(any);
}

/// A symbol in the visitor's own object, as an entry of a list has it.
SYSDISPLAY_EXPORT void listOwnSymbolOf(SysUtility::Fields& fields, SysUtility::_ptr_t<Symbol>& symbol,
                                       bool (*isWanted)(Symbol const*));
template <class Wanted>
void listOwnSymbol(SysUtility::Fields& fields, SysUtility::_ptr_t<Wanted>& symbol) {
  SysUtility::_ptr_t<Symbol> any = symbol;
  listOwnSymbolOf(fields, any, isA<Wanted>);
  symbol = SysUtility::ptr_cast<Wanted>(any);
}

/// The same for the kinds of these names.
SYSDISPLAY_EXPORT void listOwnSymbol(SysUtility::Fields& fields, SysUtility::_ptr_t<Symbol>& symbol,
                                     QStringList const& kinds);

/// Whether the field is that of a symbol.
SYSDISPLAY_EXPORT bool isSymbol(SysUtility::Field const& field);

/// A symbol of any kind; empty where the JSON is none.
SYSDISPLAY_EXPORT SysUtility::_ptr_t<Symbol> symbolOf(QJsonObject const& json);

/// The symbol as the lowest layer of one of a layered kind, or the lowest layer of a layered symbol where that is of
/// the kind; empty where neither fits.
SYSDISPLAY_EXPORT QJsonObject layeredOrNot(QJsonObject const& symbol, QString const& kind);

/// The JSON operations of the symbols. `symbol` is changed only where the JSON is a symbol of the same kind.
SYSDISPLAY_EXPORT bool importSymbol(QJsonObject const& json, Symbol& symbol);
SYSDISPLAY_EXPORT bool importSymbol(QString const& json, Symbol& symbol);
SYSDISPLAY_EXPORT QString exportSymbol(Symbol const& symbol);

}  // namespace SysDisplay
