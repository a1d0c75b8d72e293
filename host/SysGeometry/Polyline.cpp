#include <SysGeometry/Polyline.h>

#include "PlaneGeometry.h"

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

Polyline::Polyline() = default;
Polyline::Polyline(QVector<QPointF> points) : PointCollection(std::move(points)) {}
Polyline::Polyline(Polyline const&) = default;
Polyline& Polyline::operator=(Polyline const&) = default;
Polyline::~Polyline() = default;

_ptr_t<Envelope> Polyline::GetEnvelope() const { return boxOf(GetPoints()).envelope(); }
_ptr_t<Geometry> Polyline::Clone() const { return make<Polyline>(*this); }

}  // namespace SysGeometry
