#pragma once

#include <SysGeometry/Envelope.h>

#include <QPointF>
#include <QString>
#include <QVector>

#include <memory>

namespace SysCarto {

class GeometryProjector;
class PointTransform;

/// A meridian or a parallel on a map.
struct GraticuleLine {
  bool isMeridian;
  double degrees;
  QVector<QVector<QPointF>> parts;  ///< in map units
};

/// The meridians and parallels of a coordinate system.
class GraticuleLines {
public:
  /// A system without a globe has none.
  explicit GraticuleLines(QString const& system);
  ~GraticuleLines();
  GraticuleLines(GraticuleLines const&) = delete;
  GraticuleLines& operator=(GraticuleLines const&) = delete;

  /// How many lines run through an extent; `interval` in degrees.
  double count(SysGeometry::Envelope const& extent, double interval) const;

  /// The lines at the multiples of the interval, a little beyond the extent. They are cut where the projection is cut,
  /// and curves are made of short edges.
  QVector<GraticuleLine> lines(SysGeometry::Envelope const& extent, double interval) const;

private:
  // Longitudes are counted on from −180 or below, so that a range may lie across the antimeridian.
  struct Range {
    double west, east, south, north;
    bool meetsInNorth = false, meetsInSouth = false;  // whether it holds a pole in which the meridians meet
  };

  Range rangeOf(SysGeometry::Envelope const& extent) const;
  Range grown(Range range, double middle, SysGeometry::Envelope const& extent) const;
  bool shows(double longitude, double latitude, SysGeometry::Envelope const& extent) const;
  bool meridiansMeetAt(double latitude, SysGeometry::Envelope const& extent) const;
  bool isCutAt(double longitude) const;
  void add(QVector<GraticuleLine>& lines, bool isMeridian, double degrees, QPointF const& from,
           QPointF const& to) const;

  std::unique_ptr<GeometryProjector> projector_;
  std::unique_ptr<PointTransform> toGlobe_, toMap_;
};

/// A longitude or latitude for people: 30°N, 15°30′E, 0°.
QString degreesText(double degrees, bool isLongitude);

}  // namespace SysCarto
