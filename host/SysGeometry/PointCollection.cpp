#include <SysGeometry/PointCollection.h>

namespace SysGeometry {

PointCollection::PointCollection() = default;
PointCollection::PointCollection(QVector<QPointF> points) : points_(std::move(points)) {}
PointCollection::PointCollection(PointCollection const&) = default;
PointCollection& PointCollection::operator=(PointCollection const&) = default;
PointCollection::~PointCollection() = default;

void PointCollection::AddPoint(double x, double y) { points_.append(QPointF(x, y)); }
int PointCollection::GetPointCount() const { return points_.size(); }
QVector<QPointF> const& PointCollection::GetPoints() const { return points_; }

}  // namespace SysGeometry
