#include "ElementLimits.h"
#include "Placement.h"

#include <SysCarto/FrameElementBase.h>

#include <algorithm>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysUtility::_ptr_t;

struct FrameElementBase::Private {
  _ptr_t<Envelope> rectangle = SysUtility::make<Envelope>(0.0, 0.0, 1.0, 1.0);  // never changed, but replaced
  _ptr_t<IBorder> border;
  _ptr_t<IBackground> background;
  _ptr_t<IShadow> shadow;
};

FrameElementBase::FrameElementBase() : d(std::make_unique<Private>()) {}
FrameElementBase::FrameElementBase(FrameElementBase const& other)
    : Element(other), IFrameProperties(other), d(std::make_unique<Private>(*other.d)) {}
FrameElementBase::~FrameElementBase() = default;

void FrameElementBase::DrawBackground(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation) {
  if (d->background) d->background->Draw(painter, transformation, d->rectangle);
}
void FrameElementBase::DrawBorder(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation) {
  if (d->border) d->border->Draw(painter, transformation, d->rectangle);
}
void FrameElementBase::DrawShadow(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation) {
  if (d->shadow) d->shadow->Draw(painter, transformation, d->rectangle);
}

void FrameElementBase::rectangleChanged() {}

void FrameElementBase::place(_ptr_t<Envelope> const& rectangle) {
  bool const isElsewhere = !haveSameCorners(*rectangle, *d->rectangle);
  d->rectangle = rectangle;
  rectangleChanged();
  if (isElsewhere) moved();
}

void FrameElementBase::Move(double dx, double dy) {
  place(placed(*d->rectangle, Placement::moving(*d->rectangle, dx, dy, farthestOnPageCm)));
}

void FrameElementBase::Scale(_ptr_t<Point> const& origin, double sx, double sy) {
  place(placed(*d->rectangle, Placement::scaling(origin, sx, sy)));
}

_ptr_t<Geometry> FrameElementBase::GetGeometry() const { return d->rectangle->Clone(); }
_ptr_t<Envelope> FrameElementBase::GetEnvelope() const { return d->rectangle->GetEnvelope(); }

void FrameElementBase::SetGeometry(_ptr_t<Envelope> const& rectangle) {
  if (isFinite(rectangle)) place(rectangle->GetEnvelope());
}

_ptr_t<Geometry> FrameElementBase::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  _ptr_t<Envelope> const area = GetEnvelope();
  if (d->border) include(*area, d->border->QueryBoundary(transformation, d->rectangle));
  if (d->background) include(*area, d->background->QueryBoundary(transformation, d->rectangle));
  if (d->shadow) include(*area, d->shadow->QueryBoundary(transformation, d->rectangle));
  return area;
}

_ptr_t<IBorder> FrameElementBase::GetBorder() const { return d->border; }
void FrameElementBase::SetBorder(_ptr_t<IBorder> const& border) {
  d->border = border;
  changed();
}
_ptr_t<IBackground> FrameElementBase::GetBackground() const { return d->background; }
void FrameElementBase::SetBackGround(_ptr_t<IBackground> const& background) {
  d->background = background;
  changed();
}
_ptr_t<IShadow> FrameElementBase::GetShadow() const { return d->shadow; }
void FrameElementBase::SetShadow(_ptr_t<IShadow> shadow) {
  d->shadow = shadow;
  changed();
}

}  // namespace SysCarto
