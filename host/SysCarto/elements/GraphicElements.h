#pragma once

#include "host/SysCarto/elements/ArrowHead.h"
#include "host/SysCarto/elements/ShapeElement.h"

#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/MarkerSymbol.h>

namespace SysCarto {

class SYSCARTO_EXPORT MarkerElement final : public SymbolElement<SysGeometry::Point, SysDisplay::MarkerSymbol> {
public:
  MarkerElement();
  MarkerElement(MarkerElement const&);
  ~MarkerElement() override;
  int GetType() const override;
  SysUtility::_ptr_t<Element> Clone() const override;
};

class SYSCARTO_EXPORT LineElement final : public SymbolElement<SysGeometry::Polyline, SysDisplay::LineSymbol> {
public:
  LineElement();
  LineElement(LineElement const&);
  ~LineElement() override;

  /// In the colour of the symbol. They lie within the line's ends.
  ArrowHeads const& heads() const { return heads_; }
  void setHeads(ArrowHeads const& heads) { heads_ = heads; }

  int GetType() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  SysUtility::_ptr_t<Element> Clone() const override;

private:
  ArrowShape arrow(SysDisplay::DisplayTransformation const& transformation) const;

  ArrowHeads heads_;
};

class SYSCARTO_EXPORT PolygonElement final : public SymbolElement<SysGeometry::Polygon, SysDisplay::FillSymbol> {
public:
  PolygonElement();
  PolygonElement(PolygonElement const&);
  ~PolygonElement() override;
  int GetType() const override;
  SysUtility::_ptr_t<Element> Clone() const override;
};

class SYSCARTO_EXPORT RectangleElement final : public SymbolElement<SysGeometry::Envelope, SysDisplay::FillSymbol> {
public:
  RectangleElement();
  RectangleElement(RectangleElement const&);
  ~RectangleElement() override;
  int GetType() const override;
  SysUtility::_ptr_t<Element> Clone() const override;
};

/// Fills its rectangle.
class SYSCARTO_EXPORT EllipseElement final : public SymbolElement<SysGeometry::Envelope, SysDisplay::FillSymbol> {
public:
  EllipseElement();
  EllipseElement(EllipseElement const&);
  ~EllipseElement() override;
  int GetType() const override;
  SysUtility::_ptr_t<Element> Clone() const override;
  SysUtility::_ptr_t<SysGeometry::Geometry> drawn() const override;

protected:
  void shapeChanged() override;

private:
  SysUtility::_ptr_t<SysGeometry::Geometry> outline_;
};

}  // namespace SysCarto
