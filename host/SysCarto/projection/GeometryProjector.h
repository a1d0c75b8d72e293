#pragma once

#include "host/SysCarto/projection/PartSink.h"
#include "host/SysCarto/projection/PointTransform.h"
#include "host/SysCarto/projection/ProjectionDomain.h"

#include <optional>

class OGRGeometry;
class OGRGeometryCollection;
class OGRLineString;
class OGRPolygon;

namespace SysCarto {

/// Takes geometries of a data source into a map's coordinate system: cut where the map is cut, with vertices added
/// where a straight edge becomes a curve. Collections are flattened, curves made of segments; empty parts, and vertices
/// that are no numbers, are left out.
class GeometryProjector {
public:
  /// Without a projection, coordinates are taken as they are.
  GeometryProjector() = default;

  /// Null for a system that isn't known: coordinates are then taken as the map's. An empty pointer where there is no
  /// way between the two; `error` then says why, as a clause. May be called by any thread.
  static std::unique_ptr<GeometryProjector> create(OGRSpatialReference const* source, OGRSpatialReference const* target,
                                                   QString& error);

  /// The same for another thread; an empty pointer where PROJ can't copy.
  std::unique_ptr<GeometryProjector> clone() const;

  /// Whether coordinates become others.
  bool isProjecting() const { return toMap_ != nullptr; }

  /// Whether those of the source are longitudes and latitudes, which become others.
  bool isFromDegrees() const { return isProjecting() && sourceIsGeographic_; }

  /// Whether a geometry in degrees, or a part of it, lies where there is no globe: beyond a pole, or more than a turn
  /// beyond the antimeridian.
  bool isBeyondGlobe(OGRGeometry const& geometry) const;

  /// Hands the parts of a geometry to the sink.
  void add(OGRGeometry const& geometry, PartSink& sink) const;

private:
  static std::unique_ptr<GeometryProjector> made(OGRSpatialReference const* source, OGRSpatialReference const* target,
                                                 QString& error);
  void addLinear(OGRGeometry const& geometry, PartSink& sink, int depth) const;
  void addMembers(OGRGeometryCollection const& collection, PartSink& sink, int depth) const;
  void addPoint(double x, double y, PartSink& sink) const;
  void addLine(OGRLineString const& line, PartSink& sink) const;
  void addPolygon(OGRPolygon const& polygon, PartSink& sink) const;

  Run toGlobe(std::vector<double> xy, bool closed) const;
  void markSeams(Run& ring) const;
  std::vector<double> toMap(Run const& run, bool closed, std::vector<unsigned char>& edges) const;
  void storePolygon(std::vector<Run> const& rings, PartSink& sink) const;
  void storeRing(Run const& ring, PartSink& sink) const;
  void storeLine(Run const& line, PartSink& sink) const;

  std::unique_ptr<PointTransform>
      toGlobe_;  // from a projected source, or another datum; null where there is nothing to do
  std::unique_ptr<PointTransform> toMap_;  // from longitude and latitude; null without a projection
  bool sourceIsGeographic_ = true;
  double sourceDegree_ = 1;    // how many degrees a unit of a geographic source is
  double antimeridian_ = 180;  // where a geographic source begins anew: a longitude of the map's globe
  Domain domain_{0, true, nullptr, 0};
  double mapTolerance_ = 0;   // how far a curve may lie from its edges, in map units
  double maxSourceEdge_ = 0;  // an edge of a source that is not geographic is divided beyond this length, in its units
};

}  // namespace SysCarto
