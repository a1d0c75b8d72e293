#pragma once

#include "GridLines.h"

#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

namespace SysCarto {

class GeometryProjector;
class PointTransform;

/// The meridians and parallels of a coordinate system.
class GraticuleLines final : public GridLines {
public:
  /// A system without a globe has none.
  explicit GraticuleLines(QString const& system);
  ~GraticuleLines() override;
  GraticuleLines(GraticuleLines const&) = delete;
  GraticuleLines& operator=(GraticuleLines const&) = delete;

  // Intervals are degrees. Where the extent has no globe there is nothing.
  double count(SysGeometry::Envelope const& extent, double interval) const override;
  GridStep unitSize(SysGeometry::Envelope const& extent) const override;
  QVector<GridLine> lines(SysGeometry::Envelope const& extent, GridStep const& interval) const override;
  QVector<GridCrossing> crossings(SysGeometry::Envelope const& extent, GridStep const& interval) const override;

private:
  enum class Pole { Hidden, Point, Line };

  // Longitudes are counted on from −180 or below, so that a range may lie across the antimeridian.
  struct Range {
    double west, east, south, north;
    Pole southPole = Pole::Hidden, northPole = Pole::Hidden;
  };

  Range rangeOf(SysGeometry::Envelope const& extent) const;
  Range grown(Range range, double middle, SysGeometry::Envelope const& extent) const;
  bool shows(double longitude, double latitude, SysGeometry::Envelope const& extent) const;
  std::vector<QPointF> placesIn(SysGeometry::Envelope const& extent) const;
  Pole poleAt(double latitude, double longitude, SysGeometry::Envelope const& extent) const;
  bool isCutAt(double longitude) const;
  void addMeridian(QVector<GridLine>& lines, double number, GridStep const& interval, Range const& range) const;
  GridLine made(bool isMeridian, double step, double number, QLineF const& onGlobe) const;

  std::unique_ptr<GeometryProjector> projector_;
  std::unique_ptr<PointTransform> toMap_;
  std::unique_ptr<PointTransform> toGlobe_;  // null where PROJ knows no way back
};

}  // namespace SysCarto
