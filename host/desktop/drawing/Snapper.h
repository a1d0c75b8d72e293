#pragma once

#include "host/SysCarto/layout/PageAids.h"

#include <SysCarto/PageLayout.h>

#include <QLineF>
#include <QPair>
#include <QRectF>
#include <QSet>
#include <QVector>

#include <optional>

/// What the mouse draws to while something is moved, resized or drawn: edges and centres of the other elements and of
/// the page, its margins, guides and grid, and places that leave equal gaps. Page centimetres, y upwards.
class Snapper {
public:
  /// How far to go from where the mouse is, and the lines that say why.
  struct Result {
    QPointF by;
    QVector<QLineF> lines;
  };

  /// Looks at the page as it is now. `moving` are elements that nothing is drawn to.
  Snapper(SysCarto::PageLayout const& layout, QSet<SysCarto::ElementHandle> const& moving,
          SysCarto::PageAids const& aids);

  /// For a box of which the sides and the middle may come to lie on a line, or that leaves equal gaps.
  Result ofBox(QRectF const& box, double reachCm) const;

  /// For a point, in the directions that it may go.
  Result ofPoint(QPointF const& point, double reachCm, bool inX = true, bool inY = true) const;

private:
  // A line across the page at a place on its axis; `from` and `to`, on the other axis, are those of what it belongs to.
  struct Target {
    double at, from, to;
    bool operator<(Target const& other) const { return at < other.at; }
  };
  struct Span {
    double low, high;
    double middle() const { return (low + high) / 2; }
    bool meets(Span const& other) const { return low < other.high && other.low < high; }
  };
  // What there is along one axis: lines by their place, and each element by what it takes along the axis and across it.
  struct Axis {
    QVector<Target> targets;
    QVector<QPair<Span, Span>> boxes;
    double grid = 0;

    void addLine(double at, Span const& across) { targets << Target{at, across.low, across.high}; }
    void addBox(Span const& along, Span const& across);
  };
  struct Gap {
    double distance;
    QVector<Span> gaps;
  };

  static std::optional<double> nearest(Axis const& axis, QVector<double> const& places, double reach);
  static std::optional<Gap> nearestGap(Axis const& axis, Span const& box, Span const& across, double reach);
  static void addLines(Axis const& axis, QVector<double> const& places, Span const& across, Qt::Orientation orientation,
                       QVector<QLineF>& lines);

  Axis x_, y_;
};
