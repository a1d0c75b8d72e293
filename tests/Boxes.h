#pragma once

#include "Test.h"

#include <SysGeometry/Envelope.h>

#include <cmath>

/// From its lowest corner, as y runs upwards.
inline QRectF rectOf(SysGeometry::Envelope const& box) {
  return {box.GetXMin(), box.GetYMin(), box.GetWidth(), box.GetHeight()};
}

/// Whether a box lies in another, or at most so far beyond it.
inline bool isWithin(QRectF const& box, QRectF const& outer, double tolerance) {
  return outer.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(box);
}

inline bool isAbout(QRectF const& a, QRectF const& b, double tolerance) {
  return isWithin(a, b, tolerance) && isWithin(b, a, tolerance);
}

/// Of what a geometry covers, in order, without the last bits of their rounding.
inline QVector<double> sidesOf(SysGeometry::Geometry const& geometry) {
  auto const box = geometry.GetEnvelope();
  QVector<double> sides{box->GetXMin(), box->GetYMin(), box->GetXMax(), box->GetYMax()};
  for (double& side : sides) side = std::round(side * 1e6) / 1e6;
  return sides;
}
