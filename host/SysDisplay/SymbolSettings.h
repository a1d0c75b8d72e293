#pragma once

#include "host/SysDisplay/SimpleMarkerSymbol.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"
#include "host/SysDisplay/SymbolDefaults.h"
#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/Fields.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

namespace SysDisplay {

// What a document stores of each kind of symbol. `of` takes it from a symbol, `list` names its fields, and `applyTo`
// gives it to a symbol of the kind. Lengths are in points, angles in degrees counterclockwise.

struct SimpleLineSettings {
  SimpleLineStyle style = SimpleLineStyle::Solid;
  QColor color = SymbolDefaults::lineColor();
  double width = SymbolDefaults::lineWidth;
  double offset = 0;
  LineCapStyle cap = SymbolDefaults::cap;
  LineJoinStyle join = SymbolDefaults::join;
  double miterLimit = SymbolDefaults::miterLimit;

  static SimpleLineSettings of(SimpleLineSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SimpleLineSymbol& symbol) const;
};

struct SimpleFillSettings {
  SimpleFillStyle style = SimpleFillStyle::Solid;
  QColor color = SymbolDefaults::fillColor();
  SysUtility::_ptr_t<LineSymbol> outline;

  static SimpleFillSettings of(SimpleFillSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SimpleFillSymbol& symbol) const;
};

/// What all markers have in common.
struct MarkerSettings {
  double size = SymbolDefaults::markerSize;
  double angle = 0;

  static MarkerSettings of(MarkerSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(MarkerSymbol& symbol) const;
};

struct SimpleMarkerSettings {
  SimpleMarkerStyle style = SimpleMarkerStyle::Circle;
  MarkerSettings marker;
  QColor color = SymbolDefaults::markerColor();
  QColor outlineColor = SymbolDefaults::lineColor();
  double outlineWidth = 0;

  static SimpleMarkerSettings of(SimpleMarkerSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SimpleMarkerSymbol& symbol) const;
};

struct SvgMarkerSettings {
  MarkerSettings marker;
  std::shared_ptr<SvgMarkerSymbol::Picture> picture;  ///< null draws nothing

  static SvgMarkerSettings of(SvgMarkerSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SvgMarkerSymbol& symbol) const;
};

struct TextSettings {
  TextFormat format;

  static TextSettings of(TextSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(TextSymbol& symbol) const;
};

}  // namespace SysDisplay
