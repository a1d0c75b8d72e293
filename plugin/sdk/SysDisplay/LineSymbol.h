#pragma once

#include <SysDisplay/Symbol.h>

#include <QColor>
#include <QPainterPath>

#include <memory>

namespace SysDisplay {

enum class LineCapStyle { Butt = 0, Round = 1, Square = 2 };
enum class LineJoinStyle { Miter = 0, Round = 1, Bevel = 2 };

/// Draws polylines, and the outlines of polygons and envelopes.
class SYSDISPLAY_EXPORT LineSymbol : public Symbol {
public:
  ~LineSymbol() override;

  SymbolType GetType() const override;

  /// Points by which the line is moved to the left of its direction; negative values move it to the right.
  virtual double GetOffset() const;
  virtual void SetOffset(double points);

  /// Points. A line of width 0 is not drawn.
  virtual double GetWidth() const;
  virtual void SetWidth(double points);
  virtual QColor GetColor() const;
  virtual void SetColor(QColor color);
  virtual LineCapStyle GetCapStyle() const;
  virtual void SetCapStyle(LineCapStyle style);
  virtual LineJoinStyle GetJoinStyle() const;
  virtual void SetJoinStyle(LineJoinStyle style);

  /// How far a mitred corner may reach, in line widths, before it is bevelled.
  virtual double GetMiterLimit() const;
  virtual void SetMiterLimit(double limit);

  using Symbol::Draw;

  /// Draws a path given in device pixels, at page scale 1: a sample in a list, a tracker shape.
  virtual void Draw(QPainter& painter, QPainterPath const& path) const = 0;

  /// `Draw` for a geometry that is known to be a line or an outline.
  virtual void DrawCurve(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                         SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const = 0;

protected:
  LineSymbol();
  LineSymbol(LineSymbol const&);
  LineSymbol& operator=(LineSymbol const&);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
