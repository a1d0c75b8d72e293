#pragma once

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
  int GetType() const override;
  SysUtility::_ptr_t<Element> Clone() const override;
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
