#include "PictureElement.h"

#include "PictureSource.h"

#include <SysDisplay/SimpleLineSymbol.h>
#include <SysGeometry/MultiPolyline.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::MultiPolyline;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double placeholderWidthPt = 0.5;
constexpr int maxCoordinatePx = 1 << 24;

QPointF centreOf(Envelope const& rectangle) {
  auto const centre = rectangle.GetAnchorPoint();
  return {centre->GetX(), centre->GetY()};
}

// Drawn where there is no picture: a frame, just inside the rectangle, and a diagonal cross.
void drawPlaceholder(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation, Envelope const& rectangle,
                     QTransform const& turn) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetWidth(placeholderWidthPt);
  line->SetColor(QColor(160, 160, 160));
  double const inset = placeholderWidthPt / 2 * worldPerPoint(*transformation);
  QPointF const low(rectangle.GetXMin() + inset, rectangle.GetYMin() + inset);
  QPointF const high(rectangle.GetXMax() - inset, rectangle.GetYMax() - inset);
  QPointF const upperLeft(low.x(), high.y()), lowerRight(high.x(), low.y());
  QVector<QVector<QPointF>> lines{{low, lowerRight, high, upperLeft, low}, {low, high}, {upperLeft, lowerRight}};
  for (QVector<QPointF>& points : lines)
    for (QPointF& point : points) point = turn.map(point);
  line->Draw(painter, transformation, make<MultiPolyline>(lines));
}

// In a world whose y goes up.
QTransform turnOf(Envelope const& rectangle, double degrees) {
  QTransform turn;
  if (std::fmod(degrees, 360) == 0) return turn;
  QPointF const centre = centreOf(rectangle);
  return turn.translate(centre.x(), centre.y()).rotate(degrees).translate(-centre.x(), -centre.y());
}

}  // namespace

PictureElement::PictureElement()
    : ShapeElement(make<Envelope>(0.0, 0.0, 1.0, 1.0)), source_(std::make_shared<PictureSource>(QString())) {}
PictureElement::PictureElement(PictureElement const&) = default;
PictureElement::~PictureElement() = default;

QString PictureElement::path() const { return source_->path(); }
QString PictureElement::data() const { return source_->data(); }
void PictureElement::setSource(QString const& path, QString const& data) {
  source_ = std::make_shared<PictureSource>(path, data);
}
void PictureElement::readAgain() { source_->forget(); }
QString PictureElement::problem() const { return source_->problem(); }

int PictureElement::GetType() const { return ElementType::Picture; }

void PictureElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                          _ptr_t<TrackerCancel> const&) {
  if (!transformation) return;
  if (!source_->problem().isEmpty())
    return drawPlaceholder(painter, transformation, *shape(), turnOf(*shape(), angle_));
  QPointF const centre = centreOf(*shape());
  QPointF const upperLeft = upright(*transformation, centre, {shape()->GetXMin(), shape()->GetYMax()});
  QPointF const lowerRight = upright(*transformation, centre, {shape()->GetXMax(), shape()->GetYMin()});
  QPoint const from = transformation->FromMapPoint(upperLeft.x(), upperLeft.y());
  QPoint const to = transformation->FromMapPoint(lowerRight.x(), lowerRight.y());
  for (int side : {from.x(), from.y(), to.x(), to.y()})
    if (side < -maxCoordinatePx || side > maxCoordinatePx) return;
  source_->draw(painter, QRect(from, QSize(std::max(1, to.x() - from.x()), std::max(1, to.y() - from.y()))), angle_);
}

QPolygonF PictureElement::turnedRectangle() const {
  QPointF const low(shape()->GetXMin(), shape()->GetYMin()), high(shape()->GetXMax(), shape()->GetYMax());
  return turnOf(*shape(), angle_).map(QPolygonF(QVector<QPointF>{low, {high.x(), low.y()}, high, {low.x(), high.y()}}));
}

_ptr_t<Geometry> PictureElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  QRectF const box = turnedRectangle().boundingRect();
  Envelope const turned = angle_ == 0 ? Envelope(*shape()) : Envelope(box.left(), box.top(), box.right(), box.bottom());
  if (!transformation) return turned.GetEnvelope();
  return upright(*transformation, centreOf(*shape()), turned);
}

_ptr_t<Element> PictureElement::Clone() const { return make<PictureElement>(*this); }

}  // namespace SysCarto
