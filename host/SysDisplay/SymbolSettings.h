#pragma once

#include "host/SysDisplay/DashLineSymbol.h"
#include "host/SysDisplay/GradientFillSymbol.h"
#include "host/SysDisplay/LayeredSymbol.h"
#include "host/SysDisplay/MarkerLineSymbol.h"
#include "host/SysDisplay/PictureFillSymbol.h"
#include "host/SysDisplay/PointPatternFillSymbol.h"
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

/// What all lines have in common that are drawn with one pen.
struct LineSettings {
  QColor color = SymbolDefaults::lineColor();
  double width = SymbolDefaults::lineWidth;
  double offset = 0;
  LineCapStyle cap = SymbolDefaults::cap;
  LineJoinStyle join = SymbolDefaults::join;
  double miterLimit = SymbolDefaults::miterLimit;

  static LineSettings of(LineSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(LineSymbol& symbol) const;
};

struct SimpleLineSettings {
  SimpleLineStyle style = SimpleLineStyle::Solid;
  LineSettings line;

  static SimpleLineSettings of(SimpleLineSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SimpleLineSymbol& symbol) const;
};

struct DashLineSettings {
  QVector<double> pattern = DashLineSymbol().pattern();
  double start = 0;
  LineSettings line;

  static DashLineSettings of(DashLineSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(DashLineSymbol& symbol) const;
};

struct MarkerLineSettings {
  SysUtility::_ptr_t<MarkerSymbol> marker;
  double interval = MarkerLineSymbol().interval();
  double first = 0;
  double offset = 0;
  bool turned = true;

  static MarkerLineSettings of(MarkerLineSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(MarkerLineSymbol& symbol) const;
};

struct SimpleFillSettings {
  SimpleFillStyle style = SimpleFillStyle::Solid;
  QColor color = SymbolDefaults::fillColor();
  SysUtility::_ptr_t<LineSymbol> outline;

  static SimpleFillSettings of(SimpleFillSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(SimpleFillSymbol& symbol) const;
};

struct PictureFillSettings {
  std::shared_ptr<SvgPicture> picture;  ///< null draws nothing
  double width = PictureFillSymbol().width();
  double angle = 0;
  SysUtility::_ptr_t<LineSymbol> outline;

  static PictureFillSettings of(PictureFillSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(PictureFillSymbol& symbol) const;
};

struct PointPatternFillSettings {
  SysUtility::_ptr_t<MarkerSymbol> marker;
  PointPatternFillSymbol::Grid grid;
  SysUtility::_ptr_t<LineSymbol> outline;

  static PointPatternFillSettings of(PointPatternFillSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(PointPatternFillSymbol& symbol) const;
};

struct GradientFillSettings {
  GradientFillSymbol::Gradient gradient;
  SysUtility::_ptr_t<LineSymbol> outline;

  static GradientFillSettings of(GradientFillSymbol const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(GradientFillSymbol& symbol) const;
};

/// The layers of a line, a fill or a marker.
template <class Layered>
struct LayeredSettings {
  typename Layered::Layers layers;

  static LayeredSettings of(Layered const& symbol);
  void list(SysUtility::Fields& fields);
  void applyTo(Layered& symbol) const;
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
  std::shared_ptr<SvgPicture> picture;  ///< null draws nothing

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
