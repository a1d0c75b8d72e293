#pragma once

#include "host/SysDisplay/MarkerPainter.h"

#include <QColor>

namespace SysDisplay {

enum class SimpleMarkerStyle { Circle, Square, Diamond, Triangle, Cross, X, Star };

/// A plain shape of one colour with an outline. By default a dark grey circle of 6 points, without an outline.
class SYSDISPLAY_EXPORT SimpleMarkerSymbol final : public PreparableMarker {
public:
  SimpleMarkerSymbol();
  SimpleMarkerSymbol(SimpleMarkerSymbol const&);
  SimpleMarkerSymbol& operator=(SimpleMarkerSymbol const&);
  ~SimpleMarkerSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
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

}  // namespace SysDisplay
