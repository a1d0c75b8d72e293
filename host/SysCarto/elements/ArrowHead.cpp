#include "ArrowHead.h"

#include "Placement.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QLineF>

#include <algorithm>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::LineSymbol;
using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineSymbol;
using SysGeometry::Envelope;
using SysGeometry::Polygon;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// A head that points to the right with its tip at the origin, in lengths of the head; and how much of the line it
// covers.
struct Form {
  ArrowHead kind;
  bool isFilled;
  double covered;
  QVector<QPointF> points;
};

QVector<Form> const& forms() {
  static QVector<Form> const all = {
      {ArrowHead::Triangle, true, 0.9, {{0, 0}, {-1, 0.4}, {-1, -0.4}}},
      {ArrowHead::Barbed, true, 0.65, {{0, 0}, {-1, 0.4}, {-0.7, 0}, {-1, -0.4}}},
      {ArrowHead::Open, false, 0, {{-0.9, 0.45}, {0, 0}, {-0.9, -0.45}}},
      {ArrowHead::Dot, true, 0, {}},
      {ArrowHead::Bar, false, 0, {{0, 0.5}, {0, -0.5}}},
  };
  return all;
}

// About the end of the line, half as wide as an arrow is long.
QVector<QPointF> dot(QPointF const& middle, double length) {
  double const radius = length / 4;
  auto const circle =
      ellipseIn(Envelope(middle.x() - radius, middle.y() - radius, middle.x() + radius, middle.y() + radius));
  return circle->GetRings().first();
}

// The point that lies that far back from the line's end, and what is left of the line before it.
QPointF cutBack(QVector<QPointF>& run, double length) {
  QPointF const end = run.last();
  while (run.size() > 2 && QLineF(run[run.size() - 2], end).length() <= length) run.removeLast();
  QLineF const last(run[run.size() - 2], run.last());
  // Along the segment, as far as the circle about the end reaches into it.
  double low = 0, high = 1;
  for (int i = 0; i < 50; ++i) {
    double const middle = (low + high) / 2;
    (QLineF(last.pointAt(middle), end).length() > length ? low : high) = middle;
  }
  run.last() = last.pointAt(high);
  return run.last();
}

}  // namespace

ArrowShape::ArrowShape(QVector<QPointF> const& line, ArrowHeads const& heads, double worldPerPoint)
    : length_(heads.sizePt * worldPerPoint), whole_(line), run_(line) {
  if (run_.size() < 2) return;
  // A line that is shorter than its heads keeps its direction.
  add(heads.end, true);
  add(heads.start, false);
}

void ArrowShape::add(ArrowHead kind, bool atEnd) {
  auto const form = std::find_if(forms().begin(), forms().end(), [=](Form const& one) { return one.kind == kind; });
  if (form == forms().end()) return;
  if (!atEnd) std::reverse(run_.begin(), run_.end());
  QPointF const tip = atEnd ? whole_.last() : whole_.first();
  auto back = whole_;
  if (!atEnd) std::reverse(back.begin(), back.end());
  QLineF axis(cutBack(back, length_), tip);
  if (axis.length() > 0) axis.setLength(1);
  QPointF const along = axis.p2() - axis.p1(), across(-along.y(), along.x());
  Head head{{}, form->isFilled};
  for (QPointF const& point : form->points) head.points << tip + (along * point.x() + across * point.y()) * length_;
  if (kind == ArrowHead::Dot) head.points = dot(tip, length_);
  heads_ << head;
  if (form->covered > 0) cutBack(run_, form->covered * length_);
  if (!atEnd) std::reverse(run_.begin(), run_.end());
}

void ArrowShape::draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                      LineSymbol const& symbol) const {
  symbol.Draw(painter, transformation, make<Polyline>(run_));
  auto const fill = make<SimpleFillSymbol>();
  fill->SetColor(symbol.GetColor());
  auto const line = make<SimpleLineSymbol>();
  line->SetColor(symbol.GetColor());
  line->SetWidth(symbol.GetWidth());
  line->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
  for (Head const& head : heads_) {
    if (head.isFilled)
      fill->Draw(painter, transformation, make<Polygon>(QVector<QVector<QPointF>>{head.points}));
    else
      line->Draw(painter, transformation, make<Polyline>(head.points));
  }
}

_ptr_t<Envelope> ArrowShape::bounds() const {
  auto const box = make<Envelope>();
  for (Head const& head : heads_) include(*box, make<Polyline>(head.points));
  return box;
}

}  // namespace SysCarto
