#include "SymbolVariation.h"

#include "host/SysDisplay/DashLineSymbol.h"
#include "host/SysDisplay/LayeredSymbol.h"
#include "host/SysDisplay/MarkerLineSymbol.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

namespace SysDisplay {

using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// What of a symbol has the colour; null where nothing has. A line's colour is that of its last layer, a fill's that of
// the first, a marker's that of the last.
Symbol const* coloredPart(Symbol const* symbol) {
  if (auto const* layered = dynamic_cast<LayeredLineSymbol const*>(symbol))
    return layered->layers().isEmpty() ? nullptr : coloredPart(layered->layers().last().get());
  if (auto const* layered = dynamic_cast<LayeredFillSymbol const*>(symbol))
    return layered->layers().isEmpty() ? nullptr : coloredPart(layered->layers().first().get());
  if (auto const* layered = dynamic_cast<LayeredMarkerSymbol const*>(symbol))
    return layered->layers().isEmpty() ? nullptr : coloredPart(layered->layers().last().get());
  if (auto const* line = dynamic_cast<MarkerLineSymbol const*>(symbol)) return coloredPart(line->marker().get());
  bool const hasColor = dynamic_cast<SimpleLineSymbol const*>(symbol) || dynamic_cast<DashLineSymbol const*>(symbol) ||
                        dynamic_cast<SimpleFillSymbol const*>(symbol) ||
                        dynamic_cast<SimpleMarkerSymbol const*>(symbol);
  return hasColor ? symbol : nullptr;
}

}  // namespace

QColor colorOf(Symbol const& symbol) {
  Symbol const* const one = coloredPart(&symbol);
  if (auto const* marker = dynamic_cast<SimpleMarkerSymbol const*>(one)) return marker->color();
  if (auto const* line = dynamic_cast<LineSymbol const*>(one)) return line->GetColor();
  auto const* const fill = dynamic_cast<FillSymbol const*>(one);
  return fill ? fill->GetColor() : QColor();
}

bool setColor(Symbol& symbol, QColor const& color) {
  auto* const one = const_cast<Symbol*>(coloredPart(&symbol));
  if (auto* marker = dynamic_cast<SimpleMarkerSymbol*>(one)) marker->setColor(color);
  if (auto* line = dynamic_cast<LineSymbol*>(one)) line->SetColor(color);
  if (auto* fill = dynamic_cast<FillSymbol*>(one)) fill->SetColor(color);
  return one != nullptr;
}

double sizeOf(Symbol const& symbol) {
  if (auto const* marker = dynamic_cast<MarkerSymbol const*>(&symbol)) return marker->GetSize();
  auto const* const line = dynamic_cast<LineSymbol const*>(&symbol);
  return line ? line->GetWidth() : 0;
}

bool setSize(Symbol& symbol, double points) {
  auto* const marker = dynamic_cast<MarkerSymbol*>(&symbol);
  auto* const line = dynamic_cast<LineSymbol*>(&symbol);
  if (marker) marker->SetSize(points);
  if (line) line->SetWidth(points);
  return marker || line;
}

bool setAngle(Symbol& symbol, double degrees) {
  auto* const marker = dynamic_cast<MarkerSymbol*>(&symbol);
  if (marker) marker->SetAngle(degrees);
  return marker != nullptr;
}

_ptr_t<Symbol> colored(Symbol const& symbol, QColor const& color) {
  auto copy = symbol.Clone();
  if (setColor(*copy, color)) return copy;
  if (auto const* fill = dynamic_cast<FillSymbol const*>(&symbol)) {
    auto const plain = make<SimpleFillSymbol>();
    plain->SetOutlineSymbol(fill->GetOutlineSymbol());
    copy = plain;
  } else if (dynamic_cast<LineSymbol const*>(&symbol)) {
    copy = make<SimpleLineSymbol>();
  } else {
    copy = make<SimpleMarkerSymbol>();
  }
  setSize(*copy, sizeOf(symbol));
  setColor(*copy, color);
  return copy;
}

}  // namespace SysDisplay
