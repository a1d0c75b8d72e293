#include "FillPainter.h"

#include "host/SysDisplay/DevicePath.h"

#include <SysDisplay/SimpleFillSymbol.h>

#include <algorithm>

namespace SysDisplay {

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

}  // namespace

FillPainter::FillPainter(DrawTarget& target, FillSymbol const& symbol)
    : target_(target),
      color_(symbol.GetColor()),
      hatches_(hatchesOf(styleOf(symbol))),
      hatchSpacingPx_(hatchSpacingPt * target.pixelsPerPoint()),
      hatchWidthPx_(hatchWidthPt * target.pixelsPerPoint()) {
  double const reach = 2 + hatchWidthPx_;
  area_ = target.area().adjusted(-reach, -reach, reach, reach);
  solid_ = styleOf(symbol) == SimpleFillStyle::Solid;
  if (!hatches_.empty() && hatchSpacingPx_ < nearestLinesPx) {
    color_.setAlphaF(color_.alphaF() * hatchWidthPt / hatchSpacingPt * hatches_.size());
    hatches_.clear();
    solid_ = true;
  }
  if (color_.alpha() == 0) {
    hatches_.clear();
    solid_ = false;
  }
  if (auto const outline = symbol.GetOutlineSymbol()) outline_.emplace(target, *outline);
  if (outline_ && !outline_->isVisible()) outline_.reset();
}

bool FillPainter::isVisible() const { return fills() || outline_; }
double FillPainter::reachPx() const { return outline_ ? std::max(1.0, outline_->reachPx()) : 1.0; }

void FillPainter::addRing(WorldRun const& run, bool outlined) {
  if (fills()) {
    toDevicePoints(target_.toDevice(), run, area_, 0, ring_);
    if (ring_.size() > 2) clipRing(ring_, area_, target_.anchor(), rings_);
  }
  if (outline_ && outlined) outline_->addRing(run);
}

void FillPainter::addOutline(WorldRun const& run) {
  if (outline_) outline_->addLine(run);
}

void FillPainter::draw() {
  if (solid_)
    target_.fill(rings_, color_, Qt::OddEvenFill);
  else
    drawHatches();
  rings_.clear();
  if (outline_) outline_->draw();
}

void FillPainter::drawHatches() {
  if (rings_.isEmpty()) return;
  hatchLines_.clear();
  for (HatchDirection direction : hatches_)
    hatchRings(rings_, direction, hatchSpacingPx_, hatchWidthPx_, area_, target_.anchor(), hatchLines_);
  fillHatch(target_, hatchLines_, color_, area_);
}

}  // namespace SysDisplay
