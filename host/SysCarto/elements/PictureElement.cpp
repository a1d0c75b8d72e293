#include "PictureElement.h"

#include "PictureSource.h"

#include <SysDisplay/SimpleLineSymbol.h>
#include <SysGeometry/MultiPolyline.h>

#include <algorithm>

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
void drawPlaceholder(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                     Envelope const& rectangle) {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetWidth(placeholderWidthPt);
  line->SetColor(QColor(160, 160, 160));
  double const inset = placeholderWidthPt / 2 * worldPerPoint(*transformation);
  QPointF const low(rectangle.GetXMin() + inset, rectangle.GetYMin() + inset);
  QPointF const high(rectangle.GetXMax() - inset, rectangle.GetYMax() - inset);
  QPointF const upperLeft(low.x(), high.y()), lowerRight(high.x(), low.y());
  line->Draw(painter, transformation,
             make<MultiPolyline>(QVector<QVector<QPointF>>{
                 {low, lowerRight, high, upperLeft, low}, {low, high}, {upperLeft, lowerRight}}));
}

}  // namespace

PictureElement::PictureElement()
    : ShapeElement(make<Envelope>(0.0, 0.0, 1.0, 1.0)), source_(std::make_shared<PictureSource>(QString())) {}
PictureElement::PictureElement(PictureElement const&) = default;
PictureElement::~PictureElement() = default;

QString PictureElement::path() const { return source_->path(); }
void PictureElement::setPath(QString const& path) { source_ = std::make_shared<PictureSource>(path); }
void PictureElement::readAgain() { source_->forget(); }
QString PictureElement::problem() const { return source_->problem(); }

int PictureElement::GetType() const { return ElementType::Picture; }

void PictureElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                          _ptr_t<TrackerCancel> const&) {
  if (!transformation) return;
  if (!source_->problem().isEmpty()) return drawPlaceholder(painter, transformation, *shape());
  QPointF const centre = centreOf(*shape());
  QPointF const upperLeft = upright(*transformation, centre, {shape()->GetXMin(), shape()->GetYMax()});
  QPointF const lowerRight = upright(*transformation, centre, {shape()->GetXMax(), shape()->GetYMin()});
  QPoint const from = transformation->FromMapPoint(upperLeft.x(), upperLeft.y());
  QPoint const to = transformation->FromMapPoint(lowerRight.x(), lowerRight.y());
  for (int side : {from.x(), from.y(), to.x(), to.y()})
    if (side < -maxCoordinatePx || side > maxCoordinatePx) return;
  source_->draw(painter, QRect(from, QSize(std::max(1, to.x() - from.x()), std::max(1, to.y() - from.y()))));
}

_ptr_t<Geometry> PictureElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  if (!transformation) return GetEnvelope();
  return upright(*transformation, centreOf(*shape()), *GetEnvelope());
}

_ptr_t<Element> PictureElement::Clone() const { return make<PictureElement>(*this); }

}  // namespace SysCarto
