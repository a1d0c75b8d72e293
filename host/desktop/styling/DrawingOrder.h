#pragma once

#include "Theme.h"

#include <SysCarto/Layer.h>

#include "host/SysGeometry/Box.h"

class OGRSpatialReference;

/// Where a layer lies among others: what is lower is drawn first. Points are above lines, these above areas; of areas,
/// the land is below all others, and small ones lie on large ones.
struct DrawingOrder {
  int height = 0;
  double largest = 0;  ///< square kilometres about the largest feature; of areas

  static DrawingOrder of(SysCarto::GeometryKind kind, Theme theme, int count, double largestKm2);

  /// Rasters are above the land and below all other areas; a relief shades what lies below it.
  static DrawingOrder ofRaster(bool isRelief);

  /// Of a layer of a map with such a coordinate system; what is no layer of features is lowest.
  static DrawingOrder of(SysCarto::Layer const& layer, QString const& mapSystem);

  bool isBelow(DrawingOrder const& other) const {
    return height != other.height ? height < other.height : largest > other.largest;
  }
};

/// Of an area in units of a system, or of plain coordinates, with its middle at `y`; about.
double squareKm(double area, double y, OGRSpatialReference const* system);
double squareKm(SysGeometry::Box const& box, OGRSpatialReference const* system);
