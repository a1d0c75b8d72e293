#pragma once

#include <SysGeometry/Envelope.h>

#include <QLineF>
#include <QPointF>
#include <QVector>

namespace SysCarto {

/// A line of a grid on a map: a meridian or a parallel, or one along which an easting or a northing is constant. What
/// is said of meridians and parallels here goes for these, too.
struct GridLine {
  bool isMeridian;
  double value;                     ///< degrees or map units
  int number;                       ///< of the interval: the equator and the prime meridian are 0
  QVector<QVector<QPointF>> parts;  ///< in map units
  QVector<QLineF> ends;  ///< where it ends with the globe: edges outwards. Not where meridians meet in a pole.
};

/// Where two lines cross, and the places a little farther on along either, in map units.
struct GridCrossing {
  QPointF at, alongParallel, alongMeridian;
};

/// An amount for either direction of a grid, in its own units: the distance of two lines, or map units in such a unit.
struct GridStep {
  double longitude, latitude;
};

/// The lines of a grid on maps of one coordinate system.
class GridLines {
public:
  virtual ~GridLines();

  /// How many lines run through an extent.
  virtual double count(SysGeometry::Envelope const& extent, double interval) const = 0;

  /// Map units in a unit of the grid: the mean of a few places of the extent. 0 where the extent has no grid.
  virtual GridStep unitSize(SysGeometry::Envelope const& extent) const = 0;

  /// The lines at the multiples of an interval, a little beyond the extent. They are cut where the projection is cut,
  /// and curves are made of short edges.
  virtual QVector<GridLine> lines(SysGeometry::Envelope const& extent, GridStep const& interval) const = 0;

  /// Where these lines cross.
  virtual QVector<GridCrossing> crossings(SysGeometry::Envelope const& extent, GridStep const& interval) const = 0;
};

/// The first and the last multiple of a step in a range, in steps.
double firstMultiple(double from, double step);
double lastMultiple(double to, double step);

}  // namespace SysCarto
