#include "SimpleMarkerSymbol.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/Stroker.h"
#include "host/SysDisplay/SymbolDefaults.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace SysDisplay {

using SysUtility::_ptr_t;

namespace {

constexpr double pi = 3.14159265358979323846;
using Shape = std::vector<QPointF>;  // in a square of side 1 about the origin, y downwards

// Points on circles about the origin, clockwise from the top, whose radii alternate.
Shape radial(int count, double outer, double inner) {
  Shape shape;
  for (int i = 0; i < count; ++i) {
    double const angle = 2 * pi * i / count;
    double const radius = i % 2 ? inner : outer;
    shape.push_back({radius * std::sin(angle), -radius * std::cos(angle)});
  }
  return shape;
}

Shape plus() {
  constexpr double far = 0.5, near = 0.1;
  return {{-near, -far}, {near, -far}, {near, -near}, {far, -near}, {far, near},   {near, near},
          {near, far},   {-near, far}, {-near, near}, {-far, near}, {-far, -near}, {-near, -near}};
}

Shape turned(Shape shape, double degrees) {
  QTransform const rotation = QTransform().rotate(degrees);
  for (QPointF& point : shape) point = rotation.map(point);
  return shape;
}

Shape circle(double sizePx) {
  int const count = std::clamp(static_cast<int>(4 * std::sqrt(sizePx)), 4, 64) * 4;
  return radial(count, 0.5, 0.5);
}

Shape shapeOf(SimpleMarkerStyle style, double sizePx) {
  switch (style) {
    case SimpleMarkerStyle::Circle: return circle(sizePx);
    case SimpleMarkerStyle::Square: return {{-.5, -.5}, {.5, -.5}, {.5, .5}, {-.5, .5}};
    case SimpleMarkerStyle::Diamond: return {{0, -.5}, {.5, 0}, {0, .5}, {-.5, 0}};
    case SimpleMarkerStyle::Triangle: return {{0, -.5}, {.5, .366}, {-.5, .366}};
    case SimpleMarkerStyle::Cross: return plus();
    case SimpleMarkerStyle::X: return turned(plus(), 45);
    case SimpleMarkerStyle::Star: return radial(10, 0.525, 0.2);
  }
  return {};
}

class ShapeDrawing final : public MarkerDrawing {
public:
  ShapeDrawing(SimpleMarkerSymbol const& symbol, double pixelsPerPoint)
      : color_(symbol.color()), outlineColor_(symbol.outlineColor()) {
    double const sizePx = symbol.GetSize() * pixelsPerPoint;
    QTransform const toPixels = QTransform().rotate(-symbol.GetAngle()).scale(sizePx, sizePx);
    for (QPointF const& point : shapeOf(symbol.style(), sizePx)) area_.add(snapped(toPixels.map(point)));
    if (area_.points.size() > 1 && area_.points.front() == area_.points.back()) area_.points.pop_back();
    area_.endRun();
    if (symbol.outlineWidth() > 0 && !area_.isEmpty()) {
      Stroker stroker(symbol.outlineWidth() * pixelsPerPoint, LineCapStyle::Round, LineJoinStyle::Miter, 4.0);
      stroker.strokeClosed(area_.run(0), area_.size(0), outline_);
    }
    bounds_ = area_.bounds() | outline_.bounds();
  }

  void draw(DrawTarget& target, QPointF const& position) override {
    QPointF const place = snapped(position);
    draw(target, area_, place, color_, Qt::OddEvenFill);
    draw(target, outline_, place, outlineColor_, Qt::WindingFill);
  }

  QRectF bounds() const override { return bounds_; }

private:
  void draw(DrawTarget& target, PointRuns const& shape, QPointF const& place, QColor const& color, Qt::FillRule rule) {
    placed_.points.resize(shape.points.size());
    placed_.ends = shape.ends;
    std::transform(shape.points.begin(), shape.points.end(), placed_.points.begin(),
                   [&](QPointF const& point) { return point + place; });
    target.fill(placed_, color, rule);
  }

  QColor const color_;
  QColor const outlineColor_;
  PointRuns area_;
  PointRuns outline_;
  PointRuns placed_;
  QRectF bounds_;
};

}  // namespace

SimpleMarkerSymbol::SimpleMarkerSymbol()
    : color_(SymbolDefaults::markerColor()), outlineColor_(SymbolDefaults::lineColor()) {}
SimpleMarkerSymbol::SimpleMarkerSymbol(SimpleMarkerSymbol const&) = default;
SimpleMarkerSymbol& SimpleMarkerSymbol::operator=(SimpleMarkerSymbol const&) = default;
SimpleMarkerSymbol::~SimpleMarkerSymbol() = default;

_ptr_t<Symbol> SimpleMarkerSymbol::Clone() const { return SysUtility::make<SimpleMarkerSymbol>(*this); }

std::unique_ptr<MarkerDrawing> SimpleMarkerSymbol::prepare(double pixelsPerPoint) const {
  if (GetSize() <= 0) return nullptr;
  return std::make_unique<ShapeDrawing>(*this, pixelsPerPoint);
}

}  // namespace SysDisplay
