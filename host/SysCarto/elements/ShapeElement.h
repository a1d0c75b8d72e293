#pragma once

#include "host/SysCarto/elements/Placement.h"

#include <SysCarto/Element.h>

namespace SysCarto {

/// An element that is one geometry, of the class `Shape`: it is kept unchanged and replaced as a whole.
template <class Shape>
class ShapeElement : public Element {
public:
  SysUtility::_ptr_t<Shape> shape() const { return shape_; }

  /// The element keeps the object; it must not change afterwards. Of one that reaches farther than graphics may lie it
  /// keeps a copy that does not. An empty pointer is ignored.
  void setShape(SysUtility::_ptr_t<Shape> const& shape) {
    if (!shape) return;
    shape_ = isNearEnough(*shape->GetEnvelope()) ? shape : placed(*shape, Placement());
    shapeChanged();
  }

  void Move(double dx, double dy) override { place(placed(*shape_, Placement::moving(*GetEnvelope(), dx, dy))); }
  void Scale(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy) override {
    place(placed(*shape_, Placement::scaling(origin, sx, sy)));
  }
  SysUtility::_ptr_t<SysGeometry::Geometry> GetGeometry() const override { return shape_->Clone(); }
  SysUtility::_ptr_t<SysGeometry::Envelope> GetEnvelope() const override { return shape_->GetEnvelope(); }
  void SetGeometry(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) override {
    if (!isFinite(rectangle)) return;
    if constexpr (std::is_same_v<Shape, SysGeometry::Envelope>)
      place(rectangle->GetEnvelope());
    else
      place(placed(*shape_, Placement::fitting(*GetEnvelope(), *rectangle)));
  }

protected:
  explicit ShapeElement(SysUtility::_ptr_t<Shape> shape) : shape_(std::move(shape)) {}
  ShapeElement(ShapeElement const&) = default;

  virtual void shapeChanged() {}

private:
  void place(SysUtility::_ptr_t<Shape> const& shape) {
    bool const isElsewhere = !haveSameCorners(*shape->GetEnvelope(), *GetEnvelope());
    setShape(shape);
    if (isElsewhere) this->moved();
  }

  SysUtility::_ptr_t<Shape> shape_;
};

/// A geometry that is drawn with a symbol. Elements may share one symbol; clones do.
template <class Shape, class S>
class SymbolElement : public ShapeElement<Shape> {
public:
  SysUtility::_ptr_t<S> symbol() const { return symbol_; }

  /// An empty pointer draws nothing.
  void setSymbol(SysUtility::_ptr_t<S> const& symbol) { symbol_ = symbol; }

  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const&) override {
    if (symbol_ && transformation) symbol_->Draw(painter, transformation, drawn());
  }

  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override {
    auto const covered = symbol_ && transformation ? symbol_->QueryBoundary(transformation, drawn()) : nullptr;
    return covered ? covered : this->GetEnvelope();
  }

  /// What the symbol receives: the shape itself, or what stands for it.
  virtual SysUtility::_ptr_t<SysGeometry::Geometry> drawn() const { return this->shape(); }

protected:
  SymbolElement(SysUtility::_ptr_t<Shape> shape, SysUtility::_ptr_t<S> symbol)
      : ShapeElement<Shape>(std::move(shape)), symbol_(std::move(symbol)) {}
  SymbolElement(SymbolElement const&) = default;

private:
  SysUtility::_ptr_t<S> symbol_;
};

}  // namespace SysCarto
