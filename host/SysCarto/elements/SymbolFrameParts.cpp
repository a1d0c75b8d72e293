#include "Placement.h"

#include <SysCarto/SymbolFrameParts.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::FillSymbol;
using SysDisplay::LineSymbol;
using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

// What border, background and shadow have in common: a symbol on the rectangle, which is grown or moved by points.
template <class S>
struct Part {
  _ptr_t<S> symbol;
  double gap = 0;
  double offsetX = 0, offsetY = 0;
  double rounding = 0;

  Part() = default;
  Part(Part const& other)
      : symbol(other.symbol ? SysUtility::ptr_cast<S>(other.symbol->Clone()) : nullptr),
        gap(other.gap),
        offsetX(other.offsetX),
        offsetY(other.offsetY),
        rounding(other.rounding) {}

  _ptr_t<Geometry> shape(DisplayTransformation const& transformation, Envelope const& rectangle) const {
    double const unit = worldPerPoint(transformation);
    _ptr_t<Envelope> const area = rectangle.GetEnvelope();
    area->Expand(gap * unit, gap * unit, false);
    area->Offset(offsetX * unit, offsetY * unit);
    return roundedRectangle(*area, rounding);
  }

  void draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
            _ptr_t<Envelope> const& rectangle) const {
    if (symbol && transformation && isFinite(rectangle))
      symbol->Draw(painter, transformation, shape(*transformation, *rectangle));
  }

  _ptr_t<Envelope> boundary(_ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Envelope> const& rectangle) const {
    if (!transformation || !isFinite(rectangle)) return SysUtility::make<Envelope>();
    _ptr_t<Geometry> const drawn = shape(*transformation, *rectangle);
    _ptr_t<Envelope> const covered = symbol ? symbol->QueryBoundary(transformation, drawn) : nullptr;
    return covered ? covered : SysUtility::make<Envelope>();
  }

  void setGap(double points) {
    if (std::isfinite(points)) gap = points;
  }
  void setRounding(double percent) {
    if (std::isfinite(percent)) rounding = std::clamp(percent, 0.0, 100.0);
  }
};

_ptr_t<FillSymbol> plainFill(QColor const& color) {
  auto const symbol = SysUtility::make<SimpleFillSymbol>();
  symbol->SetColor(color);
  return symbol;
}

_ptr_t<LineSymbol> plainLine() {
  auto const symbol = SysUtility::make<SimpleLineSymbol>();
  symbol->SetWidth(1);
  symbol->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
  return symbol;
}

}  // namespace

struct SymbolBorder::Private : Part<LineSymbol> {};
struct SymbolBackground::Private : Part<FillSymbol> {};
struct SymbolShadow::Private : Part<FillSymbol> {};

SymbolBorder::SymbolBorder() : d(std::make_unique<Private>()) { d->symbol = plainLine(); }
SymbolBorder::SymbolBorder(SymbolBorder const& other) : IBorder(other), d(std::make_unique<Private>(*other.d)) {}
SymbolBorder::~SymbolBorder() = default;
_ptr_t<SymbolBorder> SymbolBorder::Clone() const { return SysUtility::make<SymbolBorder>(*this); }
void SymbolBorder::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                        _ptr_t<Envelope> const& rectangle) const {
  d->draw(painter, transformation, rectangle);
}
_ptr_t<Envelope> SymbolBorder::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                             _ptr_t<Envelope> const& rectangle) const {
  return d->boundary(transformation, rectangle);
}
_ptr_t<LineSymbol> SymbolBorder::GetLineSymbol() const { return d->symbol; }
void SymbolBorder::SetLineSymbol(_ptr_t<LineSymbol> const& symbol) { d->symbol = symbol; }
double SymbolBorder::GetGap() const { return d->gap; }
void SymbolBorder::SetGap(double points) { d->setGap(points); }
double SymbolBorder::GetCornerRounding() const { return d->rounding; }
void SymbolBorder::SetCornerRounding(double percent) { d->setRounding(percent); }

SymbolBackground::SymbolBackground() : d(std::make_unique<Private>()) { d->symbol = plainFill(Qt::white); }
SymbolBackground::SymbolBackground(SymbolBackground const& other)
    : IBackground(other), d(std::make_unique<Private>(*other.d)) {}
SymbolBackground::~SymbolBackground() = default;
_ptr_t<SymbolBackground> SymbolBackground::Clone() const { return SysUtility::make<SymbolBackground>(*this); }
void SymbolBackground::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                            _ptr_t<Envelope> const& rectangle) const {
  d->draw(painter, transformation, rectangle);
}
_ptr_t<Envelope> SymbolBackground::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                 _ptr_t<Envelope> const& rectangle) const {
  return d->boundary(transformation, rectangle);
}
_ptr_t<FillSymbol> SymbolBackground::GetFillSymbol() const { return d->symbol; }
void SymbolBackground::SetFillSymbol(_ptr_t<FillSymbol> const& symbol) { d->symbol = symbol; }
double SymbolBackground::GetGap() const { return d->gap; }
void SymbolBackground::SetGap(double points) { d->setGap(points); }
double SymbolBackground::GetCornerRounding() const { return d->rounding; }
void SymbolBackground::SetCornerRounding(double percent) { d->setRounding(percent); }

SymbolShadow::SymbolShadow() : d(std::make_unique<Private>()) {
  d->symbol = plainFill(QColor(128, 128, 128));
  d->offsetX = 2;
  d->offsetY = -2;
}
SymbolShadow::SymbolShadow(SymbolShadow const& other) : IShadow(other), d(std::make_unique<Private>(*other.d)) {}
SymbolShadow::~SymbolShadow() = default;
_ptr_t<SymbolShadow> SymbolShadow::Clone() const { return SysUtility::make<SymbolShadow>(*this); }
void SymbolShadow::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                        _ptr_t<Envelope> const& rectangle) const {
  d->draw(painter, transformation, rectangle);
}
_ptr_t<Envelope> SymbolShadow::QueryBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                             _ptr_t<Envelope> const& rectangle) const {
  return d->boundary(transformation, rectangle);
}
_ptr_t<FillSymbol> SymbolShadow::GetFillSymbol() const { return d->symbol; }
void SymbolShadow::SetFillSymbol(_ptr_t<FillSymbol> const& symbol) { d->symbol = symbol; }
double SymbolShadow::GetXOffset() const { return d->offsetX; }
double SymbolShadow::GetYOffset() const { return d->offsetY; }
void SymbolShadow::SetOffset(double xPoints, double yPoints) {
  if (!std::isfinite(xPoints) || !std::isfinite(yPoints)) return;
  d->offsetX = xPoints;
  d->offsetY = yPoints;
}
double SymbolShadow::GetCornerRounding() const { return d->rounding; }
void SymbolShadow::SetCornerRounding(double percent) { d->setRounding(percent); }

}  // namespace SysCarto
