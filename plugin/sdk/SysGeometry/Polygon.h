#pragma once

#include <SysGeometry/Geometry.h>

#include <QPointF>
#include <QVector>

namespace SysGeometry {

/// An area bounded by rings, filled by the even-odd rule: holes and islands need no order and no orientation. A ring
/// closes by itself; repeating its first vertex at its end is allowed.
class SYSGEOMETRY_EXPORT Polygon final : public Geometry {
public:
  Polygon();
  explicit Polygon(QVector<QVector<QPointF>> rings);
  Polygon(Polygon const&);
  Polygon& operator=(Polygon const&);
  ~Polygon() override;

  SysUtility::_ptr_t<Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<Geometry> Clone() const override;

  QVector<QVector<QPointF>> const& GetRings() const;

private:
  QVector<QVector<QPointF>> rings_;
};

}  // namespace SysGeometry
