#include <SysGeometry/Polygon.h>

#include "PlaneGeometry.h"

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

Polygon::Polygon() = default;
Polygon::Polygon(QVector<QVector<QPointF>> rings) : rings_(std::move(rings)) {}
Polygon::Polygon(Polygon const&) = default;
Polygon& Polygon::operator=(Polygon const&) = default;
Polygon::~Polygon() = default;

_ptr_t<Envelope> Polygon::GetEnvelope() const { return boxOf(rings_).envelope(); }
_ptr_t<Geometry> Polygon::Clone() const { return make<Polygon>(*this); }

QVector<QVector<QPointF>> const& Polygon::GetRings() const { return rings_; }

}  // namespace SysGeometry
