#include "LayerStyle.h"
#include "MapColors.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>

using SysCarto::GeometryKind;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double linePt = 0.8, outlinePt = 0.3, markerPt = 5;

QColor colorOf(SysDisplay::Symbol const* symbol) {
  if (auto const* fill = dynamic_cast<SysDisplay::FillSymbol const*>(symbol)) return fill->GetColor();
  if (auto const* line = dynamic_cast<SysDisplay::LineSymbol const*>(symbol)) return line->GetColor();
  if (auto const* marker = dynamic_cast<SysDisplay::SimpleMarkerSymbol const*>(symbol)) return marker->color();
  return {};
}

int usesOf(QColor const& color, QList<_ptr_t<SysCarto::Layer>> const& layers) {
  int uses = 0;
  for (auto const& layer : layers) {
    auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer);
    if (!vector) continue;
    for (auto const& one : vector->renderer().classes()) {
      QColor const own = colorOf(one.symbol.get());
      if (own == color) ++uses;
    }
  }
  return uses;
}

template <class Colors>
QColor leastUsed(Colors const& colors, QList<_ptr_t<SysCarto::Layer>> const& layers) {
  auto const fewer = [&](char const* a, char const* b) {
    return usesOf(QColor(a), layers) < usesOf(QColor(b), layers);
  };
  return QColor(*std::min_element(colors.begin(), colors.end(), fewer));
}

_ptr_t<SysDisplay::LineSymbol> lineOf(QColor const& color, double widthPt) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetColor(color);
  line->SetWidth(widthPt);
  return line;
}

}  // namespace

_ptr_t<SysDisplay::Symbol> plainSymbol(GeometryKind kind, QList<_ptr_t<SysCarto::Layer>> const& present) {
  bool const isArea = kind != GeometryKind::Lines && kind != GeometryKind::Points;
  QColor const color = isArea ? leastUsed(MapColors::areas, present) : leastUsed(MapColors::marks, present);
  if (kind == GeometryKind::Lines) return lineOf(color, linePt);
  if (kind == GeometryKind::Points) {
    auto const marker = make<SysDisplay::SimpleMarkerSymbol>();
    marker->setColor(color);
    marker->setOutlineColor(Qt::white);
    marker->setOutlineWidth(outlinePt);
    marker->SetSize(markerPt);
    return marker;
  }
  auto const fill = make<SysDisplay::SimpleFillSymbol>();
  fill->SetColor(color);
  fill->SetOutlineSymbol(lineOf(QColor(MapColors::border), outlinePt));
  return fill;
}

GeometryKind kindDrawn(SysCarto::Layer const& layer) {
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(&layer);
  if (!vector || vector->renderer().classes().empty()) return GeometryKind::Areas;
  auto const* const symbol = vector->renderer().classes().front().symbol.get();
  if (dynamic_cast<SysDisplay::MarkerSymbol const*>(symbol)) return GeometryKind::Points;
  if (dynamic_cast<SysDisplay::LineSymbol const*>(symbol)) return GeometryKind::Lines;
  return GeometryKind::Areas;
}
