#pragma once

#include <SysGeometry/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

namespace SysGeometry {

class Envelope;
class Point;

/// Base of all geometries. Coordinates are doubles in page units (centimetres, y upwards) or in the units of a map's
/// coordinate system; a geometry does not know which. A comparison with an empty geometry, or with one whose
/// coordinates are infinite or not a number, answers false.
class SYSGEOMETRY_EXPORT Geometry : public SysUtility::CRef {
public:
  ~Geometry() override;

  /// The bounding rectangle, as a new object; an empty envelope for an empty geometry.
  virtual SysUtility::_ptr_t<Envelope> GetEnvelope() const = 0;

  /// A representative point, as a new object: the centre of an envelope, the position of a point, for other geometries
  /// the centre of their bounding rectangle. An empty pointer for an empty geometry.
  virtual SysUtility::_ptr_t<Point> GetAnchorPoint() const;

  /// An independent copy of the same kind.
  virtual SysUtility::_ptr_t<Geometry> Clone() const = 0;

  /// True when the two share at least one point. For two envelopes, touching counts, and so do flat rectangles.
  virtual bool Intersects(SysUtility::_ptr_t<Geometry> const& other) const;

  /// True when both cover the same points, whatever the order of their vertices.
  virtual bool Equals(SysUtility::_ptr_t<Geometry> const& other) const;

  /// True when no point of `other` lies outside this geometry, and their interiors meet.
  virtual bool Contains(SysUtility::_ptr_t<Geometry> const& other) const;

  /// The area within `distance` of this geometry, a polygon; empty pointer when there is none.
  virtual SysUtility::_ptr_t<Geometry> Buffer(double distance) const;

  /// The points of both; empty pointer when there are none, or when no geometry of ours can hold them (an area and a
  /// line, two single points).
  virtual SysUtility::_ptr_t<Geometry> Union(SysUtility::_ptr_t<Geometry> const& other) const;

protected:
  Geometry();
  Geometry(Geometry const&);
  Geometry& operator=(Geometry const&);
};

}  // namespace SysGeometry
