#include "SymbolPreview.h"

#include "host/SysDisplay/TextSymbol.h"

#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/LineSymbol.h>
#include <SysDisplay/MarkerSymbol.h>
#include <SysDisplay/Units.h>
#include <SysGeometry/Polyline.h>

#include <QPainter>

#include <algorithm>

namespace SysAdapterUI {

using SysDisplay::DisplayTransformation;
using SysDisplay::MarkerSymbol;
using SysDisplay::TextSymbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

// One pixel is one world unit, y turned over.
_ptr_t<DisplayTransformation> transformationFor(QRectF const& area, double pixelsPerPoint) {
  auto const transformation = make<DisplayTransformation>();
  QRect const pixels = area.toAlignedRect();
  transformation->SetDeviceFrame(pixels);
  transformation->SetVisibleBounds(make<Envelope>(0.0, 0.0, double(pixels.width()), double(pixels.height())));
  transformation->SetPageScale(pixelsPerPoint / SysDisplay::pixelsPerPoint);
  return transformation;
}

void drawMarker(QPainter& painter, QRectF const& area, MarkerSymbol const& symbol, double pixelsPerPoint, bool fills) {
  auto const marker = ptr_cast<MarkerSymbol>(symbol.Clone());
  double const maxPt = std::min(area.width(), area.height()) / pixelsPerPoint;
  marker->SetSize(fills ? maxPt : std::min(marker->GetSize(), maxPt));
  auto const middle = make<SysGeometry::Point>(area.width() / 2, area.height() / 2, 0.0);
  marker->Draw(painter, transformationFor(area, pixelsPerPoint), middle);
}

void drawText(QPainter& painter, QRectF const& area, TextSymbol const& symbol, double pixelsPerPoint) {
  auto format = symbol.format();
  format.horizontal = SysDisplay::HorizontalAlignment::Center;
  format.vertical = SysDisplay::VerticalAlignment::Middle;
  format.size = std::min(format.size, 0.6 * area.height() / pixelsPerPoint);
  TextSymbol(format).drawAt(painter, area.center(), pixelsPerPoint, 0, QStringLiteral("Ag"));
}

_ptr_t<Geometry> sampleFor(SysDisplay::SymbolType type, double width, double height) {
  if (type == SysDisplay::SymbolType::Fill) return make<Envelope>(1.0, 1.0, width - 1, height - 1);
  QVector<QPointF> const bend{{0.03 * width, 0.35 * height},
                              {0.35 * width, 0.65 * height},
                              {0.65 * width, 0.35 * height},
                              {0.97 * width, 0.65 * height}};
  return make<SysGeometry::Polyline>(bend);
}

}  // namespace

void drawSymbolPreview(QPainter& painter, QRectF const& area, SysDisplay::Symbol const& symbol, double pixelsPerPoint,
                       bool fills) {
  painter.save();
  painter.setClipRect(area);
  painter.setRenderHint(QPainter::Antialiasing);
  if (auto const* marker = dynamic_cast<MarkerSymbol const*>(&symbol))
    drawMarker(painter, area, *marker, pixelsPerPoint, fills);
  else if (auto const* text = dynamic_cast<TextSymbol const*>(&symbol))
    drawText(painter, area, *text, pixelsPerPoint);
  else
    symbol.Draw(painter, transformationFor(area, pixelsPerPoint),
                sampleFor(symbol.GetType(), area.width(), area.height()));
  painter.restore();
}

}  // namespace SysAdapterUI
