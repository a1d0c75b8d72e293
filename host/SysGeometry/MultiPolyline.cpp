#include <SysGeometry/MultiPolyline.h>

#include "PlaneGeometry.h"

using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysGeometry {

MultiPolyline::MultiPolyline() = default;
MultiPolyline::MultiPolyline(QVector<QVector<QPointF>> paths) : paths_(std::move(paths)) {}
MultiPolyline::MultiPolyline(MultiPolyline const&) = default;
MultiPolyline& MultiPolyline::operator=(MultiPolyline const&) = default;
MultiPolyline::~MultiPolyline() = default;

_ptr_t<Envelope> MultiPolyline::GetEnvelope() const { return boxOf(paths_).envelope(); }
_ptr_t<Geometry> MultiPolyline::Clone() const { return make<MultiPolyline>(*this); }

QVector<QVector<QPointF>> const& MultiPolyline::GetPaths() const { return paths_; }

}  // namespace SysGeometry
