#include "LayerStyle.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysDisplay/SimpleMarkerSymbol.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>
#include <iterator>

using SysCarto::GeometryKind;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// Clearly apart from each other, and dark enough for thin lines on white.
constexpr QRgb colors[] = {0xff3b7dbd, 0xffd9822b, 0xff4f9d5b, 0xffb5524a,
                           0xff8069ad, 0xff2f9494, 0xffa8863e, 0xffc2628f};

constexpr double linePt = 0.8, outlinePt = 0.3, markerPt = 5;
constexpr double fillWhite = 0.5;  // of the colour of an area

QColor lightened(QColor const& color) {
  auto const mixed = [](int part) { return static_cast<int>(part + (255 - part) * fillWhite); };
  return {mixed(color.red()), mixed(color.green()), mixed(color.blue())};
}

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
      if (own == color || own == lightened(color)) ++uses;
    }
  }
  return uses;
}

QColor leastUsed(QList<_ptr_t<SysCarto::Layer>> const& layers) {
  auto const fewer = [&](QRgb a, QRgb b) { return usesOf(QColor(a), layers) < usesOf(QColor(b), layers); };
  return QColor(*std::min_element(std::begin(colors), std::end(colors), fewer));
}

_ptr_t<SysDisplay::LineSymbol> lineOf(QColor const& color, double widthPt) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetColor(color);
  line->SetWidth(widthPt);
  return line;
}

}  // namespace

_ptr_t<SysDisplay::Symbol> plainSymbol(GeometryKind kind, QList<_ptr_t<SysCarto::Layer>> const& present) {
  QColor const color = leastUsed(present);
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
  fill->SetColor(lightened(color));
  fill->SetOutlineSymbol(lineOf(color.darker(), outlinePt));
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
