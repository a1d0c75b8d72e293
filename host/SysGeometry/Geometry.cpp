#include <SysGeometry/Geometry.h>

#include "OgrBridge.h"
#include "QuietOgr.h"

#include <SysGeometry/Envelope.h>
#include <SysGeometry/Point.h>

#include <ogr_geometry.h>

#include <cmath>

using SysUtility::_ptr_t;

namespace SysGeometry {

namespace {

// Answers false or nothing where one of the two does not exist or can't be compared.
template <class Question>
auto ask(Geometry const& one, _ptr_t<Geometry> const& other, Question const& question)
    -> decltype(question(std::declval<OGRGeometry&>(), std::declval<OGRGeometry&>())) {
  QuietOgr const quiet;
  auto const a = toOgr(one);
  auto const b = other ? toOgr(*other) : nullptr;
  if (!a || !b) return {};
  return question(*a, *b);
}

_ptr_t<Geometry> adopt(OGRGeometry* result) {
  std::unique_ptr<OGRGeometry> const owned(result);
  return owned ? fromOgr(*owned) : nullptr;
}

}  // namespace

Geometry::Geometry() = default;
Geometry::Geometry(Geometry const&) = default;
Geometry& Geometry::operator=(Geometry const&) = default;
Geometry::~Geometry() = default;

_ptr_t<Point> Geometry::GetAnchorPoint() const { return GetEnvelope()->GetAnchorPoint(); }

bool Geometry::Intersects(_ptr_t<Geometry> const& other) const {
  return ask(*this, other, [](OGRGeometry& a, OGRGeometry& b) -> bool { return a.Intersects(&b); });
}

// OGR's own Equals compares vertex by vertex.
bool Geometry::Equals(_ptr_t<Geometry> const& other) const {
  return ask(*this, other, [](OGRGeometry& a, OGRGeometry& b) -> bool { return a.Contains(&b) && b.Contains(&a); });
}

bool Geometry::Contains(_ptr_t<Geometry> const& other) const {
  return ask(*this, other, [](OGRGeometry& a, OGRGeometry& b) -> bool { return a.Contains(&b); });
}

_ptr_t<Geometry> Geometry::Buffer(double distance) const {
  QuietOgr const quiet;
  auto const geometry = toOgr(*this);
  return geometry && std::isfinite(distance) ? adopt(geometry->Buffer(distance)) : nullptr;
}

_ptr_t<Geometry> Geometry::Union(_ptr_t<Geometry> const& other) const {
  return ask(*this, other, [](OGRGeometry& a, OGRGeometry& b) { return adopt(a.Union(&b)); });
}

}  // namespace SysGeometry
