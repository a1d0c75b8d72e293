#include "GraticuleLabels.h"

#include "Pieces.h"

#include "host/SysCarto/elements/TextElement.h"
#include "host/SysGeometry/PlaneGeometry.h"
#include "host/SysGeometry/QuietOgr.h"

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace SysCarto {

using SysDisplay::HorizontalAlignment;
using SysDisplay::TextSymbol;
using SysDisplay::VerticalAlignment;
using SysGeometry::Box;
using SysGeometry::Envelope;
using SysGeometry::Ring;
using SysGeometry::Rings;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double onSideCm = 1e-6;
constexpr double thinnedCm = 5e-4;  // a tenth of a pixel at 600 dpi
constexpr double betweenCm = 0.08;  // two labels
constexpr double steepFrom = 0.5;   // of half the frame's height
constexpr double haloPt = 1;        // around a label on its line

QPointF halfwayAlong(Ring const& line) {
  double left = 0;
  for (int i = 1; i < line.size(); ++i) left += QLineF(line[i - 1], line[i]).length() / 2;
  for (int i = 1; i < line.size(); ++i) {
    QLineF const edge(line[i - 1], line[i]);
    if (edge.length() > 0 && left <= edge.length()) return edge.pointAt(left / edge.length());
    left -= edge.length();
  }
  return line.last();
}

Ring beginningOf(Ring const& line, double length) {
  Ring part{line.first()};
  for (int i = 1; i < line.size(); ++i) {
    QLineF const edge(line[i - 1], line[i]);
    if (edge.length() >= length) return part << edge.pointAt(length / edge.length());
    length -= edge.length();
    part << line[i];
  }
  return part;
}

bool meets(QRectF const& box, QRectF const& other) {
  return other.intersects(box.adjusted(-betweenCm, -betweenCm, betweenCm, betweenCm));
}

// What a pixel can't show of a line is left out.
Ring thinned(Ring const& line) {
  OGRLineString string;
  string.setNumPoints(line.size());
  for (int i = 0; i < line.size(); ++i) string.setPoint(i, line[i].x(), line[i].y());
  SysGeometry::QuietOgr const quiet;
  std::unique_ptr<OGRGeometry> const simple(string.Simplify(thinnedCm));
  Ring points;
  if (simple && !simple->IsEmpty())
    for (OGRPoint const& point : *simple->toLineString()) points << QPointF(point.getX(), point.getY());
  return points;
}

// Appends the parts of a line that lie within a box.
void addClipped(Ring const& line, Box const& box, Rings& parts) {
  Ring part;
  auto const end = [&] {
    if (part.size() > 1) parts << part;
    part.clear();
  };
  for (int i = 1; i < line.size(); ++i) {
    QPointF const &a = line[i - 1], &b = line[i];
    SysGeometry::SegmentRange const inside = SysGeometry::clippedSegment(a, b, box);
    if (!(inside.from < inside.to)) {
      end();
      continue;
    }
    if (inside.from > 0) end();
    if (part.isEmpty()) part << a + (b - a) * inside.from;
    part << (inside.to < 1 ? a + (b - a) * inside.to : b);
    if (inside.to < 1) end();
  }
  end();
}

}  // namespace

QPointF MapPlace::onPage(QPointF const& point) const {
  QPointF const turned = turn.map(point);
  return {rectangle.GetXMin() +
              (turned.x() - extent.GetXMin()) * (rectangle.GetXMax() - rectangle.GetXMin()) / extent.GetWidth(),
          rectangle.GetYMin() +
              (turned.y() - extent.GetYMin()) * (rectangle.GetYMax() - rectangle.GetYMin()) / extent.GetHeight()};
}

Envelope MapPlace::covered() const {
  if (turn.isIdentity()) return extent;
  QRectF const area = turn.inverted().mapRect(
      QRectF(QPointF(extent.GetXMin(), extent.GetYMin()), QPointF(extent.GetXMax(), extent.GetYMax())));
  return {area.left(), area.top(), area.right(), area.bottom()};
}

GraticuleLabels::GraticuleLabels(MapPlace const& place, _ptr_t<TextSymbol> const& symbol, double gapPt,
                                 Sides const& labelledSides)
    : place_(place),
      left_(place.rectangle.GetXMin()),
      bottom_(place.rectangle.GetYMin()),
      right_(place.rectangle.GetXMax()),
      top_(place.rectangle.GetYMax()),
      format_(symbol->format()),
      gapCm_(gapPt * SysDisplay::cmPerPoint),
      labelledSides_(labelledSides) {}

Rings GraticuleLabels::placed(GridLine const& line) const {
  Rings parts;
  for (Ring part : line.parts) {
    for (QPointF& point : part) point = place_.onPage(point);
    addClipped(thinned(part), {left_, bottom_, right_, top_}, parts);
  }
  return parts;
}

Rings GraticuleLabels::ticks(Rings const& parts, double lengthCm) const {
  Rings ticks;
  for (Ring part : parts)
    for (int end = 0; end < 2; ++end) {
      if (sideOf(part.first(), true) != None) ticks << beginningOf(part, lengthCm);
      std::reverse(part.begin(), part.end());
    }
  return ticks;
}

Rings GraticuleLabels::cross(GridCrossing const& crossing, double lengthCm) const {
  Rings arms;
  QPointF const at = place_.onPage(crossing.at);
  for (QPointF const& along : {crossing.alongParallel, crossing.alongMeridian}) {
    QLineF const arm(at, place_.onPage(along));
    if (!(arm.length() > 0)) continue;
    QPointF const reach = (arm.p2() - at) * (lengthCm / 2 / arm.length());
    addClipped({at - reach, at + reach}, {left_, bottom_, right_, top_}, arms);
  }
  return arms;
}

bool GraticuleLabels::isLabelled(Side side) const {
  switch (side) {
    case Left: return labelledSides_.left;
    case Right: return labelledSides_.right;
    case Bottom: return labelledSides_.bottom;
    case Top: return labelledSides_.top;
    case None: break;
  }
  return false;
}

// In a corner, the side on which the line is better labelled.
GraticuleLabels::Side GraticuleLabels::sideOf(QPointF const& point, bool isMeridian) const {
  Side const beside = std::abs(point.x() - left_) < onSideCm    ? Left
                      : std::abs(point.x() - right_) < onSideCm ? Right
                                                                : None;
  Side const above = std::abs(point.y() - bottom_) < onSideCm ? Bottom
                     : std::abs(point.y() - top_) < onSideCm  ? Top
                                                              : None;
  if (beside == None || above == None) return beside == None ? above : beside;
  return isMeridian ? above : beside;
}

void GraticuleLabels::label(GridLine const& line, Rings const& parts, QString const& text) {
  line_ = &line;
  Ring wanted, others;
  for (Ring const& part : parts)
    for (QPointF const& point : {part.first(), part.last()}) {
      Side const side = sideOf(point, line.isMeridian);
      bool const isWanted = line.isMeridian == (side == Bottom || side == Top);
      if (side != None) (isWanted ? wanted : others) << point;
    }
  QVector<QLineF> ends;
  for (QLineF const& end : line.ends) {
    QLineF const placed(place_.onPage(end.p1()), place_.onPage(end.p2()));
    bool const isInside = placed.x2() > left_ + onSideCm && placed.x2() < right_ - onSideCm &&
                          placed.y2() > bottom_ + onSideCm && placed.y2() < top_ - onSideCm;
    if (isInside) ends << placed;
  }
  for (QPointF const& point : wanted.isEmpty() ? others : wanted) {
    Side const side = sideOf(point, line.isMeridian);
    if (isLabelled(side)) addOutside(text, point, side);
  }
  for (QLineF const& end : qAsConst(ends)) addBeyond(text, end);
  if (wanted.isEmpty() && others.isEmpty() && ends.isEmpty()) addOn(text, parts);
}

// Beside the frame a label reads upwards, so that however long it is, it reaches no farther than its height.
void GraticuleLabels::addOutside(QString const& text, QPointF const& point, Side side) {
  switch (side) {
    case Left:
      return add(text, {left_ - gapCm_, point.y()}, 90, HorizontalAlignment::Center, VerticalAlignment::Bottom);
    case Right: return add(text, {right_ + gapCm_, point.y()}, 90, HorizontalAlignment::Center, VerticalAlignment::Top);
    case Bottom:
      return add(text, {point.x(), bottom_ - gapCm_}, 0, HorizontalAlignment::Center, VerticalAlignment::Top);
    case Top: return add(text, {point.x(), top_ + gapCm_}, 0, HorizontalAlignment::Center, VerticalAlignment::Bottom);
    case None: return;
  }
}

// Above or below a meridian, where it ends more upright than level. The globe's edge leans towards the poles, so the
// label of a parallel far from the middle is moved away from it in height, too.
void GraticuleLabels::addBeyond(QString const& text, QLineF const& end) {
  bool const isMeridian = line_->isMeridian;
  QPointF const point = end.p2();
  if (isMeridian && std::abs(end.dy()) >= std::abs(end.dx()))
    return add(text, {point.x(), point.y() + (end.dy() < 0 ? -gapCm_ : gapCm_)}, 0, HorizontalAlignment::Center,
               end.dy() < 0 ? VerticalAlignment::Top : VerticalAlignment::Bottom);
  double const aside = isMeridian ? end.dx() : point.x() - (left_ + right_) / 2;
  double const up = isMeridian ? 0 : point.y() - (bottom_ + top_) / 2;
  bool const isMiddle = std::abs(up) < steepFrom * (top_ - bottom_) / 2;
  add(text, {point.x() + (aside < 0 ? -gapCm_ : gapCm_), point.y()}, 0,
      aside < 0 ? HorizontalAlignment::Right : HorizontalAlignment::Left,
      isMiddle ? VerticalAlignment::Middle
      : up < 0 ? VerticalAlignment::Top
               : VerticalAlignment::Bottom);
}

// At the lowest point of a parallel, which goes around a pole; halfway along a meridian, which goes from pole to pole.
void GraticuleLabels::addOn(QString const& text, Rings const& parts) {
  if (parts.isEmpty()) return;
  Ring const& part = parts.first();
  auto const lowest = std::min_element(part.begin(), part.end(),
                                       [](QPointF const& one, QPointF const& other) { return one.y() < other.y(); });
  double const usual = std::exchange(format_.haloSize, std::max(haloPt, format_.haloSize));
  add(text, line_->isMeridian ? halfwayAlong(part) : *lowest, 0, HorizontalAlignment::Center,
      VerticalAlignment::Middle);
  format_.haloSize = usual;
}

void GraticuleLabels::add(QString const& text, QPointF const& position, double angle, HorizontalAlignment horizontal,
                          VerticalAlignment vertical) {
  format_.horizontal = horizontal;
  format_.vertical = vertical;
  auto const element = make<TextElement>();
  element->setText(text);
  element->setSymbol(make<TextSymbol>(format_));
  element->setPosition(position.x(), position.y());
  element->setAngle(angle);
  auto const covered = element->GetEnvelope();
  QRectF const box(covered->GetXMin(), covered->GetYMin(), covered->GetWidth(), covered->GetHeight());
  double const margin = gapCm_ + element->symbol()->bounds(text).height() * SysDisplay::cmPerPoint;
  QRectF const room(left_ - margin, bottom_ - margin, right_ - left_ + 2 * margin, top_ - bottom_ + 2 * margin);
  if (!room.adjusted(-onSideCm, -onSideCm, onSideCm, onSideCm).contains(box)) return;
  labels_ << Label{line_->isMeridian, line_->number, box, element};
}

QList<_ptr_t<Element>> GraticuleLabels::elements() const {
  QVector<Label> chosen;
  for (bool const isMeridian : {true, false}) {
    QVector<Label> some;
    int every = 0;
    do {
      ++every;
      some.clear();
      for (Label const& label : labels_)
        if (label.isMeridian == isMeridian && label.number % every == 0) some << label;
    } while (doOverlap(some));
    chosen += some;
  }
  // What still overlaps are both sides of a cut, and meridians in the way of parallels.
  QVector<QRectF> taken;
  QList<_ptr_t<Element>> elements;
  for (Label const& label : qAsConst(chosen)) {
    bool const isFree =
        std::none_of(taken.begin(), taken.end(), [&](QRectF const& other) { return meets(label.box, other); });
    if (!isFree) continue;
    taken << label.box;
    elements << label.element;
  }
  return elements;
}

// Labels of one kind, of different lines. That of number 0 remains alone at last.
bool GraticuleLabels::doOverlap(QVector<Label> const& labels) const {
  for (int i = 1; i < labels.size(); ++i)
    for (int j = i - 1; j >= 0; --j)
      if (labels[i].number != labels[j].number && meets(labels[i].box, labels[j].box)) return true;
  return false;
}

}  // namespace SysCarto
