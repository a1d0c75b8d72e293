#pragma once

#include "Test.h"

#include "host/SysDisplay/SymbolFields.h"
#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/JsonFields.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

inline _ptr_t<SysDisplay::SimpleLineSymbol> pen(double width,
                                                SysDisplay::SimpleLineStyle style = SysDisplay::SimpleLineStyle::Solid,
                                                SysDisplay::LineCapStyle cap = SysDisplay::LineCapStyle::Butt,
                                                SysDisplay::LineJoinStyle join = SysDisplay::LineJoinStyle::Miter,
                                                QColor const& color = Qt::black) {
  auto const symbol = make<SysDisplay::SimpleLineSymbol>();
  symbol->SetWidth(width);
  symbol->SetStyle(style);
  symbol->SetCapStyle(cap);
  symbol->SetJoinStyle(join);
  symbol->SetColor(color);
  return symbol;
}

inline _ptr_t<SysDisplay::SimpleFillSymbol> fill(QColor const& color, SysDisplay::SimpleFillStyle style,
                                                 _ptr_t<SysDisplay::LineSymbol> const& outline) {
  auto const symbol = make<SysDisplay::SimpleFillSymbol>();
  symbol->SetColor(color);
  symbol->SetStyle(style);
  symbol->SetOutlineSymbol(outline);
  return symbol;
}

inline SysDisplay::TextFormat letters(double size, double haloSize = 0) {
  SysDisplay::TextFormat format;
  format.size = size;
  format.haloSize = haloSize;
  format.haloColor = Qt::yellow;
  return format;
}

/// A symbol as a document holds it, with ' for ".
inline _ptr_t<SysDisplay::Symbol> storedSymbol(QByteArray const& text) {
  _ptr_t<SysDisplay::Symbol> symbol;
  SysUtility::JsonReader reader(json("{'symbol':" + text + "}"));
  SysDisplay::listSymbol(reader, {"symbol", "", ""}, symbol);
  if (!reader.ok()) qFatal("%s", qPrintable(reader.error()));
  return symbol;
}
