#pragma once

#include <SysGeometry/Envelope.h>

#include <QPointF>
#include <QVector>

namespace SysGeometry {

/// The bounding rectangles of vertices; empty for no vertices. A vertex that is not a number counts as none.
SysUtility::_ptr_t<Envelope> boundsOf(QVector<QPointF> const& points);
SysUtility::_ptr_t<Envelope> boundsOf(QVector<QVector<QPointF>> const& runs);

}  // namespace SysGeometry
