#pragma once

#include "host/SysDisplay/TextSymbol.h"
#include "host/SysUtility/NumberText.h"

#include <SysCarto/Element.h>
#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/MarkerSymbol.h>
#include <SysDisplay/Units.h>

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

// What surrounds are made of: plain graphic elements on the page.
namespace SysCarto {

using SysUtility::grouped;

// Positions in page centimetres, y upwards.
SysUtility::_ptr_t<Element> textPiece(QString const& text, SysUtility::_ptr_t<SysDisplay::TextSymbol> const& symbol,
                                      QPointF const& position);
SysUtility::_ptr_t<Element> rectanglePiece(double left, double bottom, double right, double top,
                                           SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);
SysUtility::_ptr_t<Element> ellipsePiece(double left, double bottom, double right, double top,
                                         SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);
SysUtility::_ptr_t<Element> polygonPiece(QVector<QPointF> const& ring,
                                         SysUtility::_ptr_t<SysDisplay::FillSymbol> const& symbol);
SysUtility::_ptr_t<Element> linePiece(QVector<QPointF> const& points,
                                      SysUtility::_ptr_t<SysDisplay::LineSymbol> const& symbol);
SysUtility::_ptr_t<Element> markerPiece(QPointF const& position,
                                        SysUtility::_ptr_t<SysDisplay::MarkerSymbol> const& symbol);

/// What a marker covers about its position at a size of one point, in points, y downwards; null for one that draws
/// nothing.
QRectF unitBounds(SysDisplay::MarkerSymbol const& symbol);

/// The symbol with every length multiplied.
SysUtility::_ptr_t<SysDisplay::MarkerSymbol> resized(SysDisplay::MarkerSymbol const& symbol, double factor);
SysUtility::_ptr_t<SysDisplay::LineSymbol> resized(SysDisplay::LineSymbol const& symbol, double factor);

/// A fill keeps its pattern.
SysUtility::_ptr_t<SysDisplay::FillSymbol> withOutlineResized(SysDisplay::FillSymbol const& symbol, double factor);

}  // namespace SysCarto
