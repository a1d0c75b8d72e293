#include "Swatch.h"

#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Envelope.h>
#include <SysGeometry/Polyline.h>

#include <QPainter>

#include <cmath>

using SysDisplay::Symbol;
using SysDisplay::SymbolType;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysAdapterUI {

namespace {

constexpr int marginPx = 3;
constexpr double swatchScale = 0.75;  // a symbol made for paper is a little large for a list
constexpr double wavePx = 3;

// A geometry of the kind that the symbol draws, in pixels with y upwards.
_ptr_t<SysGeometry::Geometry> sampleFor(Symbol const& symbol) {
  double const right = swatchPx.width() - marginPx, top = swatchPx.height() - marginPx, middle = swatchPx.height() / 2;
  if (symbol.GetType() == SymbolType::Marker) return make<SysGeometry::Point>(swatchPx.width() / 2.0, middle, 0.0);
  if (symbol.GetType() == SymbolType::Fill) return make<Envelope>(marginPx, marginPx, right, top);
  auto const line = make<SysGeometry::Polyline>();
  for (int x = marginPx; x <= right; ++x)
    line->AddPoint(x, middle + wavePx * std::sin((x - marginPx) * 2 * M_PI / (right - marginPx)));
  return line;
}

}  // namespace

QPixmap swatch(Symbol const& symbol, double devicePixelRatio) {
  QPixmap picture(swatchPx * devicePixelRatio);
  picture.fill(Qt::transparent);
  auto const transformation = make<SysDisplay::DisplayTransformation>();
  transformation->SetDeviceFrame(picture.rect());
  transformation->SetVisibleBounds(make<Envelope>(0.0, 0.0, swatchPx.width(), swatchPx.height()));
  transformation->SetPageScale(swatchScale * devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  symbol.Draw(painter, transformation, sampleFor(symbol));
  painter.end();
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}

}  // namespace SysAdapterUI
