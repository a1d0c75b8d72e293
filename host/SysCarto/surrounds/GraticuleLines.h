#pragma once

#include <SysGeometry/Envelope.h>

#include <QLineF>
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
  int number;                       ///< of the interval: the equator and the prime meridian are 0
  QVector<QVector<QPointF>> parts;  ///< in map units
  QVector<QLineF> ends;  ///< where it ends with the globe: edges outwards. Not where meridians meet in a pole.
};

/// An amount for either direction of the globe: degrees between two lines, or map units in a degree.
struct GraticuleStep {
  double longitude, latitude;
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

  /// Map units in a degree: the mean of a few places of the extent. 0 where the extent has no globe.
  GraticuleStep degreeSize(SysGeometry::Envelope const& extent) const;

  /// The lines at the multiples of an interval in degrees, a little beyond the extent. They are cut where the
  /// projection is cut, and curves are made of short edges.
  QVector<GraticuleLine> lines(SysGeometry::Envelope const& extent, GraticuleStep const& interval) const;

private:
  enum class Pole { Hidden, Point, Line };

  // Longitudes are counted on from −180 or below, so that a range may lie across the antimeridian.
  struct Range {
    double west, east, south, north;
    Pole southPole = Pole::Hidden, northPole = Pole::Hidden;
  };

  Range rangeOf(SysGeometry::Envelope const& extent) const;
  Range grown(Range range, double middle, SysGeometry::Envelope const& extent) const;
  bool shows(double longitude, double latitude, SysGeometry::Envelope const& extent) const;
  Pole poleAt(double latitude, double longitude, SysGeometry::Envelope const& extent) const;
  bool isCutAt(double longitude) const;
  void addMeridian(QVector<GraticuleLine>& lines, double number, GraticuleStep const& interval,
                   Range const& range) const;
  GraticuleLine made(bool isMeridian, double step, double number, QLineF const& onGlobe) const;

  std::unique_ptr<GeometryProjector> projector_;
  std::unique_ptr<PointTransform> toGlobe_, toMap_;
};

/// A longitude or latitude for people: 30°N, 15°30′E, 0°.
QString degreesText(double degrees, bool isLongitude);

}  // namespace SysCarto
