#include "GraticuleLabels.h"

#include "Pieces.h"

#include "host/SysCarto/layout/TextElement.h"
#include "host/SysGeometry/QuietOgr.h"

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::HorizontalAlignment;
using SysDisplay::TextSymbol;
using SysDisplay::VerticalAlignment;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double onSideCm = 1e-6;
constexpr double closedCm = 1e-3;
constexpr double thinnedCm = 5e-4;  // a tenth of a pixel at 600 dpi
constexpr double betweenCm = 0.08;  // two labels
constexpr double steepFrom = 0.5;   // of half the frame's height

OGRPolygon polygonOf(double left, double bottom, double right, double top) {
  OGRLinearRing ring;
  ring.addPoint(left, bottom);
  ring.addPoint(right, bottom);
  ring.addPoint(right, top);
  ring.addPoint(left, top);
  ring.closeRings();
  OGRPolygon polygon;
  polygon.addRing(&ring);
  return polygon;
}

void addLines(OGRGeometry const& geometry, QVector<QVector<QPointF>>& parts) {
  if (wkbFlatten(geometry.getGeometryType()) == wkbLineString) {
    QVector<QPointF> points;
    for (OGRPoint const& point : *geometry.toLineString()) points << QPointF(point.getX(), point.getY());
    if (points.size() > 1) parts << points;
  } else if (OGR_GT_IsSubClassOf(geometry.getGeometryType(), wkbGeometryCollection)) {
    for (auto const* member : *geometry.toGeometryCollection()) addLines(*member, parts);
  }
}

}  // namespace

GraticuleLabels::GraticuleLabels(Envelope const& rectangle, _ptr_t<TextSymbol> const& symbol, double gapPt)
    : left_(rectangle.GetXMin()),
      bottom_(rectangle.GetYMin()),
      right_(rectangle.GetXMax()),
      top_(rectangle.GetYMax()),
      format_(symbol->format()),
      gapCm_(gapPt * cmPerPoint) {}

QVector<QVector<QPointF>> GraticuleLabels::placed(GraticuleLine const& line, Envelope const& extent) const {
  double const scaleX = (right_ - left_) / extent.GetWidth(), scaleY = (top_ - bottom_) / extent.GetHeight();
  OGRMultiLineString whole;
  for (QVector<QPointF> const& part : line.parts) {
    OGRLineString string;
    string.setNumPoints(part.size());
    for (int i = 0; i < part.size(); ++i)
      string.setPoint(i, left_ + (part[i].x() - extent.GetXMin()) * scaleX,
                      bottom_ + (part[i].y() - extent.GetYMin()) * scaleY);
    whole.addGeometry(&string);
  }
  SysGeometry::QuietOgr const quiet;
  OGREnvelope covered, frame;
  whole.getEnvelope(&covered);
  OGRPolygon const rectangle = polygonOf(left_, bottom_, right_, top_);
  rectangle.getEnvelope(&frame);
  std::unique_ptr<OGRGeometry> const thinned(whole.Simplify(thinnedCm));
  std::unique_ptr<OGRGeometry> const inside(thinned && !frame.Contains(covered) ? thinned->Intersection(&rectangle)
                                                                                : nullptr);
  QVector<QVector<QPointF>> parts;
  if (inside)
    addLines(*inside, parts);
  else if (thinned && frame.Contains(covered))
    addLines(*thinned, parts);
  return parts;
}

GraticuleLabels::Side GraticuleLabels::sideOf(QPointF const& point) const {
  if (std::abs(point.x() - left_) < onSideCm) return Left;
  if (std::abs(point.x() - right_) < onSideCm) return Right;
  if (std::abs(point.y() - bottom_) < onSideCm) return Bottom;
  if (std::abs(point.y() - top_) < onSideCm) return Top;
  return None;
}

void GraticuleLabels::label(GraticuleLine const& line, QVector<QVector<QPointF>> const& parts) {
  QVector<QPointF> wanted, others, ends;
  for (QVector<QPointF> const& part : parts) {
    bool const isClosed = QLineF(part.first(), part.last()).length() < closedCm;
    for (QPointF const& point : {part.first(), part.last()}) {
      Side const side = sideOf(point);
      bool const isWanted = line.isMeridian == (side == Bottom || side == Top);
      if (side != None) (isWanted ? wanted : others) << point;
      if (side == None && !isClosed && !line.isMeridian) ends << point;
    }
  }
  QString const text = degreesText(line.degrees, line.isMeridian);
  for (QPointF const& point : wanted.isEmpty() ? others : wanted) addOutside(text, point, sideOf(point));
  for (QPointF const& point : qAsConst(ends)) addBeyond(text, point);
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

// The globe's edge leans towards the poles, so a label far from the middle is moved away from it in height, too.
void GraticuleLabels::addBeyond(QString const& text, QPointF const& point) {
  double const aside = point.x() - (left_ + right_) / 2, up = point.y() - (bottom_ + top_) / 2;
  bool const isMiddle = std::abs(up) < steepFrom * (top_ - bottom_) / 2;
  add(text, {point.x() + (aside < 0 ? -gapCm_ : gapCm_), point.y()}, 0,
      aside < 0 ? HorizontalAlignment::Right : HorizontalAlignment::Left,
      isMiddle ? VerticalAlignment::Middle
      : up < 0 ? VerticalAlignment::Top
               : VerticalAlignment::Bottom);
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
  double const margin = gapCm_ + element->symbol()->bounds(text).height() * cmPerPoint;
  QRectF const room(left_ - margin, bottom_ - margin, right_ - left_ + 2 * margin, top_ - bottom_ + 2 * margin);
  if (!room.adjusted(-onSideCm, -onSideCm, onSideCm, onSideCm).contains(box)) return;
  for (QRectF const& other : qAsConst(taken_))
    if (other.intersects(box.adjusted(-betweenCm, -betweenCm, betweenCm, betweenCm))) return;
  taken_ << box;
  elements_ << element;
}

}  // namespace SysCarto
