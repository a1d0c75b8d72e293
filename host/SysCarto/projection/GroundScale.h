#pragma once

#include <SysCarto/Export.h>

#include <QPointF>
#include <QString>

#include <memory>

namespace SysCarto {

/// How long a map unit is on the ground, in a map's coordinate system.
class SYSCARTO_EXPORT GroundScale {
public:
  /// An empty definition, or one that can't be used, takes a unit for a metre.
  explicit GroundScale(QString const& definition);
  ~GroundScale();
  GroundScale(GroundScale const&) = delete;
  GroundScale& operator=(GroundScale const&) = delete;

  /// Metres of ground on a unit along x at a place in map units. `step` is a small length in map units over which it is
  /// measured. Always positive: where the projection has no ground (beyond its edge), its nominal unit counts.
  double metresPerUnit(double x, double y, double step) const;

  /// Metres of ground from one place to another near it, both in map units. Always positive where they differ.
  double metresBetween(QPointF const& from, QPointF const& to) const;

  /// The same, but 0 where the projection has no ground.
  double measuredBetween(QPointF const& from, QPointF const& to) const;

  /// Metres on a unit where it can't be measured.
  double nominalUnit() const;

  /// Degrees, counterclockwise from up, to true north at a place in map units. 0 where there is no north: in plain
  /// coordinates, at a pole, and beyond the projection's edge.
  double northAngle(double x, double y) const;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
