#pragma once

#include <SysGeometry/Export.h>

#include <QPointF>
#include <QVector>

namespace SysGeometry {

/// The vertex face of a polyline, or of one ring of a polygon.
class SYSGEOMETRY_EXPORT PointCollection {
public:
  virtual ~PointCollection();

  /// Appends a vertex at the end.
  void AddPoint(double x, double y);
  int GetPointCount() const;

  /// The vertices in order.
  QVector<QPointF> const& GetPoints() const;

protected:
  PointCollection();
  explicit PointCollection(QVector<QPointF> points);
  PointCollection(PointCollection const&);
  PointCollection& operator=(PointCollection const&);

private:
  QVector<QPointF> points_;
};

}  // namespace SysGeometry
