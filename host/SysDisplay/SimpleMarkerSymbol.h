#pragma once

#include "host/SysDisplay/MarkerPainter.h"

#include <QColor>

namespace SysDisplay {

enum class SimpleMarkerStyle { Circle, Square, Diamond, Triangle, Cross, X, Star };

/// A plain shape of one colour with an outline. By default a dark grey circle of 6 points, without an outline.
class SYSDISPLAY_EXPORT SimpleMarkerSymbol final : public MarkerSymbol, public PreparableMarker {
public:
  SimpleMarkerSymbol();
  SimpleMarkerSymbol(SimpleMarkerSymbol const&);
  SimpleMarkerSymbol& operator=(SimpleMarkerSymbol const&);
  ~SimpleMarkerSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  std::unique_ptr<MarkerDrawing> prepare(double pixelsPerPoint) const override;

  SimpleMarkerStyle style() const { return style_; }
  void setStyle(SimpleMarkerStyle style) { style_ = style; }
  QColor color() const { return color_; }
  void setColor(QColor const& color) { color_ = color; }
  QColor outlineColor() const { return outlineColor_; }
  void setOutlineColor(QColor const& color) { outlineColor_ = color; }

  /// Points; 0 for no outline.
  double outlineWidth() const { return outlineWidth_; }
  void setOutlineWidth(double points) { outlineWidth_ = points; }

private:
  SimpleMarkerStyle style_ = SimpleMarkerStyle::Circle;
  QColor color_;
  QColor outlineColor_;
  double outlineWidth_ = 0;
};

/// `Draw` and `QueryBoundary` of the marker symbols, which all stand on `prepare`.
void drawMarker(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry, MarkerSymbol const& symbol);
SysUtility::_ptr_t<SysGeometry::Envelope> markerBoundary(
    SysUtility::_ptr_t<DisplayTransformation> const& transformation,
    SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry, PreparableMarker const& symbol);

}  // namespace SysDisplay
