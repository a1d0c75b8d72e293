#pragma once

#include <SysGeometry/Geometry.h>

#include <QPointF>
#include <QVector>

namespace SysGeometry {

/// Several runs of straight segments that count as one geometry.
class SYSGEOMETRY_EXPORT MultiPolyline final : public Geometry {
public:
  MultiPolyline();
  explicit MultiPolyline(QVector<QVector<QPointF>> paths);
  MultiPolyline(MultiPolyline const&);
  MultiPolyline& operator=(MultiPolyline const&);
  ~MultiPolyline() override;

  SysUtility::_ptr_t<Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<Geometry> Clone() const override;

  QVector<QVector<QPointF>> const& GetPaths() const;

private:
  QVector<QVector<QPointF>> paths_;
};

}  // namespace SysGeometry
