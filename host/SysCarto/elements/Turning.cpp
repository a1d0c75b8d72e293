#include "Turning.h"

#include "GraphicElements.h"
#include "PictureElement.h"
#include "TextElement.h"

#include <SysCarto/GroupElement.h>

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysGeometry::Point;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

// Right angles stay right to the last bit; y runs upwards, so a positive angle is counterclockwise.
QTransform turningAbout(QPointF const& about, double degrees) {
  return QTransform().translate(about.x(), about.y()).rotate(degrees).translate(-about.x(), -about.y());
}

double turned(double angle, double by) { return std::remainder(angle + by, 360); }

QVector<QPointF> mapped(QTransform const& turning, QVector<QPointF> points) {
  for (QPointF& point : points) point = turning.map(point);
  return points;
}

QPointF placeOf(Element const& element) {
  auto const point = ptr_cast<Point>(element.GetGeometry());
  return {point->GetX(), point->GetY()};
}

void turnOne(TextElement& text, QTransform const& turning, double degrees) {
  QPointF const place = turning.map(placeOf(text));
  text.setPosition(place.x(), place.y());
  text.setAngle(turned(text.angle(), degrees));
}

void turnOne(PictureElement& picture, QTransform const& turning, double degrees) {
  auto const middle = picture.GetEnvelope()->GetAnchorPoint();
  QPointF const was(middle->GetX(), middle->GetY()), is = turning.map(was);
  picture.Move(is.x() - was.x(), is.y() - was.y());
  picture.setAngle(turned(picture.angle(), degrees));
}

void turnOne(MarkerElement& marker, QTransform const& turning, double degrees) {
  QPointF const place = turning.map(placeOf(marker));
  marker.setShape(make<Point>(place.x(), place.y(), 0.0));
  if (!marker.symbol()) return;
  auto const symbol = ptr_cast<SysDisplay::MarkerSymbol>(marker.symbol()->Clone());
  symbol->SetAngle(turned(symbol->GetAngle(), degrees));
  marker.setSymbol(symbol);
}

void turnOne(LineElement& line, QTransform const& turning, double) {
  line.setShape(make<SysGeometry::Polyline>(mapped(turning, line.shape()->GetPoints())));
}

void turnOne(PolygonElement& polygon, QTransform const& turning, double) {
  auto rings = polygon.shape()->GetRings();
  for (auto& ring : rings) ring = mapped(turning, ring);
  polygon.setShape(make<SysGeometry::Polygon>(rings));
}

// A kind of element that can be turned.
struct Kind {
  bool (*matches)(Element const&);
  void (*turn)(Element&, QTransform const&, double);
};

template <class T>
constexpr Kind kind() {
  return {[](Element const& element) { return dynamic_cast<T const*>(&element) != nullptr; },
          [](Element& element, QTransform const& turning, double degrees) {
            turnOne(static_cast<T&>(element), turning, degrees);
          }};
}

constexpr Kind kinds[] = {kind<TextElement>(), kind<PictureElement>(), kind<MarkerElement>(), kind<LineElement>(),
                          kind<PolygonElement>()};

Kind const* kindOf(Element const& element) {
  for (Kind const& kind : kinds)
    if (kind.matches(element)) return &kind;
  return nullptr;
}

}  // namespace

bool canTurn(Element const& element) {
  auto const* const group = dynamic_cast<GroupElement const*>(&element);
  if (!group) return kindOf(element) != nullptr;
  auto const members = group->GetElements();
  return std::all_of(members.begin(), members.end(), [](auto const& member) { return canTurn(*member); });
}

void turn(Element& element, QPointF const& about, double degrees) {
  if (!canTurn(element)) return;
  if (auto* const group = dynamic_cast<GroupElement*>(&element)) {
    for (auto const& member : group->GetElements()) turn(*member, about, degrees);
    return;
  }
  kindOf(element)->turn(element, turningAbout(about, degrees), degrees);
}

}  // namespace SysCarto
