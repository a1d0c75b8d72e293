#pragma once

#include <memory>
#include <vector>

class OGRSpatialReference;

namespace SysCarto {

class ProjectionProbe;

/// What is known of the edge that leads from a vertex to the next.
enum EdgeFlag : unsigned char {
  seamEdge = 1,  ///< comes from a cut, here or in the data: filled beside, never stroked
  arcEdge = 2,   ///< lies on a curved border and is short enough as it is
};

/// A place on the globe: degrees of longitude, counted from the middle of the projection and not limited to ±180, and
/// of latitude.
struct Vertex {
  double x, y;
  unsigned char edge = 0;
};
using Run = std::vector<Vertex>;

/// The vertex at a fraction of an edge.
inline Vertex between(Vertex const& a, Vertex const& b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t, a.edge};
}

/// The part of the globe that a projection shows in one piece. Geometries are cut at its border before they are
/// projected: what lies beyond is moved onto the border, so that rings stay closed and areas right by the even-odd
/// rule.
class ProjectionDomain {
public:
  virtual ~ProjectionDomain();

  /// The rings of one polygon, each without a repeated last vertex. Appends the rings that are left of it, of each
  /// piece that lies in one turn of the globe separately.
  virtual void clipPolygon(std::vector<Run> const& rings, std::vector<std::vector<Run>>& polygons) const = 0;
  virtual void clipLine(Run const& line, std::vector<Run>& lines) const = 0;

  /// Brings the longitude into range; false where the projection does not show the place.
  virtual bool admit(Vertex& point) const = 0;
};

struct Domain {
  double centralLongitude;  ///< where x is 0
  bool isStrip;             ///< x is within ±180 after clipping; otherwise it may be any turn of the globe
  std::shared_ptr<ProjectionDomain const> border;  ///< empty where nothing of the globe is shown
  double size = 0;                                 ///< about the longer side of what is shown, in map units
};

/// The domain of a geographic or projected coordinate system: the strip or the disk that its projection suggests, where
/// the projection shows all of it without a break, and else the region that a survey of the globe finds. One that was
/// found is kept for the next who asks.
Domain makeDomain(OGRSpatialReference const& system, ProjectionProbe const& probe);

// The three kinds.

/// A strip between two meridians, 360 degrees apart, and two parallels.
std::unique_ptr<ProjectionDomain> makeStripDomain(double south, double north);

/// The place on a sphere at a distance from a centre of longitude 0, in a direction from north over east; degrees.
Vertex placeFrom(double centreLatitude, double direction, double distance);

/// Everything within a distance of a centre that depends on the direction. `limits` are degrees, for directions evenly
/// spaced from north over east.
std::unique_ptr<ProjectionDomain> makeDiskDomain(double centreLatitude, std::vector<double> limits);

/// What borders enclose by the even-odd rule, within ±180 and ±90 degrees.
std::unique_ptr<ProjectionDomain> makeRegionDomain(std::vector<Run> border);

}  // namespace SysCarto
