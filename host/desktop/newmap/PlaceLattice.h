#pragma once

#include "host/SysCarto/projection/PointTransform.h"

#include <QRectF>

#include <ogr_spatialref.h>

#include <cmath>

/// Calls `use` with the places of a lattice over a rectangle of one coordinate system in the other; with none where one
/// of them is missing.
template <class Use>
void forEachPlace(OGRSpatialReference const* from, OGRSpatialReference const* to, QRectF const& area, Use const& use) {
  QString error;
  auto const transform = from && to ? SysCarto::PointTransform::create(*from, *to, error) : nullptr;
  constexpr int steps = 20;
  for (int i = 0; transform && i <= steps; ++i)
    for (int j = 0; j <= steps; ++j) {
      double x = area.left() + area.width() * i / steps, y = area.top() + area.height() * j / steps;
      if (from->IsGeographic()) x = std::remainder(x, 360.0);
      if (transform->apply(x, y)) use(x, y);
    }
}
