#include "Placement.h"
#include "ElementContainer.h"
#include "ElementHost.h"
#include "TextElement.h"

#include <SysCarto/GroupElement.h>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysGeometry::Point;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

GroupElement::GroupElement() = default;
GroupElement::GroupElement(GroupElement const& other) : Element(other) {
  for (_ptr_t<Element> const& member : other.members_) members_ << member->Clone();
}
GroupElement::~GroupElement() = default;

void GroupElement::AddElement(_ptr_t<Element> const& element) {
  if (!element || element.get() == this) return;
  ElementHost::setHandle(*element, 0);  // no container knows it
  members_ << element;
}

QList<_ptr_t<Element>> GroupElement::GetElements() const { return members_; }

void GroupElement::Move(double dx, double dy) {
  for (_ptr_t<Element> const& member : qAsConst(members_)) member->Move(dx, dy);
  if (dx != 0 || dy != 0) moved();
}

void GroupElement::Scale(_ptr_t<Point> const& origin, double sx, double sy) {
  for (_ptr_t<Element> const& member : qAsConst(members_)) scaleInWhole(*member, origin, sx, sy);
  if (sx != 1 || sy != 1) moved();
}

int GroupElement::GetType() const { return ElementType::Group; }

_ptr_t<Geometry> GroupElement::GetGeometry() const { return GetEnvelope(); }

void GroupElement::SetGeometry(_ptr_t<Envelope> const& rectangle) {
  if (!isFinite(rectangle)) return;
  _ptr_t<Point> const centre = GetEnvelope()->GetAnchorPoint();
  if (!centre) return;
  Placement const placement = Placement::fitting(*GetEnvelope(), *rectangle);
  Scale(centre, placement.scaleX, placement.scaleY);
  Move(placement.dx, placement.dy);
}

_ptr_t<Envelope> GroupElement::GetEnvelope() const {
  auto const area = SysUtility::make<Envelope>();
  for (_ptr_t<Element> const& member : members_) include(*area, member->GetEnvelope());
  return area;
}

void GroupElement::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation,
                        _ptr_t<TrackerCancel> const& cancel) {
  for (_ptr_t<Element> const& member : qAsConst(members_)) {
    if (cancel && cancel->IsCanced()) return;
    if (member->IsVisible()) member->Draw(painter, transformation, cancel);
  }
}

_ptr_t<Geometry> GroupElement::GetBoundary(_ptr_t<DisplayTransformation> const& transformation) const {
  auto const area = SysUtility::make<Envelope>();
  for (_ptr_t<Element> const& member : members_) include(*area, member->GetBoundary(transformation));
  return area;
}

void GroupElement::containerChanged() {
  if (auto const* const container = ElementHost::container(*this)) usePlaceholders(*this, container->placeholders());
}

_ptr_t<Element> GroupElement::Clone() const { return SysUtility::make<GroupElement>(*this); }

}  // namespace SysCarto
