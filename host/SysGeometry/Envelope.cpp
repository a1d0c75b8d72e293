#include <SysGeometry/Envelope.h>

#include <SysGeometry/Point.h>

#include <algorithm>
#include <cmath>
#include <limits>

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

namespace {

double const none = std::numeric_limits<double>::quiet_NaN();

// One direction of a rectangle, its ends perhaps in the wrong order.
struct Side {
  double from, to;

  Side ordered() const { return {std::min(from, to), std::max(from, to)}; }
  bool meets(Side const& other) const { return from <= other.to && other.from <= to; }
  Side centredAt(double centre) const { return {centre - (to - from) / 2, centre + (to - from) / 2}; }

  Side scaled(double factor) const {
    double const centre = from + (to - from) / 2, half = (to - from) * factor / 2;
    return {centre - half, centre + half};
  }

  Side grown(double distance) const {
    double const outwards = from > to ? -distance : distance;
    return {from - outwards, to + outwards};
  }
};

}  // namespace

Envelope::Envelope() : Envelope(none, none, none, none) {}

Envelope::Envelope(double xmin, double ymin, double xmax, double ymax)
    : xmin_(xmin), ymin_(ymin), xmax_(xmax), ymax_(ymax) {}

Envelope::Envelope(_ptr_t<Point> const& a, _ptr_t<Point> const& b) : Envelope() {
  if (!a || !b) return;
  PutCoords(a->GetX(), a->GetY(), b->GetX(), b->GetY());
  if (IsEmpty()) return;
  if (xmin_ > xmax_) std::swap(xmin_, xmax_);
  if (ymin_ > ymax_) std::swap(ymin_, ymax_);
}

Envelope::Envelope(Envelope const&) = default;
Envelope& Envelope::operator=(Envelope const&) = default;
Envelope::~Envelope() = default;

_ptr_t<Envelope> Envelope::GetEnvelope() const {
  if (IsEmpty()) return make<Envelope>();
  Side const x = Side{xmin_, xmax_}.ordered(), y = Side{ymin_, ymax_}.ordered();
  return make<Envelope>(x.from, y.from, x.to, y.to);
}

_ptr_t<Point> Envelope::GetAnchorPoint() const {
  if (IsEmpty()) return nullptr;
  return make<Point>(xmin_ + (xmax_ - xmin_) / 2, ymin_ + (ymax_ - ymin_) / 2, 0.0);
}

_ptr_t<Geometry> Envelope::Clone() const { return make<Envelope>(*this); }

bool Envelope::Intersects(_ptr_t<Geometry> const& other) const {
  auto const* rectangle = dynamic_cast<Envelope const*>(other.get());
  if (!rectangle) return Geometry::Intersects(other);
  if (IsEmpty() || rectangle->IsEmpty()) return false;
  return Side{xmin_, xmax_}.ordered().meets(Side{rectangle->xmin_, rectangle->xmax_}.ordered()) &&
         Side{ymin_, ymax_}.ordered().meets(Side{rectangle->ymin_, rectangle->ymax_}.ordered());
}

void Envelope::Offset(double dx, double dy) { PutCoords(xmin_ + dx, ymin_ + dy, xmax_ + dx, ymax_ + dy); }

double Envelope::GetXMin() const { return xmin_; }
double Envelope::GetYMin() const { return ymin_; }
double Envelope::GetXMax() const { return xmax_; }
double Envelope::GetYMax() const { return ymax_; }
double Envelope::GetWidth() const { return IsEmpty() ? 0.0 : xmax_ - xmin_; }
double Envelope::GetHeight() const { return IsEmpty() ? 0.0 : ymax_ - ymin_; }

void Envelope::SetXMin(double xmin) { xmin_ = xmin; }
void Envelope::SetXMax(double xmax) { xmax_ = xmax; }
void Envelope::SetYMin(double ymin) { ymin_ = ymin; }
void Envelope::SetYMax(double ymax) { ymax_ = ymax; }

void Envelope::PutCoords(double xmin, double ymin, double xmax, double ymax) {
  xmin_ = xmin;
  ymin_ = ymin;
  xmax_ = xmax;
  ymax_ = ymax;
}

void Envelope::QueryCoords(double& xmin, double& ymin, double& xmax, double& ymax) const {
  xmin = xmin_;
  ymin = ymin_;
  xmax = xmax_;
  ymax = ymax_;
}

void Envelope::CenterAt(double x, double y) {
  Side const across = Side{xmin_, xmax_}.centredAt(x), up = Side{ymin_, ymax_}.centredAt(y);
  PutCoords(across.from, up.from, across.to, up.to);
}

void Envelope::CenterAt(_ptr_t<Point> const& centre) {
  if (centre) CenterAt(centre->GetX(), centre->GetY());
}

void Envelope::Expand(double dx, double dy, bool ratio) {
  Side x{xmin_, xmax_}, y{ymin_, ymax_};
  x = ratio ? x.scaled(dx) : x.grown(dx);
  y = ratio ? y.scaled(dy) : y.grown(dy);
  PutCoords(x.from, y.from, x.to, y.to);
}

bool Envelope::IsEmpty() const {
  return std::isnan(xmin_) || std::isnan(ymin_) || std::isnan(xmax_) || std::isnan(ymax_);
}

}  // namespace SysGeometry
