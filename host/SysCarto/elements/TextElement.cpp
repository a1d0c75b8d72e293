#include "TextElement.h"

#include "ElementContainer.h"
#include "ElementHost.h"
#include "Placement.h"

#include "host/SysDisplay/DrawTarget.h"
#include "host/SysDisplay/TextWrap.h"

#include <SysDisplay/Units.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DrawTarget;
using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysUtility::_ptr_t;

TextElement::TextElement() : symbol_(SysUtility::make<TextSymbol>()) {}
TextElement::TextElement(TextElement const&) = default;
TextElement::~TextElement() = default;

void TextElement::setText(QString const& text) {
  text_ = text;
  forget();
}

void TextElement::setWidth(double cm) {
  widthCm_ = std::isfinite(cm) ? std::clamp(cm, 0.0, maxWidthCm) : 0;
  forget();
}

void TextElement::setFillsPlaceholders(bool fills) {
  fillsPlaceholders_ = fills;
  forget();
}

// What was measured is no longer so.
void TextElement::forget() {
  boundsPt_.reset();
  filled_.clear();
  broken_.clear();
}

void TextElement::setSymbol(_ptr_t<TextSymbol> const& symbol) {
  if (!symbol) return;
  symbol_ = symbol;
  forget();
}

void TextElement::setPosition(double x, double y) {
  QPointF const place = Placement::nearEnough({x, y});
  x_ = place.x();
  y_ = place.y();
}

void TextElement::setAngle(double degrees) {
  angle_ = std::isfinite(degrees) ? std::fmod(degrees, 360) : 0;
  boundsPt_.reset();
}

void TextElement::Move(double dx, double dy) {
  setPosition(x_ + dx, y_ + dy);
  if (dx != 0 || dy != 0) moved();
}

void TextElement::Scale(_ptr_t<Point> const& origin, double sx, double) {
  double const factor = maxFactor(sx);
  QPointF const position = Placement::scaling(origin, factor, factor).map(x_, y_);
  setPosition(position.x(), position.y());
  enlarge(factor);
  if (factor != 1) moved();
}

// 1 for what is no factor.
double TextElement::maxFactor(double wanted) const {
  double const factor = std::abs(wanted);
  if (!std::isfinite(factor) || factor == 0) return 1;
  TextFormat const& format = symbol_->format();
  double const longest =
      std::max({format.size, std::abs(format.letterSpacing), format.haloSize, format.boxLineWidth, format.boxPadding});
  // A little less, so that rounding does not bring it over.
  return longest * factor > TextFormat::maxLengthPt ? TextFormat::maxLengthPt / longest * (1 - 1e-15) : factor;
}

void TextElement::enlarge(double factor) {
  if (factor == 1) return;
  setWidth(widthCm_ * factor);
  setSymbol(symbol_->resized(factor));
}

void scaleInWhole(Element& element, _ptr_t<Point> const& origin, double sx, double sy) {
  auto* const text = dynamic_cast<TextElement*>(&element);
  if (!text) return element.Scale(origin, sx, sy);
  QPointF const position = Placement::scaling(origin, sx, sy).map(text->x_, text->y_);
  text->setPosition(position.x(), position.y());
  text->enlarge(text->maxFactor(sx));
  if (sx != 1 || sy != 1) text->moved();
}

int TextElement::GetType() const { return ElementType::Text; }

_ptr_t<Geometry> TextElement::GetGeometry() const { return SysUtility::make<Point>(x_, y_, 0.0); }

void TextElement::SetGeometry(_ptr_t<Envelope> const& rectangle) {
  if (!isFinite(rectangle)) return;
  auto const from = GetEnvelope()->GetAnchorPoint(), to = rectangle->GetAnchorPoint();
  Move(to->GetX() - from->GetX(), to->GetY() - from->GetY());
}

QString TextElement::shown() const {
  QString const filled = placeholders_ && fillsPlaceholders_ ? placeholders_->filled(text_) : text_;
  if (widthCm_ <= 0 || filled.isEmpty()) return filled;
  if (filled_ != filled) broken_ = SysDisplay::wrapped(filled, *symbol_, widthCm_ / SysDisplay::cmPerPoint);
  filled_ = filled;
  return broken_;
}

void TextElement::setPlaceholders(std::shared_ptr<Placeholders> const& placeholders) { placeholders_ = placeholders; }

// A text that was taken out goes on saying what it said, as a clone does.
void TextElement::containerChanged() {
  if (auto const* const container = ElementHost::container(*this)) setPlaceholders(container->placeholders());
}

QRectF const& TextElement::boundsPt(QString const& shown) const {
  if (!boundsPt_ || measured_ != shown) boundsPt_ = QTransform().rotate(-angle_).mapRect(symbol_->bounds(shown));
  measured_ = shown;
  return *boundsPt_;
}

_ptr_t<Envelope> TextElement::rectangle(QRectF const& boundsPt, double unitsPerPoint) const {
  return SysUtility::make<Envelope>(x_ + boundsPt.left() * unitsPerPoint, y_ - boundsPt.bottom() * unitsPerPoint,
                                    x_ + boundsPt.right() * unitsPerPoint, y_ - boundsPt.top() * unitsPerPoint);
}

_ptr_t<Envelope> TextElement::GetEnvelope() const {
  double const reach = symbol_->format().reach();
  QRectF const letters = symbol_->bounds(shown()).adjusted(reach, reach, -reach, -reach);
  return rectangle(QTransform().rotate(-angle_).mapRect(letters.normalized()), SysDisplay::cmPerPoint);
}

void TextElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                       _ptr_t<SysUI::TrackerCancel> const&) {
  if (!transformation) return;
  DrawTarget target(painter, *transformation);
  drawOn(target);
}

void TextElement::drawOn(DrawTarget& target) const {
  QPointF const position = target.toDevice().map(QPointF(x_, y_));
  double const scale = target.pixelsPerPoint();
  // Most labels of a map lie in other tiles. That shows here without looking the text up.
  QString const words = shown();
  QRectF const pixels(position + boundsPt(words).topLeft() * scale, boundsPt(words).size() * scale);
  if (pixels.adjusted(-1, -1, 1, 1).intersects(target.area())) symbol_->drawAt(target, position, angle_, words);
}

_ptr_t<Geometry> TextElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  auto const covered = rectangle(boundsPt(shown()), transformation ? worldPerPoint(*transformation) : 0.0);
  return transformation ? upright(*transformation, {x_, y_}, *covered) : covered;
}

_ptr_t<Element> TextElement::Clone() const { return SysUtility::make<TextElement>(*this); }

}  // namespace SysCarto
