#pragma once

#include <SysGeometry/Geometry.h>
#include <SysGeometry/PointCollection.h>

namespace SysGeometry {

/// One run of straight segments.
class SYSGEOMETRY_EXPORT Polyline final : public Geometry, public PointCollection {
public:
  Polyline();
  explicit Polyline(QVector<QPointF> points);
  Polyline(Polyline const&);
  Polyline& operator=(Polyline const&);
  ~Polyline() override;

  SysUtility::_ptr_t<Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<Geometry> Clone() const override;
};

}  // namespace SysGeometry
