#pragma once

#include <SysGeometry/Geometry.h>

namespace SysGeometry {

/// A position. It counts as empty when x or y is not a number.
class SYSGEOMETRY_EXPORT Point final : public Geometry {
public:
  Point(double x, double y, double z);
  Point(Point const&);
  Point& operator=(Point const&);
  ~Point() override;

  SysUtility::_ptr_t<Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<Point> GetAnchorPoint() const override;
  SysUtility::_ptr_t<Geometry> Clone() const override;

  virtual double GetX() const;
  virtual double GetY() const;
  virtual double GetZ() const;

private:
  double x_, y_, z_;
};

}  // namespace SysGeometry
