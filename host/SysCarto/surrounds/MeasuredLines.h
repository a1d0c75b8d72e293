#pragma once

#include "GridLines.h"

namespace SysCarto {

/// The lines along which a coordinate of the map is constant, whatever its system.
class MeasuredLines final : public GridLines {
public:
  double count(SysGeometry::Envelope const& extent, double interval) const override;
  GridStep unitSize(SysGeometry::Envelope const& extent) const override;
  QVector<GridLine> lines(SysGeometry::Envelope const& extent, GridStep const& interval) const override;
  QVector<GridCrossing> crossings(SysGeometry::Envelope const& extent, GridStep const& interval) const override;
};

}  // namespace SysCarto
