#include "FillDrawing.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/GeometryParts.h"
#include "host/SysDisplay/Hatch.h"

#include <SysDisplay/SimpleFillSymbol.h>

#include <algorithm>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

constexpr double hatchSpacingPt = 4.0;
constexpr double hatchWidthPt = 0.4;

// Where the lines stand nearer than this, a tint of the same strength takes their place.
constexpr double nearestLinesPx = 1.5;

SimpleFillStyle styleOf(FillSymbol const& symbol) {
  auto const* simple = dynamic_cast<SimpleFillSymbol const*>(&symbol);
  return simple ? simple->GetStyle() : SimpleFillStyle::Solid;
}

std::vector<HatchDirection> hatchesOf(SimpleFillStyle style) {
  switch (style) {
    case SimpleFillStyle::Horizontal: return {HatchDirection::Horizontal};
    case SimpleFillStyle::Vertical: return {HatchDirection::Vertical};
    case SimpleFillStyle::ForwardDiagonal: return {HatchDirection::RisingLeft};
    case SimpleFillStyle::BackwardDiagonal: return {HatchDirection::RisingRight};
    case SimpleFillStyle::Cross: return {HatchDirection::Horizontal, HatchDirection::Vertical};
    case SimpleFillStyle::DiagonalCross: return {HatchDirection::RisingLeft, HatchDirection::RisingRight};
    case SimpleFillStyle::Solid:
    case SimpleFillStyle::Null: break;
  }
  return {};
}

class SolidFilling final : public Filling {
public:
  explicit SolidFilling(QColor const& color) : color_(color) {}

  void fill(DrawTarget& target, PointRuns const& rings, QRectF const&, Box const&) override {
    target.fill(rings, color_, Qt::OddEvenFill);
  }

private:
  QColor const color_;
};

class HatchFilling final : public Filling {
public:
  HatchFilling(QColor const& color, std::vector<HatchDirection> directions, double spacingPx, double widthPx)
      : color_(color), directions_(std::move(directions)), spacingPx_(spacingPx), widthPx_(widthPx) {}

  void fill(DrawTarget& target, PointRuns const& rings, QRectF const& area, Box const&) override {
    lines_.clear();
    for (HatchDirection direction : directions_)
      hatchRings(rings, direction, spacingPx_, widthPx_, area, target.anchor(), lines_);
    fillHatch(target, lines_, color_, area);
  }

private:
  QColor const color_;
  std::vector<HatchDirection> const directions_;
  double const spacingPx_, widthPx_;
  PointRuns lines_;
};

std::unique_ptr<Filling> simpleFilling(FillSymbol const& symbol, double pixelsPerPoint) {
  QColor color = symbol.GetColor();
  SimpleFillStyle const style = styleOf(symbol);
  if (style == SimpleFillStyle::Null || color.alpha() == 0) return nullptr;
  std::vector<HatchDirection> const directions = hatchesOf(style);
  double const spacingPx = hatchSpacingPt * pixelsPerPoint;
  if (directions.empty()) return solidFilling(color);
  if (spacingPx >= nearestLinesPx)
    return std::make_unique<HatchFilling>(color, directions, spacingPx, hatchWidthPt * pixelsPerPoint);
  color.setAlphaF(color.alphaF() * hatchWidthPt / hatchSpacingPt * directions.size());
  return color.alpha() == 0 ? nullptr : solidFilling(color);
}

class FillDrawing final : public PathDrawing {
public:
  FillDrawing(DrawTarget& target, std::unique_ptr<Filling> filling, std::unique_ptr<PathDrawing> outline)
      : target_(target), filling_(std::move(filling)), outline_(std::move(outline)) {
    double const reach = 2 + hatchWidthPt * target.pixelsPerPoint();
    area_ = target.area().adjusted(-reach, -reach, reach, reach);
    if (target.canvas()) thinPx_ = target.canvas()->thinPx();
  }

  double reachPx() const override { return outline_ ? std::max(1.0, outline_->reachPx()) : 1.0; }

  void addRing(WorldRun const& run, bool outlined) override {
    if (filling_) {
      toDevicePoints(target_.toDevice(), run, area_, thinPx_, ring_);
      if (ring_.size() > 2) clipRing(ring_, area_, target_.anchor(), rings_);
    }
    if (outline_ && outlined) outline_->addRing(run);
  }

  void addLine(WorldRun const& run) override {
    if (outline_) outline_->addLine(run);
  }

  void draw(Box const& shape) override {
    if (!rings_.isEmpty()) filling_->fill(target_, rings_, area_, shape);
    rings_.clear();
    if (outline_) outline_->draw(shape);
  }

private:
  DrawTarget& target_;
  std::unique_ptr<Filling> const filling_;
  std::unique_ptr<PathDrawing> const outline_;
  QRectF area_;
  double thinPx_ = 0;
  std::vector<QPointF> ring_;
  PointRuns rings_;
};

}  // namespace

Filling::~Filling() = default;

std::unique_ptr<Filling> solidFilling(QColor const& color) { return std::make_unique<SolidFilling>(color); }

std::unique_ptr<PathDrawing> prepareFill(DrawTarget& target, std::unique_ptr<Filling> filling,
                                         LineSymbol const* outline) {
  auto line = outline ? prepared(target, *outline) : nullptr;
  if (!filling && !line) return nullptr;
  return std::make_unique<FillDrawing>(target, std::move(filling), std::move(line));
}

std::unique_ptr<PathDrawing> prepareSimpleFill(DrawTarget& target, FillSymbol const& symbol) {
  return prepareFill(target, simpleFilling(symbol, target.pixelsPerPoint()), symbol.GetOutlineSymbol().get());
}

_ptr_t<Envelope> fillBoundary(FillSymbol const& symbol, bool fills, _ptr_t<DisplayTransformation> const& transformation,
                              _ptr_t<Geometry> const& geometry) {
  if (!transformation || !isArea(geometry.get())) return nullptr;
  _ptr_t<Envelope> boundary;
  if (auto const outline = symbol.GetOutlineSymbol()) boundary = outline->QueryBoundary(transformation, geometry);
  if (boundary || !fills) return boundary;  // an outline covers at least the area
  _ptr_t<Envelope> const area = geometry->GetEnvelope();
  return area && !area->IsEmpty() ? SysUtility::make<Envelope>(*area) : nullptr;
}

}  // namespace SysDisplay
