#pragma once

#include <SysGeometry/Geometry.h>

namespace SysGeometry {

/// A rectangle with its sides along the axes. Its corners need not be ordered: `PutCoords` and the setters store what
/// they are given, and width and height may be negative.
class SYSGEOMETRY_EXPORT Envelope final : public Geometry {
public:
  /// An empty envelope: all sides not a number, width and height 0.
  Envelope();
  Envelope(double xmin, double ymin, double xmax, double ymax);

  /// The rectangle spanned by two points, its corners ordered. An empty pointer gives an empty envelope.
  Envelope(SysUtility::_ptr_t<Point> const& a, SysUtility::_ptr_t<Point> const& b);
  Envelope(Envelope const&);
  Envelope& operator=(Envelope const&);
  ~Envelope() override;

  /// A copy with its corners ordered; `Clone` keeps them as they are.
  SysUtility::_ptr_t<Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<Point> GetAnchorPoint() const override;
  SysUtility::_ptr_t<Geometry> Clone() const override;
  bool Intersects(SysUtility::_ptr_t<Geometry> const& other) const override;

  /// Moves the rectangle by (dx, dy).
  virtual void Offset(double dx, double dy);

  double GetXMin() const;
  double GetYMin() const;
  double GetXMax() const;
  double GetYMax() const;
  double GetWidth() const;   ///< XMax − XMin
  double GetHeight() const;  ///< YMax − YMin

  // Each sets one side and leaves the others.
  void SetXMin(double xmin);
  void SetXMax(double xmax);
  void SetYMin(double ymin);
  void SetYMax(double ymax);

  void PutCoords(double xmin, double ymin, double xmax, double ymax);
  void QueryCoords(double& xmin, double& ymin, double& xmax, double& ymax) const;

  /// Moves the rectangle, its size unchanged, so that its centre is the given point.
  void CenterAt(double x, double y);
  void CenterAt(SysUtility::_ptr_t<Point> const& centre);

  /// Grows the rectangle about its centre. With `ratio`, width becomes width × dx and height becomes height × dy;
  /// without it, every side moves outwards by dx or dy. An empty envelope stays empty.
  void Expand(double dx, double dy, bool ratio);

  /// True for an envelope that holds no point at all (a side is not a number).
  bool IsEmpty() const;

private:
  double xmin_, ymin_, xmax_, ymax_;
};

}  // namespace SysGeometry
