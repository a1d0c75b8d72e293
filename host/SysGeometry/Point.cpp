#include <SysGeometry/Point.h>

#include <SysGeometry/Envelope.h>

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

Point::Point(double x, double y, double z) : x_(x), y_(y), z_(z) {}
Point::Point(Point const&) = default;
Point& Point::operator=(Point const&) = default;
Point::~Point() = default;

_ptr_t<Envelope> Point::GetEnvelope() const { return make<Envelope>(x_, y_, x_, y_); }
_ptr_t<Point> Point::GetAnchorPoint() const { return GetEnvelope()->IsEmpty() ? nullptr : make<Point>(*this); }
_ptr_t<Geometry> Point::Clone() const { return make<Point>(*this); }

double Point::GetX() const { return x_; }
double Point::GetY() const { return y_; }
double Point::GetZ() const { return z_; }

}  // namespace SysGeometry
