#pragma once

#include <SysDisplay/DisplayTransformation.h>

class QPainter;

namespace SysDisplay {

enum class SymbolType { Marker = 1, Line = 2, Fill = 3, Text = 4 };

/// How a geometry looks. Sizes are in points (1/72 inch of paper), so that a symbol has one size on paper at every
/// resolution. A symbol that hangs on an element or a layer is shared: change a clone.
class SYSDISPLAY_EXPORT Symbol : public SysUtility::CRef {
public:
  ~Symbol() override;

  virtual SymbolType GetType() const = 0;

  /// An independent copy of the same kind, nested symbols included.
  virtual SysUtility::_ptr_t<Symbol> Clone() const = 0;

  /// Draws the geometry, given in the world units of the transformation. A geometry of a kind that the symbol can't
  /// draw, an empty one and an empty pointer draw nothing. The painter's state is put back.
  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const = 0;

  /// The rectangle, in world units, that `Draw` would cover; empty pointer where it would draw nothing.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const = 0;

protected:
  Symbol();
  Symbol(Symbol const&);
  Symbol& operator=(Symbol const&);
};

}  // namespace SysDisplay
