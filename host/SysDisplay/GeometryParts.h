#pragma once

#include "host/SysDisplay/WorldRun.h"

#include <SysDisplay/DisplayTransformation.h>

#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>

class QPainterPath;

namespace SysDisplay {

/// One run of vertices of a geometry.
struct GeometryPart {
  WorldRun run;
  bool closed;
};

/// Visits the lines of a polyline and the rings of a polygon or an envelope. Answers false for an empty pointer and for
/// other geometries.
bool visitParts(SysGeometry::Geometry const* geometry, std::function<void(GeometryPart const&)> const& visit);

/// The same for a path; curves become straight pieces.
void visitParts(QPainterPath const& path, std::function<void(GeometryPart const&)> const& visit);

bool isArea(SysGeometry::Geometry const* geometry);

/// The position of a point, the anchor point of another geometry; nothing where there is none.
std::optional<QPointF> placeOf(SysGeometry::Geometry const* geometry);

/// What the vertices of a geometry's lines and rings cover on the device; nothing where there are none.
std::optional<QRectF> deviceBounds(DisplayTransformation const& transformation, SysGeometry::Geometry const* geometry);

/// A device rectangle in world units; empty pointer for nothing.
SysUtility::_ptr_t<SysGeometry::Envelope> toWorld(DisplayTransformation const& transformation,
                                                  std::optional<QRectF> const& device);

}  // namespace SysDisplay
