#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/LineSymbol.h>

#include <QPointF>
#include <QVector>

class QPainter;

namespace SysCarto {

enum class ArrowHead { None, Triangle, Barbed, Open, Dot, Bar };

/// What the two ends of a line have: its first and its last vertex. The size is the length of a head in points.
struct ArrowHeads {
  ArrowHead start = ArrowHead::None, end = ArrowHead::None;
  double sizePt = 8;

  bool isNone() const { return start == ArrowHead::None && end == ArrowHead::None; }
};

/// A line with its heads under a transformation: the run between them, which is shorter by what they cover, and each
/// head as an area to be filled or a line to be drawn. World units.
class SYSCARTO_EXPORT ArrowShape {
public:
  ArrowShape(QVector<QPointF> const& line, ArrowHeads const& heads, double worldPerPoint);

  /// The line in its symbol, the heads in its colour.
  void draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysDisplay::LineSymbol const& symbol) const;

  /// The box about the heads, without the width of their lines; empty where there are none.
  SysUtility::_ptr_t<SysGeometry::Envelope> bounds() const;

private:
  struct Head {
    QVector<QPointF> points;
    bool isFilled;
  };
  void add(ArrowHead kind, bool atEnd);

  double const length_;
  QVector<QPointF> const whole_;
  QVector<QPointF> run_;
  QVector<Head> heads_;
};

}  // namespace SysCarto
